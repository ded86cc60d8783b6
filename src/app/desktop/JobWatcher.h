#pragma once

#include <QObject>
#include <chrono>

class JobProgress;

// Tells the desktop of long jobs: how far they are, in the task bar, and when one has ended while
// the user looks elsewhere, in a notification. Does nothing where there is no session bus.
class JobWatcher : public QObject {
    Q_OBJECT

public:
    void watch(const JobProgress& job);

private:
    void show(double share);

    int iPercent = -1; // in the task bar
};
