#pragma once

#include "ui/Sheet.h"

class QButtonGroup;
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
    QLineEdit* txtOutputFolder;
    QPushButton* btnSelectFolder;
    QPushButton* btnOpenFolder;
    QLineEdit* txtOutputName;
    QLineEdit* txtTitle;
    QPushButton* btnPublish;

private:
    QWidget* typeRow();
    void makeFolderField();
};
