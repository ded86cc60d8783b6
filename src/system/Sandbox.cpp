#include "system/Sandbox.h"

#ifdef __linux__
#include "system/FileDescriptor.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// The installed headers may be older than the kernel, so later flags are defined here.
namespace Access {
constexpr std::uint64_t readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr std::uint64_t ofFirstVersion = (std::uint64_t{1} << 13) - 1;
constexpr std::uint64_t reading =
    LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t refer = std::uint64_t{1} << 13;
constexpr std::uint64_t truncate = std::uint64_t{1} << 14;
constexpr std::uint64_t control = std::uint64_t{1} << 15;
constexpr std::uint64_t workFolder = readFile | LANDLOCK_ACCESS_FS_WRITE_FILE |
                                     LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE;
} // namespace Access

// The size passed to the kernel leaves off the members that its version lacks.
struct RulesetAttributes {
    std::uint64_t files;
    std::uint64_t network;
    std::uint64_t scope;
};

class Ruleset {
public:
    enum class Forbids { everything, writing };

    Ruleset(int version, Forbids forbids) : iTruncates(version >= 3) {
        RulesetAttributes attributes{Access::ofFirstVersion, 0, 0};
        std::size_t size = sizeof attributes.files;
        if (version >= 2)
            attributes.files |= Access::refer;
        if (version >= 3)
            attributes.files |= Access::truncate;
        if (forbids == Forbids::writing) {
            attributes.files &= ~Access::reading;
            version = 3;
        }
        if (version >= 4) {
            attributes.network = 0b11; // TCP bind and connect
            size += sizeof attributes.network;
        }
        if (version >= 5)
            attributes.files |= Access::control;
        if (version >= 6) {
            attributes.scope = 0b11; // abstract sockets, signals
            size += sizeof attributes.scope;
        }
        iDescriptor =
            FileDescriptor(int(::syscall(SYS_landlock_create_ruleset, &attributes, size, 0)));
    }

    bool allow(const QString& path, std::uint64_t access) const {
        if (iTruncates && (access & LANDLOCK_ACCESS_FS_WRITE_FILE))
            access |= Access::truncate;
        const FileDescriptor target(
            ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
        const landlock_path_beneath_attr rule{access, target.number()};
        return target.isOpen() && ::syscall(SYS_landlock_add_rule, iDescriptor.number(),
                                            LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    }

    void enforce() const { ::syscall(SYS_landlock_restrict_self, iDescriptor.number(), 0); }

private:
    FileDescriptor iDescriptor;
    bool iTruncates;
};

// Below 1 where the kernel has no Landlock.
int landlockVersion() {
    return int(::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
}

void restrictFiles(const Sandbox::Policy& policy) {
    const int version = landlockVersion();
    if (version < 1)
        return;
    const Ruleset rules(version, Ruleset::Forbids::everything);
    // A file that can't be opened now can't be opened later either, and that is reported then.
    for (const QString& file : policy.files)
        rules.allow(file, Access::readFile);
    if (!policy.workFolder.isNull())
        rules.allow(policy.workFolder, Access::workFolder);
    rules.enforce();
}

// System calls used by drawing, reading and the C library, on 64-bit and 32-bit machines. All
// others fail with ENOSYS.
constexpr std::array allowedCalls{
    // Files that are open or may be opened.
    SCMP_SYS(close), SCMP_SYS(fallocate), SCMP_SYS(fcntl64), SCMP_SYS(fsync), SCMP_SYS(ftruncate),
    SCMP_SYS(ftruncate64), SCMP_SYS(_llseek), SCMP_SYS(lseek), SCMP_SYS(open), SCMP_SYS(openat),
    SCMP_SYS(pread64), SCMP_SYS(pwrite64), SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(rename),
    SCMP_SYS(renameat), SCMP_SYS(renameat2), SCMP_SYS(unlink), SCMP_SYS(unlinkat), SCMP_SYS(write),
    SCMP_SYS(writev),
    // What is known of files.
    SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(fstat), SCMP_SYS(fstat64),
    SCMP_SYS(fstatat64), SCMP_SYS(fstatfs), SCMP_SYS(fstatfs64), SCMP_SYS(getcwd), SCMP_SYS(lstat),
    SCMP_SYS(lstat64), SCMP_SYS(newfstatat), SCMP_SYS(readlink), SCMP_SYS(readlinkat),
    SCMP_SYS(stat), SCMP_SYS(stat64), SCMP_SYS(statx),
    // Memory and threads.
    SCMP_SYS(brk), SCMP_SYS(futex), SCMP_SYS(futex_time64), SCMP_SYS(madvise), SCMP_SYS(membarrier),
    SCMP_SYS(mremap), SCMP_SYS(munmap), SCMP_SYS(rseq), SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_yield), SCMP_SYS(set_robust_list),
    // Time, waiting and signals.
    SCMP_SYS(alarm), SCMP_SYS(clock_getres), SCMP_SYS(clock_getres_time64), SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64), SCMP_SYS(clock_nanosleep), SCMP_SYS(clock_nanosleep_time64),
    SCMP_SYS(gettimeofday), SCMP_SYS(nanosleep), SCMP_SYS(poll), SCMP_SYS(ppoll),
    SCMP_SYS(ppoll_time64), SCMP_SYS(restart_syscall), SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigpending), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigsuspend), SCMP_SYS(rt_sigtimedwait), SCMP_SYS(rt_sigtimedwait_time64),
    SCMP_SYS(setitimer), SCMP_SYS(sigaltstack), SCMP_SYS(sigreturn), SCMP_SYS(time),
    // What the process knows of itself and the machine.
    SCMP_SYS(getegid), SCMP_SYS(getegid32), SCMP_SYS(geteuid), SCMP_SYS(geteuid32),
    SCMP_SYS(getgid), SCMP_SYS(getgid32), SCMP_SYS(getpid), SCMP_SYS(getrandom),
    SCMP_SYS(getrusage), SCMP_SYS(gettid), SCMP_SYS(getuid), SCMP_SYS(getuid32), SCMP_SYS(sysinfo),
    SCMP_SYS(ugetrlimit), SCMP_SYS(uname),
    // The end.
    SCMP_SYS(exit), SCMP_SYS(exit_group)};

