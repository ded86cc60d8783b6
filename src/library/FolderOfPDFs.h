#pragma once

#include "library/BookList.h"

// A folder as a list: its PDFs and those of the folders below it, but for hidden ones. Symbolic
// links to files are followed, those to folders are not.
class FolderOfPDFs : public BookList {
public:
    FolderOfPDFs(const QString& folder, const QString& notBelow);
    void rewind() override { iNext = 0; }
    bool next(ListedBook& book) override;

private:
    QByteArray iFolder;
    QByteArrayList iPaths; // in the folder, sorted
    qsizetype iNext = 0;
};
