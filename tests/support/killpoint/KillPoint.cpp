// A library to be loaded before a program with LD_PRELOAD: kills it right before the call, of those
// that change files, whose number FOLVERO_KILL_AT says, and adds each such call to the file that
// FOLVERO_KILL_LOG names. Counts the calls of all threads together, but none of other processes
// that the program starts, and none of the browser in it.

#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

pid_t program = 0; // 0 before the program has begun
long killAt = 0;
int logFile = -1;
std::atomic<long> count{0};

bool isOfBrowser(const char* path) {
    for (const char* part : {"/dev/", "/proc/", "chromium", "Chromium", "/.pki", "memfd"}) {
        if (std::strstr(path, part))
            return true;
    }
    return false;
}

void log(const char* call, const char* path) {
    char line[1024];
    const int size = std::snprintf(line, sizeof line, "%s %s\n", call, path);
    if (size > 0 && logFile >= 0) [[maybe_unused]]
        const auto written = ::write(logFile, line, std::strlen(line));
}

void pass(const char* call, const char* path) {
    if (program != ::getpid() || isOfBrowser(path))
        return;
    log(call, path);
    if (++count == killAt)
        ::kill(program, SIGKILL);
}

template <typename Function>
Function next(Function /*own*/, const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool creates(int flags) {
    return (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE;
}

__attribute__((constructor)) void begin() {
    const char* at = std::getenv("FOLVERO_KILL_AT");
    const char* file = std::getenv("FOLVERO_KILL_LOG");
    if (!at || !file)
        return;
    killAt = std::atol(at);
    logFile = ::open(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    ::unsetenv("LD_PRELOAD");
    ::unsetenv("FOLVERO_KILL_AT");
    program = ::getpid();
}

} // namespace

#define PASS(name, path, ...)                                                                      \
    pass(#name, path);                                                                             \
    static const auto original = next(&name, #name);                                               \
    return original(__VA_ARGS__)

#define FOPEN(name)                                                                                \
    FILE* name(const char* path, const char* mode) {                                               \
        if (mode[0] == 'w')                                                                        \
            pass(#name, path);                                                                     \
        static const auto original = next(&name, #name);                                           \
        return original(path, mode);                                                               \
    }

// The mode is there only where a file is created.
#define OPENING(name, parameters, ...)                                                             \
    int name parameters {                                                                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = creates(flags) ? va_arg(rest, mode_t) : 0;                             \
        va_end(rest);                                                                              \
        if (creates(flags))                                                                        \
            pass(#name, path);                                                                     \
        static const auto original = next(&name, #name);                                           \
        return original(__VA_ARGS__, flags, mode);                                                 \
    }

#define OPEN(name) OPENING(name, (const char* path, int flags, ...), path)
#define OPENAT(name) OPENING(name, (int folder, const char* path, int flags, ...), folder, path)

extern "C" {

int rename(const char* from, const char* to) noexcept {
    PASS(rename, to, from, to);
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    PASS(renameat, to, fromFolder, from, toFolder, to);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    PASS(renameat2, to, fromFolder, from, toFolder, to, flags);
}
int link(const char* from, const char* to) noexcept {
    PASS(link, to, from, to);
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    PASS(linkat, to, fromFolder, from, toFolder, to, flags);
}
int symlink(const char* target, const char* path) noexcept {
    PASS(symlink, path, target, path);
}
int unlink(const char* path) noexcept {
    PASS(unlink, path, path);
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    PASS(unlinkat, path, folder, path, flags);
}
int rmdir(const char* path) noexcept {
    PASS(rmdir, path, path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    PASS(mkdir, path, path, mode);
}
int mkdirat(int folder, const char* path, mode_t mode) noexcept {
    PASS(mkdirat, path, folder, path, mode);
}
int fsync(int file) {
    PASS(fsync, "", file);
}
int fdatasync(int file) {
    PASS(fdatasync, "", file);
}

char* mkdtemp(char* path) noexcept {
    pass("mkdtemp", path);
    static const auto original = next(&mkdtemp, "mkdtemp");
    char* const made = original(path);
    if (made && program == ::getpid())
        log("made", made);
    return made;
}

FOPEN(fopen)
FOPEN(fopen64)
OPEN(open)
OPEN(open64)
OPENAT(openat)
OPENAT(openat64)

} // extern "C"
