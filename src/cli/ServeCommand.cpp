#include "cli/ServeCommand.h"

#include "base/Message.h"
#include "console/CommandError.h"
#include "system/Bundle.h"
#include "system/Sandbox.h"

#include <QFile>
#include <array>
#include <unistd.h>

void runServe(Served what, const std::string& folder, std::optional<int> port, bool verbose) {
    const QString server =
        Bundle::pathForAuxiliaryExecutable(QStringLiteral("folvero-book-server"));
    std::array<QByteArray, 5> words{QFile::encodeName(server), QByteArray::fromStdString(folder),
                                    port ? QByteArray::number(*port) : "usual",
                                    what == Served::library ? "library" : "book", "verbose"};
    std::array<char*, 6> arguments{words[0].data(),
                                   words[1].data(),
                                   words[2].data(),
                                   words[3].data(),
                                   verbose ? words[4].data() : nullptr,
                                   nullptr};
    if (::access(arguments[0], X_OK) == 0) {
        // Here and not in the server: what binds this thread binds all threads of the program that
        // it executes, those that libraries start before main among them.
        Sandbox::forbidWriting();
        ::execv(arguments[0], arguments.data());
    }
    throw CommandError(QStringLiteral("%1: can't be started (%2)")
                           .arg(server, Message::ofLastSystemError().english()));
}
