#include "ui/OutputWindow.h"

#include "output/EmbedSnippet.h"
#include "ui/ChoiceList.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

OutputWindow::OutputWindow(QWidget* parent)
    : Sheet(tr("Publish the book"), parent),
      btnPublish(new QPushButton(tr("&Publish"))),
      iForm(new QFormLayout),
      iProblem(failureLabel()) {
    makeFolderField();
    txtOutputName = new QLineEdit;
    //: Shown in the empty field for the file's name.
    txtOutputName->setPlaceholderText(tr("without an ending, for example index"));
    txtTitle = new QLineEdit;
    //: Shown in the empty field for the book's title.
    txtTitle->setPlaceholderText(tr("shown in the browser's window"));

    iForm->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    iForm->setVerticalSpacing(8);
    auto* kinds = kindsOfBooks();
    iForm->addRow(tr("Kind of book:"), kinds);
    // Beside the first kind.
    auto* label = static_cast<QLabel*>(iForm->labelForField(kinds));
    label->setAlignment(Qt::AlignTop);
    label->setContentsMargins(0, kinds->layout()->contentsMargins().top(), 0, 0);
    auto* folderRow = row({txtOutputFolder, btnSelectFolder, btnOpenFolder});
    iForm->addRow(tr("&Folder:"), folderRow);
    iForm->addRow(tr("File &name:"), txtOutputName);
    iForm->addRow(tr("&Title:"), txtTitle);
    setFieldOfRow(*iForm, folderRow, txtOutputFolder);
    makeWebFields();
    // Or the fields would move when the longest label is hidden.
    for (int row = 0; row < iForm->rowCount(); ++row) {
        if (const auto* other = iForm->itemAt(row, QFormLayout::LabelRole))
            label->setMinimumWidth(
                std::max(label->minimumWidth(), other->widget()->sizeHint().width()));
    }

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    all->addLayout(iForm);
    all->addWidget(iProblem);
    all->addSpacing(8);
    all->addStretch();
    all->addWidget(buttonRow(btnPublish));
    showWebBookParts(false);
    resize(sizeHint().expandedTo({usualWidth, 0}));
}

QWidget* OutputWindow::kindsOfBooks() {
    auto* kinds = new ChoiceList;
    mOutputType = kinds->group;
    kinds->add(webBook, tr("Web &book"),
               tr("For a web site: with contents, search and links; opens page by page"));
    kinds->add(webBookInOneFile, tr("Web book in &one file"),
               tr("To send by mail or to open from a memory stick"));
    kinds->add(htmlBook, tr("C&lassic (pictures only)"),
               tr("For a quick look: made in less time, without contents, search and links"));
    kinds->add(application, tr("Application for the &Mac"),
               tr("For people with a Mac: one file that opens with a double-click"));
    return kinds;
}

void OutputWindow::makeFolderField() {
    txtOutputFolder = new QLineEdit;
    txtOutputFolder->setMinimumWidth(260);
    btnSelectFolder = new QPushButton(tr("&Choose…"));
    //: Shows the chosen folder in the file manager.
    btnOpenFolder = new QPushButton(tr("&Show"));
    btnOpenFolder->setToolTip(tr("Opens the folder in the file manager"));
}

void OutputWindow::makeWebFields() {
    btnMore = new QToolButton;
    //: Shows further fields beneath it.
    btnMore->setText(tr("Mo&re options"));
    btnMore->setCheckable(true);
    btnMore->setAutoRaise(true);
    btnMore->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    btnMore->setFocusPolicy(Qt::StrongFocus);
    txtAddress = new QLineEdit;
    //: Shown in the empty field for the book's address on the web.
    txtAddress->setPlaceholderText(tr("for example https://example.org/book/"));
    txtAddress->setToolTip(
        tr("Where the book will be on the web: for search engines, previews of links, “Copy link” "
           "and the text for embedding"));
    txtSample = new QLineEdit;
    //: Shown in the empty field for the pages of a reading sample.
    txtSample->setPlaceholderText(tr("all pages, or for example 1-12"));
    txtSample->setToolTip(
        tr("The pages that can be read, by their numbers in the document; the book contains "
           "nothing of the others"));
    makeEmbedField();
    iForm->addRow(QString(), btnMore);
    //: The book's address on the web.
    iForm->addRow(tr("&Address:"), txtAddress);
    //: Some of the book's pages, as a foretaste.
    iForm->addRow(tr("Rea&ding sample:"), txtSample);
    //: Markup that shows the book inside another page.
    iForm->addRow(tr("&Embed:"), iEmbedRow);
    setFieldOfRow(*iForm, iEmbedRow, txtEmbed);
    connect(btnMore, &QToolButton::toggled, this, [this](bool isOn) {
        showMore(isOn);
        fitToContent();
    });
    for (QLineEdit* field : {txtAddress, txtSample}) {
        field->setAccessibleDescription(field->toolTip());
        // What is chosen is seen.
        connect(field, &QLineEdit::textChanged, this, [this](const QString& text) {
            hideProblem();
            if (!text.isEmpty())
                btnMore->setChecked(true);
        });
    }
}

void OutputWindow::makeEmbedField() {
    txtEmbed = new QLineEdit;
    txtEmbed->setReadOnly(true);
    const QString explanation =
        tr("Shows the book inside another page: put this into that page. %1 stands for the book's "
           "address until that is given above.")
            .arg(EmbedSnippet::placeholder);
    txtEmbed->setToolTip(explanation);
    txtEmbed->setAccessibleDescription(explanation);
    btnCopyEmbed = new QPushButton(tr("Cop&y"));
    btnCopyEmbed->setToolTip(tr("Copies the text for embedding the book"));
    btnCopyEmbed->setAccessibleName(tr("Copy the text for embedding"));
    iEmbedRow = row({txtEmbed, btnCopyEmbed});
}

void OutputWindow::showWebBookParts(bool isShown) {
    iForm->setRowVisible(btnMore, isShown);
    showMore(isShown && btnMore->isChecked());
    growToContent();
}

void OutputWindow::showMore(bool isShown) {
    btnMore->setArrowType(isShown ? Qt::DownArrow : Qt::RightArrow);
    for (QWidget* field : std::initializer_list<QWidget*>{txtAddress, txtSample, iEmbedRow})
        iForm->setRowVisible(field, isShown);
}

void OutputWindow::fitToContent() {
    resize(width(), 0);
    growToContent();
}

void OutputWindow::showProblem(QLineEdit& field, const QString& problem) {
    btnMore->setChecked(true);
    iProblem->setText(problem);
    iProblem->show();
    growToContent();
    field.setFocus();
    field.selectAll();
}

void OutputWindow::hideProblem() {
    if (iProblem->isHidden())
        return;
    iProblem->hide();
    fitToContent();
}
