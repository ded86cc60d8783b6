#pragma once

#include "ui/Sheet.h"

class QLabel;
class QLineEdit;
class QPushButton;

// Asks for the password of a protected document, on top of the import sheet, whose delegate
// implements it.
class PasswordWindow : public Sheet {
    Q_OBJECT

public:
    explicit PasswordWindow(QWidget* parent = nullptr);

    // Shows the sheet with an empty field. wasWrong says that the last answer was.
    void ask(const QString& file, bool wasWrong);

    QLabel* lblQuestion;
    QLineEdit* txtPassword;
    QLabel* lblFailure;
    QPushButton* btnOK;
};
