// A page worker that misbehaves: it stands in for a PDF engine that a hostile page has broken or
// taken over. In place of a PDF it is given a text file with lines "PAGE DEED", or "opening DEED"
// for what opening it does; pages without a deed are "drawn" into a file of a few bytes. It is
// in the same sandbox as the real one.
//
// A deed that breaks the worker never answers. One that reaches for something forbidden answers
// "ok" when it got there, and "fail REASON" when the system stopped it.

#include "worker/WorkerSandbox.h"

#include <QByteArrayList>
#include <QFile>
#include <QString>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

std::map<std::string, std::string> readDeeds(const char* path) {
    std::map<std::string, std::string> deeds;
    std::ifstream file(path);
    for (std::string page, deed; file >> page >> deed;)
        deeds[page] = deed;
    return deeds;
}

[[gnu::noinline]] int recurseWithoutEnd(int depth) {
    char frame[4096];
    std::memset(frame, depth, sizeof frame);
    asm volatile("" : : "r"(frame) : "memory"); // keeps the frame
    return depth < 0 ? 0 : recurseWithoutEnd(depth + 1) + frame[0];
}

bool writeWithoutEnd(const std::string& text, unsigned pauseMicroseconds) {
    for (;; ::usleep(pauseMicroseconds))
        std::cout << text << std::flush;
}

bool opens(const std::string& path, int flags) {
    return ::open(path.c_str(), flags, 0600) >= 0;
}

bool grows(const std::string& path, off_t size) {
    return ::ftruncate(::open(path.c_str(), O_WRONLY | O_CREAT, 0600), size) == 0;
}

bool startProcess() {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return child > 0;
}

// Nothing is written there, so that neither the machine's memory nor time ends it.
bool maps(std::size_t size, int furtherAccess = 0) {
    return ::mmap(nullptr, size, PROT_READ | PROT_WRITE | furtherAccess,
                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) != MAP_FAILED;
}

// Deeds by name. They get the work folder, and return whether they did what they are called.
const std::map<std::string, std::function<bool(const std::string&)>> known = {
    {"crash", [](auto&) { return ::raise(SIGSEGV) == 0; }},
    {"loop",
     [](auto&) -> bool {
         for (;;)
             asm volatile("");
     }},
    {"allocate", [](auto&) { return maps(std::size_t{6} << 30); }},
    {"grow", [](auto& folder) { return grows(folder + "/large.jpg", off_t{1} << 30); }},
    {"litter",
     [](auto& folder) {
         for (int i = 0;; ++i)
             ::close(::open((folder + '/' + std::to_string(i)).c_str(), O_WRONLY | O_CREAT, 0600));
         return true;
     }},
    {"recurse", [](auto&) { return recurseWithoutEnd(0) != 0; }},
    {"exit", [](auto&) -> bool { std::_Exit(127); }}, // as if it could not be run
    {"trickle", [](auto&) { return writeWithoutEnd("x", 5000); }},
    {"babble", [](auto&) { return writeWithoutEnd(std::string(1 << 16, 'x'), 0); }},
    {"connect", [](auto&) { return ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0) >= 0; }},
    {"read-outside", [](auto&) { return opens("/etc/passwd", O_RDONLY); }},
    {"write-outside",
     [](auto& folder) { return opens(folder + "/../outside", O_WRONLY | O_CREAT); }},
    {"overwrite",
     [](auto& folder) {
         return grows(folder + "/draft", 1) && opens(folder + "/draft", O_WRONLY | O_TRUNC);
     }},
    {"link-outside",
     [](auto& folder) { return ::symlink("/etc/passwd", (folder + "/1.jpg").c_str()) == 0; }},
    {"fork", [](auto&) { return startProcess(); }},
    {"execute", [](auto&) { return ::execl("/bin/true", "true", nullptr) == 0; }},
    {"map-code", [](auto&) { return maps(4096, PROT_EXEC); }},
    {"kill-parent", [](auto&) { return ::kill(::getppid(), 0) == 0; }},
    {"trace-parent",
     [](auto&) { return ::ptrace(PTRACE_SEIZE, ::getppid(), nullptr, nullptr) == 0; }},
};

} // namespace

int main() {
    std::string line;
    std::getline(std::cin, line);
    const QByteArrayList order = QByteArray::fromStdString(line).split(' ');
    const QByteArray file = QByteArray::fromBase64(order.value(0));
    const std::string folder = QByteArray::fromBase64(order.value(1)).toStdString();
    const auto deeds = readDeeds(file.constData());
    enterWorkerSandbox({QFile::decodeName(file)}, QFile::decodeName(folder.c_str()));
    if (const auto deed = deeds.find("opening"); deed != deeds.end())
        known.at(deed->second)(folder);
    std::cout << "ready" << std::endl;
    for (std::string page; std::getline(std::cin, page);) {
        const auto deed = deeds.find(page);
        errno = 0;
        if (deed != deeds.end() && !known.at(deed->second)(folder)) {
            std::cout << "fail " << std::strerror(errno) << std::endl;
            continue;
        }
        std::ofstream(folder + '/' + page + ".jpg") << "drawn";
        std::cout << "ok 0 0 0" << std::endl;
    }
    return 0;
}
