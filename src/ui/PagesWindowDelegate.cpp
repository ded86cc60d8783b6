#include "ui/PagesWindowDelegate.h"

#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"
#include "pdf/PDFReader.h"
#include "pdf/PictureFile.h"
#include "ui/PagesWindow.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <algorithm>

namespace {

QString filter() {
    QStringList patterns{QStringLiteral("*.pdf")};
    for (const QString& type : PictureFile::types() + OfficeDocument::types())
        patterns << QStringLiteral("*.") + type;
    //: %1 are the patterns of their names.
    return PagesWindowDelegate::tr("PDFs, pictures and documents for LibreOffice (%1)")
        .arg(patterns.join(u' '));
}

} // namespace

PagesWindowDelegate::PagesWindowDelegate(QWidget* parent)
    : iWindow(new PagesWindow(parent)),
      iOffice(*iWindow),
      iFilesPanel([this](const QString& title) {
          return QFileDialog::getOpenFileNames(iWindow, title, {}, filter());
      }),
      iReading{[] { return ConvertedDocuments(); },
               [](const QString& /*document*/) { return QByteArray(); }} {
    if (!parent)
        connect(this, &QObject::destroyed, iWindow, &QObject::deleteLater);
    iWindow->pages->setModel(&iModel);
    wire();
    showCommands();
}

PagesWindowDelegate::~PagesWindowDelegate() {
    // The model goes before the window.
    if (iWindow)
        iWindow->pages->setModel(nullptr);
}

void PagesWindowDelegate::wire() {
    const auto on = [this](QAction* action, auto act) {
        connect(action, &QAction::triggered, this, act);
    };
    on(iWindow->turnLeft, [this] { iModel.rotate(selected(), -90); });
    on(iWindow->turnRight, [this] { iModel.rotate(selected(), 90); });
    on(iWindow->removePages, [this] { iModel.remove(selected()); });
    on(iWindow->earlier, [this] { moveBy(-1); });
    on(iWindow->later, [this] { moveBy(1); });
    on(iWindow->makeFirst, [this] { iModel.move(selected(), 0); });
    on(iWindow->insertBlankPage, [this] { iModel.insertBlankPage(insertionRow()); });
    on(iWindow->insertFiles,
       [this] { insertFiles(iFilesPanel(tr("Insert pages")), insertionRow()); });
    on(iWindow->undo, [this] { iModel.history().undo(); });
    on(iWindow->redo, [this] { iModel.history().redo(); });
    connect(&iModel, &PagesModel::arranged, this, &PagesWindowDelegate::select);
    connect(&iModel, &PagesModel::filesWereDropped, this, &PagesWindowDelegate::insertFiles);
    connect(&iPictures, &PagePictures::arrived, &iModel, &PagesModel::setPicture);
    // A step is counted after it was shown.
    connect(&iModel.history(), &QUndoStack::indexChanged, this, &PagesWindowDelegate::showCommands);
    connect(iWindow->pages->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PagesWindowDelegate::showCommands);
    connect(iWindow->btnOK, &QPushButton::clicked, this, [this] { endSheet(1); });
    connect(iWindow->btnCancel, &QPushButton::clicked, this, [this] { endSheet(0); });
    connect(iWindow, &Sheet::closeRequested, this, [this] { endSheet(0); });
}

// Throws PlatformException.
PagesModel::Document PagesWindowDelegate::opened(const QString& path) const {
    if (PictureFile::isOne(path))
        return {path, 1};
    const auto document = PDFReader::open(readable(path), {}, iReading.password(path));
    const int pages = document->pageCount();
    document->stopReader();
    return {path, pages};
}

bool PagesWindowDelegate::beginSheet(const QStringList& documents, PagesModel::Pages pages,
                                     std::function<void(int)> onEnd, QString* failure) {
    std::vector<PagesModel::Document> all;
    iOffice.setPDFs(iReading.converted());
    try {
        for (const QString& path : documents)
            all.push_back(opened(path));
    } catch (const PlatformException& error) {
        *failure = error.message().local();
        return false;
    }
    iOnEnd = std::move(onEnd);
    showFailure({});
    iModel.reset(std::move(all), std::move(pages));
    drawPictures(0);
    iWindow->open();
    iWindow->pages->setFocus();
    return true;
}

