#pragma once

#include <QString>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

struct Notification {
    QString name;
    const void* object = nullptr; // the sender, or nullptr
    QVariantMap userInfo;
};

// Delivers notifications by name to subscribers. Thread-safe; observers are called synchronously on
// the posting thread.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    // Keeps an observer registered for its lifetime. After the destructor returns, no new call to
    // the observer starts; a call already running on another thread may still finish.
    class Subscription {
    public:
        Subscription() = default;
        explicit Subscription(std::shared_ptr<void> entry) : iEntry(std::move(entry)) {}

    private:
        std::shared_ptr<void> iEntry;
    };

    static NotificationCenter& defaultCenter();

    // object == nullptr observes all senders.
    [[nodiscard]] Subscription addObserver(const QString& name, const void* object,
                                           Observer observer);
    void post(const QString& name, const void* object = nullptr, const QVariantMap& userInfo = {});

    // Posts on the main thread when its event loop is idle.
    void enqueueWhenIdle(const QString& name, const void* object = nullptr,
                         const QVariantMap& userInfo = {});

private:
    struct Entry {
        QString name;
        const void* object;
        Observer observer;
    };

    std::mutex iMutex;
    std::vector<std::weak_ptr<Entry>> iEntries;
};
