#include "output/BookSteps.h"

#include "annotations/FlashPagesAnnotations.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/BookName.h"
#include "output/BookXML.h"
#include "output/ExistingBook.h"
#include "output/PlayerFile.h"
#include "pdf/PDFDocument.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <unistd.h>

using Copy = PublishTransaction::Copy;
using Phase = PublishTransaction::Phase;

namespace {

constexpr Log stepsLog("FolveroOutput");

bool isReadableFile(const QString& path) {
    const QFileInfo info(path);
    return !path.contains(QChar::Null) && info.isFile() && info.isReadable();
}

// Copies a file under a new name into a folder of the book. Without the source, removes an existing
// file of that name and returns false; a name that a book's file may not have is left alone.
bool replaceWithCopy(PublishTarget& to, const QString& source, const QString& folder,
                     const QString& name, Copy kind) {
    to.checkCancelled();
    if (!BookName::isSafe(name)) {
        stepsLog.warn(QStringLiteral("left out, not a name for a file of a book: %1").arg(name));
        return false;
    }
    const QString target = to.layout.at(folder, name);
    if (!isReadableFile(source)) {
        to.transaction.remove(target);
        return false;
    }
    to.transaction.copy(source, target, kind);
    return true;
}

// A book without that page must not replace a good one.
[[noreturn]] void failOfLost(const QString& path) {
    const bool isBack = ::access(QFile::encodeName(path).constData(), R_OK) == 0;
    PublishTransaction::fail(path, Message::ofSystemError(isBack ? EIO : errno));
}

void copySettingsFile(PublishTarget& to, const FlashTemplateProperty& property,
                      QStringList& missing) {
    const QString name = BookName::withExtensionOf(property.key(), property.value());
    if (replaceWithCopy(to, property.value(), BookLayout::settingsFiles, name, Copy::independent) ||
        property.value().isEmpty())
        return;
    missing << property.value();
    stepsLog.warn(QStringLiteral("the file of setting %1 was left out: %2")
                      .arg(property.key(), property.value()));
}

void copySettingsFilesBelow(PublishTarget& to, const FlashTemplateProperty& property,
                            QStringList& missing) {
    for (const auto& child : property.childProperties()) {
        if (!child)
            continue;
        if (child->propertyType() == pt_file && !child->value().isEmpty()) {
            copySettingsFile(to, *child, missing);
            // Children of a missing file are left out with it.
            if (!isReadableFile(child->value()))
                continue;
        }
        copySettingsFilesBelow(to, *child, missing);
    }
}

// Under the name that it has in the template's folder.
void copyTemplateFile(PublishTarget& to, const FlashTemplate* flashTemplate, const QString& path,
                      void (FlashTemplate::*copy)(const QString&) const) {
    to.checkCancelled();
    if (!flashTemplate)
        return;
    const QString target = to.layout.at(path);
    const QString staged = to.transaction.stage(target);
    (flashTemplate->*copy)(staged);
    if (QFileInfo::exists(staged))
        return;
    // The template does not report errors.
    const QString source = flashTemplate->playerFile(Files::lastPathComponent(path));
    if (isReadableFile(source))
        to.transaction.copy(source, target, Copy::independent);
    else
        to.transaction.remove(target);
}

// Logos in the book that the template no longer has, also those with another file extension.
QStringList earlierLogos(const BookLayout& layout, const FlashTemplate* flashTemplate) {
    const QString key = QStringLiteral("logoFile");
    const QString logo =
        flashTemplate ? flashTemplate->propertyValueFor(key, QStringLiteral("")) : QString();
    const QString kept = logo.isEmpty() ? QString() : BookName::withExtensionOf(key, logo);
    QStringList files;
    const QDir folder(layout.at(BookLayout::settingsFiles, {}));
    for (const QString& name :
         folder.entryList({key + QStringLiteral(".*")}, QDir::Files | QDir::CaseSensitive)) {
        if (name != kept)
            files << folder.filePath(name);
    }
    return files;
}

} // namespace

PublishStep BookSteps::pages(FlashPageSource::Pages pages, const FlashPageSource* source, Copy kind,
                             std::vector<int>& missing) {
    return {"pages", [pages = std::move(pages), source, kind, &missing](PublishTarget& to) {
                to.transaction.makeFolder(to.layout.at(BookLayout::pages, {}));
                for (const auto& page : pages) {
                    if (!page)
                        continue;
                    const QString name = BookName::withExtensionOf(
                        QString::number(page->pageIndex()), page->pageFilePath());
                    if (replaceWithCopy(to, page->pageFilePath(), BookLayout::pages, name, kind))
                        continue;
                    if (source && source->wasMade(page->pageIndex()))
                        failOfLost(page->pageFilePath());
                    missing.push_back(page->pageIndex());
                    stepsLog.warn(QStringLiteral("page %1 was left out, no file %2")
                                      .arg(page->pageIndex())
                                      .arg(page->pageFilePath()));
                }
            }};
}

