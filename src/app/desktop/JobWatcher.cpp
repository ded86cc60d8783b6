#include "app/desktop/JobWatcher.h"

#include "ui/JobProgress.h"

#include <QApplication>
#include <QDBusMessage>
#include <QVariantMap>
#include <algorithm>

namespace {

using namespace std::chrono_literals;

// The user hardly turned to anything else for less.
constexpr std::chrono::milliseconds longJob = 5s;

const QString entry = QStringLiteral("folvero");

// Of the desktop's notification service.
QDBusMessage notification(const QString& message) {
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    auto call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    const uint nothingReplaced = 0;
    const int usualTime = -1;
    call << QStringLiteral("Folvero") << nothingReplaced << entry << message << QString()
         << QStringList() << QVariantMap{{QStringLiteral("desktop-entry"), entry}} << usualTime;
    return call;
}

} // namespace

void JobWatcher::watch(const JobProgress& job) {
    if (!iBus.isConnected())
        return;
    connect(&job, &JobProgress::moved, this, &JobWatcher::show);
    connect(&job, &JobProgress::ended, this, &JobWatcher::tell);
}

void JobWatcher::tell(const QString& message, std::chrono::milliseconds taken) const {
    if (!message.isEmpty() && taken >= longJob && !QApplication::activeWindow())
        iBus.send(notification(message));
}

void JobWatcher::show(double share) {
    const int percent = share < 0 ? -1 : JobProgress::percentOf(share);
    if (percent == iPercent)
        return;
    iPercent = percent;
    showInTaskBar({{QStringLiteral("progress-visible"), percent >= 0},
                   {QStringLiteral("progress"), std::max(0.0, share)}});
}

// For docks and task bars that show the progress of a program; others do not listen.
void JobWatcher::showInTaskBar(const QVariantMap& state) const {
    auto signal = QDBusMessage::createSignal(QStringLiteral("/invalid/folvero/folvero"),
                                             QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                             QStringLiteral("Update"));
    signal << QStringLiteral("application://%1.desktop").arg(entry) << state;
    iBus.send(signal);
}
