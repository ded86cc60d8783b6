#include "worker/PDFMerger.h"

#include "base/PlatformException.h"
#include "pdf/PDFFile.h"
#include "worker/PicturePage.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <set>
#include <utility>

namespace {

constexpr qint64 headerBytes = 1024;

bool isPDF(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(headerBytes).contains("%PDF-");
}

QPDFObjectHandle text(const QString& words) {
    return QPDFObjectHandle::newUnicodeString(words.toStdString());
}

// While it writes, qpdf reads the sources.
[[noreturn]] void fail(const QString& path, const QPDFExc& failure) {
    const QString file = QFile::decodeName(failure.getFilename().c_str());
    PDFFile::failToOpen(file.isEmpty() ? path : file,
                        Message::translate("PDFDocument", "can't be merged with others (%1)")
                            .arg(QString::fromStdString(failure.getMessageDetail())));
}

template <class Work>
auto aboutFile(const QString& path, Work work) {
    try {
        return work();
    } catch (const QPDFExc& failure) {
        fail(path, failure);
    } catch (const std::runtime_error& failure) {
        PDFFile::failToOpen(path, QString::fromUtf8(failure.what()));
    }
}

} // namespace

PDFMerger::Document::Document(const MergePlan::Source& source)
    : path(source.path), facts(source.path, DrawablePDF::Access::mapped, source.password) {
    aboutFile(path, [&] {
        pdf.setSuppressWarnings(true);
        // Opened for each access: a worker may have a few dozen files open, a book a hundred.
        pdf.processInputSource(
            std::make_shared<ClosedFileInputSource>(QFile::encodeName(path).constData()),
            source.password.constData());
        pages = pdf.getAllPages();
        // The two libraries must count the same pages.
        if (int(pages.size()) != facts.pageCount())
            PDFFile::failToOpen(
                path, Message::translate("PDFDocument", "is too damaged to be merged with others"));
    });
}

PDFMerger::PDFMerger(MergePlan plan) : iPlan(std::move(plan)) {
    iMerged.emptyPDF();
    iMerged.setSuppressWarnings(true);
    openSources();
    addPages();
    leadLinks();
    hideLayers();
    addOutline();
    addLabels();
    describe();
}

PDFMerger::~PDFMerger() = default;

void PDFMerger::openSources() {
    for (int number = 0; number < int(iPlan.sources.size()); ++number) {
        const MergePlan::Source& source = iPlan.sources[std::size_t(number)];
        PDFFile::check(source.path);
        if (isPDF(source.path))
            iDocuments[number] = std::make_unique<Document>(source);
        else
            iPictures[number] = PicturePage::ownSize(source.path);
    }
    iUsualSize = usualSize();
}

void PDFMerger::addPages() {
    for (const MergePlan::Page& page : iPlan.pages)
        add(page);
}

void PDFMerger::add(const MergePlan::Page& page) {
    const auto document = iDocuments.find(page.source);
    if (document != iDocuments.end()) {
        const int count = int(document->second->pages.size());
        const int first = std::max(page.index, 0);
        for (int index = first; index < (page.index < 0 ? count : first + 1); ++index)
            addOfDocument(*document->second, index, page.rotation);
        return;
    }
    if (page.source < 0) {
        QPDFObjectHandle blank = QPDFObjectHandle::parse("<< /Type /Page /Resources << >> >>");
        blank.replaceKey("/MediaBox", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                          0, 0, iUsualSize.width(), iUsualSize.height())));
        addObject(iMerged.makeIndirectObject(blank), page.rotation, nullptr, 0);
        return;
    }
    const QSizeF size = iDocuments.empty() ? iPictures[page.source] : iUsualSize;
    const QString& path = iPlan.sources[std::size_t(page.source)].path;
    addObject(aboutFile(path, [&] { return PicturePage::make(iMerged, path, size); }),
              page.rotation, nullptr, 0);
}

void PDFMerger::addOfDocument(Document& document, int index, int rotation) {
    if (index >= int(document.pages.size()))
        PDFFile::failToOpen(
            document.path,
            Message::translate("PDFDocument", "has no page %1").arg(QString::number(index + 1)));
    aboutFile(document.path,
              [&] { addObject(document.pages[std::size_t(index)], rotation, &document, index); });
    document.merged.emplace(index, iPages.back().object);
}

void PDFMerger::addObject(const QPDFObjectHandle& object, int rotation, Document* document,
                          int index) {
    iMerged.addPage(object, false);
    QPDFObjectHandle added = iMerged.getAllPages().back();
    if (rotation % 360 != 0)
        added.rotatePage(rotation, true);
    added.removeKey("/StructParents");
    iPages.push_back({added, document, index});
}

