#include "platform/Message.h"

#include "output/PublishTransaction.h"
#include "platform/PDFDocument.h"
#include "platform/PlatformException.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTranslator>
#include <cerrno>
#include <gtest/gtest.h>

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// Speaks a language of which every word is known.
class Capitals : public QTranslator {
public:
    Capitals() { QCoreApplication::installTranslator(this); }
    ~Capitals() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* source, const char* /*comment*/,
                      int /*count*/) const override {
        return QString::fromUtf8(source).toUpper();
    }
};

} // namespace

TEST(Message, SpeaksEnglishAloneWithoutTranslations) {
    const Message message = Message::translate("Test", "the file is empty");
    EXPECT_EQ(message.english(), text("the file is empty"));
    EXPECT_EQ(message.local(), message.english());
    EXPECT_FALSE(message.isNull());
    EXPECT_TRUE(Message().isNull());
}

TEST(Message, KeepsBothLanguagesWhenItIsPutTogether) {
    const Capitals language;
    const Message inner = Message::translate("Test", "line %1: %2").arg(text("3"), text("odd %1"));
    const Message outer = Message(text("%1: %2")).arg(text("/some/%2"), inner);
    EXPECT_EQ(outer.english(), text("/some/%2: line 3: odd %1"));
    EXPECT_EQ(outer.local(), text("/some/%2: LINE 3: odd %1"));
    const Message moved = outer.replaced(text("/some"), text("/other"));
    EXPECT_EQ(englishTexts({moved}), QStringList{text("/other/%2: line 3: odd %1")});
    EXPECT_EQ(localTexts({moved}), QStringList{text("/other/%2: LINE 3: odd %1")});
}

TEST(Message, TellsErrorsOfTheSystem) {
    const Capitals language;
    const Message denied = Message::ofSystemError(EACCES);
    EXPECT_EQ(denied.english(), text("Permission denied"));
    EXPECT_EQ(denied.local(), text("PERMISSION DENIED"));
    EXPECT_EQ(Message::ofSystemError(99999).english(), text("Unknown error 99999"));
}

TEST(Message, FailuresOfReadingAndWritingHaveBothLanguages) {
    const Capitals language;
    const QTemporaryDir folder;
    const QString missing = folder.filePath(text("none.pdf"));
    try {
        PDFDocument::open(missing);
        FAIL() << "there is no such file";
    } catch (const PlatformException& failure) {
        EXPECT_EQ(failure.reason(), missing + text(": no such file"));
        EXPECT_EQ(failure.message().local(), missing + text(": NO SUCH FILE"));
    }
    try {
        PublishTransaction run(folder.path());
        run.copy(missing, folder.filePath(text("copy")), PublishTransaction::Copy::independent);
        FAIL() << "there is nothing to copy";
    } catch (const PlatformException& failure) {
        EXPECT_TRUE(failure.reason().endsWith(text(": No such file or directory")));
        EXPECT_TRUE(failure.message().local().endsWith(text(": NO SUCH FILE OR DIRECTORY")));
    }
}
