#pragma once

#include "ui/OfficePages.h"
#include "ui/PagePictures.h"
#include "ui/PagesModel.h"
#include "ui/PagesWindow.h"

#include <QObject>
#include <QPointer>
#include <functional>

// Controls the sheet in which the pages of a book are arranged. The result is what the model has
// when the sheet has ended with 1.
class PagesWindowDelegate : public QObject {
    Q_OBJECT

public:
    using FilesPanel = std::function<QStringList(const QString& title)>;

    // The window belongs to the parent.
    explicit PagesWindowDelegate(QWidget* parent = nullptr);
    ~PagesWindowDelegate() override;

    // documents: paths of PDFs and pictures, and of office documents that can be read, see
    // setReading(). pages: of these, as in a MergePlan; empty for all.
    // Returns false, and shows no sheet, when a document can't be read; *failure says why.
    bool beginSheet(const QStringList& documents, PagesModel::Pages pages,
                    std::function<void(int returnCode)> onEnd, QString* failure);
    // The PDFs of office documents that need not be made, and the password of a document in UTF-8;
    // by default none.
    struct Reading {
        std::function<ConvertedDocuments()> converted;
        std::function<QByteArray(const QString& document)> password;
    };
    void setReading(Reading reading) { iReading = std::move(reading); }
    void setFilesPanel(FilesPanel panel) { iFilesPanel = std::move(panel); }

    // Inserts files at the end of the book that the sheet shows. failures: of others, to be shown.
    void append(const QStringList& files, const QStringList& failures);

    PagesWindow& window() const { return *iWindow; }
    PagesModel& model() { return iModel; }
    // The PDFs of office documents, until the sheet has ended.
    const ConvertedDocuments& converted() const { return iOffice.pdfs(); }

private:
    void wire();
    PagesModel::Document opened(const QString& path) const;
    void showCommands();
    void select(const PagesModel::Rows& rows);
    PagesModel::Rows selected() const;
    int insertionRow() const;
    void moveBy(int rows);
    QString readable(const QString& document) const;
    void insertFiles(const QStringList& files, int before);
    void insertReadable(const QStringList& files, int before, QStringList failures);
    void showFailure(const QString& failure);
    void drawPictures(int from);
    void endSheet(int returnCode);

    QPointer<PagesWindow> iWindow;
    PagesModel iModel;
    OfficePages iOffice;
    PagePictures iPictures;
    FilesPanel iFilesPanel;
    Reading iReading;
    std::function<void(int)> iOnEnd;
};
