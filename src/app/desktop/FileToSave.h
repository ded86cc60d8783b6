#pragma once

#include "ui/Panels.h"

#include <QCoreApplication>
#include <functional>

// Asks where to save a file, by a panel that asks before it replaces a file but does not know about
// the extension that is added to what was typed.
class FileToSave {
    Q_DECLARE_TR_FUNCTIONS(FileToSave)

public:
    using Replace = std::function<bool(const QString& message, const QString& information)>;

    FileToSave(Panels::FilePanel panel, Replace replace)
        : iPanel(std::move(panel)), iReplace(std::move(replace)) {}

    // None when cancelled. The extension is added to names that isComplete does not accept.
    std::optional<QString> ask(QString proposed, const QString& extension,
                               const std::function<bool(const QString&)>& isComplete) const;

private:
    Panels::FilePanel iPanel;
    Replace iReplace;
};
