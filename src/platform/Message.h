#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// A text for people in two languages: English, for the log and for programs without a window, and
// the one that the window speaks. Where no translations are installed the two are the same.
class Message {
public:
    // None.
    Message() = default;
    // The same in every language, such as a path or the words of a library.
    Message(const QString& text) : Message(text, text) {}
    Message(QString english, QString local)
        : iEnglish(std::move(english)), iLocal(std::move(local)) {}

    // Looks a text up as the toolkit's function of that name does, from any thread.
    static Message translate(const char* context, const char* text);
    // The system's words for an error number, and for the last error of this thread. Temporary when
    // the cause may be gone later without a change to the files or to the command: a full disk, a
    // share that is not there, a folder that was taken away.
    static Message ofSystemError(int error);
    static Message ofLastSystemError();

    const QString& english() const { return iEnglish; }
    const QString& local() const { return iLocal; }
    bool isNull() const { return iEnglish.isNull(); }
    // Whether what it reports may be gone when it is tried again later.
    bool isTemporary() const { return iIsTemporary; }
    // The same text, temporary from now on.
    Message temporary() const;

    // Puts texts or messages in place of %1, %2 and so on, all at once. Temporary when one of them
    // is.
    template <class... Values>
    Message arg(const Values&... values) const {
        const Message filled(iEnglish.arg(Message(values).english()...),
                             iLocal.arg(Message(values).local()...));
        return (iIsTemporary || ... || Message(values).isTemporary()) ? filled.temporary() : filled;
    }
    Message replaced(const QString& before, const QString& after) const;

private:
    QString iEnglish;
    QString iLocal;
    bool iIsTemporary = false;
};

using Messages = QList<Message>;

// Whether one of them is temporary.
bool areTemporary(const Messages& messages);

QStringList englishTexts(const Messages& messages);
QStringList localTexts(const Messages& messages);
