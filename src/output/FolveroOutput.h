#pragma once

#include "annotations/FlashOutline.h"
#include "annotations/FlashPagesAnnotations.h"
#include "output/HTMLConfigInfo.h"
#include "output/PublishTransaction.h"
#include "pages/FlashPageSource.h"
#include "template/FlashTemplate.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <pugixml.hpp>
#include <vector>

// Writes a book into a folder: its pages, the files that its template's settings and its links
// name, its enciphered configuration, its HTML page, and the template's player.
//
// A run changes the folder at its end, or not at all. Source files that are missing leave out what
// would be made from them. A step called by itself is a run of its own.
class FolveroOutput {
public:
    FolveroOutput() = default;
    // A null file name means "index.html".
    FolveroOutput(std::shared_ptr<FlashPageSource> pageSource,
                  std::shared_ptr<FlashTemplate> flashTemplate, const QString& saveToFolder,
                  const QString& toName);
    virtual ~FolveroOutput() = default;
    FolveroOutput(const FolveroOutput&) = delete;
    FolveroOutput& operator=(const FolveroOutput&) = delete;

    // Writes the whole book; does nothing at all when its folder does not exist.
    virtual void ouputTheBook();

    // Full paths: of the HTML page, of what a caller opens to show the book, of the player.
    virtual QString outputHTMLFileName() const;
    virtual QString outputFileName() const;
    QString outputSWFName() const;

    // Full paths of files (of a folder, for an application) that a run would replace or remove and
    // that no book has: somebody's own page, say. A run replaces them without asking, so callers
    // ask before. Needs neither pages nor a title, so it can be asked before pages are drawn.
    virtual QStringList foreignFiles() const;
    // The title of the book that a run would replace, as plain text. Null when there is no book, or
    // when its page doesn't tell.
    QString titleOfExistingBook() const;

    // What went wrong in the last run, one "FILE: CAUSE" each; the folder is then as it was before.
    QStringList publishErrors() const { return englishTexts(iPublishErrors); }
    const Messages& publishMessages() const { return iPublishErrors; }
    // What the last run did to the folder; nothing when it failed or was cancelled.
    const PublishTransaction::Counts& fileCounts() const { return iFileCounts; }
    // Numbers of the pages that the last run left out because their file was missing.
    const std::vector<int>& missingPages() const { return iMissingPages; }
    // Asked between files; true ends a run without a change to the folder.
    void setCancelled(std::function<bool()> isCancelled) { iIsCancelled = std::move(isCancelled); }
    // Whether the last run ended so.
    bool wasCancelled() const { return iWasCancelled; }

    // The steps of ouputTheBook(). An empty base means the book's folder. A base given to one of
    // the first two is used; for the others any base means the current folder.
    void prepaireNomalPage(const QString& base);
    void prepaireZoomendPage(const QString& base);
    // Books have no thumbnail files: the player shows the pages themselves in small.
    void prepaireThumbPage(const QString& base);
    void prepaireExtFiles(const QString& base);
    void prepaireExtFiles(const QString& base, const FlashTemplateProperty& atChildPro);
    void PrepareAnnotationFiles(const QString& base);
    // Removes files of an earlier run whose settings are now empty.
    void removeExtFiles(const QString& base);
    // Writes the enciphered configuration, and beside it, with the extension "js", the same bytes
    // as a script for books that are opened from disk, where browsers don't read files.
    void ouputBookXML(const QString& path);

    // The configuration in the clear; file names in it are relative to the folder "files".
    std::unique_ptr<pugi::xml_document> bookXML() const;
    // Appends an element that holds the template's value, or the default when it has none.
    void SaveXMLProperties(pugi::xml_node parent, const QString& nodeName, const QString& key,
                           const QString& defaultValue) const;

    QString getNormalPageURL(const FlashPage& page) const;
    QString getZoomedPageURL(const FlashPage& page) const;
    virtual QString getThumbPageURL(const FlashPage& page) const;

