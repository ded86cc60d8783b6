#pragma once

#include "base/Message.h"
#include "pdf/MergePlan.h"
#include "project/ConvertedDocument.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class MergedDocument;

// What an import makes a book of.
struct ImportSources {
    QStringList documents; // PDFs, pictures and documents of office programs; at least one
    // Of the documents; empty for all pages of all of them, in order.
    std::vector<MergePlan::Page> pages;
    // Whether documents that can't be read are left out; without pages only.
    bool leavesOut = false;
    ConvertedDocuments converted = {}; // of the documents; others are converted

    // False for one PDF with all its pages, which is imported as it is.
    bool areMerged() const;
};

// Makes the document that an import draws. Used by one thread at a time.
class DocumentMerge {
public:
    // passwords: of the documents, in UTF-8.
    DocumentMerge(ImportSources sources, QHash<QString, QByteArray> passwords);

    // Returns the document's path. Throws PlatformException.
    QString make(const std::function<bool()>& stopped);

    // What was used, the document, null before it was made, and why others were left out.
    const ImportSources& sources() const { return iSources; }
    const std::shared_ptr<MergedDocument>& document() const { return iDocument; }
    Messages leftOut() const;
    // The one that needed a password, or another one, when nothing was made for that reason.
    const QString& protectedDocument() const { return iProtected; }

private:
    QString firstProtected(const std::function<bool()>& stopped) const;

    ImportSources iSources;
    QHash<QString, QByteArray> iPasswords;
    std::shared_ptr<MergedDocument> iDocument;
    QString iProtected;
};
