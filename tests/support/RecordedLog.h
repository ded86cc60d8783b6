#pragma once

#include "platform/Log.h"

#include <QStringList>

// Collects what is logged while it lives.
class RecordedLog {
public:
    RecordedLog() {
        Log::setWatcher([this](const Log::Record& record) { iTexts << record.text; });
    }
    ~RecordedLog() { Log::setWatcher({}); }
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    const QStringList& texts() const { return iTexts; }

private:
    QStringList iTexts;
};
