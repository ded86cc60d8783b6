#pragma once

#include "base/PlatformException.h"

// The failure that an action ends with; one without a name when it succeeds.
template <class Action>
PlatformException failureOf(Action action) {
    try {
        action();
    } catch (const PlatformException& failure) {
        return failure;
    }
    return {QString(), Message()};
}
