// The page worker: handles PDFs for a program that does not open the files itself. See
// DrawService.h, ReadService.h and MergeService.h for the protocol.

#include "worker/DrawService.h"
#include "worker/MergeService.h"
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
    // Closes descriptors inherited from the program that started this one.
    ::closefrom(STDERR_FILENO + 1);
    try {
        if (service == "draw" && argc == 2) {
            serveDrawing();
        } else if (service == "read" && argc == 3) {
            serveReading(arguments[2]);
        } else if (service == "merge" && argc == 3) {
            serveMerging(arguments[2]);
        } else {
            std::cerr << "usage: folvero-page-worker draw\n"
                         "       folvero-page-worker read PDF\n"
                         "       folvero-page-worker merge OUTPUT\n";
            return 2;
        }
    } catch (const std::exception& failure) {
        std::cerr << "folvero-page-worker: " << failure.what() << '\n';
        return 1;
    }
    // The kernel frees the memory, and in the sandbox no sanitizer can look for leaks.
    std::_Exit(0);
}
