#include "template/XMLRepair.h"

#include "template/TextDecoding.h"

#include <QRegularExpression>
#include <QThread>
#include <memory>
#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>

namespace {

// The library recurses once per open element, and in malformed text any tag may stay open. The
// number of tags therefore bounds the recursion, and the stack is made to fit it.
constexpr qsizetype maximumBytes = 4 << 20;
constexpr qsizetype maximumTags = 20'000;
constexpr uint stackBytes = 64U << 20;

class Buffer {
public:
    Buffer() { tidyBufInit(&iBuffer); }
    ~Buffer() { tidyBufFree(&iBuffer); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    TidyBuffer* get() { return &iBuffer; }
    QByteArray bytes() const {
        return QByteArray(reinterpret_cast<const char*>(iBuffer.bp), iBuffer.size);
    }

private:
    TidyBuffer iBuffer{};
};

void setOptions(TidyDoc document) {
    tidyOptSetBool(document, TidyXmlTags, yes);
    tidyOptSetBool(document, TidyXmlOut, yes);
    tidyOptSetBool(document, TidyForceOutput, yes);
    tidyOptSetBool(document, TidyMark, no);
    tidyOptSetInt(document, TidyWrapLen, 0);
    tidyOptSetInt(document, TidyVertSpace, TidyAutoState);
    tidyOptSetBool(document, TidyKeepTabs, yes);
    tidyOptSetValue(document, TidyNewline, "LF");
    tidySetCharEncoding(document, "utf8");
}

// Without this attribute at the root the library reflows all text.
QByteArray withSpacePreserved(const QByteArray& text) {
    static const QRegularExpression rootTag(QStringLiteral("<[\\pL_][^\\s/>]*"));
    QString result = TextDecoding::decoded(text);
    const auto match = rootTag.match(result);
    if (match.hasMatch())
        result.insert(match.capturedEnd(), QStringLiteral(" xml:space=\"preserve\""));
    return result.toUtf8();
}

QByteArray repairHere(const QByteArray& text) {
    Buffer messages;
    Buffer output;
    const struct Release {
        void operator()(const _TidyDoc* document) const { tidyRelease(document); }
    } release;
    const std::unique_ptr<const _TidyDoc, Release> document(tidyCreate(), release);
    setOptions(document.get());
    tidySetErrorBuffer(document.get(), messages.get());
    if (tidyParseString(document.get(), withSpacePreserved(text).constData()) < 0 ||
        tidySaveBuffer(document.get(), output.get()) < 0)
        return {};
    return output.bytes();
}

} // namespace

QByteArray XMLRepair::repaired(const QByteArray& text) {
    if (text.size() > maximumBytes || text.count('<') > maximumTags)
        return {};
    QByteArray result;
    const std::unique_ptr<QThread> thread(
        QThread::create([&result, &text] { result = repairHere(text); }));
    thread->setStackSize(stackBytes);
    thread->start();
    thread->wait();
    return result;
}
