#include "ui/SelectTemplateWindowDelegate.h"

#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "template/OwnStyles.h"
#include "template/StyleFolders.h"
#include "ui/NameWindow.h"
#include "ui/Panels.h"
#include "ui/SelectTemplateModels.h"
#include "ui/SelectTemplatePainters.h"
#include "ui/TemplateTexts.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QPushButton>

namespace {

constexpr std::size_t usualCount = 12;
constexpr int maxFailuresShown = 3;

QString quoted(const QString& tmplName) {
    //: A template's name in quotation marks; stands in other texts.
    return SelectTemplateWindowDelegate::tr("“%1”").arg(TemplateTexts::templateName(tmplName));
}

QString reasonOf(const FlashTemplate& tmpl) {
    const QString file = FlashTemplate::tmplMetaPathForName(tmpl.tmplName());
    if (!QFileInfo::exists(file))
        return SelectTemplateWindowDelegate::tr("Its file %1 is missing.")
            .arg(QFileInfo(file).fileName());
    return tmpl.loadMessage().local();
}

// Templates and styles are found by name, directly below their common folder. Deeper folders belong
// to one of them and can't be chosen.
bool isNestedTemplate(const QString& path) {
    return FlashTemplate::tmplPathForName(Files::lastPathComponent(path)) != path + u'/';
}

bool isNestedStyle(const QString& tmplName, const QString& path) {
    return !StyleFolders::isOwn(path) &&
           FlashTemplate::stylePathFor(tmplName, Files::lastPathComponent(path)) != path;
}

// -1 without a selection.
int selectedIn(const QListView& view) {
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

} // namespace

SelectTemplateWindowDelegate::SelectTemplateWindowDelegate(QWidget* parent)
    : iWindow(new SelectTemplateWindow(parent)),
      //: The button that gives a style another name.
      iNameWindow(new NameWindow(tr("Rename the style"), tr("&Rename"), iWindow)),
      iAskToDelete(Panels::askToDelete),
      iTmplModel(new TmplListModel(
          iTmplListData, [this](const QString& name) { return failureOf(name); }, this)),
      iStylesModel(new TmplStylesModel(iTmplStylesData, this)),
      iRowPainter(new TmplRowPainter(
          [this](int row) { return dataCellForTableColumn(QString(), row); }, this)) {
    awakeFromNib();
    wire();
}

// The sheet may outlive this object briefly; its lists show data owned here.
SelectTemplateWindowDelegate::~SelectTemplateWindowDelegate() {
    if (!iWindow)
        return;
    iWindow->hide();
    iWindow->iTableViewTmpls->setModel(nullptr);
    iWindow->iImgBrowserView->setModel(nullptr);
    iWindow->deleteLater();
}

void SelectTemplateWindowDelegate::awakeFromNib() {
    iTmplStylesData.reserve(usualCount);
    iTmplListData.reserve(usualCount);
    iWindow->iTableViewTmpls->setModel(iTmplModel);
    iWindow->iTableViewTmpls->setItemDelegate(iRowPainter);
    iWindow->iImgBrowserView->setModel(iStylesModel);
    iWindow->iImgBrowserView->setItemDelegate(new TmplStylePainter(this));
    reloadTmplList();
    reloadTable();
    iWindow->btnOK->setEnabled(false);
}

void SelectTemplateWindowDelegate::wire() {
    using Self = SelectTemplateWindowDelegate;
    connect(iWindow->btnOK, &QPushButton::clicked, this, &Self::onOK);
    connect(iWindow->btnCancel, &QPushButton::clicked, this, &Self::onCancel);
    connect(iWindow, &SelectTemplateWindow::closeRequested, this, &Self::onCancel);
    connect(iWindow->btnRefresh, &QPushButton::clicked, this, &Self::onRefresh);
    connect(iWindow->btnRename, &QPushButton::clicked, this, &Self::onRename);
    connect(iWindow->btnDelete, &QPushButton::clicked, this, &Self::onDelete);
    connect(iWindow->iTableViewTmpls->selectionModel(), &QItemSelectionModel::selectionChanged,
            this, &Self::tableViewSelectionDidChange);
    connect(iWindow->iImgBrowserView->selectionModel(), &QItemSelectionModel::selectionChanged,
            this, &Self::showState);
    connect(iWindow->iImgBrowserView, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { cellWasDoubleClickedAtIndex(index.row()); });
}

void SelectTemplateWindowDelegate::reloadTmplList() {
    iTmplListData = FlashTemplate::tmplNames();
    iFailures.reset();
}

// Each template is loaded once per listing, and not before it is needed.
const QHash<QString, QString>& SelectTemplateWindowDelegate::failures() const {
    if (iFailures)
        return *iFailures;
    iFailures.emplace();
    FlashTemplate tmpl;
    for (const QString& path : iTmplListData) {
        if (isNestedTemplate(path))
            continue;
        const QString name = Files::lastPathComponent(path);
        tmpl.loadTemplate(name);
        if (!tmpl.loadError().isNull())
            iFailures->insert(name, reasonOf(tmpl));
    }
    return *iFailures;
}

QString SelectTemplateWindowDelegate::failureOf(const QString& tmplName) const {
    return failures().value(tmplName);
}

void SelectTemplateWindowDelegate::reloadTable() {
    iRowPainter->forgetCells();
    iTmplModel->reloadData();
    for (int row = 0; row < iTmplListData.size(); ++row)
        iWindow->iTableViewTmpls->setRowHidden(row, isNestedTemplate(iTmplListData.at(row)));
    iWindow->lblNoTmpls->setVisible(iTmplListData.isEmpty());
}

void SelectTemplateWindowDelegate::prepairToTmpl(const QString& name,
                                                 const QString& currentStylePath) {
    iCurrentStylePath = currentStylePath;
    iShownTmpl = QString();
    reloadTmplList();
    reloadTable();
    int found = -1;
    for (int row = 0; row < iTmplListData.size(); ++row) {
        if (objectValueForTableColumn(QString(), row).toUpper() == name.toUpper())
            found = row;
    }
    // Selecting a row loads its own styles, since letter case distinguishes folders.
    if (found >= 0)
        selectRow(found);
    else
        reloadStylesForTmpl(name);
}

void SelectTemplateWindowDelegate::reloadStylesForTmpl(const QString& name) {
    iShownTmpl = name;
    iTmplStylesData.clear();
    for (const QString& path :
         FlashTemplate::tmplStyleNamesForTmpl(name) + StyleFolders::ownOf(name)) {
        const QString picture = Files::join(path, StyleFolders::pictureFile);
        iTmplStylesData.push_back(std::make_unique<IKBTmplStyleItem>(
            QImage(picture), picture, Files::lastPathComponent(path)));
    }
    iStylesModel->reloadData();
    showStyles();
    showState();
}

// Also selects the book's current style, if it is among them.
void SelectTemplateWindowDelegate::showStyles() {
    bool isEmpty = true;
    for (int item = 0; item < numberOfItemsInImageBrowser(); ++item) {
        const QString path = QFileInfo(itemAtIndex(item).imageID()).path();
        const bool nested = isNestedStyle(iShownTmpl, path);
        iWindow->iImgBrowserView->setRowHidden(item, nested);
        isEmpty = isEmpty && nested;
        if (!nested && path == iCurrentStylePath)
            iWindow->iImgBrowserView->setCurrentIndex(iStylesModel->index(item));
    }
    iWindow->lblNoStyles->setVisible(isEmpty);
    iWindow->fitGrid();
    const QModelIndex current = iWindow->iImgBrowserView->currentIndex();
    current.isValid() ? iWindow->iImgBrowserView->scrollTo(current)
                      : iWindow->iImgBrowserView->scrollToTop();
}

QString SelectTemplateWindowDelegate::objectValueForTableColumn(const QString& /*column*/,
                                                                int row) const {
    return Files::lastPathComponent(iTmplListData.at(row));
}

std::unique_ptr<SelectTmplItemCell>
SelectTemplateWindowDelegate::dataCellForTableColumn(const QString& column, int row) const {
    auto cell = std::make_unique<SelectTmplItemCell>(objectValueForTableColumn(column, row));
    cell->setTmplIconFile(iconFileIn(iTmplListData.at(row)));
    return cell;
}

QString SelectTemplateWindowDelegate::iconFileIn(const QString& tmplPath) {
    return Files::join(tmplPath, QStringLiteral("icon.png"));
}

void SelectTemplateWindowDelegate::tableViewSelectionDidChange() {
    const int row = selectedIn(*iWindow->iTableViewTmpls);
    if (row < 0)
        return;
    // A refreshed list that still has its row keeps its styles.
    const QString name = objectValueForTableColumn(QString(), row);
    if (name != iShownTmpl)
        reloadStylesForTmpl(name);
}

void SelectTemplateWindowDelegate::selectRow(int row) {
    // A selected row must be visible, even that of a nested template.
    iWindow->iTableViewTmpls->setRowHidden(row, false);
    iWindow->iTableViewTmpls->setCurrentIndex(iTmplModel->index(row));
    iWindow->iTableViewTmpls->scrollTo(iTmplModel->index(row));
}

bool SelectTemplateWindowDelegate::canChoose() const {
    return selectedIn(*iWindow->iImgBrowserView) >= 0 && isListed(iShownTmpl) &&
           failureOf(iShownTmpl).isNull() && styleFailure().isNull();
}

bool SelectTemplateWindowDelegate::isListed(const QString& tmplName) const {
    return iTmplListData.contains(FlashTemplate::tmplPathForName(tmplName).chopped(1));
}

void SelectTemplateWindowDelegate::showState() {
    iWindow->btnOK->setEnabled(canChoose());
    const bool isOwn = StyleFolders::isOwn(selectedStylePath());
    iWindow->btnRename->setEnabled(isOwn);
    iWindow->btnDelete->setEnabled(isOwn);
    iWindow->showNotice(notice());
}

// The error of the selected template, or else those of all others.
QString SelectTemplateWindowDelegate::notice() const {
    if (!iShownTmpl.isEmpty() && !isListed(iShownTmpl))
        //: %1 is the template's name in quotation marks.
        return tr("The template %1 is not in the library.").arg(quoted(iShownTmpl));
    if (const QString failure = styleFailure(); !failure.isNull())
        //: %1 is the style's name, %2 a sentence that tells why.
        return tr("The style “%1” cannot be used. %2")
            .arg(Files::lastPathComponent(selectedStylePath()), failure);
    QStringList broken = failures().keys();
    broken.sort();
    if (broken.contains(iShownTmpl))
        broken = QStringList{iShownTmpl};
    QStringList lines;
    for (const QString& name : broken.mid(0, maxFailuresShown))
        //: %1 is the template's name in quotation marks, %2 a sentence that tells why.
        lines << tr("The template %1 cannot be used. %2").arg(quoted(name), failureOf(name));
    if (broken.size() > maxFailuresShown)
        //: %n templates, after some were named.
        lines << tr("%n more cannot be used.", nullptr, int(broken.size()) - maxFailuresShown);
    return lines.join(u'\n');
}

void SelectTemplateWindowDelegate::beginSheet(std::function<void(int)> onEnd) {
    iOnEnd = std::move(onEnd);
    iWindow->iTableViewTmpls->setFocus();
    iWindow->open();
}

void SelectTemplateWindowDelegate::endSheet(int returnCode) {
    iWindow->done(returnCode);
    if (iOnEnd)
        iOnEnd(returnCode);
}

QString SelectTemplateWindowDelegate::selectedStyle() {
    const int item = selectedIn(*iWindow->iImgBrowserView);
    if (item < 0)
        return {};
    iSelectedItemIndex = quint32(item);
    return itemAtIndex(item).imageID();
}

void SelectTemplateWindowDelegate::cellWasDoubleClickedAtIndex(int index) {
    iWindow->iImgBrowserView->setCurrentIndex(iStylesModel->index(index));
    if (!canChoose())
        return;
    iSelectedItemIndex = quint32(index);
    endSheet(1);
}

void SelectTemplateWindowDelegate::onOK() {
    if (canChoose())
        endSheet(1);
}

void SelectTemplateWindowDelegate::onCancel() {
    endSheet(0);
}

void SelectTemplateWindowDelegate::onRefresh() {
    const int before = selectedIn(*iWindow->iTableViewTmpls);
    const QString path = iTmplListData.value(before);
    reloadTmplList();
    reloadTable();
    const int row = int(iTmplListData.indexOf(path));
    if (row >= 0)
        selectRow(row);
    showState();
}

// Empty without a selection.
QString SelectTemplateWindowDelegate::selectedStylePath() const {
    const int item = selectedIn(*iWindow->iImgBrowserView);
    return item < 0 ? QString() : QFileInfo(itemAtIndex(item).imageID()).path();
}

QString SelectTemplateWindowDelegate::styleFailure() const {
    const QString path = selectedStylePath();
    return StyleFolders::isOwn(path) ? OwnStyles::failureOf(path).local() : QString();
}

void SelectTemplateWindowDelegate::selectStyle(const QString& path) {
    for (int item = 0; item < numberOfItemsInImageBrowser(); ++item) {
        if (QFileInfo(itemAtIndex(item).imageID()).path() == path)
            iWindow->iImgBrowserView->setCurrentIndex(iStylesModel->index(item));
    }
}

void SelectTemplateWindowDelegate::onRename() {
    const QString path = selectedStylePath();
    if (!StyleFolders::isOwn(path))
        return;
    const QString name = Files::lastPathComponent(path);
    iNameWindow->ask(name, [this, path, name](const QString& typed) {
        Message error;
        if (typed == name)
            return QString();
        if (!OwnStyles::rename(path, typed, &error))
            return error.local();
        takeMovedStyle(path, StyleFolders::ownFor(iShownTmpl, typed));
        return QString();
    });
}

void SelectTemplateWindowDelegate::onDelete() {
    const QString path = selectedStylePath();
    if (!StyleFolders::isOwn(path) ||
        !iAskToDelete(tr("Delete the style “%1”?").arg(Files::lastPathComponent(path)),
                      tr("Books and projects that have it keep their look.")))
        return;
    Message error;
    if (OwnStyles::remove(path, &error))
        takeMovedStyle(path, {});
    else
        iWindow->showNotice(tr("The style was not deleted. %1").arg(error.local()));
}

void SelectTemplateWindowDelegate::takeMovedStyle(const QString& from, const QString& to) {
    if (iCurrentStylePath == from)
        iCurrentStylePath = to;
    Q_EMIT styleMoved(from, to);
    reloadStylesForTmpl(iShownTmpl);
    if (!to.isNull())
        selectStyle(to);
    iWindow->iImgBrowserView->setFocus();
}
