#pragma once

#include "base/Message.h"

#include <QLockFile>
#include <QString>
#include <memory>

// The private folder to which the edited book is published. The first running program uses
// "preview", others "preview-2" and so on, until they end. Those of programs that were killed are
// removed.
class PreviewFolder {
public:
    // Creates the folder and locks it for this program. The path has no trailing separator. An
    // error is logged; the path is returned all the same.
    QString make();
    // Creates it again if it was removed from outside; returns the error, or a null message.
    Message restore() const;
    // Removes the folder with all its contents, if it exists.
    void remove();

private:
    QString claim(const QString& home);
    void removeAbandoned(const QString& home) const;

    QString iPath;
    std::unique_ptr<QLockFile> iLock;
};
