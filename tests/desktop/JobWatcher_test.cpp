#include "app/desktop/JobWatcher.h"

#include "ui/JobProgress.h"

#include <QDBusConnection>
#include <QProcess>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

// A desktop's notification service and task bar. Calls and signals with other types than theirs do
// not arrive.
class Desktop : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList heard;

public Q_SLOTS:
    uint Notify(const QString& program, uint /*replaced*/, const QString& icon,
                const QString& summary, const QString& /*body*/, const QStringList& /*actions*/,
                const QVariantMap& hints, int /*timeout*/) {
        heard << QStringList{program, icon, summary, hints["desktop-entry"].toString()}.join('|');
        return 1;
    }
    void update(const QString& program, const QVariantMap& state) {
        const bool isShown = state["progress-visible"].toBool();
        heard << program + (isShown ? ' ' + state["progress"].toString() : QString(" none"));
    }
};

// With a bus of its own, on which a desktop listens.
class JobWatcherTest : public testing::Test {
protected:
    void SetUp() override {
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead()) << "no dbus-daemon";
        address = QString::fromUtf8(daemon.readLine().trimmed());
        QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
        ASSERT_TRUE(bus.registerObject("/org/freedesktop/Notifications", &desktop,
                                       QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(bus.registerService("org.freedesktop.Notifications"));
        ASSERT_TRUE(bus.connect({}, {}, "com.canonical.Unity.LauncherEntry", "Update", &desktop,
                                SLOT(update(QString, QVariantMap))));
    }
    ~JobWatcherTest() override {
        QDBusConnection::disconnectFromBus("desktop");
        QDBusConnection::disconnectFromBus("program");
        daemon.kill();
        daemon.waitForFinished();
    }

    // What the desktop has heard since the last call, up to the end of a job: signals and calls of
    // one program arrive in their order.
    QStringList heard() {
        Q_EMIT job.moved(-1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.heard.endsWith(end); }, 20000));
        return std::exchange(desktop.heard, {});
    }

    const QString end = "application://folvero.desktop none";
    QProcess daemon;
    QString address;
    Desktop desktop;
    JobProgress job;
};

} // namespace

TEST_F(JobWatcherTest, ShowsHowFarAJobIsAndTellsWhoeverLooksElsewhereOfItsEnd) {
    JobWatcher watcher(QDBusConnection::connectToBus(address, "program"));
    watcher.watch(job);
    job.begin();
    job.show(0.5);
    job.show(0.501);
    Q_EMIT job.ended("done", 6s);
    EXPECT_EQ(heard(),
              QStringList({"application://folvero.desktop 0", "application://folvero.desktop 0.5",
                           "Folvero|folvero|done|folvero", end}));
    const auto ends = [this](const char* message, std::chrono::milliseconds taken) {
        job.begin();
        Q_EMIT job.ended(message, taken);
        return heard().filter("|").size();
    };
    EXPECT_EQ(ends("", 6s), 0) << "as after a cancelled one";
    EXPECT_EQ(ends("done", 4s), 0) << "nobody has turned to anything else";
    EXPECT_EQ(ends("done", 6s), 1);
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(ends("done", 6s), 0) << "the user sees it";
}

#include "JobWatcher_test.moc"
