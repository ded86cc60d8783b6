#pragma once

#include "base/Message.h"

#include <QString>
#include <exception>
#include <string>

// An error that callers may catch and report: a short name that identifies its kind, and a reason
// for users. Any other C++ exception is a bug and is not caught.
class PlatformException : public std::exception {
public:
    PlatformException(QString name, Message reason)
        : iName(std::move(name)),
          iReason(std::move(reason)),
          iWhat((iName + QStringLiteral(": ") + iReason.english()).toStdString()) {}

    const QString& name() const { return iName; }
    // In English; message() also has it in the window's language.
    const QString& reason() const { return iReason.english(); }
    const Message& message() const { return iReason; }
    const char* what() const noexcept override { return iWhat.c_str(); }

private:
    QString iName;
    Message iReason;
    std::string iWhat;
};
