#pragma once

#include <QJsonObject>
#include <QString>

// What distinguishes a process from all others, on all machines.
struct ProcessIdentity {
    QString host;
    QString boot; // ID of this start of the machine and of its process namespace
    int process = 0;
    QString started; // in clock ticks since the boot

    static ProcessIdentity own();

    // Whether it is known to have ended: only of processes that this one would see.
    bool hasEnded() const;

    QJsonObject asJson() const;
    static ProcessIdentity fromJson(const QJsonObject& object);
};
