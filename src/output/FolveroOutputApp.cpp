#include "output/FolveroOutputApp.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/FolderCommit.h"
#include "output/ForeignFiles.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

namespace {

namespace fs = std::filesystem;

const QString resourcesInBundle = QStringLiteral("Contents/Resources/");

QString bundleName(const QString& name) {
    const QString extension = Files::pathExtension(name);
    const QString base = extension.isEmpty() ? name : name.chopped(extension.size() + 1);
    return base + QStringLiteral(".app");
}

Message lastErrorAt(const QString& path) {
    return Message::about(path, Message::ofLastSystemError());
}

// Where the application's program and its other files are installed.
QString shellFolder() {
    return Files::join(Bundle::resourcePath(),
                       QStringLiteral("AppFiles/TmplData/mac.app/Contents/"));
}

// The shell's files keep their permissions: one of them has to be executable.
Message copyEntry(const fs::directory_entry& entry, const fs::path& target) {
    std::error_code error;
    Message failure;
    if (entry.is_directory(error))
        fs::create_directory(target, entry.path(), error);
    else if (!entry.is_regular_file(error))
        error = std::make_error_code(std::errc::not_supported);
    // fs::copy_file() reports any failure to write as an error of the device.
    else if (Files::copy(QFile::decodeName(entry.path().c_str()), QFile::decodeName(target.c_str()),
                         &failure))
        fs::permissions(target, entry.status().permissions(), error);
    return error ? Message::ofSystemError(error.value()) : failure;
}

// Null when all is copied.
Message copyShell(const QString& contents) {
    const fs::path shell(QFile::encodeName(shellFolder()).toStdString());
    const fs::path target(QFile::encodeName(contents).toStdString());
    std::error_code error;
    Message failure = copyEntry(fs::directory_entry(shell, error), target);
    for (fs::recursive_directory_iterator entry(shell, error), end;
         !error && failure.isNull() && entry != end; entry.increment(error))
        failure = copyEntry(*entry, target / entry->path().lexically_relative(shell));
    if (error)
        failure = Message::ofSystemError(error.value());
    if (!failure.isNull())
        Log("FolveroOutputApp")
            .error(QStringLiteral("ouput the book,copy failed:%1").arg(failure.english()));
    return failure;
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
    try {
        FolderCommit commit(folder, folder);
        const QString name = QFileInfo(bundle).fileName();
        commit.mayDelete(name);
        CommitSwitch& steps = commit.steps();
        if (!publishInto(Files::join(commit.staging(), CommitSwitch::swapName + u'/' + name)))
            return;
        if (!steps.addReplacement(QFile::encodeName(name)))
            throw PlatformException(ErrorKind::publishing, lastErrorAt(bundle));
        commit.commit();
    } catch (const PlatformException& failure) {
        reportFailure(failure.message());
    }
}

QStringList FolveroOutputApp::foreignFiles() const {
    const QString bundle = outputFileName();
    if (!ForeignFiles::isThere(bundle) || hasExistingBook())
        return {};
    return {bundle};
}

Message FolveroOutputApp::missingPart() const {
    if (QFileInfo(shellFolder()).isDir())
        return FolveroOutput::missingPart();
    return Message::translate("FolveroOutput",
                              "%1: is missing; the program is not installed completely")
        .arg(shellFolder());
}

bool FolveroOutputApp::publishInto(const QString& working) {
    // Does not create parent folders, which may have gone with an unplugged drive.
    if (!QDir().mkdir(working)) {
        reportFailure(lastErrorAt(outputFileName()));
        return false;
    }
    const Message shellError = copyShell(Files::join(working, QStringLiteral("Contents")));
    if (!shellError.isNull() && QFileInfo(shellFolder()).isDir()) {
        reportFailure(Message::about(outputFileName(), shellError));
        return false;
    }
    const QString resources = Files::join(working, resourcesInBundle);
    if (!QDir().mkpath(resources)) {
        reportFailure(lastErrorAt(iSaveToFolder));
        return false;
    }
    return run(layout(), steps(), resources);
}
