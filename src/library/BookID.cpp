#include "library/BookID.h"

#include "output/BookName.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr qsizetype longestID = 100;
constexpr qsizetype longestWords = 60;
constexpr qsizetype digestBytes = 16;
constexpr qsizetype digitsOfPath = 10;

// A letter or digit of ASCII.
bool isPlain(QChar letter) {
    return letter.unicode() < 0x80 && letter.isLetterOrNumber();
}

} // namespace

QString BookID::problemWith(const QString& id) {
    const auto isAllowed = [](QChar letter) {
        return isPlain(letter) || letter == u'.' || letter == u'-' || letter == u'_';
    };
    if (id.size() > longestID)
        return QStringLiteral("the ID has more than %1 characters").arg(longestID);
    if (id.isEmpty() || !isPlain(id.front()) || id.endsWith(u'.') ||
        !std::all_of(id.begin(), id.end(), isAllowed) || !BookName::isSafe(id))
        return QStringLiteral("\"%1\" can't be an ID: use letters from a to z, digits, dots, "
                              "hyphens and underscores, the first a letter or digit")
            .arg(id);
    return {};
}

QString BookID::asWords(const QString& name, qsizetype longest) {
    QString words;
    for (const QChar letter : name.normalized(QString::NormalizationForm_KD).toLower()) {
        if (isPlain(letter))
            words += letter;
        else if (!letter.isMark() && !words.isEmpty() && !words.endsWith(u'-'))
            words += u'-';
    }
    words.truncate(longest);
    while (words.endsWith(u'-'))
        words.chop(1);
    return words;
}

QString BookID::forPath(const QString& path) {
    const QByteArray hash =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Blake2b_160).toHex();
    const QString end = QString::fromLatin1(hash.left(digitsOfPath));
    const QString words = asWords(QFileInfo(path).completeBaseName(), longestWords);
    return words.isEmpty() ? end : words + u'-' + end;
}

QByteArray BookID::digest(const QString& id) {
    return QCryptographicHash::hash(id.toLower().toLatin1(), QCryptographicHash::Blake2b_160)
        .left(digestBytes);
}

int BookID::shardOf(const QByteArray& digest, int count) {
    return int(qFromBigEndian<quint32>(digest.constData()) % quint32(count));
}
