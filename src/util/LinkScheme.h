#pragma once

#include <QStringList>
#include <QUrl>

// What kinds of links a book's readers may follow; the player has the same list.
namespace LinkScheme {

// Others would start whatever program is registered for them.
inline bool isFollowed(const QUrl& url) {
    static const QStringList followed{QStringLiteral("http"), QStringLiteral("https"),
                                      QStringLiteral("mailto"), QStringLiteral("tel")};
    return followed.contains(url.scheme());
}

} // namespace LinkScheme
