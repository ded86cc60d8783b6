// A page worker that misbehaves: it stands in for a PDF engine that a hostile page has broken or
// taken over. In place of a PDF it is given a text file with lines "PAGE DEED", or "opening DEED"
// for what opening it does; pages without a deed are "drawn" into a file of a few bytes. It is
// behind the same walls as the real one.
//
// A deed that breaks the worker never answers. One that reaches for something forbidden answers
// "ok" when it got there, and "fail REASON" when the system stopped it.

#include "worker/WorkerSandbox.h"

#include <QByteArrayList>
#include <QFile>
#include <QString>
#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::map<std::string, std::string> readDeeds(const char* path) {
    std::map<std::string, std::string> deeds;
    std::ifstream file(path);
    for (std::string page, deed; file >> page >> deed;)
        deeds[page] = deed;
    return deeds;
}

// Far more than a worker may have; then it gives up, so that a missing limit shows as a drawn page.
bool allocateWithoutEnd() {
    constexpr std::size_t chunk = std::size_t{64} << 20;
    constexpr std::size_t mostChunks = 6 * 16;
    std::vector<char*> held;
    for (std::size_t i = 0; i < mostChunks; ++i) {
        held.push_back(new char[chunk]);
        std::memset(held.back(), 1, chunk);
    }
    return true;
}

[[gnu::noinline]] int recurseWithoutEnd(int depth) {
    char frame[4096];
    std::memset(frame, depth, sizeof frame);
    asm volatile("" : : "r"(frame) : "memory"); // keeps the frame
    return depth < 0 ? 0 : recurseWithoutEnd(depth + 1) + frame[0];
}

bool connectOut() {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
    return socket >= 0;
}

bool opens(const char* path, int flags) {
    return ::open(path, flags, 0600) >= 0;
}

bool startProcess() {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return child > 0;
}

bool mapsCode() {
    return ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS,
                  -1, 0) != MAP_FAILED;
}

bool perform(const std::string& deed, const std::string& folder) {
    if (deed == "crash")
        return ::raise(SIGSEGV) == 0;
    if (deed == "loop") {
        for (;;)
            asm volatile("");
    }
    if (deed == "allocate")
        return allocateWithoutEnd();
    if (deed == "recurse")
        return recurseWithoutEnd(0) != 0;
    if (deed == "exit")
        std::_Exit(127); // as if it could not be run
    if (deed == "trickle") {
        for (;; ::usleep(5000))
            std::cout << 'x' << std::flush;
    }
    if (deed == "babble") {
        for (;;)
            std::cout << std::string(1 << 16, 'x') << std::flush;
    }
    if (deed == "connect")
        return connectOut();
    if (deed == "read-outside")
        return opens("/etc/passwd", O_RDONLY);
    if (deed == "write-outside")
        return opens((folder + "/../outside").c_str(), O_WRONLY | O_CREAT);
    if (deed == "link-outside")
        return ::symlink("/etc/passwd", (folder + "/1.jpg").c_str()) == 0;
    if (deed == "fork")
        return startProcess();
    if (deed == "execute")
        return ::execl("/bin/true", "true", nullptr) == 0;
    if (deed == "map-code")
        return mapsCode();
    if (deed == "kill-parent")
        return ::kill(::getppid(), 0) == 0;
    if (deed == "trace-parent")
        return ::ptrace(PTRACE_SEIZE, ::getppid(), nullptr, nullptr) == 0;
    std::cerr << "no such deed: " << deed << '\n';
    std::exit(2);
}

void draw(const std::string& page, const std::string& folder) {
    std::ofstream(folder + '/' + page + ".jpg") << "drawn";
}

} // namespace

int main() {
    std::string line;
    std::getline(std::cin, line);
    const QByteArrayList order = QByteArray::fromStdString(line).split(' ');
    const QByteArray file = QByteArray::fromBase64(order.value(0));
    const std::string folder = QByteArray::fromBase64(order.value(1)).toStdString();
    const auto deeds = readDeeds(file.constData());
    enterWorkerSandbox(QFile::decodeName(file), QFile::decodeName(folder.c_str()));
    if (const auto deed = deeds.find("opening"); deed != deeds.end())
        perform(deed->second, folder);
    std::cout << "ready" << std::endl;
    for (std::string page; std::getline(std::cin, page);) {
        const auto deed = deeds.find(page);
        errno = 0;
        if (deed != deeds.end() && !perform(deed->second, folder)) {
            std::cout << "fail " << std::strerror(errno) << std::endl;
            continue;
        }
        draw(page, folder);
        std::cout << "ok 0 0 0" << std::endl;
    }
    return 0;
}
