#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <chrono>

// How far a job is for which the user waits, such as an import. For the main thread.
class JobProgress : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void begin();
    // share: 0 to 1 of the whole job. A lesser one than before changes nothing: some jobs go
    // through their pages twice.
    void show(double share);
    // message: what to tell somebody who looks elsewhere meanwhile; empty for nothing, as after
    // a cancelled job. Does nothing when no job has begun.
    void end(const QString& message);

    // Such as "37 %, about 2 minutes left"; without the time as long as that is a guess.
    QString text() const;

    // The same for a job of which a share, 0 to 1, took that long.
    static QString textFor(double share, std::chrono::milliseconds taken);
    static int percentOf(double share);

Q_SIGNALS:
    // share: 0 to 1; negative when no job is under way any more.
    void moved(double share);
    void ended(const QString& message, std::chrono::milliseconds taken);

private:
    std::chrono::milliseconds taken() const { return std::chrono::milliseconds(iTimer.elapsed()); }

    QElapsedTimer iTimer; // invalid when no job is under way
    double iShare = 0;
    // The first share that was shown, and when: what was prepared before says nothing about the
    // rest.
    double iFirstShare = -1;
    std::chrono::milliseconds iFirstTime{};
};
