#pragma once

#include "ui/Sheet.h"

class QButtonGroup;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

// The controls of the publish sheet; its delegate implements them.
class OutputWindow : public Sheet {
    Q_OBJECT

public:
    // IDs of the output type buttons.
    enum OutputType { htmlBook = 0, application = 1, webBook = 2, webBookInOneFile = 3 };

    explicit OutputWindow(QWidget* parent = nullptr);

    QButtonGroup* mOutputType;
    QLineEdit* txtOutputFolder;
    QPushButton* btnSelectFolder;
    QPushButton* btnOpenFolder;
    QLineEdit* txtOutputName;
    QLineEdit* txtTitle;
    // Of web books: shows and hides the fields that follow it.
    QToolButton* btnMore;
    QLineEdit* txtAddress;
    QLineEdit* txtSample;
    QLineEdit* txtEmbed;
    QPushButton* btnCopyEmbed;
    QPushButton* btnPublish;

    // A type that is none of these counts as the classic book.
    static bool isWeb(int outputType) {
        return outputType == webBook || outputType == webBookInOneFile;
    }

    // Shows or hides the controls for web books.
    void showWebBookParts(bool isShown);

    // Why the text of one of the further fields can't be used, until one of them is changed. The
    // field gets the keyboard.
    void showProblem(QLineEdit& field, const QString& problem);

private:
    QWidget* kindsOfBooks();
    void makeFolderField();
    void makeWebFields();
    void makeEmbedField();
    void showMore(bool isShown);
    void fitToContent();
    void hideProblem();

    QFormLayout* iForm;
    QWidget* iEmbedRow;
    QLabel* iProblem;
};
