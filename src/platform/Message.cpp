#include "platform/Message.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>

Message Message::translate(const char* context, const char* text) {
    return {QString::fromUtf8(text), QCoreApplication::translate(context, text)};
}

// The function that is usually taken for this answers in the language of the system, which need be
// neither English nor the window's.
Message Message::ofSystemError(int error) {
    const char* text = ::strerrordesc_np(error);
    return text ? translate("SystemError", text)
                : translate("SystemError", "Unknown error %1").arg(QString::number(error));
}

Message Message::ofLastSystemError() {
    return ofSystemError(errno);
}

Message Message::replaced(const QString& before, const QString& after) const {
    Message result = *this;
    result.iEnglish.replace(before, after);
    result.iLocal.replace(before, after);
    return result;
}

QStringList englishTexts(const Messages& messages) {
    QStringList texts;
    for (const Message& message : messages)
        texts << message.english();
    return texts;
}

QStringList localTexts(const Messages& messages) {
    QStringList texts;
    for (const Message& message : messages)
        texts << message.local();
    return texts;
}
