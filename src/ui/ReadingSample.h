#pragma once

#include "util/PageRange.h"

#include <QCoreApplication>
#include <QString>
#include <optional>
#include <vector>

struct Book;

// The pages of a book that can be read, as typed into the publish sheet.
class ReadingSample {
    Q_DECLARE_TR_FUNCTIONS(ReadingSample)

public:
    // typed names pages by their numbers in the document; empty for all.
    ReadingSample(const QString& typed, const Book& book);

    // By their numbers in the book; none for all.
    const std::optional<std::vector<PageRun>>& pages() const { return iPages; }
    // Why it can't be published; null for no reason. Nothing is guessed: a page too many would be
    // given away.
    const QString& problem() const { return iProblem; }

private:
    std::optional<std::vector<PageRun>> iPages;
    QString iProblem;
};
