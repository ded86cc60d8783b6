#include "ui/Sheet.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

Sheet::Sheet(const QString& title, QWidget* parent)
    : QDialog(parent), btnCancel(new QPushButton(tr("Cancel"), this)) {
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    btnCancel->setAutoDefault(false);
}

QWidget* Sheet::row(const QList<QWidget*>& widgets) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (auto* widget : widgets) {
        layout->addWidget(widget, widget == widgets.first() ? 1 : 0);
        if (auto* button = qobject_cast<QPushButton*>(widget))
            button->setAutoDefault(false);
    }
    return row;
}

void Sheet::setFieldOfRow(const QFormLayout& form, QWidget* row, QLineEdit* field) {
    auto* label = static_cast<QLabel*>(form.labelForField(row));
    label->setBuddy(field);
    field->setAccessibleName(label->text().remove(u'&').remove(u':'));
}

QLabel* Sheet::failureLabel() {
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("failure"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->hide();
    return label;
}

QWidget* Sheet::buttonRow(QPushButton* main) {
    // In the sheet from the beginning: it must know its default button, or that would no longer be
    // one after it was clicked.
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(btnCancel);
    layout->addWidget(main);
    main->setDefault(true);
    return row;
}

void Sheet::done(int result) {
    QDialog::done(result);
    if (parentWidget())
        parentWidget()->activateWindow();
}

void Sheet::growToContent() {
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width())
                                                     : layout()->totalMinimumSize().height();
    resize(width(), std::max(height(), needed));
}
