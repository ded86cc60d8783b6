#pragma once

#include "ui/Sheet.h"

class QButtonGroup;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

// The publish sheet's controls. What they do is its delegate's business.
class OutputWindow : public Sheet {
    Q_OBJECT

public:
    // The ids of the kinds of book.
    enum OutputType { htmlBook = 0, application = 1, webBook = 2 };

    explicit OutputWindow(QWidget* parent = nullptr);

    QButtonGroup* mOutputType;
    QCheckBox* chkSingleFile;
    QLineEdit* txtOutputFolder;
    QPushButton* btnSelectFolder;
    QPushButton* btnOpenFolder;
    QLineEdit* txtOutputName;
    QLineEdit* txtTitle;
    QLineEdit* txtEmbed;
    QPushButton* btnCopyEmbed;
    QPushButton* btnPublish;

    // Shows or hides what is for web books only.
    void showWebBookParts(bool isShown);

private:
    QWidget* typeRow();
    void makeFolderField();
    void makeEmbedField();

    QFormLayout* iForm;
    QWidget* iEmbedRow;
};
