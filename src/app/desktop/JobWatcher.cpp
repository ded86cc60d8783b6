#include "app/desktop/JobWatcher.h"

#include "ui/JobProgress.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>
#include <algorithm>

namespace {

using namespace std::chrono_literals;

// The user hardly turned to anything else for less.
constexpr std::chrono::milliseconds longJob = 5s;

const QString entry = QStringLiteral("folvero");

// For docks and task bars that show the progress of a program; others do not listen.
void showInTaskBar(const QVariantMap& state) {
    auto signal = QDBusMessage::createSignal(QStringLiteral("/invalid/folvero/folvero"),
                                             QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                             QStringLiteral("Update"));
    signal << QStringLiteral("application://%1.desktop").arg(entry) << state;
    QDBusConnection::sessionBus().send(signal);
}

void notify(const QString& message) {
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    auto call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    const uint nothingReplaced = 0;
    const int usualTime = -1;
    call << QStringLiteral("Folvero") << nothingReplaced << entry << message << QString()
         << QStringList() << QVariantMap{{QStringLiteral("desktop-entry"), entry}} << usualTime;
    QDBusConnection::sessionBus().send(call);
}

void tell(const QString& message, std::chrono::milliseconds taken) {
    if (!message.isEmpty() && taken >= longJob && !QApplication::activeWindow())
        notify(message);
}

} // namespace

void JobWatcher::watch(const JobProgress& job) {
    if (!QDBusConnection::sessionBus().isConnected())
        return;
    connect(&job, &JobProgress::moved, this, &JobWatcher::show);
    connect(&job, &JobProgress::ended, this, tell);
}

void JobWatcher::show(double share) {
    const int percent = share < 0 ? -1 : JobProgress::percentOf(share);
    if (percent == iPercent)
        return;
    iPercent = percent;
    showInTaskBar({{QStringLiteral("progress-visible"), percent >= 0},
                   {QStringLiteral("progress"), std::max(0.0, share)}});
}
