#include "base/NotificationCenter.h"

#include <QCoreApplication>
#include <QTimer>

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Subscription
NotificationCenter::addObserver(const QString& name, const void* object, Observer observer) {
    auto entry = std::make_shared<Entry>(Entry{name, object, std::move(observer)});
    const std::lock_guard lock(iMutex);
    std::erase_if(iEntries, [](const auto& weak) { return weak.expired(); });
    iEntries.push_back(entry);
    return Subscription(std::move(entry));
}

void NotificationCenter::post(const QString& name, const void* object,
                              const QVariantMap& userInfo) {
    std::vector<std::shared_ptr<Entry>> receivers;
    {
        const std::lock_guard lock(iMutex);
        for (const auto& weak : iEntries) {
            auto entry = weak.lock();
            if (entry && entry->name == name && (!entry->object || entry->object == object))
                receivers.push_back(std::move(entry));
        }
    }
    const Notification notification{name, object, userInfo};
    for (const auto& entry : receivers)
        entry->observer(notification);
}

void NotificationCenter::enqueueWhenIdle(const QString& name, const void* object,
                                         const QVariantMap& userInfo) {
    // A zero timer fires after all events that are already queued.
    QTimer::singleShot(0, QCoreApplication::instance(),
                       [this, name, object, userInfo] { post(name, object, userInfo); });
}
