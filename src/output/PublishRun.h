#pragma once

#include "base/Message.h"
#include "output/BookLayout.h"
#include "output/PublishTransaction.h"

#include <QList>
#include <functional>

// What the steps of a publisher work on: the paths of the book, and the transaction that they stage
// its files in.
struct PublishTarget {
    BookLayout layout;
    PublishTransaction& transaction;
    std::function<bool()> isCancelled;

    // Ends the run, without a change to the folder, if it was cancelled. To be called between
    // files.
    void checkCancelled() const;
    // Whether the run writes the file at that path of the book.
    bool writes(const QString& path) const { return transaction.writes(layout.at(path)); }
};

// A part of a run. Errors are PlatformExceptions, which end the run.
struct PublishStep {
    const char* name; // for the log
    std::function<void(PublishTarget&)> work;
};
using PublishSteps = QList<PublishStep>;

// What came of a run. The folder is unchanged when it failed or was cancelled.
struct PublishOutcome {
    Messages errors; // "FILE: CAUSE"
    PublishTransaction::Counts counts;
    bool wasCancelled = false;

    bool isDone() const { return errors.isEmpty() && !wasCancelled; }
};

namespace PublishRun {

// Takes the steps in order and commits what they staged. workingFolder, if not null, is where the
// book is written instead, to be moved to its own folder afterwards; errors name the latter.
PublishOutcome commit(const BookLayout& layout, const PublishSteps& steps,
                      const std::function<bool()>& isCancelled, const QString& workingFolder = {});

// Takes the steps in order.
void stage(PublishTarget& target, const PublishSteps& steps);

} // namespace PublishRun
