#include "support/Program.h"

#include <QCoreApplication>

namespace {

// Longer than any run takes on a busy machine, shorter than ctest waits for a test.
constexpr int patienceMilliseconds = 200'000;

} // namespace

QString Program::path(const QString& name) {
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

QString Program::sample(const QString& name) {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../samples/") + name;
}

Program::Result Program::run(const QStringList& arguments) {
    return runOther(path(), arguments);
}

Program::Result Program::runOther(const QString& program, const QStringList& arguments,
                                  const QProcessEnvironment& environment, const QByteArray& input) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    return finish(process);
}

Program::Result Program::finish(QProcess& process) {
    if (!process.waitForFinished(patienceMilliseconds)) {
        process.kill();
        process.waitForFinished();
    }
    const bool ended = process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}
