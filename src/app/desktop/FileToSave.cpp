#include "app/desktop/FileToSave.h"

#include <QFileInfo>

std::optional<QString>
FileToSave::ask(QString proposed, const QString& extension,
                const std::function<bool(const QString&)>& isComplete) const {
    while (true) {
        std::optional<QString> file = iPanel(proposed, {extension});
        if (!file || isComplete(*file))
            return file;
        *file += u'.' + extension;
        if (!QFileInfo::exists(*file) ||
            iReplace(tr("Replace %1?").arg(QFileInfo(*file).fileName()),
                     tr("A file of this name is already in the folder. What is in it "
                        "would be lost.")))
            return file;
        proposed = *file;
    }
}
