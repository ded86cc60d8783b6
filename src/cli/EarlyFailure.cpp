// Libraries start threads before main(), where their exceptions can't be caught. On a system that
// has no more processes or memory to give, that is no crash: trying again may help. Limits that are
// too narrow for any document are an error from the start: beyond the stack's is a crash, and
// beyond that of open files nothing can be cleaned up.

#include "console/ExitCode.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>
#include <sys/resource.h>
#include <system_error>
#include <unistd.h>

namespace {

[[noreturn]] void end(std::string_view message) {
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, message.data(), message.size());
    ::_exit(int(ExitCode::tryAgain));
}

[[noreturn]] void handleTerminate() {
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::system_error& failure) {
        if (failure.code() == std::errc::resource_unavailable_try_again)
            end("folvero: no further process or thread can be started, or there is no memory for "
                "it\n");
    } catch (const std::bad_alloc&) {
        end("folvero: there is not enough memory\n");
    } catch (...) {
        std::abort();
    }
    std::abort();
}

// Raises a limit as far as the system allows. Page workers inherit it.
void require(int resource, rlim_t least, rlim_t wanted, std::string_view message) {
    rlimit limit{};
    if (::getrlimit(__rlimit_resource(resource), &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    ::setrlimit(__rlimit_resource(resource), &limit);
    if (limit.rlim_cur < least)
        end(message);
}

void prepare() {
    std::set_terminate(handleTerminate);
    constexpr rlim_t kilobyte = 1024;
    require(RLIMIT_STACK, 512 * kilobyte, 8192 * kilobyte,
            "folvero: the stack is limited too much (ulimit -s): at least 512 kB are needed\n");
    require(RLIMIT_NOFILE, 64, 1024,
            "folvero: too few files may be open (ulimit -n): at least 64 are needed\n");
}

// Runs before the constructors of libraries.
[[gnu::section(".preinit_array"), gnu::used]] void (*beforeLibraries)() = prepare;

} // namespace
