#pragma once

#include "base/Message.h"
#include "project/Project.h"

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <functional>
#include <memory>

// What is not saved yet, in a file of the user's application-support folder, in case the program
// ends early. Each running program has a file of its own, which is locked: one whose program is
// gone is offered at the next start.
class ProjectRecovery {
public:
    // Leaves the file for the next start unless it was removed.
    ~ProjectRecovery() = default;

    // Replaces the file as a whole, unless the project is the one that was written last.
    void write(const Project& project);
    // There is nothing to recover any more.
    void remove();

    // Offers what programs that are gone have left, most recent first, until one is taken; files
    // that were not taken, and the one that was, are removed. The others are left for another
    // start.
    using Take = std::function<bool(const Project& project, const QDateTime& saved)>;
    static void offer(const Take& take);

private:
    static QString folder();
    static void removeRemains();

    QString iPath; // null until something was written
    QByteArray iWritten;
    std::unique_ptr<QLockFile> iLock;
};
