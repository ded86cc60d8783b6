#pragma once

#include "annotations/FlashOutline.h"
#include "annotations/FlashPagesAnnotations.h"
#include "output/BookLayout.h"
#include "output/HTMLConfigInfo.h"
#include "output/PublishRun.h"
#include "pages/Book.h"
#include "pages/FlashPageSource.h"
#include "template/FlashTemplate.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <pugixml.hpp>
#include <vector>

// Writes a book into a folder: its pages, the files that its template's settings and its links
// need, its enciphered configuration, its HTML page, and the template's player.
//
// A run changes the folder at its end, or not at all. Parts whose source files are missing are left
// out. A step called on its own is a run of its own. The outline is kept for callers, not written.
class FolveroOutput : public HasBook {
public:
    FolveroOutput() = default;
    // A null file name means "index.html".
    FolveroOutput(std::shared_ptr<FlashPageSource> pageSource,
                  std::shared_ptr<FlashTemplate> flashTemplate, const QString& saveToFolder,
                  const QString& toName);
    virtual ~FolveroOutput() = default;
    FolveroOutput(const FolveroOutput&) = delete;
    FolveroOutput& operator=(const FolveroOutput&) = delete;

    // Writes the whole book; does nothing when its folder does not exist.
    virtual void ouputTheBook();

    // Full paths of the HTML page, of what a caller opens to show the book, and of the Flash
    // player.
    virtual QString outputHTMLFileName() const;
    virtual QString outputFileName() const;
    QString outputSWFName() const;

    // Full paths of files (of a folder, for an application) that a run would replace or remove
    // although they do not belong to a book, such as a user's own page. A run replaces them without
    // asking, so callers must ask first. Works before pages and title are set, so it can be called
    // before drawing.
    virtual QStringList foreignFiles() const;
    // What lacks in the template or the installation, so that nobody could open the book; null for
    // nothing. A run makes it all the same, so callers must ask first.
    virtual Message missingPart() const;
    // Why readers of the book can't download its document although the template offers that; null
    // when they can, or it does not.
    virtual Message documentLeftOut() const;
    // The title, as plain text, of the book that a run would replace. Null when there is none, or
    // its page has no title.
    QString titleOfExistingBook() const;

    // Errors of the last run, one "FILE: CAUSE" each; the folder is unchanged then.
    QStringList publishErrors() const { return englishTexts(iOutcome.errors); }
    const Messages& publishMessages() const { return iOutcome.errors; }
    // What the last run changed in the folder; all zero when it failed or was cancelled.
    const PublishTransaction::Counts& fileCounts() const { return iOutcome.counts; }
    // Numbers of the pages that the last run left out because their file was missing.
    const std::vector<int>& missingPages() const { return iMissingPages; }
    // Files of settings that the last run left out because they were missing or not readable.
    const QStringList& missingFiles() const { return iMissingFiles; }
    // Polled between files; true cancels a run without a change to the folder.
    void setCancelled(std::function<bool()> isCancelled) { iIsCancelled = std::move(isCancelled); }
    // Whether the last run was cancelled.
    bool wasCancelled() const { return iOutcome.wasCancelled; }

    // The steps of ouputTheBook(). An empty base means the book's folder. The first two use a
    // non-empty base; the others then use the current folder.
    void prepaireNomalPage(const QString& base);
    void prepaireZoomendPage(const QString& base);
    // Does nothing: the player shows the pages themselves as thumbnails.
    void prepaireThumbPage(const QString& base);
    void prepaireExtFiles(const QString& base);
    void prepaireExtFiles(const QString& base, const FlashTemplateProperty& atChildPro);
    void PrepareAnnotationFiles(const QString& base);
    // Removes files of an earlier run whose settings are now empty.
    void removeExtFiles(const QString& base);
    // Writes the enciphered configuration and the same as a script.
    void ouputBookXML(const QString& path);

    // The unencrypted configuration; file names in it are relative to the folder "files".
    std::unique_ptr<pugi::xml_document> bookXML() const;
    // Appends an element with the template's value, or the default when it has none.
    void SaveXMLProperties(pugi::xml_node parent, const QString& nodeName, const QString& key,
                           const QString& defaultValue) const;

    QString getNormalPageURL(const FlashPage& page) const;
    QString getZoomedPageURL(const FlashPage& page) const;
    QString getThumbPageURL(const FlashPage& page) const;

    const std::shared_ptr<FlashTemplate>& flashTemplate() const { return iFlashTemplate; }
    void setFlashTemplate(std::shared_ptr<FlashTemplate> value) {
        iFlashTemplate = std::move(value);
    }
    QString saveToFolder() const { return iSaveToFolder; }
    void setSaveToFolder(const QString& folder) { iSaveToFolder = folder; }
    QString saveToFileName() const { return iSaveToFileName; }
    void setSaveToFileName(const QString& name) { iSaveToFileName = name; }
    // When null, the template's page is copied unchanged.
    const std::shared_ptr<HTMLConfigInfo>& HTMLConfig() const { return iHTMLConfig; }
    void setHTMLConfig(std::shared_ptr<HTMLConfigInfo> value) { iHTMLConfig = std::move(value); }

protected:
    BookLayout layout() const { return BookLayout(iSaveToFolder); }
    // Whether the folder already contains a book, so that the files in "files" are that book's.
    bool hasExistingBook() const;

    // The steps that write a classic book; see BookSteps.
    PublishSteps steps();
    // How page files are copied: only our own may be hard-linked.
    PublishTransaction::Copy kindOfCopy() const;

    void resetResults();
    // Takes the steps in a run of its own; see PublishRun. False when it failed or was cancelled.
    bool run(const BookLayout& book, const PublishSteps& steps, const QString& workingFolder = {});
    // Records an error outside of a run, and logs it.
    void reportFailure(const Message& reason);

    // Appends an "item" to element for each descendant of the property, parents first, without
    // nesting.
    void appendChildPropertyToNode(pugi::xml_node element,
                                   const FlashTemplateProperty& property) const;

    std::shared_ptr<FlashTemplate> iFlashTemplate;
    QString iSaveToFolder;
    QString iSaveToFileName;
    std::shared_ptr<HTMLConfigInfo> iHTMLConfig;
    const QString iResourceFolder = BookLayout::files;
    const QString iNormalPageFolder = BookLayout::pages;
    const QString iZoomedPageFolder = BookLayout::largePages;
    const QString iThumbPageFolder = BookLayout::thumbnails;
    const QString iExterFilesFolder = BookLayout::settingsFiles;
    const QString iSearchInfoFolder = BookLayout::search;
    const QString iAnnotationFilesFolder = BookLayout::linkedFiles;
    bool iZoomedPageSameAsNormalPage = true;
    std::vector<int> iMissingPages;
    QStringList iMissingFiles;

private:
    PublishStep pages();
    PublishStep zoomedPages() const;
    // What most steps make of their base: only the empty one is the book's folder.
    BookLayout layoutFor(const QString& base) const;

    std::function<bool()> iIsCancelled;
    PublishOutcome iOutcome;
};
