#include "ui/PlainText.h"

#include <QLabel>
#include <QMessageBox>
#include <QTextDocument>

QString PlainText::toolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

void PlainText::show(QMessageBox& box) {
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}
