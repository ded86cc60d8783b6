#include "output/TextTemplate.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

TEST(TextTemplate, FillsTheText) {
    struct Case {
        const char *name, *text, *expected;
    };
    for (const auto& [name, text, expected] :
         {Case{"DropsSpaceAfterThePlaceholder", "a ${index.title} b", "a Tb"},
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
          Case{"HandlesTheEmptyText", "", ""}, Case{"HandlesSpaceOnly", " \n\t", ""}}) {
        TextTemplate page(QString::fromUtf8(text));
        page.setItem("index.title", "T");
        page.setItem("x", "old");
        page.setItem("x", "X");
        page.setItem("y", " ${x} ");
        EXPECT_EQ(page.parse(), expected) << name;
        EXPECT_FALSE(page.parse().isNull());
    }
}

TEST(TextTemplate, TakesTimeInProportionToTheText) {
    const QString piece = "function f() { return $x; } ";
    TextTemplate page(piece.repeated(100000) + QString("a${x}").repeated(100000));
    page.setItem("x", "y");
    const std::clock_t start = std::clock();
    EXPECT_EQ(page.parse().size(), piece.size() * 100000 + 200000);
    EXPECT_LT(double(std::clock() - start) / CLOCKS_PER_SEC, 5);
}

} // namespace
