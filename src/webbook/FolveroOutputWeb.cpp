#include "webbook/FolveroOutputWeb.h"

#include "base/PlatformException.h"
#include "output/BookSteps.h"
#include "output/ExistingBook.h"
#include "output/ForeignFiles.h"
#include "output/PublisherChoices.h"
#include "output/StagingFolder.h"
#include "system/Files.h"
#include "webbook/IIIFManifest.h"
#include "webbook/OfflineFiles.h"
#include "webbook/SharedPlayer.h"
#include "webbook/WebBook.h"

#include <QFileInfo>

namespace {

PublishStep shareImage(const ShareImage& image) {
    return {"picture for links", [&image](PublishTarget& to) {
                if (!image.jpeg.isEmpty())
                    to.transaction.write(to.layout.at(BookLayout::shareImage), image.jpeg);
            }};
}

PublishStep iiifManifest(const WebBook& book, const BookAddress& address) {
    return {"IIIF manifest", [&book, &address](PublishTarget& to) {
                to.transaction.write(to.layout.at(BookLayout::iiifManifest),
                                     IIIFManifest::json(book, address),
                                     PublishTransaction::Phase::page);
            }};
}

// Of an earlier run, when this one leaves out the text.
void removeTextPage(PublishTarget& to) {
    const QString path = to.layout.at(BookLayout::textPage);
    if (!to.writes(BookLayout::textPage) && ExistingBook::isTextPage(path))
        to.transaction.remove(path);
}

void checkName(const WebBook& book) {
    if (book.htmlName().compare(book.metadata.textPage, Qt::CaseInsensitive) == 0)
        PublishTransaction::fail(
            book.htmlFile,
            Message::translate("FolveroOutput", "The page with the book's text has that name"));
}

} // namespace

void FolveroOutputWeb::ouputTheBook() {
    resetResults();
    iReport = {};
    if (!iBook.pageSource || !QFileInfo(iSaveToFolder).isDir())
        return;
    try {
        // The service worker of a run that was killed would be taken for somebody else's.
        StagingFolder::removeStale(iSaveToFolder);
    } catch (const PlatformException& failure) {
        reportFailure(failure.message());
        return;
    }
    const WebBook book = webBook();
    for (const WebPage& page : book.pages) {
        if (!page.failure.isNull())
            iReport.degradedPages.emplace_back(page.number, page.failure);
    }
    iWorksOffline = book.metadata.offline;
    iLacksText = !book.hasText;
    iMetadata = book.metadata;
    run(layout(), stepsFor(book));
}

PublishSteps FolveroOutputWeb::stepsFor(const WebBook& book) {
    return iIsSingleFile ? singleFileSteps(book) : folderSteps(book);
}

WebBook FolveroOutputWeb::webBook() const {
    WebBook book;
    book.htmlFile = outputHTMLFileName();
    book.flashTemplate = iFlashTemplate;
    if (iHTMLConfig)
        book.texts = *iHTMLConfig;
    book.pages = webPagesOf(*iBook.pageSource);
    if (iIsSingleFile)
        book.keepOnePicture();
    book.content = iBook;
    book.kindOfCopy = kindOfCopy();
    book.metadata.facts = iFacts;
    book.complete(iOpenPages);
    book.hasText = iIncludesForbiddenText || book.metadata.allowsText;
    if (!iIsSingleFile) {
        book.player = iSharedPlayer;
        if (documentLeftOut().isNull())
            book.download = PublisherChoices::documentPath(iFlashTemplate.get(), iBook);
        if (book.hasText)
            book.metadata.textPage = BookLayout::textPage;
        if (const WebPage* first = book.firstPage(); first && !first->thumbnail.isNull())
            book.metadata.cover = BookLayout::thumbnail(first->number);
        book.metadata.offline = OfflineFiles::canWriteTo(layout());
    }
    if (iAddress)
        addAddress(book);
    return book;
}

