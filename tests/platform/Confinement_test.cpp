#include "platform/Confinement.h"

#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Case {
    const char* path; // beneath the style's folder
    bool stays;
};

// A style's folder with links of every kind, beside things that are none of its business.
class ConfinementTest : public testing::TestWithParam<Case> {
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

TEST_P(ConfinementTest, KnowsWhatStaysInTheFolder) {
    const QString name = path("style/") + QString::fromLatin1(GetParam().path);
    EXPECT_EQ(Confinement::contains(path("style"), name), GetParam().stays);
    EXPECT_EQ(Confinement::contains(path("style/"), name), GetParam().stays);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ConfinementTest,
    testing::Values(Case{"a.jpg", true}, Case{"", true}, Case{"inner/b.jpg", true},
                    Case{"inner/../a.jpg", true}, Case{"inner/up.jpg", true},
                    Case{"within/b.jpg", true}, Case{"missing.jpg", true},
                    Case{"missing/deep.jpg", true}, Case{"..", false}, Case{"../secret/key", false},
                    Case{"../style-of-another/a.jpg", false}, Case{"inner/../../secret/key", false},
                    Case{"../../../../../../../../etc/passwd", false}, Case{"out.jpg", false},
                    Case{"outer/key", false}, Case{"outer/missing", false}, Case{"outer", false},
                    Case{"dangling", false}, Case{"loop", false}, Case{"loop/a.jpg", false},
                    Case{"outer/../style/a.jpg", true}, Case{"outer/../missing", false}));

TEST_F(ConfinementTest, AllowsTheFolderItselfToBeALink) {
    ASSERT_TRUE(QFile::link(path("style"), path("shortcut")));
    EXPECT_TRUE(Confinement::contains(path("shortcut"), path("shortcut/a.jpg")));
    EXPECT_FALSE(Confinement::contains(path("shortcut"), path("shortcut/outer/key")));
}

TEST_F(ConfinementTest, RefusesANameThatEndsEarlyForTheSystem) {
    EXPECT_FALSE(Confinement::contains(path("style"), path("style/a.jpg") + QChar(u'\0')));
}

} // namespace
