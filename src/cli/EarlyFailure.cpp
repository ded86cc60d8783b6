// Libraries start threads before main(), where their exceptions can't be caught. On a system that
// has no more processes or memory to give, that is no crash: trying again may help.

#include "console/ExitCode.h"

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>
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
            end("folvero: no further process or thread can be started\n");
    } catch (const std::bad_alloc&) {
        end("folvero: there is not enough memory\n");
    } catch (...) {
        std::abort();
    }
    std::abort();
}

void setHandler() {
    std::set_terminate(handleTerminate);
}

// Runs before the constructors of libraries.
[[gnu::section(".preinit_array"), gnu::used]] void (*beforeLibraries)() = setHandler;

} // namespace
