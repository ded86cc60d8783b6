#pragma once

#include <QDBusConnection>
#include <QObject>
#include <chrono>

class JobProgress;

// Tells the desktop of long jobs: how far they are, in the task bar, and when one has ended while
// the user looks elsewhere, in a notification. Does nothing where there is no such bus.
class JobWatcher : public QObject {
    Q_OBJECT

public:
    explicit JobWatcher(const QDBusConnection& bus = QDBusConnection::sessionBus()) : iBus(bus) {}

    void watch(const JobProgress& job);

private:
    void show(double share);
    void showInTaskBar(const QVariantMap& state) const;
    void tell(const QString& message, std::chrono::milliseconds taken) const;

    QDBusConnection iBus;
    int iPercent = -1; // in the task bar
};
