#include "ui/OutputWindow.h"

#include "output/EmbedSnippet.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

OutputWindow::OutputWindow(QWidget* parent)
    : Sheet(tr("Publish the book"), parent), btnPublish(new QPushButton(tr("&Publish"))) {
    makeFolderField();
    txtOutputName = new QLineEdit;
    //: Shown in the empty field for the file's name.
    txtOutputName->setPlaceholderText(tr("without an ending, for example index"));
    txtTitle = new QLineEdit;
    //: Shown in the empty field for the book's title.
    txtTitle->setPlaceholderText(tr("shown in the browser's window"));

    makeEmbedField();

    auto* form = iForm = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("Kind of book:"), typeRow());
    auto* folderRow = row({txtOutputFolder, btnSelectFolder, btnOpenFolder});
    form->addRow(tr("&Folder:"), folderRow);
    form->addRow(tr("File &name:"), txtOutputName);
    form->addRow(tr("&Title:"), txtTitle);
    //: Markup that shows the book inside another page.
    form->addRow(tr("&Embed:"), iEmbedRow);
    setFieldOfRow(*form, folderRow, txtOutputFolder);
    setFieldOfRow(*form, iEmbedRow, txtEmbed);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    form->setVerticalSpacing(8);
    all->addLayout(form);
    all->addSpacing(8);
    all->addStretch();
    all->addWidget(buttonRow(btnPublish));
    showWebBookParts(false);
    resize(sizeHint().expandedTo({usualWidth, 0}));
}

QWidget* OutputWindow::typeRow() {
    auto* row = new QWidget;
    auto* layout = new QVBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    mOutputType = new QButtonGroup(this);
    auto* html = new QRadioButton(tr("C&lassic (pictures only)"));
    auto* app = new QRadioButton(tr("Application for the &Mac"));
    auto* web = new QRadioButton(tr("Web &book: with search, links, contents and text to copy"));
    mOutputType->addButton(html, htmlBook);
    mOutputType->addButton(web, webBook);
    mOutputType->addButton(app, application);
    chkSingleFile = new QCheckBox(tr("Everything in &one file"));
    chkSingleFile->setToolTip(
        tr("One page that holds the whole book, to send by mail or to open from a memory stick"));
    auto* beneath = new QHBoxLayout;
    beneath->addSpacing(web->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                        web->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
    beneath->addWidget(chkSingleFile);
    layout->addWidget(html);
    layout->addWidget(web);
    layout->addLayout(beneath);
    layout->addWidget(app);
    return row;
}

void OutputWindow::makeFolderField() {
    txtOutputFolder = new QLineEdit;
    txtOutputFolder->setMinimumWidth(260);
    btnSelectFolder = new QPushButton(tr("&Choose…"));
    //: Shows the chosen folder in the file manager.
    btnOpenFolder = new QPushButton(tr("&Show"));
    btnOpenFolder->setToolTip(tr("Opens the folder in the file manager"));
}

void OutputWindow::makeEmbedField() {
    txtEmbed = new QLineEdit;
    txtEmbed->setReadOnly(true);
    const QString explanation =
        tr("Shows the book inside another page: put this into that page, with the book's address "
           "on the web in place of %1")
            .arg(EmbedSnippet::placeholder);
    txtEmbed->setToolTip(explanation);
    txtEmbed->setAccessibleDescription(explanation);
    btnCopyEmbed = new QPushButton(tr("Cop&y"));
    btnCopyEmbed->setToolTip(tr("Copies the text for embedding the book"));
    btnCopyEmbed->setAccessibleName(tr("Copy the text for embedding"));
    iEmbedRow = row({txtEmbed, btnCopyEmbed});
}

void OutputWindow::showWebBookParts(bool isShown) {
    chkSingleFile->setVisible(isShown);
    iForm->setRowVisible(iEmbedRow, isShown);
    growToContent();
}
