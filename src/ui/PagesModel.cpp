#include "ui/PagesModel.h"

#include "ui/DroppedFiles.h"

#include <QDataStream>
#include <QFileInfo>
#include <QMimeData>
#include <algorithm>
#include <numeric>

namespace {

const QString rowsType = QStringLiteral("application/x-folvero-pages");

constexpr int fullTurn = 360;

PagesModel::Rows range(int from, std::size_t count) {
    PagesModel::Rows rows(count);
    std::iota(rows.begin(), rows.end(), from);
    return rows;
}

bool has(const PagesModel::Rows& rows, int row) {
    return std::binary_search(rows.begin(), rows.end(), row);
}

PagesModel::Pages allPages(const PagesModel::Document& document, int number) {
    PagesModel::Pages pages;
    for (int index = 0; index < document.pageCount; ++index)
        pages.push_back({number, index});
    return pages;
}

} // namespace

// The list as a whole: it is small, and no step can leave it in a state of its own.
class PagesModel::Arrangement : public QUndoCommand {
public:
    Arrangement(PagesModel& model, const Rows& rowsBefore, Pages after, Rows rows,
                const QString& text)
        : QUndoCommand(text),
          iModel(model),
          iBefore(model.iPages),
          iRowsBefore(rowsBefore),
          iAfter(std::move(after)),
          iRows(std::move(rows)) {}

    void undo() override { iModel.show(iBefore, iRowsBefore); }
    void redo() override { iModel.show(iAfter, iRows); }

private:
    PagesModel& iModel;
    Pages iBefore;
    Rows iRowsBefore;
    Pages iAfter;
    Rows iRows;
};

void PagesModel::reset(std::vector<Document> documents, Pages pages) {
    iHistory.clear();
    iPictures.clear();
    iDocuments = std::move(documents);
    if (pages.empty()) {
        for (std::size_t number = 0; number < iDocuments.size(); ++number)
            pages.push_back({int(number)});
    }
    Pages single;
    for (const Page& page : pages) {
        if (page.source >= 0 && page.index < 0) {
            for (Page own : allPages(iDocuments[std::size_t(page.source)], page.source)) {
                own.rotation = page.rotation;
                single.push_back(own);
            }
        } else if (page.source < 0 || page.index < iDocuments[std::size_t(page.source)].pageCount) {
            single.push_back(page);
        }
    }
    show(single, {});
}

PagesModel::Used PagesModel::used() const {
    Used used;
    std::vector<int> numbers(iDocuments.size(), -1);
    for (std::size_t number = 0; number < iDocuments.size(); ++number) {
        const auto isOfIt = [number](const Page& page) { return page.source == int(number); };
        if (std::none_of(iPages.begin(), iPages.end(), isOfIt))
            continue;
        numbers[number] = int(used.documents.size());
        used.documents << iDocuments[number].path;
    }
    Pages whole;
    for (std::size_t number = 0; number < iDocuments.size(); ++number) {
        const Pages own = allPages(iDocuments[number], numbers[number]);
        if (numbers[number] >= 0)
            whole.insert(whole.end(), own.begin(), own.end());
    }
    for (Page page : iPages) {
        if (page.source >= 0)
            page.source = numbers[std::size_t(page.source)];
        used.pages.push_back(page);
    }
    const auto isSame = [](const Page& one, const Page& other) {
        return one.source == other.source && one.index == other.index &&
               one.rotation == other.rotation;
    };
    if (std::equal(whole.begin(), whole.end(), used.pages.begin(), used.pages.end(), isSame))
        used.pages.clear();
    return used;
}

void PagesModel::setPicture(int document, int index, const QString& file) {
    iPictures[{document, index}] = file;
    for (int row = 0; row < rowCount(); ++row) {
        const Page& page = iPages[std::size_t(row)];
        if (page.source == document && page.index == index)
            Q_EMIT dataChanged(this->index(row), this->index(row), {pictureRole});
    }
}

void PagesModel::arrange(const Rows& rowsBefore, Pages pages, const Rows& rows,
                         const QString& text) {
    iHistory.push(new Arrangement(*this, rowsBefore, std::move(pages), rows, text));
}

void PagesModel::show(const Pages& pages, const Rows& rows) {
    beginResetModel();
    iPages = pages;
    endResetModel();
    Q_EMIT arranged(rows);
}

void PagesModel::rotate(const Rows& rows, int degrees) {
    Pages pages = iPages;
    for (const int row : rows) {
        int& rotation = pages[std::size_t(row)].rotation;
        rotation = ((rotation + degrees) % fullTurn + fullTurn) % fullTurn;
    }
    //: Stands in "Undo %1".
    arrange(rows, std::move(pages), rows, tr("turning of %n page(s)", nullptr, int(rows.size())));
}

