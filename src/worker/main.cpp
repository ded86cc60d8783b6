// The page worker: works on one PDF for a program that does not touch the file itself. What it can
// be asked stands in DrawService.h and ReadService.h.

#include "worker/DrawService.h"
#include "worker/ReadService.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <span>
#include <string_view>
#include <unistd.h>

int main(int argc, char** argv) {
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const std::string_view service = argc > 1 ? arguments[1] : "";
    // Whatever the program that starts this one holds open is none of its business.
    ::closefrom(STDERR_FILENO + 1);
    try {
        if (service == "draw" && argc == 2) {
            serveDrawing();
        } else if (service == "read" && argc == 3) {
            serveReading(arguments[2]);
        } else {
            std::cerr << "usage: folvero-page-worker draw\n"
                         "       folvero-page-worker read PDF\n";
            return 2;
        }
    } catch (const std::exception& failure) {
        std::cerr << "folvero-page-worker: " << failure.what() << '\n';
        return 1;
    }
    // Clearing memory away is the system's work, and behind the walls no sanitizer can look for
    // leaks in it.
    std::_Exit(0);
}