PublishStep BookSteps::zoomedPages(FlashPageSource::Pages pages) {
    return {"zoomed pages", [pages = std::move(pages)](PublishTarget& to) {
                if (!to.transaction.willExist(to.layout.at(BookLayout::largePages, {})))
                    return;
                for (const auto& page : pages) {
                    to.checkCancelled();
                    if (!page || !isReadableFile(page->pageFilePath()))
                        continue;
                    const QString target = to.layout.at(
                        BookLayout::largePage(page->pageIndex(), QStringLiteral("swf")));
                    if (!to.transaction.willExist(target))
                        to.transaction.copy(page->pageFilePath(), target, Copy::independent);
                }
            }};
}

PublishStep BookSteps::settingsFiles(const FlashTemplate* flashTemplate, QStringList& missing) {
    return {"files of settings", [flashTemplate, &missing](PublishTarget& to) {
                to.transaction.makeFolder(to.layout.at(BookLayout::settingsFiles, {}));
                if (!flashTemplate)
                    return;
                for (const auto& property : flashTemplate->properties()) {
                    if (!property)
                        continue;
                    if (property->propertyType() == pt_file)
                        copySettingsFile(to, *property, missing);
                    copySettingsFilesBelow(to, *property, missing);
                }
            }};
}

PublishStep BookSteps::settingsFilesBelow(const FlashTemplateProperty& property,
                                          QStringList& missing) {
    return {"files of a setting", [&property, &missing](PublishTarget& to) {
                copySettingsFilesBelow(to, property, missing);
            }};
}

PublishStep BookSteps::clearedSettings(const FlashTemplate* flashTemplate) {
    return {"cleared settings", [=](PublishTarget& to) {
                for (const QString& path : clearedFiles(to.layout, flashTemplate))
                    to.transaction.remove(path);
            }};
}

QStringList BookSteps::clearedFiles(const BookLayout& layout, const FlashTemplate* flashTemplate) {
    const QString empty = QStringLiteral("");
    const QStringList images{QStringLiteral("jpg"), QStringLiteral("png"), QStringLiteral("gif")};
    const std::pair<QString, QStringList> settings[] = {
        {QStringLiteral("innerMainbgImgUrl"), images},
        {QStringLiteral("mainbgImgUrl"), images},
        {QStringLiteral("backgroundSoundURL"), {QStringLiteral("mp3")}}};
    QStringList files;
    for (const auto& [key, extensions] : settings) {
        if (flashTemplate && !flashTemplate->propertyValueFor(key, empty).isEmpty())
            continue;
        for (const QString& extension : extensions) {
            const QString path = layout.at(BookLayout::settingsFiles, key + u'.' + extension);
            if (QFileInfo::exists(path))
                files << path;
        }
    }
    return files + earlierLogos(layout, flashTemplate);
}

PublishStep BookSteps::linkedFiles(const FlashPagesAnnotations* annotations) {
    return {"files of links", [=](PublishTarget& to) {
                if (!annotations)
                    return;
                to.transaction.makeFolder(to.layout.at(BookLayout::linkedFiles, {}));
                for (const QString& source : annotations->needFiles()) {
                    to.checkCancelled();
                    const QString name = Files::lastPathComponent(source);
                    if (!isReadableFile(source) || !BookName::isSafe(name)) {
                        stepsLog.warn(QStringLiteral("a link's file was left out: %1").arg(source));
                        continue;
                    }
                    const QString target = to.layout.at(BookLayout::linkedFiles, name);
                    if (!to.transaction.willExist(target))
                        to.transaction.copy(source, target, Copy::independent);
                }
            }};
}

PublishStep BookSteps::configuration(const QString& path, std::shared_ptr<pugi::xml_document> xml) {
    return {"configuration", [path, xml = std::move(xml)](PublishTarget& to) {
                to.checkCancelled();
                const QByteArray bytes = BookXML::enciphered(*xml, pugi::format_indent);
                to.transaction.write(path, bytes, Phase::configuration);
                const QFileInfo info(path);
                to.transaction.write(
                    Files::join(info.path(), info.completeBaseName() + QStringLiteral(".js")),
                    "window.FolveroUserConfig = \"" + bytes.toBase64() + "\";\n",
                    Phase::configuration);
            }};
}

