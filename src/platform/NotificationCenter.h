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

// Delivers notifications by name to whoever subscribed. Safe to use from any thread; an observer is
// called synchronously on the thread that posts.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    // Keeps one observer registered for as long as it lives. Once its destructor has returned the
    // observer isn't started any more (a call already running on another thread may still finish).
    class Subscription {
    public:
        Subscription() = default;
        explicit Subscription(std::shared_ptr<void> entry) : iEntry(std::move(entry)) {}

    private:
        std::shared_ptr<void> iEntry;
    };

    static NotificationCenter& defaultCenter();

    // object == nullptr observes any sender.
    [[nodiscard]] Subscription addObserver(const QString& name, const void* object,
                                           Observer observer);
    void post(const QString& name, const void* object = nullptr, const QVariantMap& userInfo = {});

    // Posts on the main thread once its event loop has nothing else to do.
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
