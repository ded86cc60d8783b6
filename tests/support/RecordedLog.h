#pragma once

#include "base/Log.h"

#include <QStringList>

// Collects what is logged from a level on, by any thread, while it lives.
class RecordedLog {
public:
    explicit RecordedLog(Log::Level lowest = Log::Level::debug) {
        Log::setWatcher([this, lowest](const Log::Record& record) {
            if (record.level >= lowest)
                iTexts << record.text;
        });
    }
    ~RecordedLog() { Log::setWatcher({}); }
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    const QStringList& texts() const { return iTexts; }

private:
    QStringList iTexts;
};
