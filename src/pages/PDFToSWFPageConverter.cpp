#include "pages/PDFToSWFPageConverter.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "drawing/PageFileCheck.h"
#include "pdf/PDFLimits.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"
#include "system/TemporaryFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <cstdio>
#include <iterator>
#include <sys/stat.h>
#include <utility>

PDFToSWFPageConverter::~PDFToSWFPageConverter() {
    endDrawingAhead(); // before the work folder is deleted
}

QString PDFToSWFPageConverter::getPDF2swfLibPath() {
    return Bundle::pathForResource(QStringLiteral("pdf2swf"), QString(), QStringLiteral("lib"));
}

QString PDFToSWFPageConverter::workFile(int page, const char* extension) const {
    return Files::join(converterWorkFolder(),
                       QStringLiteral("%1.%2").arg(page).arg(QLatin1String(extension)));
}

QByteArray PDFToSWFPageConverter::password() const {
    return PDFDoc() ? PDFDoc()->password() : QByteArray();
}

void PDFToSWFPageConverter::drawAhead(const std::vector<int>& pages,
                                      const std::atomic<bool>& stop) {
    iStop = &stop;
    std::vector<int> toDraw;
    std::set<int> movies;
    for (const int page : pages) {
        if (hasMovie(page))
            movies.insert(page);
        else if (PDFDoc() && page >= 1 && page <= PDFDoc()->pageCount())
            toDraw.push_back(page);
    }
    if (!iMovies)
        iMovies = std::move(movies);
    iDrawn.insert(toDraw.begin(), toDraw.end());
    iIsUnchecked = true;
    if (iTakeEarlierPage)
        takeEarlierPages(toDraw);
    std::erase_if(toDraw, [this](int page) { return iFilesOf(page) == PageFiles::none; });
    if (!toDraw.empty())
        detachFiles();
    iWorkers = std::make_unique<PageWorkers>(PDFPath(), converterWorkFolder(), quality(),
                                             std::move(toDraw), stop);
    iWorkers->setPassword(password());
    iWorkers->setJobs(iJobs);
    iWorkers->setSpares(std::exchange(iSpares, nullptr));
    iWorkers->setFilesOf(iFilesOf);
    iWorkers->setCutOf([document = PDFDoc()](int page) { return document->cut(page - 1); });
    if (!iWorkers->start())
        iWorkers.reset();
    iWorkerCount = iWorkers ? iWorkers->workerCount() : 0;
}

// Once, to a folder of their own: they are hard links to files of a published book, and a worker
// that was taken over may write whatever is in the work folder.
void PDFToSWFPageConverter::takeEarlierPages(const std::vector<int>& pages) {
    const auto take = std::exchange(iTakeEarlierPage, nullptr);
    iEarlierFolder = newWorkFolder();
    std::map<int, PageFiles> wanted;
    for (const int page : pages)
        wanted[page] = take(page, iFilesOf(page), WebPageFiles(iEarlierFolder, page));
    iFilesOf = [of = std::move(wanted)](int page) {
        const auto found = of.find(page);
        return found == of.end() ? PageFiles::classic : found->second;
    };
}

void PDFToSWFPageConverter::moveEarlierFiles() {
    for (const QString& name : QDir(iEarlierFolder).entryList(QDir::Files)) {
        const QByteArray from = QFile::encodeName(Files::join(iEarlierFolder, name));
        const QString to = Files::join(converterWorkFolder(), name);
        if (std::rename(from.constData(), QFile::encodeName(to).constData()) != 0 &&
            FolderRemoval::remove(to)) // a folder that a worker made
            (void)std::rename(from.constData(), QFile::encodeName(to).constData());
    }
    TemporaryFolders::remove(std::exchange(iEarlierFolder, {}));
}

// Books that were published have hard links to the files that were drawn for them.
void PDFToSWFPageConverter::detachFiles() const {
    for (const QString& name : QDir(converterWorkFolder()).entryList(QDir::Files)) {
        const QString path = Files::join(converterWorkFolder(), name);
        const QString own = Files::temporaryPath(path);
        struct stat info {};
        if (::lstat(QFile::encodeName(path).constData(), &info) != 0 || info.st_nlink < 2)
            continue;
        Message error;
        if (!Files::copy(path, own, &error))
            throw PlatformException(ErrorKind::workFolder, Message::about(path, error));
        if (std::rename(QFile::encodeName(own).constData(), QFile::encodeName(path).constData()) !=
            0)
            throw PlatformException(ErrorKind::workFolder,
                                    Message::about(path, Message::ofLastSystemError()));
    }
}

// Each worker can write the files of every page, those of earlier drawings included.
void PDFToSWFPageConverter::endDrawingAhead() {
    iWorkers.reset();
    iStop = nullptr;
    if (!iEarlierFolder.isNull())
        moveEarlierFiles();
    if (std::exchange(iIsUnchecked, false))
        std::for_each(iDrawn.begin(), iDrawn.end(), [this](int page) { checkFilesOf(page); });
}

