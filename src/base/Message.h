#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <exception>

// A text for users in two languages: English, for the log and the terminal, and the language of the
// window. The two are the same when no translation is installed.
class Message {
public:
    // The null message.
    Message() = default;
    // The same in every language, such as a path or an error text of a library.
    Message(const QString& text) : Message(text, text) {}
    Message(QString english, QString local)
        : iEnglish(std::move(english)), iLocal(std::move(local)) {}

    // "SUBJECT: CAUSE", such as a file and why it can't be used.
    static Message about(const QString& subject, const Message& cause) {
        return Message(QStringLiteral("%1: %2")).arg(subject, cause);
    }
    // Looks up a translation like QCoreApplication::translate(). Thread-safe.
    static Message translate(const char* context, const char* text);
    // The system's text for an error number, and for this thread's errno. Temporary when the cause
    // may go away without a change to the command: a full disk, a share that is not mounted, a
    // folder that was removed or is locked, no memory.
    static Message ofSystemError(int error);
    static Message ofLastSystemError();
    // For any other C++ exception than PlatformException.
    static Message ofException(const std::exception& failure);

    const QString& english() const { return iEnglish; }
    const QString& local() const { return iLocal; }
    bool isNull() const { return iEnglish.isNull(); }
    // Whether trying again later may help.
    bool isTemporary() const { return iIsTemporary; }
    // The same text, marked as temporary.
    Message temporary() const;

    // Replaces %1, %2 and so on with texts or messages, all at once. Temporary when one of them is.
    template <class... Values>
    Message arg(const Values&... values) const {
        const Message filled(iEnglish.arg(Message(values).english()...),
                             iLocal.arg(Message(values).local()...));
        return (iIsTemporary || ... || Message(values).isTemporary()) ? filled.temporary() : filled;
    }

private:
    QString iEnglish;
    QString iLocal;
    bool iIsTemporary = false;
};

using Messages = QList<Message>;

// Whether any of them is temporary.
bool areTemporary(const Messages& messages);

QStringList englishTexts(const Messages& messages);
QStringList localTexts(const Messages& messages);