// That of the first page of a document, or of the first picture.
QSizeF PDFMerger::usualSize() const {
    for (const auto& [number, document] : iDocuments) {
        const auto sizes = document->facts.pageSizes();
        if (!sizes.empty() && !sizes.front().isEmpty())
            return sizes.front();
    }
    return iPictures.empty() ? QSizeF(595, 842) : iPictures.begin()->second;
}

// The annotations of a copied page are in the order of the original's.
void PDFMerger::leadLinks() {
    for (Page& page : iPages) {
        QPDFObjectHandle annotations = page.object.getKey("/Annots");
        if (!page.document || !annotations.isArray())
            continue;
        const auto facts = page.document->facts.annotations(page.index);
        const int count = std::min(annotations.getArrayNItems(), int(facts.size()));
        for (int i = 0; i < count; ++i) {
            const PDFAnnotation& fact = facts[std::size_t(i)];
            QPDFObjectHandle link = annotations.getArrayItem(i);
            if (!fact.destinationPage || !link.isDictionary())
                continue;
            if (fact.url.isEmpty())
                link.removeKey("/A");
            leadLink(link, *page.document, *fact.destinationPage, fact.destinationAcross);
        }
    }
}

void PDFMerger::leadLink(QPDFObjectHandle link, const Document& document, int page, double across) {
    link.removeKey("/Dest");
    QPDFObjectHandle target = destination(document, page, across);
    if (!target.isNull())
        link.replaceKey("/Dest", target);
}

// Null when the page is not in the merged document.
QPDFObjectHandle PDFMerger::destination(const Document& document, int page, double across) const {
    const auto found = document.merged.find(page);
    if (found == document.merged.end())
        return QPDFObjectHandle::newNull();
    QPDFObjectHandle object = found->second;
    QPDFObjectHandle array = QPDFObjectHandle::newArray();
    array.appendItem(object);
    if (across < 0) {
        array.appendItem(QPDFObjectHandle::newName("/Fit"));
        return array;
    }
    const auto box = QPDFPageObjectHelper(object).getCropBox().getArrayAsRectangle();
    array.appendItem(QPDFObjectHandle::newName("/XYZ"));
    array.appendItem(QPDFObjectHandle::newReal(box.llx + across * (box.urx - box.llx)));
    array.appendItem(QPDFObjectHandle::newNull());
    array.appendItem(QPDFObjectHandle::newNull());
    return array;
}

void PDFMerger::hideLayers() {
    QPDFObjectHandle groups = QPDFObjectHandle::newArray();
    QPDFObjectHandle hidden = QPDFObjectHandle::newArray();
    for (Document* document : documents())
        aboutFile(document->path, [&] { hideLayersOf(*document, groups, hidden); });
    if (groups.getArrayNItems() == 0)
        return;
    QPDFObjectHandle configuration = QPDFObjectHandle::newDictionary();
    configuration.replaceKey("/OFF", hidden);
    QPDFObjectHandle properties = QPDFObjectHandle::newDictionary();
    properties.replaceKey("/OCGs", groups);
    properties.replaceKey("/D", configuration);
    iMerged.getRoot().replaceKey("/OCProperties", properties);
}

void PDFMerger::hideLayersOf(Document& document, QPDFObjectHandle groups, QPDFObjectHandle hidden) {
    QPDFObjectHandle properties = document.pdf.getRoot().getKey("/OCProperties");
    if (!properties.isDictionary() || !properties.getKey("/OCGs").isArray())
        return;
    QPDFObjectHandle configuration = properties.getKey("/D");
    const auto listed = [&](const char* key) {
        std::set<QPDFObjGen> objects;
        if (configuration.isDictionary() && configuration.getKey(key).isArray()) {
            for (auto& group : configuration.getKey(key).getArrayAsVector())
                objects.insert(group.getObjGen());
        }
        return objects;
    };
    const bool areHidden =
        configuration.isDictionary() && configuration.getKey("/BaseState").isNameAndEquals("/OFF");
    const auto exceptions = listed(areHidden ? "/ON" : "/OFF");
    for (auto& group : properties.getKey("/OCGs").getArrayAsVector()) {
        if (!group.isIndirect() || !group.isDictionary())
            continue;
        const QPDFObjectHandle copy = iMerged.copyForeignObject(group);
        groups.appendItem(copy);
        if (exceptions.contains(group.getObjGen()) != areHidden)
            hidden.appendItem(copy);
    }
}