void PagesModel::remove(const Rows& rows) {
    Pages pages;
    for (int row = 0; row < rowCount(); ++row) {
        if (!has(rows, row))
            pages.push_back(iPages[std::size_t(row)]);
    }
    const int next = std::min(rows.empty() ? 0 : rows.front(), int(pages.size()) - 1);
    //: Stands in "Undo %1".
    arrange(rows, std::move(pages), next < 0 ? Rows{} : Rows{next},
            tr("removal of %n page(s)", nullptr, int(rows.size())));
}

void PagesModel::move(const Rows& rows, int before) {
    Pages moved;
    Pages above;
    Pages below;
    for (int row = 0; row < rowCount(); ++row)
        (has(rows, row) ? moved : row < before ? above : below).push_back(iPages[std::size_t(row)]);
    const int first = int(above.size());
    if (range(first, moved.size()) == rows)
        return;
    Pages pages = std::move(above);
    pages.insert(pages.end(), moved.begin(), moved.end());
    pages.insert(pages.end(), below.begin(), below.end());
    //: Stands in "Undo %1".
    arrange(rows, std::move(pages), range(first, moved.size()),
            tr("move of %n page(s)", nullptr, int(moved.size())));
}

void PagesModel::insertBlankPage(int before) {
    Pages pages = iPages;
    pages.insert(pages.begin() + before, Page{});
    //: Stands in "Undo %1".
    const QString text = tr("blank page");
    arrange({}, std::move(pages), {before}, text);
}

void PagesModel::insertDocuments(const std::vector<Document>& documents, int before) {
    Pages added;
    for (const Document& document : documents) {
        const Pages own = allPages(document, int(iDocuments.size()));
        iDocuments.push_back(document);
        added.insert(added.end(), own.begin(), own.end());
    }
    Pages pages = iPages;
    pages.insert(pages.begin() + before, added.begin(), added.end());
    //: Stands in "Undo %1".
    const QString text = tr("insertion of %n page(s)", nullptr, int(added.size()));
    arrange({}, std::move(pages), range(before, added.size()), text);
}

int PagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(iPages.size());
}

QString PagesModel::placeOf(const Page& page) const {
    if (page.source < 0)
        return tr("Blank page");
    const Document& document = iDocuments[std::size_t(page.source)];
    const QString name = QFileInfo(document.path).fileName();
    //: %1 is a file's name, %2 a page number in it.
    return document.pageCount == 1 ? name : tr("%1, page %2").arg(name).arg(page.index + 1);
}

QVariant PagesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Page& page = iPages[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return QString::number(index.row() + 1);
    case Qt::ToolTipRole:
        return placeOf(page);
    case Qt::AccessibleTextRole:
        //: %1 is a page number in the book, %2 where the page comes from.
        return tr("Page %1: %2").arg(index.row() + 1).arg(placeOf(page));
    case pictureRole: {
        const auto picture = iPictures.find({page.source, page.index});
        return picture == iPictures.end() ? QVariant() : picture->second;
    }
    case rotationRole:
        return page.rotation;
    default:
        return {};
    }
}

Qt::ItemFlags PagesModel::flags(const QModelIndex& index) const {
    // Only between pages may others be dropped.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
}

QStringList PagesModel::mimeTypes() const {
    return {rowsType, QStringLiteral("text/uri-list")};
}

QMimeData* PagesModel::mimeData(const QModelIndexList& indexes) const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QModelIndex& index : indexes)
        stream << qint32(index.row());
    auto* data = new QMimeData;
    data->setData(rowsType, bytes);
    return data;
}

// False although something was moved: the view would remove the rows that were dragged, and another
// program its files.
bool PagesModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int /*column*/,
                              const QModelIndex& /*parent*/) {
    const int before = row < 0 ? rowCount() : row;
    if (data->hasUrls()) {
        Q_EMIT filesWereDropped(DroppedFiles::paths(*data), before);
        return action == Qt::CopyAction;
    }
    QByteArray bytes = data->data(rowsType);
    QDataStream stream(&bytes, QIODevice::ReadOnly);
    Rows rows;
    while (!stream.atEnd()) {
        qint32 dragged = 0;
        stream >> dragged;
        if (dragged >= 0 && dragged < rowCount())
            rows.push_back(dragged);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (!rows.empty())
        move(rows, before);
    return false;
}
