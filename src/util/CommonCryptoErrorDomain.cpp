#include "util/NSData+CommonCrypto.h"

#include <QCoreApplication>

using CommonCryptoErrorDomain::Error;

namespace {

struct Words {
    int status;
    const char* description;
    const char* reason;
};

constexpr Words words[] = {
    {CCSuccess, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Success"), nullptr},
    {CCParamError, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Parameter Error"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain",
                       "Illegal parameter supplied to encryption/decryption algorithm")},
    {CCBufferTooSmall, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Buffer Too Small"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain",
                       "Insufficient buffer provided for specified operation")},
    {CCMemoryFailure, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Memory Failure"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Failed to allocate memory")},
    {CCAlignmentError, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Alignment Error"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain",
                       "Input size to encryption algorithm was not aligned correctly")},
    {CCDecodeError, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Decode Error"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain",
                       "Input data did not decode or decrypt correctly")},
    {CCUnimplemented, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Unimplemented Function"),
     QT_TRANSLATE_NOOP("CommonCryptoErrorDomain",
                       "Function not implemented for the current algorithm")},
};

constexpr Words unknown{0, QT_TRANSLATE_NOOP("CommonCryptoErrorDomain", "Unknown Error"), nullptr};

const Words& wordsFor(int status) {
    for (const Words& entry : words) {
        if (entry.status == status)
            return entry;
    }
    return unknown;
}

QString translated(const char* text) {
    return text ? QCoreApplication::translate(CommonCryptoErrorDomain::name, text) : QString();
}

} // namespace

Error CommonCryptoErrorDomain::errorWithCCCryptorStatus(int status) {
    const Words& entry = wordsFor(status);
    return {QString::fromLatin1(name), status, translated(entry.description),
            translated(entry.reason)};
}
