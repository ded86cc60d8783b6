#include "template/TextDecoding.h"

#include <QStringDecoder>

QString TextDecoding::decoded(const QByteArray& data) {
    QStringDecoder decode(QStringConverter::encodingForData(data).value_or(QStringConverter::Utf8));
    const QString text = decode(data);
    return decode.hasError() ? QString::fromLatin1(data) : text;
}
