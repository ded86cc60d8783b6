#pragma once

#include <QByteArray>

// The standard security handler of PDF 1.1 (40-bit RC4), as far as a test needs it to make
// encrypted files. Independent of the program's ciphers, so that a bug in them can't hide.
class PDFEncryption {
public:
    PDFEncryption(const QByteArray& userPassword, const QByteArray& ownerPassword,
                  qint32 permissions);

    // The Encrypt dictionary; it stays unencrypted itself.
    QByteArray dictionary() const;
    // The trailer's ID array, which the key depends on.
    QByteArray fileIdentifier() const;

    QByteArray encrypted(int objectNumber, const QByteArray& data) const;
    // An object's text with the hexadecimal strings in it encrypted. Literal strings in parentheses
    // are not looked for.
    QByteArray withStringsEncrypted(int objectNumber, const QByteArray& body) const;

private:
    qint32 iPermissions;
    QByteArray iOwnerEntry;
    QByteArray iUserEntry;
    QByteArray iKey;
};
