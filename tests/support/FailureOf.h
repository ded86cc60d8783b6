#pragma once

#include "base/PlatformException.h"

// The PlatformException that an action ends with; null texts when it succeeds.
struct Failure {
    QString name;
    Message message;
};

template <class Action>
Failure failureOf(Action action) {
    try {
        action();
    } catch (const PlatformException& failure) {
        return {failure.name(), failure.message()};
    }
    return {};
}
