#include "fuzz/Fuzz.h"

#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

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

Fuzz::MemoryFile::MemoryFile() : iDescriptor(::memfd_create("folvero-fuzz", MFD_CLOEXEC)) {
    require(iDescriptor >= 0, "a file in memory can be made");
}

Fuzz::MemoryFile::~MemoryFile() {
    ::close(iDescriptor);
}

QString Fuzz::MemoryFile::path() const {
    return QStringLiteral("/proc/self/fd/%1").arg(iDescriptor);
}

void Fuzz::MemoryFile::write(const std::uint8_t* data, std::size_t size) {
    const bool done = ::ftruncate(iDescriptor, 0) == 0 &&
                      ::pwrite(iDescriptor, data, size, 0) == static_cast<ssize_t>(size);
    require(done, "the file in memory can be written");
}
