#include "webbook/FolveroOutputSCORM.h"

#include "output/ForeignFiles.h"
#include "system/Files.h"
#include "webbook/CoursePackage.h"
#include "webbook/WebBook.h"

#include <QDir>
#include <QFileInfo>
#include <map>

namespace {

void writePackage(PublishTarget& to, const PublishTransaction& parts, const WebBook& book,
                  const QString& path) {
    to.checkCancelled();
    std::map<QString, QString> files;
    const QDir root(to.layout.folder());
    for (const auto& [target, staged] : parts.stagedFiles())
        files.emplace(root.relativeFilePath(target), staged);
    QStringList names;
    for (const auto& [name, staged] : files)
        names << name;
    const QByteArray manifest =
        CoursePackage::manifest(book.metadata.facts.title, book.htmlName(), names);
    const QString staged = to.transaction.stage(path, PublishTransaction::Phase::page);
    if (const Message error = CoursePackage::write(staged, files, manifest); !error.isNull())
        PublishTransaction::fail(path, error);
}

} // namespace

FolveroOutputSCORM::FolveroOutputSCORM(std::shared_ptr<FlashPageSource> pageSource,
                                       std::shared_ptr<FlashTemplate> flashTemplate,
                                       const QString& saveToFolder, const QString& toName)
    : FolveroOutputWeb(std::move(pageSource), std::move(flashTemplate), saveToFolder,
                       BookLayout::defaultPage),
      iPackageName(QFileInfo(toName).completeBaseName() + QStringLiteral(".zip")) {}

QString FolveroOutputSCORM::outputFileName() const {
    return layout().at(iPackageName);
}

QStringList FolveroOutputSCORM::foreignFiles() const {
    const QString package = outputFileName();
    if (!ForeignFiles::isThere(package) || CoursePackage::isOne(package))
        return {};
    return {package};
}

WebBook FolveroOutputSCORM::webBook() const {
    WebBook book = FolveroOutputWeb::webBook();
    book.isCourse = true;
    // Its files may be read from the platform only, and by those who take part.
    book.metadata.offline = false;
    return book;
}

PublishSteps FolveroOutputSCORM::stepsFor(const WebBook& book) {
    return {{"course", [this, &book](PublishTarget& to) {
                 // Never committed: the archive contains what is staged.
                 PublishTransaction transaction(to.layout.folder());
                 PublishTarget inPackage{to.layout, transaction, to.isCancelled};
                 PublishRun::stage(inPackage, FolveroOutputWeb::stepsFor(book));
                 writePackage(to, transaction, book, outputFileName());
             }}};
}
