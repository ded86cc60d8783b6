#include "support/PublishedBook.h"

#include "support/BookReader.h"

#include <QDir>
#include <QFileInfo>
#include <stdexcept>

PublishedBook::PublishedBook(const QString& propertiesXML)
    : pageSource(std::make_shared<FlashPageSource>()) {
    library.addTemplate(QStringLiteral("float"), propertiesXML);
    library.addFile(QStringLiteral("AppFiles/Templates/float/index.html"),
                    "<title>${index.title}</title>");
    flashTemplate = std::make_shared<FlashTemplate>();
    QDir(iRoot.path()).mkdir(QStringLiteral("book"));
}

QString PublishedBook::sourcePath(const QString& name) const {
    return iRoot.filePath(QStringLiteral("sources/") + name);
}

QString PublishedBook::addSource(const QString& name, const QByteArray& content) {
    TestFiles::write(sourcePath(name), content);
    return sourcePath(name);
}

void PublishedBook::addPage(const QString& name, int pageIndex, const QByteArray& content) {
    auto page = std::make_shared<FlashPage>();
    page->setPageFilePath(addSource(name, content));
    page->setPageIndex(pageIndex);
    auto pages = pageSource->pages();
    pages.push_back(page);
    pageSource->setPages(pages);
    auto normalPages = pageSource->normalPages();
    normalPages.push_back(page->copyPage(100, 100));
    pageSource->setNormalPages(normalPages);
}

bool PublishedBook::exists(const QString& relativePath) const {
    return QFileInfo::exists(folder() + u'/' + relativePath);
}

QByteArray PublishedBook::read(const QString& relativePath) const {
    return TestFiles::read(folder() + u'/' + relativePath);
}

QString PublishedBook::files(const QString& relativePath) const {
    return BookReader::filesBeneath(folder() + u'/' + relativePath).join(u' ');
}

void PublishedBook::write(const QString& relativePath, const QByteArray& content) const {
    TestFiles::write(folder() + u'/' + relativePath, content);
}

std::unique_ptr<FolveroOutput> PublishedBook::publisher(const QString& fileName) const {
    auto output = std::make_unique<FolveroOutput>(pageSource, flashTemplate, folder(), fileName);
    output->setHTMLConfig(HTMLConfig);
    Book book = output->book();
    book.annotations = annotations;
    book.pageSize = pageSize;
    output->setBook(book);
    return output;
}

void PublishedBook::publish() const {
    const auto output = publisher();
    output->ouputTheBook();
    if (!output->publishErrors().isEmpty())
        throw std::runtime_error(output->publishErrors().first().toStdString());
}