void FolveroOutputWeb::addAddress(WebBook& book) const {
    book.metadata.address = iAddress->page(book.htmlName());
    const WebPage* first = book.firstPage();
    // A book in one file has no others.
    if (!first || iIsSingleFile)
        return;
    book.shareImage = ShareImage::of(first->picture);
    if (book.shareImage.jpeg.isEmpty())
        return;
    book.metadata.imageAddress = iAddress->file(BookLayout::shareImage);
    book.metadata.imageSize = book.shareImage.size;
}

PublishSteps FolveroOutputWeb::contents(const WebBook& book) {
    return {{"data of pages",
             [this, &book](PublishTarget& to) { WebBookSteps::writePages(to, book, iReport); }},
            BookSteps::pages(book.pictures(), book.content.pageSource.get(), book.kindOfCopy,
                             iMissingPages),
            BookSteps::settingsFiles(book.flashTemplate.get(), iMissingFiles),
            BookSteps::linkedFiles(book.content.annotations.get()),
            BookSteps::document(book.content.document.get(), book.download)};
}

PublishSteps FolveroOutputWeb::configuration(const WebBook& book) const {
    return {BookSteps::configuration(layout().at(BookLayout::configuration), book.configuration()),
            BookSteps::sound(book.flashTemplate.get())};
}

PublishSteps FolveroOutputWeb::folderSteps(const WebBook& book) {
    PublishSteps steps{{"name", [&book](PublishTarget&) { checkName(book); }}};
    if (book.player)
        steps << PublishStep{"shared player", [&book](PublishTarget&) { book.player->put(); }};
    steps += contents(book);
    steps += {
        shareImage(book.shareImage),
        BookSteps::clearedSettings(book.flashTemplate.get()),
        {"page", [this, &book](PublishTarget& to) { WebBookSteps::writePage(to, book, iReport); }}};
    steps += configuration(book);
    if (iWritesIIIF && iAddress)
        steps << iiifManifest(book, *iAddress);
    steps += {{"player", [&book](PublishTarget& to) { WebBookSteps::copyPlayer(to, book); }},
              {"text of the existing book", removeTextPage},
              {"offline files", [&book](PublishTarget& to) { OfflineFiles::write(to, book); }},
              {"movie of a classic book",
               [](PublishTarget& to) { to.transaction.remove(to.layout.at(BookLayout::movie)); }},
              BookSteps::outdatedOfflineFiles(),
              BookSteps::outdatedFiles()};
    return steps;
}

PublishSteps FolveroOutputWeb::singleFileSteps(const WebBook& book) {
    return {
        {"single file",
         [this, &book](PublishTarget& to) {
             // Never committed: the page contains what is staged.
             PublishTransaction transaction(to.layout.folder());
             PublishTarget inPage{to.layout, transaction, to.isCancelled};
             PublishRun::stage(inPage, contents(book)
                                           << BookSteps::sound(book.flashTemplate.get()));
             WebBookSteps::writeSingleFile(to, transaction, book, {iReport.text, iSingleFileLimit});
         }},
        BookSteps::outdatedOfflineFiles()};
}

Message FolveroOutputWeb::documentLeftOut() const {
    if (!PublisherChoices::offerDocument(iFlashTemplate.get()))
        return {};
    if (iIsSingleFile)
        return Message::translate("FolveroOutputWeb", "a book in one file has no other files");
    if (iOpenPages)
        return Message::translate("FolveroOutputWeb",
                                  "it has the pages that a reading sample leaves out");
    return FolveroOutput::documentLeftOut();
}

QStringList FolveroOutputWeb::foreignFiles() const {
    if (iIsSingleFile)
        return ForeignFiles::page(outputHTMLFileName());
    QStringList found = FolveroOutput::foreignFiles();
    const QString text = layout().at(BookLayout::textPage);
    if (ForeignFiles::isThere(text) && !ExistingBook::isTextPage(text))
        found << text;
    const QString manifest = layout().at(BookLayout::iiifManifest);
    if (iWritesIIIF && ForeignFiles::isThere(manifest) && !ExistingBook::isIIIFManifest(manifest))
        found << manifest;
    if (!ExistingBook::isWebBookIn(iSaveToFolder) && !StagingFolder::hasUnfinished(iSaveToFolder))
        found << ForeignFiles::ofWebBook(layout());
    return found;
}
