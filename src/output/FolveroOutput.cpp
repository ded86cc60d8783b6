#include "output/FolveroOutput.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/BookName.h"
#include "output/ExistingBook.h"
#include "output/ForeignFiles.h"
#include "output/StagingFolder.h"
#include "output/UserConfig.h"
#include "system/Files.h"
#include "util/NSData+CommonCrypto.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <sstream>

using Copy = PublishTransaction::Copy;
using Phase = PublishTransaction::Phase;

namespace {

struct Cancelled {};

const Log& logger() {
    static const Log log("FolveroOutput");
    return log;
}

bool isReadableFile(const QString& path) {
    const QFileInfo info(path);
    return !path.contains(QChar::Null) && info.isFile() && info.isReadable();
}

QString parentOf(const QString& path) {
    return QFileInfo(path).path();
}

} // namespace

FolveroOutput::FolveroOutput(std::shared_ptr<FlashPageSource> pageSource,
                             std::shared_ptr<FlashTemplate> flashTemplate,
                             const QString& saveToFolder, const QString& toName)
    : iFlashTemplate(std::move(flashTemplate)),
      iSaveToFolder(saveToFolder),
      iSaveToFileName(toName) {
    iBook.pageSource = std::move(pageSource);
}

QString FolveroOutput::outputHTMLFileName() const {
    return layout().at(iSaveToFileName.isNull() ? BookLayout::defaultPage : iSaveToFileName);
}

QString FolveroOutput::outputFileName() const {
    return outputHTMLFileName();
}

QString FolveroOutput::outputSWFName() const {
    return layout().at(BookLayout::movie);
}

// A first publish that was killed leaves files without a configuration.
bool FolveroOutput::hasExistingBook() const {
    return ExistingBook::isIn(iSaveToFolder) || StagingFolder::hasStale(iSaveToFolder);
}

QStringList FolveroOutput::foreignFiles() const {
    QStringList found = ForeignFiles::page(outputHTMLFileName());
    const bool hasBook = hasExistingBook();
    const bool hasMovie = hasBook && (StagingFolder::hasStale(iSaveToFolder) ||
                                      !ExistingBook::isWebBookIn(iSaveToFolder));
    if (!hasMovie && ForeignFiles::isThere(outputSWFName()))
        found << outputSWFName();
    if (!hasBook)
        found << ForeignFiles::ofBook(layout(), iFlashTemplate.get());
    return found;
}

QString FolveroOutput::titleOfExistingBook() const {
    const QString page = outputHTMLFileName();
    if (ExistingBook::isPage(page))
        return ExistingBook::title(page);
    // The existing book's page may have another name.
    const QStringList pages =
        ExistingBook::isIn(iSaveToFolder) ? ExistingBook::pages(iSaveToFolder) : QStringList();
    return pages.isEmpty() ? QString()
                           : ExistingBook::title(Files::join(iSaveToFolder, pages.front()));
}

void FolveroOutput::ouputTheBook() {
    resetResults();
    if (!QFileInfo(iSaveToFolder).isDir())
        return;
    perform(iSaveToFolder, [this] {
        publish();
        removeFilesOfExistingBook();
    });
}

void FolveroOutput::publish() {
    const QString base = QStringLiteral("");
    removeExtFiles(base);
    prepaireNomalPage(base);
    prepaireZoomendPage(base);
    prepaireThumbPage(base);
    prepaireExtFiles(base);
    PrepareAnnotationFiles(base);
    writeHTMLPage();
    ouputBookXML(layout().at(BookLayout::configuration));
    copyTemplateFile(&FlashTemplate::copyBookSWFToFile, BookLayout::movie);
    copyTemplateFile(&FlashTemplate::copyBookSoundFile, BookLayout::sound);
}

