#include "Fuzz.h"

#include "support/TemplateLibrary.h"

#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

// Freed memory is overwritten, so that libraries that are built without a sanitizer don't get away
// with reading it.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "max_free_fill_size=4096:quarantine_size_mb=64:allocator_may_return_null=1";
}

extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}

void Fuzz::require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "PROPERTY BROKEN: %s\n", property);
    std::abort();
}

unsigned Fuzz::Input::byte() {
    const QByteArray taken = bytes(1);
    return taken.isEmpty() ? 0 : static_cast<unsigned char>(taken[0]);
}

QByteArray Fuzz::Input::bytes(qsizetype atMost) {
    const QByteArray taken = iLeft.left(atMost);
    iLeft.remove(0, taken.size());
    return taken;
}

QString Fuzz::fileWith(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath("input");
    TestFiles::write(path, Input(data, size).rest());
    return path;
}
