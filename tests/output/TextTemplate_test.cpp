#include "output/TextTemplate.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    const char* text;
    const char* expected;
};

class TextTemplateParse : public testing::TestWithParam<Case> {};

TEST_P(TextTemplateParse, FillsTheText) {
    TextTemplate text(QString::fromUtf8(GetParam().text));
    text.setItem(QStringLiteral("index.title"), QStringLiteral("T"));
    text.setItem(QStringLiteral("x"), QStringLiteral("old"));
    text.setItem(QStringLiteral("x"), QStringLiteral("X"));
    text.setItem(QStringLiteral("y"), QStringLiteral(" ${x} "));
    const QString result = text.parse();
    EXPECT_EQ(result, QString::fromUtf8(GetParam().expected));
    EXPECT_FALSE(result.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    All, TextTemplateParse,
    testing::Values(
        Case{"DropsSpaceAfterThePlaceholder", "a ${index.title} b", "a Tb"},
        Case{"DropsLineBreaksAfterThePlaceholder", "a${x}\r\n\t b${x}c", "aXbXc"},
        Case{"LeavesNothingForAnUnknownName", "x${meta.keywords}", "x"},
        Case{"StopsAtAPlaceholderAtTheStart", "${index.title} words ${x}",
             "${index.title} words ${x}"},
        Case{"DropsSpaceBeforeAPlaceholderAtTheStart", " \n ${x} a ", "${x} a"},
        Case{"StopsAtAPlaceholderAfterAnother", "a${x}${y}b${x}", "aX${y}b${x}"},
        Case{"StopsAtAPlaceholderAfterSpaceAfterAnother", "a${x} \n ${y} b", "aX${y} b"},
        Case{"CopiesAStoppedTextUpToTheEndMark", "${x} a ___${__ b", "${x} a "},
        Case{"LeavesATextWithoutPlaceholders", " a  { $ } \n b\n", "a  { $ } \n b"},
        Case{"SkipsSpaceBeforeTheName", "a${ \n x}b", "aXb"},
        Case{"KeepsSpaceAfterTheName", "a${x }b", "ab"},
        Case{"TakesARestWithoutEndForAName", "a ${x", "a X"},
        Case{"KeepsTheSpaceOfANameWithoutEnd", "a ${x ", "a "},
        Case{"LeavesNothingForAnEmptyName", "a${}b${ }c", "abc"},
        Case{"DoesNotFillValues", "a${y}b", "a ${x} b"},
        Case{"KeepsTheSpaceOfALastValue", "a${y} ", "a ${x} "},
        Case{"HandlesOtherScripts", "\u00a0\u3000\u4e66${x}\u2003\u9875 ", "\u4e66X\u9875"},
        Case{"HandlesTheEmptyText", "", ""}, Case{"HandlesSpaceOnly", " \n\t", ""}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST(TextTemplate, TakesTimeInProportionToTheText) {
    const QString piece = QStringLiteral("function f() { return $x; } ");
    QString text = piece.repeated(100000) + QStringLiteral("a${x}").repeated(100000);
    TextTemplate page(text);
    page.setItem(QStringLiteral("x"), QStringLiteral("y"));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(page.parse().size(), piece.size() * 100000 + 200000);
    EXPECT_LT(timer.elapsed(), 5000);
}

} // namespace
