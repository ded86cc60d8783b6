#include "output/EarlierPages.h"

#include "output/WebScript.h"
#include "system/Files.h"
#include "util/Base91.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Far beyond any of ours.
constexpr qint64 maxVectorBytes = 32 << 20;

} // namespace

PageFiles EarlierPages::take(int page, PageFiles wanted, const WebPageFiles& files) const {
    if (wanted == PageFiles::classic)
        return take(BookLayout::page(page, QStringLiteral("jpg")), files.pageFile) ? PageFiles::none
                                                                                   : wanted;
    if (wanted == PageFiles::web) {
        if (takeWebPage(page, files))
            return PageFiles::text;
        const QStringList all = files.others() + QStringList{files.picture, files.pageFile};
        for (const QString& file : all)
            QFile::remove(file);
    }
    return wanted;
}

bool EarlierPages::take(const QString& path, const QString& to) const {
    const QString from = iLayout.at(path);
    return QFileInfo(from).isFile() && !QFileInfo(from).isSymLink() && Files::linkOrCopy(from, to);
}

// A page of a web book has a picture of one kind, a thumbnail and a text. Most have a larger
// picture, too.
bool EarlierPages::takeWebPage(int page, const WebPageFiles& files) const {
    const auto picture = [page](const char* kind) {
        return BookLayout::page(page, QString::fromLatin1(kind));
    };
    const auto large = [page](const char* kind) {
        return BookLayout::largePage(page, QString::fromLatin1(kind));
    };
    if (!QFileInfo(iLayout.at(BookLayout::text(page))).isFile() ||
        !take(BookLayout::thumbnail(page), files.thumbnail) ||
        !(take(picture("png"), files.picture) || take(picture("jpg"), files.pageFile)))
        return false;
    if (QFileInfo(iLayout.at(large("js"))).isFile())
        return takeVectors(page, files.largeVector);
    if (!take(large("png"), files.largePicture))
        take(large("jpg"), files.largePhotograph);
    return true;
}

bool EarlierPages::takeVectors(int page, const QString& to) const {
    const QString path = BookLayout::largePage(page, QStringLiteral("js"));
    const QByteArray json =
        WebScript::jsonIn(path, Files::beginning(iLayout.at(path), maxVectorBytes));
    const QJsonObject data = QJsonDocument::fromJson(json).object();
    const QString packed = data.value(QStringLiteral("vectors")).toString();
    const QByteArray vectors = Base91::decode(packed.toLatin1());
    return !vectors.isEmpty() &&
           Files::writeWorkingFile(to, {reinterpret_cast<const unsigned char*>(vectors.data()),
                                        std::size_t(vectors.size())});
}
