#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

class TemplateSettingsTest : public testing::Test {
protected:
    TemplateSettingsTest() {
        library.addTemplate("float",
                            TemplateLibrary::composite("a", property("b") + property("c")) +
                                property("d") + property("pageWidth") + property("pageHeight") +
                                property("b", "second"));
        tmpl.loadTemplate("float");
    }
    static QString property(const QString& key, const QString& value = "1") {
        return TemplateLibrary::property(key, value);
    }
    // The values after the import of a settings file into a new tree.
    QStringList imported(const QByteArray& text, const QStringList& keys = {"b", "c", "d"}) {
        TestFiles::write(file, text);
        tmpl.loadTemplate("float");
        tmpl.importPropertiesSettingsFrom(file);
        QStringList values;
        for (const QString& key : keys)
            values << tmpl.propertyValueFor(key, "default");
        return values;
    }
    QByteArray exported() const {
        EXPECT_TRUE(tmpl.exportPropertiesSettingsTo(file));
        return TestFiles::read(file);
    }

    TemplateLibrary library;
    FlashTemplate tmpl;
    QString file = library.path() + "/settings.txt";
};

} // namespace

TEST_F(TemplateSettingsTest, WritesEveryPropertyInTreeOrderIntoAFileOfItsOwn) {
    const QByteArray old(1000, 'x');
    const QString link = library.path() + "/AppFiles/link.txt";
    TestFiles::write(link, old);
    ASSERT_EQ(::link(QFile::encodeName(link).constData(), QFile::encodeName(file).constData()), 0);
    EXPECT_EQ(exported(), "\n\ra=\n\rb=1\n\rc=1\n\rd=1\n\rpageWidth=1\n\rpageHeight=1\n\rb=second");
    EXPECT_EQ(TestFiles::read(link), old) << "renamed over the old file, not written into it";
    EXPECT_EQ(QDir(library.path()).entryList(QDir::Files), QStringList(QFileInfo(file).fileName()));
}

TEST_F(TemplateSettingsTest, CleansTheKeyButNotTheValue) {
    tmpl.properties()[1]->setKey("x\n\ry\n\r");
    tmpl.properties()[1]->setValue("ü\n\rz=1");
    EXPECT_TRUE(exported().contains("\n\rx|||y|||=\xC3\xBC\n\rz=1\n\r"));
}

TEST_F(TemplateSettingsTest, ReportsAFileThatCannotBeWritten) {
    Message error;
    EXPECT_FALSE(tmpl.exportPropertiesSettingsTo(library.path() + "/none/settings.txt", &error));
    EXPECT_FALSE(error.english().isEmpty());
}

TEST_F(TemplateSettingsTest, ReadsRecordsWithAnyLineEnd) {
    for (const QByteArray end : {"\n\r", "\r\n", "\n", "\r\r\n"})
        EXPECT_EQ(imported("b=x" + end + end + "no record" + end + "c=u?a=b" + end + "d="),
                  QStringList({"x", "u?a=b", ""}))
            << end.toHex().constData();
}

TEST_F(TemplateSettingsTest, ReadsBackWhatItWrites) {
    const QByteArray before = exported();
    for (const char* key : {"b", "c", "d"})
        tmpl.setPropertyValue(key, "changed");
    tmpl.importPropertiesSettingsFrom(file);
    // Of two properties with one key the first takes both records.
    EXPECT_EQ(exported(), QByteArray(before).replace("b=1", "b=second"));
}

TEST_F(TemplateSettingsTest, KeepsThePageSize) {
    EXPECT_EQ(imported("pageWidth=7\npageHeight=8\nd=9", {"pageWidth", "pageHeight", "d"}),
              QStringList({"1", "1", "9"}));
}

TEST_F(TemplateSettingsTest, IgnoresUnknownKeysAndMissingFiles) {
    const QByteArray before = exported();
    imported("unknown=1\n=2\n B =3\nB=4");
    for (const char* none : {"/none", ""})
        tmpl.importPropertiesSettingsFrom(library.path() + none);
    EXPECT_EQ(exported(), before);
}

TEST_F(TemplateSettingsTest, ReadsTextOfSeveralEncodings) {
    const QString text = "b=Größe\nd=ñ";
    QByteArray utf16("\xFF\xFE");
    utf16.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    for (const QByteArray& data :
         {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), text.toLatin1(), utf16})
        EXPECT_EQ(imported(data), QStringList({"Größe", "1", "ñ"})) << data.toHex().constData();
    EXPECT_EQ(imported(QByteArray("\x00\xFF\x80\n\x01=\x02\nd=x\x00y\n\xC3", 16), {"d"}),
              QStringList(QString::fromLatin1("x\0y", 3)));
}
