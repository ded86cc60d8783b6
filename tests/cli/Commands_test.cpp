#include "support/Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QJsonDocument json(const QStringList& arguments) {
    const auto result = Program::run(arguments + QStringList{QStringLiteral("--json")});
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    QJsonParseError error{};
    const auto document = QJsonDocument::fromJson(result.output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    return document;
}

QJsonObject info(const QString& sample) {
    return json({QStringLiteral("info"), Program::sample(sample)}).object();
}

// "title:page" of every entry, with children in brackets.
QString outlineText(const QJsonArray& entries) {
    QStringList texts;
    for (const auto& value : entries) {
        const QJsonObject entry = value.toObject();
        QString text = entry[QStringLiteral("title")].toString() + u':' +
                       QString::number(entry[QStringLiteral("page")].toInt(-1));
        const QJsonArray children = entry[QStringLiteral("children")].toArray();
        if (!children.isEmpty())
            text += u'[' + outlineText(children) + u']';
        texts << text;
    }
    return texts.join(QStringLiteral("; "));
}

// Finds a property at any depth.
QJsonObject property(const QJsonArray& properties, const QString& key) {
    for (const auto& value : properties) {
        const QJsonObject object = value.toObject();
        if (object[QStringLiteral("key")].toString() == key)
            return object;
        const auto found = property(object[QStringLiteral("properties")].toArray(), key);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

} // namespace

TEST(InfoCommand, TellsRotationsAndTheSizesAsShown) {
    const QJsonArray pages = info(QStringLiteral("rotated.pdf"))[QStringLiteral("pages")].toArray();
    const int rotations[] = {0, 90, 180, 270, 45, 270, 90};
    ASSERT_EQ(pages.size(), 7);
    for (int i = 0; i < 7; ++i) {
        SCOPED_TRACE(i + 1);
        const QJsonObject page = pages[i].toObject();
        EXPECT_EQ(page[QStringLiteral("rotation")].toInt(), rotations[i]);
        const bool turned = rotations[i] % 180 != 0; // the engine rounds 45 up
        EXPECT_EQ(page[QStringLiteral("width")].toDouble(), turned ? 600 : 400);
    }
}

TEST(InfoCommand, GivesAnUnreadablePageNoMeasures) {
    const QJsonArray pages =
        info(QStringLiteral("damaged-page.pdf"))[QStringLiteral("pages")].toArray();
    EXPECT_EQ(pages[2].toObject().keys().join(u' '), u"error links number");
}

TEST(InfoCommand, ListsTheLinksThatLeadSomewhere) {
    const QJsonArray pages = info(QStringLiteral("links.pdf"))[QStringLiteral("pages")].toArray();
    const QJsonArray links = pages[0].toObject()[QStringLiteral("links")].toArray();
    QStringList targets;
    for (const auto& value : links) {
        const QJsonObject link = value.toObject();
        targets << (link.contains(QStringLiteral("url"))
                        ? link[QStringLiteral("url")].toString()
                        : QString::number(link[QStringLiteral("page")].toInt()));
    }
    const QString web = QStringLiteral("https://www.example.org/books?page=1&size=2");
    EXPECT_EQ(targets.join(u' '), web + QStringLiteral(" 2 2 3 3 ") + web +
                                      QStringLiteral(" mailto:reader@example.org"));
    const QJsonObject first = links[0].toObject();
    EXPECT_EQ(first[QStringLiteral("x")].toDouble(), 60);
    EXPECT_EQ(first[QStringLiteral("y")].toDouble(), 660);
    EXPECT_EQ(first[QStringLiteral("width")].toDouble(), 120);
    EXPECT_EQ(first[QStringLiteral("height")].toDouble(), 40);
    EXPECT_TRUE(pages[1].toObject()[QStringLiteral("links")].toArray().isEmpty());
}

TEST(InfoCommand, ShowsTheOutlineWithItsDepth) {
    EXPECT_EQ(outlineText(info(QStringLiteral("outline.pdf"))[QStringLiteral("outline")].toArray())
                  .toStdString(),
              "Preface:1; 1 Größe, 大きさ & <more>:3[1.1 A section:4[1.1.1 Details:5]; 1.2 By "
              "action:6]; Without a destination:-1; Appendix, by name:9");
}

TEST(TemplatesCommand, ListsStylesAndTypedProperties) {
    const QJsonArray templates = json({QStringLiteral("templates")}).array();
    EXPECT_GE(templates.size(), 5);
    QJsonObject tmpl;
    for (const auto& value : templates)
        if (value.toObject()[QStringLiteral("name")].toString() == QStringLiteral("float"))
            tmpl = value.toObject();
    EXPECT_TRUE(tmpl[QStringLiteral("styles")].toArray().contains(QStringLiteral("Blank")));
    const QJsonArray properties = tmpl[QStringLiteral("properties")].toArray();
    const QJsonObject show = property(properties, QStringLiteral("InitialShow"));
    EXPECT_TRUE(show[QStringLiteral("choices")].toArray().contains(QStringLiteral("Rise")));
    EXPECT_EQ(property(properties, QStringLiteral("mainColor"))[QStringLiteral("type")].toString(),
              QStringLiteral("pt_color"));
}

TEST(DecodeCommand, ShowsTheConfigurationOfABook) {
    const QTemporaryDir folder;
    ASSERT_EQ(Program::run({QStringLiteral("publish"),
                            Program::sample(QStringLiteral("outline.pdf")), folder.path()})
                  .exitCode,
              0);
    const QJsonObject root = json({QStringLiteral("decode"), folder.path()}).object();
    ASSERT_EQ(root.size(), 1);
    const QByteArray text = QJsonDocument(root).toJson();
    EXPECT_TRUE(text.contains("page/9.jpg")) << text.constData();
    const auto xml = Program::run({QStringLiteral("decode"), folder.path()});
    EXPECT_TRUE(xml.output.contains("<InitialShow>Rise</InitialShow>"));
}

TEST(Commands, GiveTheTerminalNoOrdersOfADocument) {
    const QString command =
        QStringLiteral("'%1' info '%2'")
            .arg(Program::path(), Program::sample(QStringLiteral("hostile.pdf")));
    const auto shown = Program::runOther(
        QStringLiteral("script"), {QStringLiteral("-qec"), command, QStringLiteral("/dev/null")});
    EXPECT_TRUE(shown.output.contains("taken over")) << shown.output.constData();
    EXPECT_FALSE(shown.output.contains('\x1b'));
    EXPECT_FALSE(shown.output.contains('\a'));
    const auto piped =
        Program::runOther(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
    EXPECT_TRUE(piped.output.contains("\x1b]0;taken over\a"));
}

TEST(Commands, FailWhenTheirOutputCannotBeWritten) {
    EXPECT_EQ(Program::runOther(QStringLiteral("/bin/sh"),
                                {QStringLiteral("-c"),
                                 QStringLiteral("\"$0\" templates >/dev/full"), Program::path()})
                  .exitCode,
              1);
}

TEST(Commands, ExplainACommandLineThatIsNotUnderstood) {
    const struct {
        QStringList arguments;
        const char* words;
    } cases[] = {
        {{}, "a command is needed; see folvero --help"},
        {{QStringLiteral("bind")}, "no command bind; see folvero --help"},
        {{QStringLiteral("publish")}, "PDF is required; see folvero publish --help"},
        {{QStringLiteral("info"), QStringLiteral("a"), QStringLiteral("b")}, "not expected: b"},
    };
    for (const auto& item : cases) {
        const auto result = Program::run(item.arguments);
        SCOPED_TRACE(result.errors.constData());
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(result.errors.contains(item.words));
        EXPECT_EQ(result.errors.count('\n'), 1);
    }
}
