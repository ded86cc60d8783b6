#pragma once

#include "platform/Message.h"

#include <QString>
#include <exception>
#include <string>

// A failure that the caller may catch and report: a short name to tell kinds apart and a reason in
// words for people. Any other C++ exception is a fault of ours and passes through.
class PlatformException : public std::exception {
public:
    PlatformException(QString name, Message reason)
        : iName(std::move(name)),
          iReason(std::move(reason)),
          iWhat((iName + QStringLiteral(": ") + iReason.english()).toStdString()) {}

    const QString& name() const { return iName; }
    // In English, and in the window's language as well.
    const QString& reason() const { return iReason.english(); }
    const Message& message() const { return iReason; }
    const char* what() const noexcept override { return iWhat.c_str(); }

private:
    QString iName;
    Message iReason;
    std::string iWhat;
};