// A worker that was taken over may write such a file, which runs in the reader's Flash Player.
bool PDFToSWFPageConverter::hasMovie(int page) const {
    return iMovies ? iMovies->contains(page) : QFileInfo::exists(workFile(page, "swf"));
}

// Not before all workers have ended.
void PDFToSWFPageConverter::checkFilesOf(int page) {
    const WebPageFiles files(converterWorkFolder(), page);
    const auto isForeign = [&](const QString& path) {
        return !PageFileCheck::isGenuine(files, path);
    };
    const QStringList pictures{files.pageFile, files.picture};
    const QStringList others = files.others();
    const bool hasForeignPicture = std::any_of(pictures.begin(), pictures.end(), isForeign);
    QStringList foreign = hasForeignPicture ? pictures + others : QStringList();
    if (!hasForeignPicture)
        std::copy_if(others.begin(), others.end(), std::back_inserter(foreign), isForeign);
    if (foreign.isEmpty())
        return;
    for (const QString& file : foreign)
        QFile::remove(file);
    const Message reason = Message::translate(
        "PageFailure", "the program that draws pages wrote a file that is none of a page");
    Log("PDFToSWFPageConverter")
        .warn(QStringLiteral("page %1: %2").arg(page).arg(reason.english()));
    if (!hasForeignPicture) {
        iDegradedPages.try_emplace(page, reason);
        return;
    }
    const auto place =
        std::lower_bound(iFailedPages.begin(), iFailedPages.end(), page,
                         [](const FailedPage& failed, int number) { return failed.page < number; });
    if (place == iFailedPages.end() || place->page != page)
        iFailedPages.insert(place, {page, reason});
}

QString PDFToSWFPageConverter::generatePage(int page) {
    const QString swf = workFile(page, "swf");
    if (hasMovie(page) || !PDFDoc())
        return swf;
    pdfPageToImage(page, workFile(page, "jpg"));
    return pictureOf(page);
}

QString PDFToSWFPageConverter::pictureOf(int page) const {
    const WebPageFiles files(converterWorkFolder(), page);
    return isThere(files.pageFile) || !isThere(files.picture) ? files.pageFile : files.picture;
}

bool PDFToSWFPageConverter::isThere(const QString& file) const {
    return QFileInfo::exists(file) ||
           (!iEarlierFolder.isNull() &&
            QFileInfo::exists(Files::join(iEarlierFolder, Files::lastPathComponent(file))));
}

void PDFToSWFPageConverter::pdfPageToImage(int page, const QString& /*toPath*/) {
    if (!PDFDoc())
        return;
    PDFDoc()->requirePage(page - 1);
    makePage(page);
}

void PDFToSWFPageConverter::makeFiles(PageFiles kind, const std::vector<int>& pages,
                                      const std::atomic<bool>& stop,
                                      const std::function<void(int)>& progress) {
    const auto end = qScopeGuard([this] { endDrawingAhead(); });
    iFilesOf = [kind](int) { return kind; };
    drawAhead(pages, stop);
    for (std::size_t i = 0; i < pages.size() && !stop; ++i) {
        makePage(pages[i]);
        progress(int(i) + 1);
    }
}

void PDFToSWFPageConverter::makePage(int page) {
    if (iFilesOf(page) == PageFiles::none)
        return; // it is there
    const auto drawn = iWorkers ? iWorkers->waitFor(page) : std::nullopt;
    const PageResult result = drawn ? *drawn : drawInProcess(page);
    iTiming += result.made.timing;
    if (result.endsImport)
        throw PlatformException(ErrorKind::workFolder, result.error);
    if (iStop && *iStop)
        return; // no page's fault
    const bool hasPicture = isThere(pictureOf(page));
    Message failure = result.error.isNull() ? result.made.degraded : result.error;
    // A worker that a document controls may answer anything.
    if (failure.isNull() && !hasPicture)
        failure = Message::translate("PageFailure", "it was not drawn");
    if (hasPicture && !result.made.damage.isNone())
        iDamagedPages[page] = result.made.damage.message();
    if (failure.isNull())
        return;
    if (hasPicture && iFilesOf(page) != PageFiles::classic)
        iDegradedPages[page] = failure;
    else
        iFailedPages.push_back({page, failure});
}

PageResult PDFToSWFPageConverter::drawInProcess(int page) {
    try {
        if (!iPDFRep) {
            iOwnDocument =
                std::make_unique<DrawablePDF>(PDFPath(), DrawablePDF::Access::stream, password());
            iPDFRep = std::make_unique<PageMaker>(*iOwnDocument, converterWorkFolder(), quality());
        }
        return {{},
                iPDFRep->make({page, PDFDoc()->cut(page - 1), iFilesOf(page)},
                              {iStop, PDFLimits::maxPageTime})};
    } catch (const PlatformException& failure) {
        Log("PDFToSWFPageConverter").warn(failure.reason());
        return {failure.message(), {}, failure.kind() == ErrorKind::pageWrite};
    } catch (const std::exception& failure) {
        return {QString::fromUtf8(failure.what()), {}};
    }
}
