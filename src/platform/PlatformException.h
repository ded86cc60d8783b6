#pragma once

#include <QString>
#include <exception>
#include <string>

// A failure that the caller may catch and report: a short name to tell kinds apart and a reason in
// words for people. Any other C++ exception is a fault of ours and passes through.
class PlatformException : public std::exception {
public:
    PlatformException(QString name, QString reason)
        : iName(std::move(name)),
          iReason(std::move(reason)),
          iWhat((iName + QStringLiteral(": ") + iReason).toStdString()) {}

    const QString& name() const { return iName; }
    const QString& reason() const { return iReason; }
    const char* what() const noexcept override { return iWhat.c_str(); }

private:
    QString iName;
    QString iReason;
    std::string iWhat;
};
