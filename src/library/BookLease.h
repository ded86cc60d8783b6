#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <memory>

// The sole right to make one book, for a while: machines that share a folder but nothing else take
// turns by it. The holder renews it; who is dead does not, and another one takes it over. A holder
// on this machine is known to be dead at once.
//
// Times are those of the file server, so that clocks that differ do no harm. A holder that is
// suspended for longer than the term can't know at once that it lost its lease: what it guards must
// be such that two who do it waste time, and no more.
class BookLease {
public:
    // How long a lease of another machine is respected after its last renewal.
    static constexpr std::chrono::seconds term{120};
    // How often the holder renews it.
    static constexpr std::chrono::seconds renewal{20};

    // Beside the leases; its time tells that of the file server.
    static inline const QString clockFile = QStringLiteral("clock");

    // Null when another one has it; *error is then a null message. Null with the cause in *error
    // when the file can't be written.
    static std::unique_ptr<BookLease> take(const QString& file, Message* error);

    // Gives it back, if it is still ours; one that was not renewed in time is left to expire.
    ~BookLease();
    BookLease(const BookLease&) = delete;
    BookLease& operator=(const BookLease&) = delete;

    // False when it was lost: not renewed in time, and taken over.
    bool renew();

private:
    BookLease(QString file, QByteArray content, std::chrono::steady_clock::time_point taken);
    bool isOurs() const;

    QString iFile;
    QByteArray iContent;
    std::chrono::steady_clock::time_point iRenewed;
};