    const std::shared_ptr<FlashTemplate>& flashTemplate() const { return iFlashTemplate; }
    void setFlashTemplate(std::shared_ptr<FlashTemplate> value) {
        iFlashTemplate = std::move(value);
    }
    const std::shared_ptr<FlashPageSource>& flashPageSource() const { return iFlashPageSource; }
    void setFlashPageSource(std::shared_ptr<FlashPageSource> value) {
        iFlashPageSource = std::move(value);
    }
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const {
        return iFlashPagesAnnotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> value) {
        iFlashPagesAnnotations = std::move(value);
    }
    // Held for callers; not written.
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iFlashOutline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> value) { iFlashOutline = std::move(value); }
    QString saveToFolder() const { return iSaveToFolder; }
    void setSaveToFolder(const QString& folder) { iSaveToFolder = folder; }
    QString saveToFileName() const { return iSaveToFileName; }
    void setSaveToFileName(const QString& name) { iSaveToFileName = name; }
    // Without one the template's page is copied as it is.
    const std::shared_ptr<HTMLConfigInfo>& HTMLConfig() const { return iHTMLConfig; }
    void setHTMLConfig(std::shared_ptr<HTMLConfigInfo> value) { iHTMLConfig = std::move(value); }

protected:
    // Whether the book's folder is a book's already, so that what lies in "files" is that book's.
    bool hasExistingBook() const;

    void resetResults();
    bool isCancelled() const { return iIsCancelled && iIsCancelled(); }
    // Ends the run under way without a change to the folder when it was cancelled.
    void checkCancelled() const;
    // For a subclass that was cancelled outside of a run.
    void markCancelled();
    // All steps of a run; a subclass may add its own around them.
    virtual void publish();

    // What a subclass changes about the HTML page before it is put in place: a file that it may
    // write anew.
    virtual void finishHTMLPage(const QString& /*file*/) {}

    // Does the work inside the run under way or, when there is none, in a run of its own on that
    // folder. False when that run failed or was cancelled.
    bool perform(const QString& folder, const std::function<void()>& work);
    // For work inside perform(): what the run changes.
    PublishTransaction& transaction() { return *iTransaction; }
    // Copies a file under a name of its own in a folder of the book. Without the source, an earlier
    // file of that name goes and false comes back; so it does for a name that a
    // book's file may not have.
    bool replaceWithCopy(const QString& source, const QString& folder, const QString& name,
                         PublishTransaction::Copy kind);

    QString resourceFolder(const QString& root, const QString& name) const;

    // For what goes wrong outside of perform(): ends up in publishErrors() and in the log.
    void reportFailure(const Message& reason);
    // For a subclass that publishes somewhere else than into saveToFolder() at first: puts the
    // final path in place of the working one in publishErrors().
    void renameInErrors(const QString& working, const QString& final);

    // Appends an "item" for each descendant of the property, parents first, all to one element.
    void appendChildPropertyToNode(pugi::xml_node element,
                                   const FlashTemplateProperty& property) const;

    std::shared_ptr<FlashTemplate> iFlashTemplate;
    std::shared_ptr<FlashPageSource> iFlashPageSource;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotations;
    std::shared_ptr<FlashOutline> iFlashOutline;
    QString iSaveToFolder;
    QString iSaveToFileName;
    std::shared_ptr<HTMLConfigInfo> iHTMLConfig;
    const QString iResourceFolder = QStringLiteral("files");
    const QString iNormalPageFolder = QStringLiteral("page");
    const QString iZoomedPageFolder = QStringLiteral("large");
    const QString iThumbPageFolder = QStringLiteral("thumb");
    const QString iExterFilesFolder = QStringLiteral("extfiles");
    const QString iSearchInfoFolder = QStringLiteral("search");
    const QString iAnnotationFilesFolder = QStringLiteral("pageConfig");
    bool iZoomedPageSameAsNormalPage = true;

private:
    using TemplateCopy = void (FlashTemplate::*)(const QString&) const;

    QString extFileURL(const QString& key, const QString& value) const;
    void copyExtFile(const FlashTemplateProperty& property, const QString& folder);
    void copyExtFilesOfChildren(const FlashTemplateProperty& property, const QString& folder);
    void copyTemplateFile(const QString& name, TemplateCopy copy, const QString& target);
    void removeFilesOfExistingBook();
    void writeHTMLPage();
    void stageBookXML(const QString& path);

    QString templateValue(const QString& key, const QString& defaultValue) const;
    void appendProperties(pugi::xml_node root) const;
    void appendBackgroundColor(pugi::xml_node background) const;
    void appendBackgroundImage(pugi::xml_node background) const;
    void appendBackgroundSound(pugi::xml_node background) const;
    void appendImage(pugi::xml_node parent, const QString& side, const QString& key) const;
    void appendPages(pugi::xml_node root) const;

    PublishTransaction* iTransaction = nullptr;
    std::function<bool()> iIsCancelled;
    Messages iPublishErrors;
    std::vector<int> iMissingPages;
    PublishTransaction::Counts iFileCounts;
    bool iWasCancelled = false;
};
