#pragma once

#include <QByteArrayList>
#include <sys/types.h>
#include <vector>

// What a program has started.
namespace ChildProcesses {

// All that run now.
std::vector<pid_t> of(qint64 program);

// Its page workers that do that service now ("draw" or "read").
std::vector<pid_t> running(const QByteArray& service, qint64 program);

// The words of a process's command line; none once it has ended.
QByteArrayList command(pid_t process);

} // namespace ChildProcesses
