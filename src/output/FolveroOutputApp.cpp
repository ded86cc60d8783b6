#include "output/FolveroOutputApp.h"

#include "base/Log.h"
#include "output/ForeignFiles.h"
#include "output/StagingFolder.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace {

const QString resourcesInBundle = QStringLiteral("Contents/Resources/");

QString bundleName(const QString& name) {
    const QString extension = Files::pathExtension(name);
    const QString base = extension.isEmpty() ? name : name.chopped(extension.size() + 1);
    return base + QStringLiteral(".app");
}

Message lastErrorAt(const QString& path) {
    return Message::about(path, Message::ofLastSystemError());
}

// The shell's files keep their permissions: one of them has to be executable.
void copyShell(const QString& contents) {
    const QString shell =
        Files::join(Bundle::resourcePath(), QStringLiteral("AppFiles/TmplData/mac.app/Contents/"));
    std::error_code error;
    std::filesystem::copy(QFile::encodeName(shell).toStdString(),
                          QFile::encodeName(contents).toStdString(),
                          std::filesystem::copy_options::recursive, error);
    if (error) {
        Log("FolveroOutputApp")
            .error(QStringLiteral("ouput the book,copy failed:%1")
                       .arg(Message::ofSystemError(error.value()).english()));
    }
}

// Exchanges the two names atomically where the file system supports it, so that either the old
// bundle or the new one is always there. The old one ends up under the working path.
bool exchange(const QString& working, const QString& final) {
    const QByteArray from = QFile::encodeName(working);
    const QByteArray to = QFile::encodeName(final);
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_EXCHANGE) == 0)
        return true;
    const QByteArray old = from + ".old";
    const bool hadOld = std::rename(to.constData(), old.constData()) == 0;
    if (std::rename(from.constData(), to.constData()) == 0)
        return true;
    const int cause = errno;
    if (hadOld)
        std::rename(old.constData(), to.constData());
    errno = cause;
    return false;
}

} // namespace

FolveroOutputApp::FolveroOutputApp(std::shared_ptr<FlashPageSource> pageSource,
                                   std::shared_ptr<FlashTemplate> flashTemplate,
                                   const QString& saveToFolder, const QString& toName)
    : FolveroOutput(std::move(pageSource), std::move(flashTemplate),
                    Files::join(Files::join(saveToFolder, bundleName(toName)), resourcesInBundle),
                    bundleName(toName)) {}

QString FolveroOutputApp::outputHTMLFileName() const {
    return layout().at(BookLayout::defaultPage);
}

QString FolveroOutputApp::outputFileName() const {
    return QFileInfo(QFileInfo(QDir::cleanPath(iSaveToFolder)).path()).path();
}

void FolveroOutputApp::ouputTheBook() {
    resetResults();
    const QString bundle = outputFileName();
    const QString folder = QFileInfo(bundle).path();
    if (!QDir().mkpath(folder)) {
        reportFailure(lastErrorAt(folder));
        return;
    }
    StagingFolder::removeStale(folder);
    const QString staging = StagingFolder::make(folder);
    if (staging.isNull()) {
        reportFailure(lastErrorAt(folder));
        return;
    }
    const auto end = qScopeGuard([&] { StagingFolder::remove(staging); });
    const QString working = Files::join(staging, QFileInfo(bundle).fileName());
    if (publishInto(working) && !exchange(working, bundle))
        reportFailure(lastErrorAt(bundle));
}

QStringList FolveroOutputApp::foreignFiles() const {
    const QString bundle = outputFileName();
    if (!ForeignFiles::isThere(bundle) || hasExistingBook())
        return {};
    return {bundle};
}

bool FolveroOutputApp::publishInto(const QString& working) {
    // Does not create parent folders, which may have gone with an unplugged drive.
    if (!QDir().mkdir(working)) {
        reportFailure(lastErrorAt(outputFileName()));
        return false;
    }
    copyShell(Files::join(working, QStringLiteral("Contents")));
    const QString resources = Files::join(working, resourcesInBundle);
    if (!QDir().mkpath(resources)) {
        reportFailure(lastErrorAt(iSaveToFolder));
        return false;
    }
    return run(layout(), steps(), resources);
}
