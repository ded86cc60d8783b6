#pragma once

#include "ui/Sheet.h"

class QButtonGroup;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

// The controls of the publish sheet; its delegate implements them.
class OutputWindow : public Sheet {
    Q_OBJECT

public:
    // IDs of the output type buttons.
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

    // Shows or hides the controls for web books.
    void showWebBookParts(bool isShown);

private:
    QWidget* typeRow();
    void makeFolderField();
    void makeEmbedField();

    QFormLayout* iForm;
    QWidget* iEmbedRow;
};
