#include "ui/OutputWindow.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
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

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("Kind of book:"), typeRow());
    form->addRow(tr("&Folder:"), row({txtOutputFolder, btnSelectFolder, btnOpenFolder}));
    form->addRow(tr("File &name:"), txtOutputName);
    form->addRow(tr("&Title:"), txtTitle);
    static_cast<QLabel*>(form->itemAt(1, QFormLayout::LabelRole)->widget())
        ->setBuddy(txtOutputFolder);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    form->setVerticalSpacing(8);
    all->addLayout(form);
    all->addStretch();
    all->addWidget(buttonRow(btnPublish));
    resize(sizeHint().expandedTo({usualWidth, 0}));
}

QWidget* OutputWindow::typeRow() {
    auto* row = new QWidget;
    auto* layout = new QVBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    mOutputType = new QButtonGroup(this);
    auto* html = new QRadioButton(tr("&Web page in a folder, for every computer and the web"));
    auto* app = new QRadioButton(tr("Application for the &Mac"));
    auto* web = new QRadioButton(tr("Web &book: with search, links, contents and text to copy"));
    mOutputType->addButton(html, htmlBook);
    mOutputType->addButton(web, webBook);
    mOutputType->addButton(app, application);
    layout->addWidget(html);
    layout->addWidget(web);
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
