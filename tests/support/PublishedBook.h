#pragma once

#include "output/FolveroOutput.h"
#include "pages/FlashPageSource.h"
#include "support/TemplateLibrary.h"

#include <QTemporaryDir>

// A folder to publish into, a folder with source files, and what a book needs: the template "float"
// of a library of its own and a page source that starts without pages.
class PublishedBook {
public:
    explicit PublishedBook(const QString& propertiesXML = QString());

    QString folder() const { return iRoot.filePath(QStringLiteral("book")); }
    QString sourcePath(const QString& name) const;
    // Writes a source file and returns its path.
    QString addSource(const QString& name, const QByteArray& content);
    // Adds a page file NAME with that number to both lists of the source.
    void addPage(const QString& name, int pageIndex, const QByteArray& content);

    bool exists(const QString& relativePath) const;
    QByteArray read(const QString& relativePath) const;
    // The files beneath the book's folder or one in it: relative paths, sorted, with blanks
    // between.
    QString files(const QString& relativePath = QString()) const;
    void write(const QString& relativePath, const QByteArray& content) const;
    // A publisher over all this; fileName is null for "index.html".
    std::unique_ptr<FolveroOutput> publisher(const QString& fileName = QString()) const;
    // Publishes and fails the test when something went wrong.
    void publish() const;

    TemplateLibrary library;
    std::shared_ptr<FlashTemplate> flashTemplate;
    std::shared_ptr<FlashPageSource> pageSource;
    QSize pageSize = Book::defaultPageSize;
    std::shared_ptr<HTMLConfigInfo> HTMLConfig = std::make_shared<HTMLConfigInfo>();
    std::shared_ptr<FlashPagesAnnotations> annotations = std::make_shared<FlashPagesAnnotations>();

private:
    QTemporaryDir iRoot;
};