void PagesWindowDelegate::endSheet(int returnCode) {
    iWindow->done(returnCode);
    if (iOnEnd)
        iOnEnd(returnCode);
    iPictures.clear();
    iOffice.clear();
}

QString PagesWindowDelegate::readable(const QString& document) const {
    const auto made = iOffice.pdfs().find(document);
    return made == iOffice.pdfs().end() ? document : (*made)->pdf();
}

void PagesWindowDelegate::drawPictures(int from) {
    const auto& documents = iModel.documents();
    for (int number = from; number < int(documents.size()); ++number) {
        const QString& path = documents[std::size_t(number)].path;
        if (PictureFile::isOne(path))
            iModel.setPicture(number, 0, path);
        else
            iPictures.draw(number, readable(path), iReading.password(path));
    }
}

void PagesWindowDelegate::insertFiles(const QStringList& files, int before) {
    iOffice.make(files, [this, files, before](const QStringList& failures) {
        insertReadable(files, before, failures);
    });
}

void PagesWindowDelegate::append(const QStringList& files, const QStringList& failures) {
    iOffice.make(files, [this, files, failures](const QStringList& further) {
        insertReadable(files, iModel.rowCount(), failures + further);
    });
}

// failures: of files that are left out.
void PagesWindowDelegate::insertReadable(const QStringList& files, int before,
                                         QStringList failures) {
    std::vector<PagesModel::Document> added;
    for (const QString& file : files) {
        if (OfficeDocument::isOne(file) && !iOffice.pdfs().contains(file))
            continue;
        try {
            added.push_back(opened(file));
        } catch (const PlatformException& error) {
            failures << error.message().local();
        }
    }
    showFailure(failures.join(u'\n'));
    if (added.empty())
        return;
    const int known = int(iModel.documents().size());
    iModel.insertDocuments(added, before);
    drawPictures(known);
}

void PagesWindowDelegate::showFailure(const QString& failure) {
    iWindow->lblFailure->setText(failure);
    iWindow->lblFailure->setVisible(!failure.isEmpty());
}

PagesModel::Rows PagesWindowDelegate::selected() const {
    PagesModel::Rows rows;
    for (const QModelIndex& index : iWindow->pages->selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

// Before what is selected, or at the end.
int PagesWindowDelegate::insertionRow() const {
    const auto rows = selected();
    return rows.empty() ? iModel.rowCount() : rows.front();
}

void PagesWindowDelegate::moveBy(int rows) {
    const auto moved = selected();
    if (moved.empty())
        return;
    const int before = rows < 0 ? moved.front() + rows : moved.back() + 1 + rows;
    if (before >= 0 && before <= iModel.rowCount())
        iModel.move(moved, before);
}

void PagesWindowDelegate::select(const PagesModel::Rows& rows) {
    QItemSelection selection;
    for (const int row : rows)
        selection.select(iModel.index(row), iModel.index(row));
    auto* chosen = iWindow->pages->selectionModel();
    if (!rows.empty()) {
        chosen->setCurrentIndex(iModel.index(rows.front()), QItemSelectionModel::NoUpdate);
        iWindow->pages->scrollTo(iModel.index(rows.front()));
    }
    chosen->select(selection, QItemSelectionModel::ClearAndSelect);
    showCommands();
}

void PagesWindowDelegate::showCommands() {
    const auto rows = selected();
    for (QAction* action : {iWindow->turnLeft, iWindow->turnRight, iWindow->removePages,
                            iWindow->earlier, iWindow->later})
        action->setEnabled(!rows.empty());
    iWindow->makeFirst->setEnabled(rows.size() == 1 && rows.front() > 0);
    QUndoStack& history = iModel.history();
    const auto name = [](QAction* action, const QString& verb, const QString& what) {
        action->setEnabled(!what.isEmpty());
        action->setToolTip(what.isEmpty() ? verb : QStringLiteral("%1: %2").arg(verb, what));
    };
    name(iWindow->undo, tr("Undo"), history.undoText());
    name(iWindow->redo, tr("Redo"), history.redoText());
    iWindow->btnOK->setEnabled(!iModel.used().documents.isEmpty());
    iWindow->lblCount->setText(rows.empty() ? tr("%n page(s)", nullptr, iModel.rowCount())
                                            //: Appended to a number of pages.
                                            : tr("%n page(s)", nullptr, iModel.rowCount()) +
                                                  QStringLiteral(", ") +
                                                  tr("%n selected", nullptr, int(rows.size())));
}
