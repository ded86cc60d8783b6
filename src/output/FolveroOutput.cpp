#include "output/FolveroOutput.h"

#include "base/Log.h"
#include "output/BookSteps.h"
#include "output/BookXML.h"
#include "output/ExistingBook.h"
#include "output/ForeignFiles.h"
#include "output/PlayerFile.h"
#include "output/PublisherChoices.h"
#include "output/StagingFolder.h"
#include "system/Files.h"

#include <QFileInfo>

namespace {

constexpr Log outputLog("FolveroOutput");

void logFailure(const Message& reason) {
    outputLog.error(QStringLiteral("the book was not published: %1").arg(reason.english()));
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
    return ExistingBook::isIn(iSaveToFolder) || StagingFolder::hasUnfinished(iSaveToFolder);
}

QStringList FolveroOutput::foreignFiles() const {
    QStringList found = ForeignFiles::page(outputHTMLFileName());
    const bool hasBook = hasExistingBook();
    const bool hasMovie = hasBook && (StagingFolder::hasUnfinished(iSaveToFolder) ||
                                      !ExistingBook::isWebBookIn(iSaveToFolder));
    if (!hasMovie && ForeignFiles::isThere(outputSWFName()))
        found << outputSWFName();
    for (const QString& path : PlayerFile::languages()) {
        const QString language = layout().at(path);
        if (ForeignFiles::isThere(language) && !ExistingBook::isLanguages(language))
            found << language;
    }
    // Callers ask before there is a document.
    const QString document = layout().at(BookLayout::document);
    if (PublisherChoices::offerDocument(iFlashTemplate.get()) &&
        ExistingBook::isIn(iSaveToFolder) && !ExistingBook::offersDocument(iSaveToFolder) &&
        ForeignFiles::isThere(document))
        found << document;
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

Message FolveroOutput::missingPart() const {
    if (!iFlashTemplate || !Files::contents(iFlashTemplate->tmplHTMLFilePath()).trimmed().isEmpty())
        return {};
    //: %1 is a file, %2 the template's name
    return Message::translate("FolveroOutput",
                              "%1: the page of the template \"%2\" is missing, empty, not "
                              "readable, or outside of the templates' folder")
        .arg(iFlashTemplate->HTMLFilePath(), iFlashTemplate->tmplName());
}

Message FolveroOutput::documentLeftOut() const {
    return PublisherChoices::documentLeftOut(iFlashTemplate.get(), iBook);
}

void FolveroOutput::ouputTheBook() {
    resetResults();
    if (!QFileInfo(iSaveToFolder).isDir())
        return;
    PublishSteps all = steps() << BookSteps::outdatedOfflineFiles();
    if (iBook.pageSource)
        all << BookSteps::outdatedFiles();
    run(layout(), all);
}

PublishSteps FolveroOutput::steps() {
    const FlashTemplate* flashTemplate = iFlashTemplate.get();
    PublishSteps steps{BookSteps::clearedSettings(flashTemplate), pages()};
    if (!iZoomedPageSameAsNormalPage)
        steps << zoomedPages();
    return steps << BookSteps::settingsFiles(flashTemplate, iMissingFiles)
                 << BookSteps::linkedFiles(iBook.annotations.get())
                 << BookSteps::htmlPage(outputHTMLFileName(), flashTemplate, iHTMLConfig.get())
                 << BookSteps::configuration(layout().at(BookLayout::configuration), bookXML())
                 << BookSteps::movie(flashTemplate) << BookSteps::sound(flashTemplate)
                 << BookSteps::languages(flashTemplate)
                 << BookSteps::document(iBook.document.get(),
                                        PublisherChoices::documentPath(flashTemplate, iBook));
}

PublishStep FolveroOutput::pages() {
    return BookSteps::pages(iBook.pageSource ? iBook.pageSource->normalPages()
                                             : FlashPageSource::Pages(),
                            iBook.pageSource.get(), kindOfCopy(), iMissingPages);
}

PublishStep FolveroOutput::zoomedPages() const {
    return BookSteps::zoomedPages(iBook.pageSource ? iBook.pageSource->zoomedPages()
                                                   : FlashPageSource::Pages());
}

PublishTransaction::Copy FolveroOutput::kindOfCopy() const {
    return iBook.pageSource && iBook.pageSource->ownsPageFiles()
               ? PublishTransaction::Copy::mayHardLink
               : PublishTransaction::Copy::independent;
}

bool FolveroOutput::run(const BookLayout& book, const PublishSteps& steps,
                        const QString& workingFolder) {
    resetResults();
    iOutcome = PublishRun::commit(book, steps, iIsCancelled, workingFolder);
    for (const Message& error : iOutcome.errors)
        logFailure(error);
    if (iOutcome.wasCancelled)
        outputLog.info(QStringLiteral("publishing was cancelled"));
    return iOutcome.isDone();
}

void FolveroOutput::resetResults() {
    iOutcome = {};
    iMissingPages.clear();
    iMissingFiles.clear();
}

void FolveroOutput::reportFailure(const Message& reason) {
    iOutcome.errors << reason;
    logFailure(reason);
}

BookLayout FolveroOutput::layoutFor(const QString& base) const {
    return BookLayout(base.isEmpty() ? iSaveToFolder : QString());
}

void FolveroOutput::prepaireNomalPage(const QString& base) {
    run(base.isEmpty() ? layout() : BookLayout(base), {pages()});
}

void FolveroOutput::prepaireZoomendPage(const QString& base) {
    if (!iZoomedPageSameAsNormalPage)
        run(base.isEmpty() ? layout() : BookLayout(base), {zoomedPages()});
}

void FolveroOutput::prepaireThumbPage(const QString& /*base*/) {}

void FolveroOutput::prepaireExtFiles(const QString& base) {
    run(layoutFor(base), {BookSteps::settingsFiles(iFlashTemplate.get(), iMissingFiles)});
}

void FolveroOutput::prepaireExtFiles(const QString& base, const FlashTemplateProperty& atChildPro) {
    run(layoutFor(base), {BookSteps::settingsFilesBelow(atChildPro, iMissingFiles)});
}

void FolveroOutput::PrepareAnnotationFiles(const QString& base) {
    if (iBook.annotations)
        run(layoutFor(base), {BookSteps::linkedFiles(iBook.annotations.get())});
}

void FolveroOutput::removeExtFiles(const QString& base) {
    const BookLayout book = layoutFor(base);
    if (!BookSteps::clearedFiles(book, iFlashTemplate.get()).isEmpty())
        run(book, {BookSteps::clearedSettings(iFlashTemplate.get())});
}

void FolveroOutput::ouputBookXML(const QString& path) {
    const QString failureMessage = QStringLiteral("Could not write document out...");
    const QString folder = QFileInfo(path).path();
    if (!QFileInfo(folder).isDir()) {
        resetResults();
        iOutcome.errors
            << Message::translate("FolveroOutput", "%1: There is no such folder").arg(folder);
        Log::system(failureMessage);
        return;
    }
    if (!run(BookLayout(folder), {BookSteps::configuration(path, bookXML())}) && !wasCancelled())
        Log::system(failureMessage);
}

std::unique_ptr<pugi::xml_document> FolveroOutput::bookXML() const {
    std::vector<BookXML::PageURLs> pages;
    const auto entries = iBook.pageSource ? iBook.pageSource->pages() : FlashPageSource::Pages();
    for (const auto& entry : entries) {
        if (!entry)
            continue;
        const auto normal = iBook.pageSource->getNormalPageAtIndex(entry->pageIndex());
        // A page without a file keeps its place in the book under the name that it would have.
        const FlashPage& page = normal ? *normal : *entry;
        pages.push_back({getNormalPageURL(page), getThumbPageURL(page)});
    }
    return BookXML::make(iFlashTemplate.get(), pages, iBook.pageSize,
                         PublisherChoices::documentPath(iFlashTemplate.get(), iBook));
}

void FolveroOutput::SaveXMLProperties(pugi::xml_node parent, const QString& nodeName,
                                      const QString& key, const QString& defaultValue) const {
    BookXML::appendValue(parent, nodeName, iFlashTemplate.get(), key, defaultValue);
}

void FolveroOutput::appendChildPropertyToNode(pugi::xml_node element,
                                              const FlashTemplateProperty& property) const {
    BookXML::appendDescendants(element, property);
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
