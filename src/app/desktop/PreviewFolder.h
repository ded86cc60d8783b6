#pragma once

#include "platform/Message.h"

#include <QString>
#include <memory>

class QLockFile;

// The private folder that the book being edited is published into. Several programs may run side
// by side: the first has "preview", the others "preview-2" and so on, each until it goes.
class PreviewFolder {
public:
    PreviewFolder();
    ~PreviewFolder();
    PreviewFolder(const PreviewFolder&) = delete;
    PreviewFolder& operator=(const PreviewFolder&) = delete;

    // Makes the folder and claims it for this program. Its path has no trailing separator. A folder
    // that can't be made is logged; its path comes back all the same.
    QString make();
    // Makes it again when somebody else removed it; why that failed, or a null text.
    Message restore() const;
    // Removes the folder with all its contents, if it is there.
    void remove();

private:
    QString claim(const QString& base);

    QString iPath;
    std::unique_ptr<QLockFile> iLock;
};
