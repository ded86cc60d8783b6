#pragma once

#include "base/Operation.h"
#include "pages/Book.h"

#include <QObject>
#include <map>
#include <memory>

class ImportPDFOperation;

// Small pictures of the pages of documents, drawn in the background. Their files exist as long as
// this object. For the main thread.
class PagePictures : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~PagePictures() override;

    // Draws the pages of a PDF. document: how its pictures are told from those of others. password:
    // in UTF-8; empty for none.
    void draw(int document, const QString& pdf, const QByteArray& password);
    // Stops drawing and forgets all.
    void clear();

Q_SIGNALS:
    // index: zero-based.
    void arrived(int document, int index, const QString& file);

private:
    void finished(int document, const std::shared_ptr<ImportPDFOperation>& operation);

    std::map<int, std::shared_ptr<ImportPDFOperation>> iOperations;
    OperationQueue iQueue; // goes first: operations refer to the rest
};
