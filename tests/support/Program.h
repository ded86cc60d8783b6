#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

// The headless program, run as its users run it.
namespace Program {

struct Result {
    int exitCode = -1; // -1 when it crashed, was killed or did not end in time
    QByteArray output;
    QByteArray errors;
};

QString path(const QString& name = QStringLiteral("folvero"));
QString sample(const QString& name);

// Runs it to its end, for which it waits some minutes at most.
Result run(const QStringList& arguments);

// The same for any program; what is in the environment already can be changed.
Result runOther(const QString& program, const QStringList& arguments,
                const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                const QByteArray& input = {});

// Waits for the end of a started program.
Result finish(QProcess& process);

} // namespace Program
