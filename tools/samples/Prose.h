#pragma once

#include <QByteArray>
#include <random>
#include <vector>

// Endless made-up English for pages that need text but no meaning. One seed gives one text.
class Prose {
public:
    explicit Prose(unsigned seed) : iRandom(seed) {}

    QByteArray sentence();
    // Lines of whole words, each at most `width` characters.
    std::vector<QByteArray> lines(int count, int width);

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(iRandom()) % bound; }

    std::mt19937 iRandom;
};
