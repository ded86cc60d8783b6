#pragma once

#include <QString>
#include <vector>

// One run of page numbers, both ends included.
struct PageRun {
    int first;
    int last;
};

// Reads a page range expression as it stands, before it is sorted or expanded: "3,1-2" is the runs
// 3 to 3 and 1 to 2. Runs that name no page (5-3) are left out. For "ALL" it is 1 to total.
std::vector<PageRun> pageRunsFromExpression(const QString& expression, int total);

// Whether a page is in one of the runs.
bool isWithin(const std::vector<PageRun>& runs, int page);
