#include "cli/PublishStamp.h"

#include "cli/MergedInput.h"
#include "cli/PublishOptions.h"
#include "output/EarlierPages.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "system/NameAliases.h"
#include "template/FlashTemplate.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <utility>

namespace {

// Null for what is no file: opening a pipe would block.
QByteArray fileContents(const QString& path) {
    return QFileInfo(path).isFile() ? Files::contents(path) : QByteArray();
}

// Puts texts into a digest, each with its end.
class Digest {
public:
    Digest& operator<<(const QByteArray& text) {
        iHash.addData(QByteArray::number(text.size()) + ' ');
        iHash.addData(text);
        return *this;
    }
    Digest& operator<<(const QString& text) {
        return *this << (text.isNull() ? "-" : text.toUtf8());
    }
    Digest& operator<<(int number) { return *this << QByteArray::number(number); }

    QByteArray result() const { return iHash.result().toHex(); }

private:
    QCryptographicHash iHash{QCryptographicHash::Blake2b_256};
};

// Of a document that is merged from files; none of them is recognised without reading it.
BookStamp::Document documentOf(const QStringList& merged,
                               const std::vector<MergePlan::Page>& pages) {
    Digest digest;
    for (const QString& path : merged)
        digest << Files::pathExtension(path) << fileContents(path);
    for (const MergePlan::Page& page : pages)
        digest << page.source << page.index << page.rotation;
    BookStamp::Document document;
    document.digest = digest.result();
    return document;
}

// The names and contents of all files below a folder.
void addFolder(Digest& to, const QString& folder) {
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << files.next();
    paths.sort();
    for (const QString& path : paths)
        to << path.mid(folder.size()) << Files::contents(path);
}

void addProperties(Digest& to, const FlashTemplate::Properties& properties,
                   const FlashTemplate& tmpl) {
    for (const auto& property : properties) {
        to << property->key() << NameAliases::shown(property->value());
        if (property->propertyType() == pt_file)
            to << fileContents(tmpl.valueAsFilePath(property->value()));
        addProperties(to, property->childProperties(), tmpl);
    }
}

// What the files of the pages depend on.
QByteArray digestOfPages(const PublishOptions& options, const FlashTemplate& tmpl,
                         const QByteArray& document) {
    Digest digest;
    digest << Bundle::version() << document << int(options.type) << options.quality
           << int(options.spreads)
           << tmpl.propertyValueFor(QStringLiteral("RightToLeft"), QStringLiteral("NO"));
    return digest.result();
}

// The files themselves are part of the digest, wherever they are.
QString pathOfPlayer(const PublishOptions& options) {
    return options.sharedPlayer.isNull()
               ? QString()
               : QDir(QFileInfo(options.outputFolder).absoluteFilePath())
                     .relativeFilePath(QFileInfo(options.sharedPlayer).absoluteFilePath());
}

// Whatever changes the book must be here.
QByteArray digestOfBook(const PublishOptions& options, const FlashTemplate& tmpl,
                        const QByteArray& pages, const QByteArray& resources) {
    Digest digest;
    digest << pages << resources << options.title << QFileInfo(options.pdf).completeBaseName()
           << options.pages << int(options.singleFile) << int(options.allowText)
           << int(options.password.isGiven()) // an owner may have the text
           << options.previewPages << options.url << int(options.iiif) << pathOfPlayer(options)
           << QJsonDocument(options.facts.asJson()).toJson() << int(options.links)
           << int(options.bookmarks) << options.templateName << options.styleName;
    addProperties(digest, tmpl.properties(), tmpl);
    return digest.result();
}

} // namespace

PublishStamp::PublishStamp(const PublishOptions& options, const FlashTemplate& tmpl, QString page,
                           const QByteArray& resources)
    : iPage(std::move(page)),
      iDocumentState(FileState::of(options.pdf)),
      iEarlier(BookStamp::of(iPage)) {
    using Type = PublishOptions::Type;
    if (options.type != Type::app && options.type != Type::scorm && !options.singleFile)
        iFolder = QFileInfo(iPage).path();
    const QStringList merged = MergedInput::files(options);
    iWanted.document = merged.isEmpty() ? BookStamp::documentAt(options.pdf, iEarlier)
                                        : documentOf(merged, options.pageList);
    if (iWanted.document.digest.isEmpty())
        return;
    iWanted.pages = digestOfPages(options, tmpl, iWanted.document.digest);
    iWanted.book = digestOfBook(options, tmpl, iWanted.pages, resources);
}

QByteArray PublishStamp::digestOfResources() {
    Digest digest;
    addFolder(digest, Files::join(Bundle::resourcePath(), QStringLiteral("AppFiles")));
    return digest.result();
}

bool PublishStamp::isUpToDate() const {
    return !iWanted.book.isEmpty() && iWanted.book == iEarlier.book;
}

TakeEarlierPage PublishStamp::takeEarlierPage() const {
    if (iFolder.isNull() || iWanted.pages.isEmpty() || iWanted.pages != iEarlier.pages)
        return {};
    return [pages = EarlierPages(iFolder)](int page, PageFiles wanted, const WebPageFiles& files) {
        return pages.take(page, wanted, files);
    };
}

void PublishStamp::write() const {
    if (!iWanted.book.isEmpty())
        iWanted.write(iPage);
}
