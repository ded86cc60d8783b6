#include "ui/SelectTemplateWindowDelegate.h"

#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "ui/SelectTemplateModels.h"
#include "ui/SelectTemplatePainters.h"
#include "ui/TemplateTexts.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QPushButton>

namespace {

const QString pictureFile = QStringLiteral("shot.jpg");
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
    return FlashTemplate::stylePathFor(tmplName, Files::lastPathComponent(path)) != path;
}

// -1 without a selection.
int selectedIn(const QListView& view) {
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

} // namespace

SelectTemplateWindowDelegate::SelectTemplateWindowDelegate(QWidget* parent)
    : iWindow(new SelectTemplateWindow(parent)),
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
    for (const QString& path : FlashTemplate::tmplStyleNamesForTmpl(name)) {
        const QString picture = Files::join(path, pictureFile);
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
           failureOf(iShownTmpl).isNull();
}

bool SelectTemplateWindowDelegate::isListed(const QString& tmplName) const {
    return iTmplListData.contains(FlashTemplate::tmplPathForName(tmplName).chopped(1));
}

void SelectTemplateWindowDelegate::showState() {
    iWindow->btnOK->setEnabled(canChoose());
    iWindow->showNotice(notice());
}

// The error of the selected template, or else those of all others.
QString SelectTemplateWindowDelegate::notice() const {
    if (!iShownTmpl.isEmpty() && !isListed(iShownTmpl))
        //: %1 is the template's name in quotation marks.
        return tr("The template %1 is not in the library.").arg(quoted(iShownTmpl));
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
