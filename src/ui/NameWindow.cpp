#include "ui/NameWindow.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

NameWindow::NameWindow(const QString& title, const QString& verb, QWidget* parent)
    : Sheet(title, parent),
      txtName(new QLineEdit),
      lblFailure(new QLabel),
      btnOK(new QPushButton(verb)) {
    lblFailure->setObjectName(QStringLiteral("failure"));
    lblFailure->setTextFormat(Qt::PlainText);
    lblFailure->setWordWrap(true);
    lblFailure->hide();
    connect(txtName, &QLineEdit::textChanged, this, [this](const QString& typed) {
        btnOK->setEnabled(!typed.trimmed().isEmpty());
        showFailure({});
    });
    connect(btnOK, &QPushButton::clicked, this, &NameWindow::accept);
    connect(btnCancel, &QPushButton::clicked, this, [this] { done(Rejected); });
    connect(this, &Sheet::closeRequested, this, [this] { done(Rejected); });

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("&Name of the style:"), txtName);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    all->setSpacing(10);
    all->addLayout(form);
    all->addWidget(lblFailure);
    all->addStretch();
    all->addWidget(buttonRow(btnOK));
    resize(sizeHint().expandedTo({narrowWidth, 0}));
}

void NameWindow::ask(const QString& proposed, Take take) {
    iTake = std::move(take);
    txtName->setText(proposed);
    txtName->selectAll();
    btnOK->setEnabled(!proposed.isEmpty());
    showFailure({});
    txtName->setFocus();
    open();
}

void NameWindow::accept() {
    const QString failure = iTake(txtName->text().trimmed());
    if (failure.isNull()) {
        done(Accepted);
        return;
    }
    showFailure(failure);
    txtName->setFocus();
}

// A screen reader says it with the field.
void NameWindow::showFailure(const QString& failure) {
    lblFailure->setText(failure);
    lblFailure->setVisible(!failure.isEmpty());
    txtName->setAccessibleDescription(failure);
    growToContent();
}
