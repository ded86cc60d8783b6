#pragma once

#include <QDialog>

class QButtonGroup;
class QLineEdit;
class QPushButton;

// The publish sheet's controls. What they do is its delegate's business.
class OutputWindow : public QDialog {
    Q_OBJECT

public:
    // The ids of the kinds of book.
    enum OutputType { htmlBook = 0, application = 1 };

    explicit OutputWindow(QWidget* parent = nullptr);

    QButtonGroup* mOutputType;
    QLineEdit* txtOutputFolder;
    QPushButton* btnSelectFolder;
    QPushButton* btnOpenFolder;
    QLineEdit* txtOutputName;
    QLineEdit* txtTitle;
    QPushButton* btnPublish;
    QPushButton* btnCancel;

Q_SIGNALS:
    // Escape, or the window's own close button.
    void closeRequested();

public:
    void reject() override { Q_EMIT closeRequested(); }

private:
    QWidget* typeRow();
    QWidget* folderRow();
    QWidget* buttonRow();
};