void PDFMerger::addOutline() {
    QPDFObjectHandle root =
        iMerged.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
    const auto all = documents();
    for (const Document* document : all) {
        const auto nodes = document->facts.outline();
        if (all.size() == 1) {
            addOutlineLevel(root, nodes, *document);
        } else if (!document->merged.empty()) {
            const QString title = document->facts.information("Title").trimmed();
            const int first = document->merged.begin()->first;
            addOutlineLevel(
                addOutlineEntry(
                    root, title.isEmpty() ? QFileInfo(document->path).completeBaseName() : title,
                    destination(*document, first, -1)),
                nodes, *document);
        }
    }
    if (root.hasKey("/First"))
        iMerged.getRoot().replaceKey("/Outlines", root);
}

// Entries that lead to left-out pages are left out, but for those that others are below.
void PDFMerger::addOutlineLevel(const QPDFObjectHandle& parent,
                                const std::vector<PDFOutlineNode>& nodes,
                                const Document& document) {
    const auto isWanted = [&document](const auto& self, const PDFOutlineNode& node) -> bool {
        return document.merged.contains(node.destinationPage) ||
               std::any_of(node.children.begin(), node.children.end(),
                           [&](const PDFOutlineNode& child) { return self(self, child); });
    };
    for (const PDFOutlineNode& node : nodes) {
        if (!isWanted(isWanted, node))
            continue;
        auto target = destination(document, node.destinationPage, node.destinationAcross);
        addOutlineLevel(addOutlineEntry(parent, node.label, target), node.children, document);
    }
}

QPDFObjectHandle PDFMerger::addOutlineEntry(QPDFObjectHandle parent, const QString& label,
                                            QPDFObjectHandle target) {
    QPDFObjectHandle entry = iMerged.makeIndirectObject(QPDFObjectHandle::newDictionary());
    entry.replaceKey("/Title", text(label));
    entry.replaceKey("/Parent", parent);
    if (!target.isNull())
        entry.replaceKey("/Dest", target);
    if (parent.hasKey("/Last")) {
        QPDFObjectHandle before = parent.getKey("/Last");
        before.replaceKey("/Next", entry);
        entry.replaceKey("/Prev", before);
    } else {
        parent.replaceKey("/First", entry);
    }
    parent.replaceKey("/Last", entry);
    return entry;
}

// Labels of several documents would be the same ones again and again.
void PDFMerger::addLabels() {
    const auto all = documents();
    const auto labels = all.size() == 1 ? all.front()->facts.pageLabels() : std::vector<QString>();
    if (labels.empty())
        return;
    QPDFObjectHandle numbers = QPDFObjectHandle::newArray();
    for (int i = 0; i < pageCount(); ++i) {
        const Page& page = iPages[std::size_t(i)];
        QPDFObjectHandle label = QPDFObjectHandle::newDictionary();
        if (page.document)
            label.replaceKey("/P", text(labels[std::size_t(page.index)]));
        numbers.appendItem(QPDFObjectHandle::newInteger(i));
        numbers.appendItem(label);
    }
    QPDFObjectHandle tree = QPDFObjectHandle::newDictionary();
    tree.replaceKey("/Nums", numbers);
    iMerged.getRoot().replaceKey("/PageLabels", tree);
}

void PDFMerger::describe() {
    const auto all = documents();
    if (all.empty())
        return;
    const DrawablePDF& facts = all.front()->facts;
    if (const QString language = facts.language(); !language.isEmpty())
        iMerged.getRoot().replaceKey("/Lang", text(language));
    if (facts.viewing().rightToLeft)
        iMerged.getRoot().replaceKey("/ViewerPreferences",
                                     QPDFObjectHandle::parse("<< /Direction /R2L >>"));
    QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
    for (const char* key : {"Title", "Author", "Subject", "Keywords"}) {
        if (const QString words = facts.information(key); !words.isEmpty())
            information.replaceKey(std::string("/") + key, text(words));
    }
    iMerged.getTrailer().replaceKey("/Info", iMerged.makeIndirectObject(information));
}

std::vector<PDFMerger::Document*> PDFMerger::documents() const {
    std::vector<Document*> all;
    for (const auto& [number, document] : iDocuments)
        all.push_back(document.get());
    return all;
}

void PDFMerger::write(const QString& path) {
    const auto all = documents();
    const bool allowsText = std::all_of(all.begin(), all.end(), [](const Document* document) {
        return document->facts.viewing().allowsText;
    });
    aboutFile(path, [&] {
        const QByteArray name = QFile::encodeName(path); // which the writer does not copy
        QPDFWriter writer(iMerged, name.constData());
        writer.setObjectStreamMode(qpdf_o_disable); // read once, so its size does not matter
        if (!allowsText)
            writer.setR6EncryptionParameters("", "folvero", true, false, true, true, true, true,
                                             qpdf_r3p_full, true);
        writer.write();
    });
}
