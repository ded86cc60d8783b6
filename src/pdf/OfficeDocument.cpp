#include "pdf/OfficeDocument.h"

#include "base/PlatformException.h"
#include "pdf/PDFFile.h"
#include "system/Files.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <chrono>
#include <csignal>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

// Documents of some hundred pages take one or two.
constexpr std::chrono::milliseconds longest = 10min;
constexpr int pollMilliseconds = 100;

[[noreturn]] void fail(const QString& path, const char* cause, ErrorKind kind) {
    PDFFile::failToOpen(path, Message::translate("OfficeDocument", cause), kind);
}

// The program is a script that starts another one, so all of its group have to go.
class Conversion {
public:
    Conversion(const QString& program, const QStringList& arguments) {
        iProcess.setStandardInputFile(QProcess::nullDevice());
        iProcess.setStandardOutputFile(QProcess::nullDevice());
        iProcess.setStandardErrorFile(QProcess::nullDevice());
        iProcess.setChildProcessModifier([] { ::setpgid(0, 0); });
        iProcess.start(program, arguments);
    }
    ~Conversion() {
        if (iProcess.state() == QProcess::NotRunning)
            return;
        ::kill(-pid_t(iProcess.processId()), SIGKILL);
        iProcess.waitForFinished();
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    bool hasEnded() {
        return iProcess.waitForFinished(pollMilliseconds) ||
               iProcess.state() == QProcess::NotRunning;
    }

private:
    QProcess iProcess;
};

} // namespace

const QStringList& OfficeDocument::types() {
    static const QStringList all{
        QStringLiteral("doc"), QStringLiteral("docx"), QStringLiteral("odt"),
        QStringLiteral("rtf"), QStringLiteral("ppt"),  QStringLiteral("pptx"),
        QStringLiteral("odp"), QStringLiteral("xls"),  QStringLiteral("xlsx"),
        QStringLiteral("ods"), QStringLiteral("odg")};
    return all;
}

bool OfficeDocument::isOne(const QString& path) {
    return types().contains(Files::pathExtension(path).toLower());
}

QString OfficeDocument::converter() {
    for (const char* name : {"soffice", "libreoffice"}) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(name));
        if (!program.isEmpty())
            return program;
    }
    return {};
}

void OfficeDocument::convert(const QString& path, const QString& pdf,
                             const std::function<bool()>& stopped) {
    const QString program = converter();
    if (program.isNull())
        fail(path, QT_TRANSLATE_NOOP("OfficeDocument", "needs LibreOffice, which is not installed"),
             ErrorKind::pdfFile);
    const QString folder = QFileInfo(pdf).path();
    // With a profile of its own it does not hand the document to a LibreOffice that is open.
    const QString profile =
        QUrl::fromLocalFile(Files::join(folder, QStringLiteral("profile"))).toString();
    const QString file = QFileInfo(path).absoluteFilePath();
    Conversion conversion(program, {QStringLiteral("-env:UserInstallation=") + profile,
                                    QStringLiteral("--headless"), QStringLiteral("--norestore"),
                                    QStringLiteral("--convert-to"), QStringLiteral("pdf"),
                                    QStringLiteral("--outdir"), folder, file});
    QElapsedTimer timer;
    timer.start();
    while (!conversion.hasEnded()) {
        if (stopped && stopped())
            fail(path, QT_TRANSLATE_NOOP("OfficeDocument", "was cancelled"),
                 ErrorKind::readStopped);
        if (timer.hasExpired(longest.count()))
            fail(path, QT_TRANSLATE_NOOP("OfficeDocument", "LibreOffice takes too long for it"),
                 ErrorKind::readerTimeout);
    }
    // It names the PDF itself, and reports success whatever it does.
    const QString made =
        Files::join(folder, QFileInfo(file).completeBaseName() + QStringLiteral(".pdf"));
    if (!QFileInfo::exists(made) || (made != pdf && !QFile::rename(made, pdf)))
        fail(path, QT_TRANSLATE_NOOP("OfficeDocument", "LibreOffice can't make a PDF of it"),
             ErrorKind::pdfOpen);
}