bool BookSteps::isInFolder(const BookLayout& layout, const QString& page) {
    if (!page.endsWith(u'/') && BookName::staysInFolder(Files::lastPathComponent(page)) &&
        QDir::cleanPath(QFileInfo(page).path()) == QDir::cleanPath(layout.folder()))
        return true;
    stepsLog.error(QStringLiteral("no HTML page: not a file in the book's folder: %1").arg(page));
    return false;
}

PublishStep BookSteps::htmlPage(const QString& page, const FlashTemplate* flashTemplate,
                                const HTMLConfigInfo* texts) {
    return {"page", [=](PublishTarget& to) {
                to.checkCancelled();
                if (!isInFolder(to.layout, page))
                    return;
                const QString source =
                    flashTemplate ? flashTemplate->tmplHTMLFilePath() : QString();
                Message error;
                if (texts) {
                    if (!texts->generateHTMLFrom(source, to.transaction.stage(page, Phase::page),
                                                 &error))
                        PublishTransaction::fail(page, error);
                } else if (isReadableFile(source)) {
                    to.transaction.copy(source, page, Copy::independent, Phase::page);
                } else {
                    to.transaction.remove(page);
                }
            }};
}

PublishStep BookSteps::movie(const FlashTemplate* flashTemplate) {
    return {"movie", [=](PublishTarget& to) {
                copyTemplateFile(to, flashTemplate, BookLayout::movie,
                                 &FlashTemplate::copyBookSWFToFile);
            }};
}

PublishStep BookSteps::sound(const FlashTemplate* flashTemplate) {
    return {"sound", [=](PublishTarget& to) {
                copyTemplateFile(to, flashTemplate, BookLayout::sound,
                                 &FlashTemplate::copyBookSoundFile);
            }};
}

void BookSteps::checkUnchanged(const PDFDocument& document) {
    try {
        document.checkUnchanged();
    } catch (const PlatformException& failure) {
        PublishTransaction::fail(document.path(), failure.message());
    }
}

PublishStep BookSteps::document(const PDFDocument* source, const QString& path) {
    return {"document", [=](PublishTarget& to) {
                to.checkCancelled();
                if (path.isEmpty())
                    return;
                // Readers get what the pages were drawn from, and a whole file.
                checkUnchanged(*source);
                to.transaction.copy(source->path(), to.layout.at(path), Copy::independent);
                checkUnchanged(*source);
            }};
}

PublishStep BookSteps::languages(const FlashTemplate* flashTemplate) {
    return {"languages", [=](PublishTarget& to) {
                to.checkCancelled();
                const QString page = flashTemplate ? flashTemplate->tmplHTMLFilePath() : QString();
                // The script of the page asks for them by this name.
                if (!Files::contents(page).contains(BookLayout::languages.toUtf8() + '/'))
                    return;
                for (const QString& path : PlayerFile::languages())
                    to.transaction.copy(PlayerFile::installed(to.layout, path), to.layout.at(path),
                                        Copy::independent);
            }};
}

PublishStep BookSteps::outdatedOfflineFiles() {
    return {"offline files of the existing book", [](PublishTarget& to) {
                const QString page = ExistingBook::pageOfServiceWorker(to.layout.folder());
                if (page.isNull() || to.writes(BookLayout::serviceWorker) ||
                    !(to.writes(BookLayout::configuration) || to.writes(page)))
                    return;
                QStringList outdated =
                    BookLayout::offlineFiles() +
                    ExistingBook::filesNamedAsIn(to.layout.folder(), BookLayout::webData);
                if (ExistingBook::isTextPage(to.layout.at(BookLayout::textPage)))
                    outdated << BookLayout::textPage;
                for (const QString& path : outdated) {
                    if (!to.writes(path))
                        to.transaction.remove(to.layout.at(path));
                }
            }};
}

PublishStep BookSteps::outdatedFiles() {
    return {"files of the existing book", [](PublishTarget& to) {
                if (!to.writes(BookLayout::configuration))
                    return;
                for (const QString& name : ExistingBook::files(to.layout.folder())) {
                    const QString path = to.layout.at(name);
                    if (!to.writes(name) && QFileInfo(path).isFile())
                        to.transaction.remove(path);
                }
            }};
}
