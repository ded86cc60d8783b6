#pragma once

#include "base/Operation.h"
#include "project/ConvertedDocument.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

class QProgressDialog;

// The PDFs of documents of office programs, which LibreOffice makes in the background, under a
// small window with which the user can cancel. For the main thread.
class OfficePages : public QObject {
    Q_OBJECT

public:
    // window: over which the small one is shown. It must live longer.
    explicit OfficePages(QWidget& window);
    ~OfficePages() override;

    // Those that are no office documents are left out, and those whose PDF is there and current.
    // Calls back, at once when there is nothing to do, with what failed, and not at all when it is
    // cancelled.
    using Done = std::function<void(const QStringList& failures)>;
    void make(const QStringList& files, const Done& done);

    // The PDFs that are there, also those that were made elsewhere.
    const ConvertedDocuments& pdfs() const { return iPDFs; }
    void setPDFs(const ConvertedDocuments& pdfs) { iPDFs = pdfs; }
    // Stops, and forgets the PDFs.
    void clear();

private:
    class Conversion;
    void take(const std::shared_ptr<Conversion>& conversion, const Done& done);

    QWidget& iWindow;
    ConvertedDocuments iPDFs;
    QPointer<QProgressDialog> iProgress;
    OperationQueue iQueue; // goes first: its operation refers to the rest
};
