#pragma once

#include "output/HTMLConfigInfo.h"
#include "output/PublishRun.h"
#include "pages/FlashPageSource.h"

#include <memory>
#include <pugixml.hpp>
#include <vector>

class FlashPagesAnnotations;
class FlashTemplate;
class FlashTemplateProperty;
class PDFDocument;

// The steps that make a classic book, most of which other kinds of books share. Each stages files
// of one kind; files whose source is missing are left out. What is passed must live as long as the
// step. A null template has no files.
namespace BookSteps {

// The page files of a source, under their numbers. Adds the numbers of pages that have none; fails
// when one that was made is lost.
PublishStep pages(FlashPageSource::Pages pages, const FlashPageSource* source,
                  PublishTransaction::Copy kind, std::vector<int>& missing);
// Larger page files, into a folder that exists already.
PublishStep zoomedPages(FlashPageSource::Pages pages);

// The files that the template's properties, or the descendants of one, name. Adds the paths of
// those that are left out, since they are missing or not readable.
PublishStep settingsFiles(const FlashTemplate* flashTemplate, QStringList& missing);
PublishStep settingsFilesBelow(const FlashTemplateProperty& property, QStringList& missing);
// Removes those of an earlier run for properties that are empty now.
PublishStep clearedSettings(const FlashTemplate* flashTemplate);
// Full paths of such files.
QStringList clearedFiles(const BookLayout& layout, const FlashTemplate* flashTemplate);

// The files that links open; none for null. Existing files are kept.
PublishStep linkedFiles(const FlashPagesAnnotations* annotations);

// The enciphered configuration, and beside it, with the extension "js", the same bytes as a script,
// since browsers can't fetch files when a book is opened from disk. path is a full one.
PublishStep configuration(const QString& path, std::shared_ptr<pugi::xml_document> xml);

// The HTML page, at a full path: the template's page filled in, or unchanged when there are no
// texts. Left out when the path is not one in the book's folder.
PublishStep htmlPage(const QString& page, const FlashTemplate* flashTemplate,
                     const HTMLConfigInfo* texts);
// Whether it is. Logs when it isn't.
bool isInFolder(const BookLayout& layout, const QString& page);

// The template's Flash movie, and its sound of a turning page.
PublishStep movie(const FlashTemplate* flashTemplate);
PublishStep sound(const FlashTemplate* flashTemplate);

// Fails with the document's path when that was replaced or written since it was opened.
void checkUnchanged(const PDFDocument& document);

// The document that readers may download, at a path in the book; none for an empty path.
PublishStep document(const PDFDocument* source, const QString& path);

// Texts of languages that the player in the template's page does not have itself; none where the
// page loads none.
PublishStep languages(const FlashTemplate* flashTemplate);

// Removes files of the book that is replaced: those that let readers save it, who would otherwise
// keep getting it, and those that the new configuration does not refer to.
PublishStep outdatedOfflineFiles();
PublishStep outdatedFiles();

} // namespace BookSteps
