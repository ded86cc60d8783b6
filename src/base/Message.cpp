#include "base/Message.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

namespace {

bool isTemporaryError(int error) {
    // ENOENT is for a folder that existed.
    static constexpr int errors[]{
        ENOENT,      ENOSPC,    EDQUOT,     EROFS,    EACCES, EPERM,     EIO,
        ENODEV,      ENXIO,     ESTALE,     ENOTCONN, EAGAIN, EHOSTDOWN, EHOSTUNREACH,
        ENETUNREACH, ETIMEDOUT, ECONNRESET, EBUSY,    EMFILE, ENFILE,    ENOMEM};
    return std::find(std::begin(errors), std::end(errors), error) != std::end(errors);
}

} // namespace

Message Message::translate(const char* context, const char* text) {
    return {QString::fromUtf8(text), QCoreApplication::translate(context, text)};
}

// strerror() would answer in the system's language, which may be neither English nor the window's.
Message Message::ofSystemError(int error) {
    const char* text = ::strerrordesc_np(error);
    const Message words =
        text ? translate("SystemError", text)
             : translate("SystemError", "Unknown error %1").arg(QString::number(error));
    return isTemporaryError(error) ? words.temporary() : words;
}

Message Message::ofLastSystemError() {
    return ofSystemError(errno);
}

Message Message::ofException(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure)
               ? ofSystemError(ENOMEM)
               : Message(QString::fromUtf8(failure.what()));
}

Message Message::temporary() const {
    Message result = *this;
    result.iIsTemporary = true;
    return result;
}

bool areTemporary(const Messages& messages) {
    return std::any_of(messages.begin(), messages.end(),
                       [](const Message& message) { return message.isTemporary(); });
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
