#include "ui/ImportWindow.h"

#include "system/Files.h"
#include "ui/PlainText.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

constexpr qsizetype mostNames = 6;
constexpr int nameWidth = 220;

} // namespace

ImportWindow::ImportWindow(QWidget* parent)
    : Sheet(tr("Import a PDF"), parent), btnOK(new QPushButton(tr("&Import"))) {
    makeFileField();
    //: What becomes of pages that show two pages of a printed book side by side.
    spreads = choice({tr("Split where found"), tr("Split all landscape pages"), tr("Keep whole")});
    //: The quality of the pictures of the pages, from the best to the worst.
    importQuality = choice(
        {tr("Best, for zooming in"), tr("High"), tr("Medium"), tr("Low"), tr("Smallest files")});
    btnImportLinks = new QCheckBox(tr("Import &links"));
    btnImportBookMark = new QCheckBox(tr("Import &bookmarks as contents"));
    lblFailure = failureLabel();

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* fileRow = row({txtImportFile, btnBrowseFile, btnOpenFile});
    form->addRow(tr("&PDF file:"), fileRow);
    setFieldOfRow(*form, fileRow, txtImportFile);
    form->addRow(QString(), lblOthers);
    form->addRow(tr("Pages:"), pagesRow());
    form->addRow(tr("&Double pages:"), spreads);
    form->addRow(tr("&Quality:"), importQuality);
    form->addRow(QString(), btnImportLinks);
    form->addRow(QString(), btnImportBookMark);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    form->setVerticalSpacing(8);
    all->addLayout(form);
    all->addWidget(lblFailure);
    all->addStretch();
    all->addWidget(progressRow());
    all->addWidget(buttonRow(btnOK));
    resize(sizeHint().expandedTo({usualWidth, 0}));
}

QComboBox* ImportWindow::choice(const QStringList& items) {
    auto* box = new QComboBox;
    // The default delegate ignores style sheets.
    box->setItemDelegate(new QStyledItemDelegate(box));
    box->addItems(items);
    return box;
}

void ImportWindow::makeFileField() {
    txtImportFile = new QLineEdit;
    txtImportFile->setMinimumWidth(260);
    lblOthers = new QLabel;
    lblOthers->setWordWrap(true);
    lblOthers->setTextFormat(Qt::PlainText);
    lblOthers->hide();
    btnBrowseFile = new QPushButton(tr("&Choose…"));
    //: Opens the chosen PDF in another program.
    btnOpenFile = new QPushButton(tr("&View"));
    btnOpenFile->setToolTip(tr("Opens the PDF in the program that usually shows it"));
}

// All names where they fit; the tool tip has the paths.
void ImportWindow::showOthers(const QStringList& files) {
    const qsizetype shown = files.size() > mostNames ? mostNames - 1 : files.size();
    QStringList names;
    for (const QString& file : files.mid(0, shown))
        names << lblOthers->fontMetrics().elidedText(Files::lastPathComponent(file),
                                                     Qt::ElideMiddle, nameWidth);
    const QString list = names.join(QStringLiteral(", "));
    const int more = int(files.size() - shown);
    //: Beneath the path of a file: those that are imported with it. %1 is a list of names.
    const QString all = tr("and %1");
    //: As above, with some of the names.
    const QString some = tr("and %1 and %n more", nullptr, more);
    lblOthers->setText((more > 0 ? some : all).arg(list));
    lblOthers->setToolTip(PlainText::toolTip(files.join(u'\n')));
    lblOthers->setVisible(!files.isEmpty());
    growToContent();
}

QWidget* ImportWindow::pagesRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    pageRangeType = new QButtonGroup(this);
    //: All pages are imported.
    auto* all = new QRadioButton(tr("&All"));
    //: A field for page numbers follows.
    auto* typed = new QRadioButton(tr("&These:"));
    pageRangeType->addButton(all, allPages);
    pageRangeType->addButton(typed, typedPages);
    txtPageRange = new QLineEdit;
    txtPageRange->setPlaceholderText(tr("for example 1-3,7"));
    txtPageRange->setAccessibleName(tr("Pages to import"));
    layout->addWidget(all);
    layout->addWidget(typed);
    layout->addWidget(txtPageRange, 1);
    return row;
}

// Keeps its space while empty, so that the window does not change size.
QWidget* ImportWindow::progressRow() {
    prgBar = new QProgressBar;
    prgBar->setTextVisible(false);
    lblInfo = new QLabel;
    lblTimeLeft = new QLabel;
    for (auto* label : {lblInfo, lblTimeLeft})
        label->setTextFormat(Qt::PlainText);
    for (auto* part : std::initializer_list<QWidget*>{prgBar, lblInfo, lblTimeLeft}) {
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
    }
    auto* rows = new QWidget;
    auto* layout = new QVBoxLayout(rows);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(prgBar);
    layout->addWidget(row({lblInfo, lblTimeLeft}));
    return rows;
}
