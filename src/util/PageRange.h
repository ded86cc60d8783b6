#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// A run of page numbers, inclusive.
struct PageRun {
    int first;
    int last;
};

// Parses a page range expression without sorting or expanding it: "3,1-2" is the runs 3 to 3 and 1
// to 2. Empty runs (5-3) are left out. For "ALL" it is 1 to total.
std::vector<PageRun> pageRunsFromExpression(const QString& expression, int total);

// The one-based page numbers that an expression names, sorted and without duplicates. Numbers
// beyond total are kept. Throws PlatformException when it names more than a million pages.
std::vector<int> pagesFromExpression(const QString& expression, int total);

// The parts that are neither a page number nor a run of pages.
QStringList unclearParts(const QString& expression);

// Whether a page is in any of the runs.
bool isWithin(const std::vector<PageRun>& runs, int page);
