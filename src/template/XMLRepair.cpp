#include "template/XMLRepair.h"

#include "template/TextDecoding.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>
#include <cstdlib>
#include <future>
#include <memory>
#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>
#include <unordered_set>

namespace {

// libtidy recurses once per open element, and in malformed text any tag may stay open. So the
// number of tags bounds the recursion, and the stack is sized for it.
constexpr qsizetype maximumFileBytes = 4 << 20;
constexpr qsizetype maximumTags = 20'000;
constexpr uint stackBytes = 64U << 20;

// For some malformed texts libtidy takes quadratic time.
constexpr qint64 maximumMilliseconds = 2000;

// The allocator for one run of libtidy. It leaks nodes of some malformed texts, so whatever is left
// is freed here.
class Memory : private _TidyAllocator {
public:
    Memory() : _TidyAllocator{&functions} {}
    ~Memory() {
        for (void* block : iBlocks)
            std::free(block);
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;
    TidyAllocator* get() { return this; }

private:
    static void* allocate(TidyAllocator* self, std::size_t size) noexcept {
        return reallocate(self, nullptr, size);
    }
    // libtidy does not check for out-of-memory.
    static void* reallocate(TidyAllocator* self, void* block, std::size_t size) noexcept {
        auto& blocks = static_cast<Memory*>(self)->iBlocks;
        blocks.erase(block);
        void* moved = std::realloc(block, std::max<std::size_t>(size, 1));
        if (!moved)
            std::abort();
        blocks.insert(moved);
        return moved;
    }
    static void release(TidyAllocator* self, void* block) noexcept {
        static_cast<Memory*>(self)->iBlocks.erase(block);
        std::free(block);
    }
    [[noreturn]] static void panic(TidyAllocator* /*self*/, ctmbstr /*message*/) noexcept {
        std::abort();
    }

    static constexpr TidyAllocatorVtbl functions{allocate, reallocate, release, panic};

    std::unordered_set<void*> iBlocks;
};

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

// Feeds text to libtidy until the time is up.
class Source {
public:
    explicit Source(const QByteArray& text) : iText(text) {
        iClock.start();
        tidyInitSource(&iSource, this, &Source::next, &Source::back, &Source::atEnd);
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    TidyInputSource* get() { return &iSource; }
    bool isLate() const { return iClock.hasExpired(maximumMilliseconds); }

private:
    static int next(void* data) {
        auto& self = *static_cast<Source*>(data);
        constexpr qsizetype bytesBetweenChecks = 64;
        if (self.iPosition % bytesBetweenChecks == 0 && self.isLate())
            self.iPosition = self.iText.size();
        if (self.iPosition == self.iText.size())
            return static_cast<int>(EndOfStream);
        return static_cast<unsigned char>(self.iText[self.iPosition++]);
    }
    static void back(void* data, byte) { --static_cast<Source*>(data)->iPosition; }
    static Bool atEnd(void* data) {
        const auto& self = *static_cast<const Source*>(data);
        return self.iPosition == self.iText.size() ? yes : no;
    }

    const QByteArray iText;
    qsizetype iPosition = 0;
    QElapsedTimer iClock;
    TidyInputSource iSource{};
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

// Without this attribute at the root libtidy reflows all text.
QByteArray withSpacePreserved(const QByteArray& text) {
    static const QRegularExpression rootTag(QStringLiteral("<[\\pL_][^\\s/>]*"));
    QString result = TextDecoding::decoded(text);
    const auto match = rootTag.match(result);
    if (match.hasMatch())
        result.insert(match.capturedEnd(), QStringLiteral(" xml:space=\"preserve\""));
    return result.toUtf8();
}

QByteArray repairHere(const QByteArray& text) {
    Memory memory;
    Buffer messages;
    Buffer output;
    const struct Release {
        void operator()(const _TidyDoc* document) const { tidyRelease(document); }
    } release;
    const std::unique_ptr<const _TidyDoc, Release> document(tidyCreateWithAllocator(memory.get()),
                                                            release);
    setOptions(document.get());
    tidySetErrorBuffer(document.get(), messages.get());
    Source source(withSpacePreserved(text));
    if (tidyParseSource(document.get(), source.get()) < 0 || source.isLate() ||
        tidySaveBuffer(document.get(), output.get()) < 0)
        return {};
    return output.bytes();
}

} // namespace

QByteArray XMLRepair::repaired(const QByteArray& text) {
    if (text.size() > maximumFileBytes || text.count('<') > maximumTags)
        return {};
    std::packaged_task<QByteArray()> repair([&] { return repairHere(text); });
    auto result = repair.get_future();
    const std::unique_ptr<QThread> thread(QThread::create(std::ref(repair)));
    thread->setStackSize(stackBytes);
    thread->start();
    thread->wait();
    // Not when there was no memory for the stack.
    const bool hasRun = result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    return hasRun ? result.get() : QByteArray();
}
