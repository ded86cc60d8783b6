#include "base/Message.h"

#include "pdf/PDFReader.h"
#include "support/FailureOf.h"
#include "support/Program.h"

#include <QCoreApplication>
#include <QTranslator>
#include <cerrno>
#include <gtest/gtest.h>

namespace {

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

TEST(Message, KeepsBothLanguagesWhenItIsPutTogether) {
    const Capitals language;
    const Message inner = Message::translate("Test", "line %1: %2").arg("3", "odd %1");
    const Message outer = Message("%1: %2").arg("/some/%2", inner);
    EXPECT_EQ(englishTexts({outer}), QStringList{"/some/%2: line 3: odd %1"});
    EXPECT_EQ(localTexts({outer}), QStringList{"/some/%2: LINE 3: odd %1"});
}

TEST(Message, NamesErrorsOfTheSystem) {
    const Capitals language;
    const Message denied = Message::ofSystemError(EACCES);
    EXPECT_EQ(denied.english(), "Permission denied");
    EXPECT_EQ(denied.local(), "PERMISSION DENIED");
    EXPECT_EQ(Message::ofSystemError(99999).english(), "Unknown error 99999");
}

// They come from another process, which speaks English.
TEST(Message, FailuresOfReadingHaveBothLanguages) {
    const Capitals language;
    const QString path = Program::sample("not-a-pdf.pdf");
    const auto reading = failureOf([&] { PDFReader::open(path); });
    EXPECT_EQ(reading.message.english(), path + ": is not a PDF document");
    EXPECT_EQ(reading.message.local(), path + ": IS NOT A PDF DOCUMENT");
}
