#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

class TemplateSettingsTest : public testing::Test {
protected:
    TemplateSettingsTest() {
        library.addTemplate(QStringLiteral("float"),
                            TemplateLibrary::composite(QStringLiteral("a"),
                                                       property("b", "1") + property("c", "2")) +
                                property("d", "3") + property("pageWidth", "4") +
                                property("pageHeight", "5") + property("b", "second"));
        tmpl.loadTemplate(QStringLiteral("float"));
    }
    static QString property(const char* key, const char* value, const char* type = "pt_text") {
        return TemplateLibrary::property(QString::fromUtf8(key), QString::fromUtf8(value),
                                         QString::fromLatin1(type));
    }
    QString value(const char* key) const {
        return tmpl.propertyValueFor(QString::fromUtf8(key), QStringLiteral("default"));
    }
    void import(const QByteArray& text) {
        TestFiles::write(file, text);
        tmpl.importPropertiesSettingsFrom(file);
    }
    QByteArray exported() const {
        tmpl.exportPropertiesSettingsTo(file);
        return TestFiles::read(file);
    }

    TemplateLibrary library;
    FlashTemplate tmpl;
    QString file = library.path() + QStringLiteral("/settings.txt");
};

} // namespace

TEST_F(TemplateSettingsTest, WritesEveryPropertyInTreeOrder) {
    TestFiles::write(file,
                     "an older and much longer file than the new one, of which nothing stays");
    EXPECT_EQ(exported(), "\n\ra=\n\rb=1\n\rc=2\n\rd=3\n\rpageWidth=4\n\rpageHeight=5\n\rb=second");
    EXPECT_EQ(QDir(library.path()).entryList(QDir::Files), QStringList(QFileInfo(file).fileName()));
}

TEST_F(TemplateSettingsTest, CleansTheKeyButNotTheValue) {
    const auto& node = *tmpl.properties()[1];
    tmpl.properties()[1]->setKey(QStringLiteral("x\n\ry\n\r"));
    tmpl.properties()[1]->setValue(QStringLiteral("ü\n\rz=1"));
    QStringList records;
    tmpl.exportPropertiesSettingsToArray(records, &node);
    EXPECT_EQ(records, QStringList(QStringLiteral("x|||y|||=ü\n\rz=1")));
    EXPECT_TRUE(exported().contains("\n\rx|||y|||=\xC3\xBC\n\rz=1\n\r"));
}

TEST_F(TemplateSettingsTest, AppendsTheRecordsOfOneSubtree) {
    QStringList records{QStringLiteral("before")};
    tmpl.exportPropertiesSettingsToArray(records, tmpl.properties()[0].get());
    EXPECT_EQ(records, QStringList({QStringLiteral("before"), QStringLiteral("a="),
                                    QStringLiteral("b=1"), QStringLiteral("c=2")}));
}

TEST_F(TemplateSettingsTest, LogsAFileThatCantBeWritten) {
    const RecordedLog log;
    tmpl.exportPropertiesSettingsTo(library.path() + QStringLiteral("/none/settings.txt"));
    EXPECT_EQ(log.texts().size(), 1);
}

TEST_F(TemplateSettingsTest, ReadsRecordsWithAnyLineEnd) {
    for (const QByteArray end : {"\n\r", "\r\n", "\n", "\r\r\n"}) {
        tmpl.loadTemplate(QStringLiteral("float"));
        import("b=x" + end + end + "no record" + end + "c=u?a=b" + end + "d=");
        EXPECT_EQ(value("b"), u"x") << end.toHex().constData();
        EXPECT_EQ(value("c"), u"u?a=b");
        EXPECT_EQ(value("d"), u"");
    }
}

TEST_F(TemplateSettingsTest, ReadsBackWhatItWrites) {
    const QByteArray before = exported();
    for (const char* key : {"b", "c", "d"})
        tmpl.setPropertyValue(QString::fromLatin1(key), QStringLiteral("changed"));
    tmpl.importPropertiesSettingsFrom(file);
    // Of two properties with one key the first takes both records.
    EXPECT_EQ(exported(), QByteArray(before).replace("b=1", "b=second"));
}

TEST_F(TemplateSettingsTest, KeepsThePageSize) {
    import("pageWidth=7\npageHeight=8\nd=9");
    EXPECT_EQ(value("pageWidth"), u"4");
    EXPECT_EQ(value("pageHeight"), u"5");
    EXPECT_EQ(value("d"), u"9");
}

TEST_F(TemplateSettingsTest, IgnoresUnknownKeysAndMissingFiles) {
    const QByteArray before = exported();
    import("unknown=1\n=2\n B =3\nB=4");
    tmpl.importPropertiesSettingsFrom(library.path() + QStringLiteral("/none"));
    tmpl.importPropertiesSettingsFrom(library.path());
    EXPECT_EQ(exported(), before);
}

TEST_F(TemplateSettingsTest, ReadsTextOfSeveralEncodings) {
    const QString text = QStringLiteral("b=Größe\nd=ñ");
    QByteArray utf16("\xFF\xFE");
    utf16.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    for (const QByteArray& data :
         {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), text.toLatin1(), utf16}) {
        tmpl.loadTemplate(QStringLiteral("float"));
        import(data);
        EXPECT_EQ(value("b"), QStringLiteral("Größe")) << data.toHex().constData();
        EXPECT_EQ(value("d"), QStringLiteral("ñ"));
    }
}

TEST_F(TemplateSettingsTest, ReadsRecordsAmongBinaryBytes) {
    import(QByteArray("\x00\xFF\x80\n\x01=\x02\nd=x\x00y\n\xC3", 16));
    EXPECT_EQ(value("d"), QString::fromLatin1("x\0y", 3));
}

TEST_F(TemplateSettingsTest, ResolvesTheFilesOfAStyleBeingLoaded) {
    library.addTemplate(QStringLiteral("float"), property("innerMainbgImgUrl", "", "pt_file"));
    library.addStyle(QStringLiteral("float"), QStringLiteral("Sea"),
                     "\n\rinnerMainbgImgUrl=STYLE_RESOURCE:bg.jpg");
    tmpl.loadTemplate(QStringLiteral("float"));
    const RecordedLog log;
    tmpl.loadStyleByStyleName(QStringLiteral("Sea"));
    EXPECT_EQ(value("innerMainbgImgUrl"),
              library.stylePath(QStringLiteral("float"), QStringLiteral("Sea")) +
                  QStringLiteral("/bg.jpg"));
    EXPECT_EQ(log.texts(),
              QStringList(QStringLiteral("key 0[innerMainbgImgUrl=STYLE_RESOURCE:bg.jpg]")));
}
