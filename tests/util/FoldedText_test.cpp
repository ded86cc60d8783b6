#include "util/FoldedText.h"

#include "support/TemplateLibrary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace {

// The player's tests take the same cases, so that both sides of the search fold alike.
QJsonArray cases(const char* name) {
    const auto json =
        TestFiles::read(QStringLiteral(FOLVERO_PLAYER_DIR "/test/support/folding.json"));
    return QJsonDocument::fromJson(json)[QLatin1String(name)].toArray();
}

TEST(FoldedText, IsWhatThePlayerMakesOfIt) {
    TextFolder folder;
    ASSERT_GT(cases("folded").size(), 20);
    for (const auto one : cases("folded"))
        EXPECT_EQ(folder.folded(one[0].toString()), one[1].toString())
            << one[0].toString().toStdString();
}

TEST(FoldedText, HasTheWordsThatThePlayerLooksFor) {
    TextFolder folder;
    ASSERT_GT(cases("words").size(), 5);
    for (const auto one : cases("words"))
        EXPECT_EQ(folder.words(one[0].toString()), one[1].toVariant().toStringList())
            << one[0].toString().toStdString();
}

} // namespace
