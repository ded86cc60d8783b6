#include "pdf/PDFText.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

// The words of letters of 10 points that are 5 wide; each | is a gap.
QStringList words(const QString& text, double gap) {
    std::vector<PDFTextCharacter> characters;
    double at = 0;
    for (const QChar letter : text) {
        if (letter == u'|') {
            at += gap;
            continue;
        }
        characters.push_back({letter.unicode(), at, at + 5, 10});
        at += 5;
    }
    PDFTextLine line;
    PDFText::makeWords(characters, 0, line);
    QStringList found;
    for (const PDFTextWord& word : line.words)
        found << word.text;
    return found;
}

} // namespace

TEST(PDFTextWords, FindsNarrowBlanksButNotThoseWithinLetterspacedWords) {
    EXPECT_EQ(words("which|a|given", 1.4), (QStringList{"which ", "a ", "given"}));
    EXPECT_EQ(words("wh|ich", 1.2), QStringList{"which"});
    EXPECT_EQ(words("A|B|S|T|R|A|C|T", 1.4), QStringList{"ABSTRACT"});
}
