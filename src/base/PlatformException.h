#pragma once

#include "base/ErrorKind.h"
#include "base/Message.h"

#include <QString>
#include <exception>
#include <string>

// An error that callers may catch and report: its kind, and a reason for users. Any other C++
// exception is a bug and is not caught.
class PlatformException : public std::exception {
public:
    PlatformException(ErrorKind kind, Message reason)
        : iKind(kind),
          iReason(std::move(reason)),
          iWhat(nameOf(kind) + (": " + iReason.english().toStdString())) {}

    ErrorKind kind() const { return iKind; }
    QString name() const { return QString::fromLatin1(nameOf(iKind)); }
    // In English; message() also has it in the window's language.
    const QString& reason() const { return iReason.english(); }
    const Message& message() const { return iReason; }
    const char* what() const noexcept override { return iWhat.c_str(); }

private:
    ErrorKind iKind;
    Message iReason;
    std::string iWhat;
};