bool FolveroOutput::perform(const QString& folder, const std::function<void()>& work) {
    if (iTransaction) {
        work();
        return true;
    }
    resetResults();
    try {
        PublishTransaction run(folder);
        iTransaction = &run;
        const auto end = qScopeGuard([this] { iTransaction = nullptr; });
        work();
        checkCancelled();
        run.commit();
        iFileCounts = run.counts();
        return true;
    } catch (const PlatformException& failure) {
        reportFailure(failure.message());
    } catch (const Cancelled&) {
        markCancelled();
    }
    return false;
}

void FolveroOutput::markCancelled() {
    iWasCancelled = true;
    logger().info(QStringLiteral("publishing was cancelled"));
}

void FolveroOutput::resetResults() {
    iPublishErrors.clear();
    iMissingPages.clear();
    iFileCounts = {};
    iWasCancelled = false;
}

void FolveroOutput::reportFailure(const Message& reason) {
    iPublishErrors << reason;
    logger().error(QStringLiteral("the book was not published: %1").arg(reason.english()));
}

void FolveroOutput::renameInErrors(const QString& working, const QString& final) {
    for (Message& error : iPublishErrors)
        error = error.replaced(working, final);
}

void FolveroOutput::checkCancelled() const {
    if (isCancelled())
        throw Cancelled();
}

bool FolveroOutput::replaceWithCopy(const QString& source, const QString& folder,
                                    const QString& name, Copy kind) {
    checkCancelled();
    if (!BookName::isSafe(name)) {
        logger().warn(QStringLiteral("left out, not a name for a file of a book: %1").arg(name));
        return false;
    }
    const QString target = Files::join(folder, name);
    if (!isReadableFile(source)) {
        transaction().remove(target);
        return false;
    }
    transaction().copy(source, target, kind);
    return true;
}

void FolveroOutput::prepaireNomalPage(const QString& base) {
    const QString root = base.isEmpty() ? iSaveToFolder : base;
    perform(root, [&] {
        const QString folder = BookLayout(root).at(iNormalPageFolder, {});
        transaction().makeFolder(folder);
        if (!iBook.pageSource)
            return;
        const Copy kind = iBook.pageSource->ownsPageFiles() ? Copy::mayHardLink : Copy::independent;
        for (const auto& page : iBook.pageSource->normalPages()) {
            if (!page)
                continue;
            const QString name =
                BookName::withExtensionOf(QString::number(page->pageIndex()), page->pageFilePath());
            if (replaceWithCopy(page->pageFilePath(), folder, name, kind))
                continue;
            iMissingPages.push_back(page->pageIndex());
            logger().warn(QStringLiteral("page %1 was left out, no file %2")
                              .arg(page->pageIndex())
                              .arg(page->pageFilePath()));
        }
    });
}

void FolveroOutput::prepaireZoomendPage(const QString& base) {
    if (iZoomedPageSameAsNormalPage || !iBook.pageSource)
        return;
    const QString root = base.isEmpty() ? iSaveToFolder : base;
    perform(root, [&] {
        const QString folder = BookLayout(root).at(iZoomedPageFolder, {});
        if (!transaction().willExist(folder))
            return;
        for (const auto& page : iBook.pageSource->zoomedPages()) {
            checkCancelled();
            if (!page || !isReadableFile(page->pageFilePath()))
                continue;
            const QString target =
                Files::join(folder, QStringLiteral("%1.swf").arg(page->pageIndex()));
            if (!transaction().willExist(target))
                transaction().copy(page->pageFilePath(), target, Copy::independent);
        }
    });
}

void FolveroOutput::prepaireThumbPage(const QString& /*base*/) {}

void FolveroOutput::prepaireExtFiles(const QString& base) {
    const QString root = base.isEmpty() ? iSaveToFolder : QString();
    perform(root, [&] {
        const QString folder = BookLayout(root).at(iExterFilesFolder, {});
        transaction().makeFolder(folder);
        if (!iFlashTemplate)
            return;
        for (const auto& property : iFlashTemplate->properties()) {
            if (!property)
                continue;
            if (property->propertyType() == pt_file)
                copyExtFile(*property, folder);
            copyExtFilesOfChildren(*property, folder);
        }
    });
}

