#pragma once

#include <QString>
#include <map>
#include <random>
#include <vector>

// The words of a long novel in plausible English, made by grammar. One seed gives one text.
class NovelText {
public:
    static const QString kTitle;
    static const QString kAuthor;

    // Titles of the chapters, in order.
    static std::vector<QString> chapterTitles();

    // The voice of one chapter; `chapter` is zero-based and decides who it is about.
    explicit NovelText(unsigned chapter);

    // Either narration or a few lines of talk, never empty.
    QString paragraph();

private:
    unsigned below(size_t bound) { return static_cast<unsigned>(iRandom() % bound); }
    QString pick(const QString& symbol);
    QString expand(const QString& pattern);

    std::mt19937 iRandom;
    unsigned iHero;
    unsigned iFriend;
    std::map<QString, unsigned> iLastChoice; // by symbol, so that nothing is said twice in a row
    bool iWasTalk = false;
};
