#pragma once

#include "system/FileState.h"

#include <QHash>
#include <QString>
#include <functional>
#include <memory>

// The PDF that LibreOffice has made of a document of an office program, in a temporary folder that
// goes with this object.
class ConvertedDocument {
public:
    // stopped is polled and cancels; it may be empty. Throws PlatformException.
    ConvertedDocument(const QString& file, const std::function<bool()>& stopped);
    ~ConvertedDocument();
    ConvertedDocument(const ConvertedDocument&) = delete;
    ConvertedDocument& operator=(const ConvertedDocument&) = delete;

    const QString& pdf() const { return iPDF; }
    // False as soon as the document was changed or has gone.
    bool isCurrent() const { return FileState::of(iFile) == iState; }

private:
    QString iFile;
    FileState iState;
    QString iFolder;
    QString iPDF;
};

// By the paths of the documents.
using ConvertedDocuments = QHash<QString, std::shared_ptr<const ConvertedDocument>>;
