#include "webbook/PlayerFile.h"

#include "output/BookLayout.h"
#include "output/PublishTransaction.h"
#include "system/Bundle.h"
#include "system/Files.h"

QString PlayerFile::installed(const BookLayout& layout, const QString& path) {
    const QString source =
        Bundle::pathForResource(Files::lastPathComponent(path), {}, QStringLiteral("AppFiles/Web"));
    if (source.isNull())
        PublishTransaction::fail(
            layout.at(path), Message::translate("FolveroOutput", "the player is not installed"));
    return source;
}