void FolveroOutput::prepaireExtFiles(const QString& base, const FlashTemplateProperty& atChildPro) {
    const QString root = base.isEmpty() ? iSaveToFolder : QString();
    perform(root, [&] {
        copyExtFilesOfChildren(atChildPro, BookLayout(root).at(iExterFilesFolder, {}));
    });
}

void FolveroOutput::copyExtFilesOfChildren(const FlashTemplateProperty& property,
                                           const QString& folder) {
    for (const auto& child : property.childProperties()) {
        if (!child)
            continue;
        const bool namesFile = child->propertyType() == pt_file && !child->value().isEmpty();
        if (namesFile) {
            copyExtFile(*child, folder);
            // Children of a missing file are left out with it.
            if (!isReadableFile(child->value()))
                continue;
        }
        copyExtFilesOfChildren(*child, folder);
    }
}

void FolveroOutput::copyExtFile(const FlashTemplateProperty& property, const QString& folder) {
    const QString name = BookName::withExtensionOf(property.key(), property.value());
    if (!replaceWithCopy(property.value(), folder, name, Copy::independent) &&
        !property.value().isEmpty())
        logger().warn(QStringLiteral("the file of setting %1 was left out: %2")
                          .arg(property.key(), property.value()));
}

void FolveroOutput::PrepareAnnotationFiles(const QString& base) {
    if (!iBook.annotations)
        return;
    const QString root = base.isEmpty() ? iSaveToFolder : QString();
    perform(root, [&] {
        const QString folder = BookLayout(root).at(iAnnotationFilesFolder, {});
        transaction().makeFolder(folder);
        for (const QString& source : iBook.annotations->needFiles()) {
            checkCancelled();
            const QString name = Files::lastPathComponent(source);
            if (!isReadableFile(source) || !BookName::isSafe(name)) {
                logger().warn(QStringLiteral("a link's file was left out: %1").arg(source));
                continue;
            }
            const QString target = Files::join(folder, name);
            if (!transaction().willExist(target))
                transaction().copy(source, target, Copy::independent);
        }
    });
}

void FolveroOutput::removeExtFiles(const QString& base) {
    const QString root = base.isEmpty() ? iSaveToFolder : QString();
    const QString folder = BookLayout(root).at(iExterFilesFolder, {});
    QStringList leftovers;
    const auto collect = [&](const QString& key, const QStringList& extensions) {
        if (!templateValue(key, QStringLiteral("")).isEmpty())
            return;
        for (const QString& extension : extensions) {
            const QString path = Files::join(folder, key + u'.' + extension);
            if (QFileInfo::exists(path))
                leftovers << path;
        }
    };
    const QStringList images{QStringLiteral("jpg"), QStringLiteral("png"), QStringLiteral("gif")};
    collect(QStringLiteral("innerMainbgImgUrl"), images);
    collect(QStringLiteral("mainbgImgUrl"), images);
    collect(QStringLiteral("backgroundSoundURL"), {QStringLiteral("mp3")});
    if (leftovers.isEmpty())
        return;
    perform(root, [&] {
        for (const QString& path : leftovers)
            transaction().remove(path);
    });
}

// The new configuration does not refer to them.
void FolveroOutput::removeFilesOfExistingBook() {
    removeOfflineFiles();
    if (!iBook.pageSource || !transaction().writes(layout().at(BookLayout::configuration)))
        return;
    for (const QString& name : ExistingBook::files(iSaveToFolder)) {
        const QString path = layout().at(name);
        if (!transaction().writes(path) && QFileInfo(path).isFile())
            transaction().remove(path);
    }
}

