#include "cli/ServeCommand.h"

#include "base/Message.h"
#include "console/CommandError.h"
#include "system/Bundle.h"

#include <QFile>
#include <array>
#include <unistd.h>

void runServe(const std::string& folder, std::optional<int> port, bool verbose) {
    const QString server =
        Bundle::pathForAuxiliaryExecutable(QStringLiteral("folvero-book-server"));
    std::array<QByteArray, 4> words{QFile::encodeName(server), QByteArray::fromStdString(folder),
                                    port ? QByteArray::number(*port) : "usual", "verbose"};
    std::array<char*, 5> arguments{words[0].data(), words[1].data(), words[2].data(),
                                   verbose ? words[3].data() : nullptr, nullptr};
    ::execv(arguments[0], arguments.data());
    throw CommandError(QStringLiteral("%1: can't be started (%2)")
                           .arg(server, Message::ofLastSystemError().english()));
}
