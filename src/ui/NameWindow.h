#pragma once

#include "ui/Sheet.h"

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

// Asks for the name of a style and says why one can't be taken.
class NameWindow : public Sheet {
    Q_OBJECT

public:
    // What is wrong with the name: null when it was taken, which closes the sheet; empty when there
    // is nothing to say, as after a question that was answered with no.
    using Take = std::function<QString(const QString& name)>;

    // verb is the text of the button.
    NameWindow(const QString& title, const QString& verb, QWidget* parent);

    // Shows the sheet with that name. The name that take gets has no blanks around it.
    void ask(const QString& proposed, Take take);

    QLineEdit* txtName;
    QLabel* lblFailure;
    QPushButton* btnOK;

private:
    void accept() override;
    void showFailure(const QString& failure);

    Take iTake;
};