// Readers would otherwise keep getting the existing book.
void FolveroOutput::removeOfflineFiles() {
    const QString page = ExistingBook::pageOfServiceWorker(iSaveToFolder);
    const auto writes = [this](const QString& path) {
        return transaction().writes(layout().at(path));
    };
    if (page.isNull() || writes(BookLayout::serviceWorker) ||
        !(writes(BookLayout::configuration) || writes(page)))
        return;
    QStringList outdated = BookLayout::offlineFiles();
    if (ExistingBook::isTextPage(layout().at(BookLayout::textPage)))
        outdated << BookLayout::textPage;
    for (const QString& path : outdated) {
        if (!writes(path))
            transaction().remove(layout().at(path));
    }
}

void FolveroOutput::writeHTMLPage() {
    checkCancelled();
    const QString page = outputHTMLFileName();
    if (page.endsWith(u'/') || !BookName::staysInFolder(Files::lastPathComponent(page)) ||
        QDir::cleanPath(parentOf(page)) != QDir::cleanPath(iSaveToFolder)) {
        logger().error(
            QStringLiteral("no HTML page: not a file in the book's folder: %1").arg(page));
        return;
    }
    const QString source = iFlashTemplate ? iFlashTemplate->tmplHTMLFilePath() : QString();
    Message error;
    if (iHTMLConfig) {
        const QString staged = transaction().stage(page, Phase::page);
        if (!iHTMLConfig->generateHTMLFrom(source, staged, &error))
            PublishTransaction::fail(page, error);
        finishHTMLPage(staged);
    } else if (isReadableFile(source)) {
        transaction().copy(source, page, Copy::independent, Phase::page);
    } else {
        transaction().remove(page);
    }
}

// Under the name that it has in the template's folder.
void FolveroOutput::copyTemplateFile(TemplateCopy copy, const QString& path) {
    checkCancelled();
    if (!iFlashTemplate)
        return;
    const QString target = layout().at(path);
    const QString staged = transaction().stage(target);
    (iFlashTemplate.get()->*copy)(staged);
    if (QFileInfo::exists(staged))
        return;
    // The template does not report errors.
    const QString source = iFlashTemplate->playerFile(Files::lastPathComponent(path));
    if (isReadableFile(source))
        transaction().copy(source, target, Copy::independent);
    else
        transaction().remove(target);
}

void FolveroOutput::ouputBookXML(const QString& path) {
    const QString failureMessage = QStringLiteral("Could not write document out...");
    const QString folder = parentOf(path);
    if (!iTransaction && !QFileInfo(folder).isDir()) {
        resetResults();
        iPublishErrors
            << Message::translate("FolveroOutput", "%1: There is no such folder").arg(folder);
        Log::system(failureMessage);
        return;
    }
    try {
        if (!perform(folder, [&] { stageBookXML(path); }) && !iWasCancelled)
            Log::system(failureMessage);
    } catch (const PlatformException&) {
        Log::system(failureMessage);
        throw;
    }
}

void FolveroOutput::stageBookXML(const QString& path) {
    checkCancelled();
    std::ostringstream xml;
    bookXML()->save(xml, "    ", pugi::format_indent, pugi::encoding_utf8);
    const QByteArray bytes = CommonCryptor::RC4EncryptedDataUsingKey(
        QByteArray::fromStdString(xml.str()), userConfigKey);
    transaction().write(path, bytes, Phase::configuration);
    const QFileInfo info(path);
    const QString script =
        Files::join(info.path(), info.completeBaseName() + QStringLiteral(".js"));
    transaction().write(script, "window.FolveroUserConfig = \"" + bytes.toBase64() + "\";\n",
                        Phase::configuration);
}

QString FolveroOutput::getNormalPageURL(const FlashPage& page) const {
    return BookLayout::inFiles(
        BookLayout::page(page.pageIndex(), Files::pathExtension(page.pageFilePath())));
}

QString FolveroOutput::getZoomedPageURL(const FlashPage& page) const {
    // Zoomed pages use the URL of the normal ones, whatever folder they are in.
    return getNormalPageURL(page);
}

QString FolveroOutput::getThumbPageURL(const FlashPage& page) const {
    return getNormalPageURL(page);
}
