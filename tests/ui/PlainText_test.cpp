#include "ui/PlainText.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

const QString hostile = "<b>Not bold</b> <img src='x'>";

} // namespace

TEST(PlainText, ShowsMarkupInAToolTipAsItStands) {
    QTextDocument shown;
    shown.setHtml(PlainText::toolTip(hostile));
    EXPECT_EQ(shown.toPlainText(), hostile);
    const QString harmless = "Colour of the bar & arrows";
    EXPECT_EQ(PlainText::toolTip(harmless), harmless);
}

TEST(PlainText, ShowsBothTextsOfAMessageBoxAsTheyStand) {
    QMessageBox box;
    box.setText(hostile);
    box.setInformativeText(hostile);
    PlainText::show(box);
    int labels = 0;
    for (const QLabel* label : box.findChildren<QLabel*>()) {
        if (label->text() != hostile)
            continue;
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        ++labels;
    }
    EXPECT_EQ(labels, 2);
}