class CallFilter {
public:
    CallFilter() : iFilter(::seccomp_init(SCMP_ACT_ERRNO(ENOSYS))) {}
    ~CallFilter() { ::seccomp_release(iFilter); }
    CallFilter(const CallFilter&) = delete;
    CallFilter& operator=(const CallFilter&) = delete;

    void enforce() {
        if (!iFilter || ::seccomp_attr_set(iFilter, SCMP_FLTATR_CTL_TSYNC, 1) != 0)
            return;
        for (const int call : allowedCalls)
            allow(call);
#ifdef FOLVERO_SANITIZED
        // Sanitizers use them to check whether memory is readable.
        allow(SCMP_SYS(pipe));
        allow(SCMP_SYS(pipe2));
#endif
        // Memory, but not executable.
        for (const int call : {SCMP_SYS(mmap), SCMP_SYS(mmap2), SCMP_SYS(mprotect)})
            allow(call, scmp_arg_cmp{2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0});
        // Threads, not processes. clone3() can't be filtered by flags; the C library falls back to
        // clone().
        allow(SCMP_SYS(clone), scmp_arg_cmp{0, SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD});
        // Reading its own limits, not setting them.
        allow(SCMP_SYS(prlimit64), scmp_arg_cmp{0, SCMP_CMP_EQ, 0, 0},
              scmp_arg_cmp{2, SCMP_CMP_EQ, 0, 0});
        // For abort().
        allow(SCMP_SYS(tgkill),
              scmp_arg_cmp{0, SCMP_CMP_EQ, static_cast<scmp_datum_t>(::getpid()), 0});
        ::seccomp_load(iFilter);
    }

private:
    // Allows a system call, or its use with these arguments (number, comparison, operands). Calls
    // that this architecture does not have are skipped.
    template <class... Conditions>
    void allow(int call, Conditions... conditions) {
        ::seccomp_rule_add(iFilter, SCMP_ACT_ALLOW, call, sizeof...(conditions), conditions...);
    }

    scmp_filter_ctx iFilter;
};

void limit(__rlimit_resource resource, std::size_t amount) {
    const rlimit limits{amount, amount};
    ::setrlimit(resource, &limits);
}

void setLimits(const Sandbox::Policy& policy) {
    constexpr std::size_t maxOpenFiles = 64;
    limit(RLIMIT_CORE, 0); // its memory contains a user's document
    limit(RLIMIT_NOFILE, maxOpenFiles);
    if (policy.fileSize != 0)
        limit(RLIMIT_FSIZE, policy.fileSize);
        // Sanitizers reserve far more address space than any limit.
#ifndef FOLVERO_SANITIZED
    if (policy.memory != 0)
        limit(RLIMIT_DATA, policy.memory);
#endif
}

// Sanitizers print their findings there.
void redirectStandardError() {
#ifndef FOLVERO_SANITIZED
    const FileDescriptor nowhere(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (nowhere.isOpen())
        ::dup2(nowhere.number(), STDERR_FILENO);
#endif
}

} // namespace

void Sandbox::enter(const Policy& policy) {
    ::tzset(); // reads the time zone file, once
    setLimits(policy);
    redirectStandardError();
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return;
    restrictFiles(policy);
    CallFilter().enforce();
}

void Sandbox::forbidWriting() {
    const int version = landlockVersion();
    if (version >= 1 && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0)
        Ruleset(version, Ruleset::Forbids::writing).enforce();
}

#else

void Sandbox::enter(const Policy& /*policy*/) {}
void Sandbox::forbidWriting() {}

#endif
