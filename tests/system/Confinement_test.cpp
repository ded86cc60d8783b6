#include "system/Confinement.h"

#include "support/TemplateLibrary.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// A style's folder with links of every kind, beside things that are none of its business.
class ConfinementTest : public testing::Test {
protected:
    ConfinementTest() {
        TestFiles::write(path("style/a.jpg"), "x");
        TestFiles::write(path("style/inner/b.jpg"), "x");
        TestFiles::write(path("secret/key"), "x");
        TestFiles::write(path("style-of-another/a.jpg"), "x");
        link(path("style/a.jpg"), "inner/up.jpg");
        link(path("secret/key"), "out.jpg");
        link(path("secret"), "outer");
        link(path("secret/later"), "dangling");
        link(path("style/loop"), "loop");
        link(path("style/inner"), "within");
    }

    QString path(const char* name) const { return iRoot.filePath(QString::fromLatin1(name)); }
    void link(const QString& to, const char* name) const {
        ASSERT_TRUE(QFile::link(to, path("style/") + QString::fromLatin1(name)));
    }

private:
    QTemporaryDir iRoot;
};

TEST_F(ConfinementTest, KnowsWhatStaysInTheFolder) {
    const auto expectAll = [this](std::initializer_list<const char*> names, bool stay) {
        for (const char* name : names) {
            EXPECT_EQ(Confinement::contains(path("style"), path("style/") + name), stay) << name;
            EXPECT_EQ(Confinement::contains(path("style/"), path("style/") + name), stay) << name;
        }
    };
    expectAll({"a.jpg", "", "inner/b.jpg", "inner/../a.jpg", "inner/up.jpg", "within/b.jpg",
               "missing.jpg", "missing/deep.jpg", "outer/../style/a.jpg"},
              true);
    expectAll({"..", "../secret/key", "../style-of-another/a.jpg", "inner/../../secret/key",
               "../../../../../../../../etc/passwd", "out.jpg", "outer/key", "outer/missing",
               "outer", "dangling", "loop", "loop/a.jpg", "outer/../missing"},
              false);
}

TEST_F(ConfinementTest, AllowsTheFolderItselfToBeALink) {
    ASSERT_TRUE(QFile::link(path("style"), path("shortcut")));
    EXPECT_TRUE(Confinement::contains(path("shortcut"), path("shortcut/a.jpg")));
    EXPECT_FALSE(Confinement::contains(path("shortcut"), path("shortcut/outer/key")));
}

TEST_F(ConfinementTest, RefusesANameThatEndsEarlyForTheSystem) {
    EXPECT_FALSE(Confinement::contains(path("style"), path("style/a.jpg") + QChar(u'\0')));
}

} // namespace
