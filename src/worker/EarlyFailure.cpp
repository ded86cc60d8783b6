// Libraries start threads before main(), where their exceptions can't be caught. When no thread or
// no memory can be had, the program that started this one reports it: a page worker ends without a
// word, and without a core dump.

#include <cstdlib>
#include <exception>
#include <new>
#include <system_error>
#include <unistd.h>

namespace {

[[noreturn]] void handleTerminate() {
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::system_error&) {
        ::_exit(EXIT_FAILURE);
    } catch (const std::bad_alloc&) {
        ::_exit(EXIT_FAILURE);
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
