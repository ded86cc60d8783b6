#include "ui/PasswordWindow.h"

#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* plainLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

PasswordWindow::PasswordWindow(QWidget* parent)
    : Sheet(tr("Password"), parent),
      lblQuestion(plainLabel()),
      txtPassword(new QLineEdit),
      lblFailure(plainLabel()),
      //: Opens the document with the password that was typed.
      btnOK(new QPushButton(tr("&Open"))) {
    lblQuestion->setObjectName(QStringLiteral("question"));
    txtPassword->setEchoMode(QLineEdit::Password);
    connect(txtPassword, &QLineEdit::textChanged, btnOK,
            [this](const QString& typed) { btnOK->setEnabled(!typed.isEmpty()); });
    lblFailure->setObjectName(QStringLiteral("failure"));
    lblFailure->setText(tr("This password does not open it."));
    lblFailure->hide();

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("&Password:"), txtPassword);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    all->setSpacing(10);
    all->addWidget(lblQuestion);
    all->addLayout(form);
    all->addWidget(lblFailure);
    all->addStretch();
    all->addWidget(buttonRow(btnOK));
    resize(sizeHint().expandedTo({narrowWidth, 0}));
}

void PasswordWindow::ask(const QString& file, bool wasWrong) {
    //: %1 is the name of a PDF.
    lblQuestion->setText(tr("“%1” is protected by a password.").arg(QFileInfo(file).fileName()));
    lblFailure->setVisible(wasWrong);
    txtPassword->clear();
    btnOK->setEnabled(false);
    txtPassword->setFocus();
    growToContent();
    open();
}
