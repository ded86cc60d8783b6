#include "output/TextTemplate.h"

#include <gtest/gtest.h>

namespace {

TEST(TextTemplate, FillsTheText) {
    struct Case {
        const char *text, *expected;
    };
    for (const auto& [text, expected] :
         {Case{"a ${index.title} b", "a Tb"}, Case{"a${x}\r\n\t b${x}c", "aXbXc"},
          Case{"x${meta.keywords}", "x"},
          Case{"${index.title} words ${x}", "${index.title} words ${x}"},
          Case{" \n ${x} a ", "${x} a"}, Case{"a${x}${y}b${x}", "aX${y}b${x}"},
          Case{"a${x} \n ${y} b", "aX${y} b"}, Case{"${x} a ___${__ b", "${x} a "},
          Case{" a  { $ } \n b\n", "a  { $ } \n b"}, Case{"a${ \n x}b", "aXb"},
          Case{"a${x }b", "ab"}, Case{"a ${x", "a X"}, Case{"a ${x ", "a "},
          Case{"a${}b${ }c", "abc"}, Case{"a${y}b", "a ${x} b"}, Case{"a${y} ", "a ${x} "},
          Case{"\u00a0\u3000\u4e66${x}\u2003\u9875 ", "\u4e66X\u9875"}, Case{"", ""},
          Case{" \n\t", ""}}) {
        TextTemplate page(QString::fromUtf8(text));
        page.setItem("index.title", "T");
        page.setItem("x", "old");
        page.setItem("x", "X");
        page.setItem("y", " ${x} ");
        EXPECT_EQ(page.parse(), expected) << text;
        EXPECT_FALSE(page.parse().isNull());
    }
}

} // namespace
