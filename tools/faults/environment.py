"""Other languages and time zones, narrow limits of the system, and streams and folders that are not there."""

import os
import re
import shutil
import signal
import subprocess

from .bench import DONE, TEMPORARY, faults_of, files_of, leftovers_in, run

FAILED = 1
NOBODY = 65534
NOT_STARTED = re.compile("error while loading shared libraries|Cannot allocate memory|Argument list too long")
LOCALES = {"tr_TR.UTF-8": "UTF-8", "de_DE.ISO-8859-1": "ISO-8859-1", "ar_EG.UTF-8": "UTF-8", "ja_JP.EUC-JP": "EUC-JP"}


def make_locales(folder):
    """Compiles the locales of the C library that few machines have. Without their sources only Qt knows them."""
    folder.mkdir()
    for name, encoding in LOCALES.items():
        if shutil.which("localedef"):
            subprocess.run(["localedef", "-i", name.split(".")[0], "-f", encoding, str(folder / name)],
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return str(folder)


def environments(bench):
    usual = {key: value for key, value in os.environ.items() if not re.match("LANG|LC_|TZ$|LOCPATH", key)}
    compiled = {"LOCPATH": make_locales(bench.work / "locales")}
    languages = ["C", "POSIX", "xx_YY.UTF-8", "no such locale", *LOCALES]
    found = {f"LC_ALL={name}": {**usual, **compiled, "LC_ALL": name} for name in languages}
    for zone in ("Asia/Kathmandu", "America/St_Johns", "Pacific/Apia", ":/dev/zero", "UTC+99:99:99", "no zone", ""):
        found[f"TZ={zone}"] = {**usual, "TZ": zone}
    found["empty environment"] = {}
    found["HOME unset"] = {key: value for key, value in usual.items() if key != "HOME"}
    found["HOME missing"] = {**usual, "HOME": "/no such folder"}
    found["XDG_RUNTIME_DIR missing"] = {**usual, "XDG_RUNTIME_DIR": "/no such folder"}
    return found


def check_locales(context, tally):
    """The same book byte for byte, whatever the environment. Its title and folder have letters beyond ASCII."""
    for bench in context.benches(1):
        expected = None
        for name, environment in {"usual": dict(os.environ), **environments(bench)}.items():
            book = bench.work / "Büşıİ"
            shutil.rmtree(book, ignore_errors=True)
            command = [*bench.command(title="Iİıi ß 日本 ١٢")[:-1], str(book)]
            result = run(command, env=environment)
            files = files_of(book) if book.exists() else {}
            expected = expected or files
            wrong = faults_of(result, (DONE,))
            wrong |= {"another book"} if files != expected else set()
            wrong |= {"a message"} if result.errors else set()
            tally.add(f"{bench.pair}: {name}: code {result.code} {result.errors[:200]!r}", wrong)


def steps(first, last, factor):
    values = [first]
    while values[-1] < last:
        values.append(max(values[-1] + 1, int(values[-1] * factor)))
    return values


def limits(is_long):
    """Options of prlimit by their names."""
    fine = 1.1 if is_long else 1.7
    tables = {
        "as": [kilobytes << 10 for kilobytes in steps(8_000, 1_500_000, fine)],
        "nproc": range(1, 20, 1 if is_long else 3),
        "nofile": range(0, 40, 1 if is_long else 4),
        "fsize": steps(1, 4_000_000, 1.3 if is_long else 3),
        "stack": [kilobytes << 10 for kilobytes in steps(8, 8_192, fine)],
    }
    return [(name, value) for name, values in tables.items() for value in values]


def was_not_started(result, command):
    """Whether the kernel or the loader gave up before our code ran: it names no file then, or ends with a signal."""
    if result.errors:
        return bool(NOT_STARTED.search(result.errors)) and not re.search("^folvero:", result.errors, re.M)
    if result.code >= 0:
        return False
    # Our code opens its resources soon; libraries come before.
    calls = run(["strace", "-qq", "-e", "trace=execve,openat,getuid", *command]).errors
    return not re.search(r"/share/folvero|exit_group|SIGABRT", calls)


class Room:
    """A pair of editions that an ordinary user publishes: limits of processes do not hold for root."""

    def __init__(self, context, bench):
        self.bench = bench
        self.as_user = []
        if os.geteuid() == 0 and shutil.which("setpriv"):
            self.as_user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
            for folder in (context.work, bench.work):
                folder.chmod(0o755)
            if run([*self.as_user, str(context.program), "--version"]).code != DONE:
                self.as_user = []
        self.command = [*self.as_user, *bench.command()]

    def reset(self):
        self.bench.reset(self.bench.original)
        if self.as_user:
            for path in (self.bench.book, *self.bench.book.rglob("*")):
                os.chown(path, NOBODY, NOBODY)

    def publish(self, before, seconds=100, command=None, **options):
        self.reset()
        return run([*before, *(command or self.command)], seconds=seconds, **options)

    def verdict(self, result, allowed, command=(), needs_message=True):
        wrong = faults_of(result, allowed)
        if command and was_not_started(result, command):
            wrong -= {f"exit code {result.code}", "no message"}
        if not needs_message:
            wrong.discard("no message")
        files = files_of(self.bench.book)
        if files not in (self.bench.new_files, self.bench.old_files):
            wrong.add("bad book")
        if result.code == DONE and files != self.bench.new_files:
            wrong.add("exit code 0 without a book")
        if leftovers_in(self.bench.book):
            wrong.add("left behind")
        return wrong


def check_limits(context, tally):
    for bench in context.benches(1):
        room = Room(context, bench)
        for name, value in limits(context.is_long):
            # Set as the last thing before the program, so that it does not hold for what starts it.
            command = [*room.as_user, "prlimit", f"--{name}={value}", *room.bench.command()]
            result = room.publish([], command=command)
            # A limit of the size of files is no full disk.
            allowed = (DONE, FAILED) if name == "fsize" else (DONE, TEMPORARY)
            wrong = room.verdict(result, allowed, command)
            tally.add(f"{bench.pair}: {name} {value}: code {result.code} {result.errors[:300]!r}", wrong)
        check_streams(room, tally)
        check_folders(room, tally)


def shell(redirections):
    return ["sh", "-c", f'exec "$@" {redirections}', "sh"]


def check_streams(room, tally):
    for redirections in ("<&-", ">&-", "2>&-", ">&- 2>&-", "<&- >&- 2>&-", "<&- >&-", ">/dev/full", "2>/dev/full",
                         ">/dev/full 2>/dev/full"):
        has_errors = "2>" not in redirections
        has_output = not re.search("(^| )>", redirections)
        result = room.publish(shell(redirections))
        wrong = room.verdict(result, (DONE,) if has_output else (DONE, TEMPORARY),
                             needs_message=has_errors)
        if result.code == DONE and ">/dev/full" in redirections.split():
            wrong.add("path not printed")
        tally.add(f"{room.bench.pair}: {redirections}: code {result.code} {result.errors[:300]!r}", wrong)


def check_folders(room, tally):
    """Current folders that are read-only or removed, and a book named in relation to them."""
    work = room.bench.work
    for name, script, is_relative in (
            ("read-only", 'cd /proc/self && exec "$@"', False),
            ("removed", 'cd "$0" && rmdir "$0" && exec "$@"', False),
            ("read-only, relative", 'cd /proc/self && exec "$@"', True),
            ("removed, relative", 'cd "$0" && rmdir "$0" && exec "$@"', True)):
        current = work / "current"
        current.mkdir(exist_ok=True)
        command = [*room.command[:-1], "book"] if is_relative else room.command
        result = room.publish(["sh", "-c", script, str(current)], command=command)
        allowed = (FAILED, TEMPORARY) if is_relative else (DONE,)
        tally.add(f"{room.bench.pair}: current folder {name}: code {result.code} {result.errors[:300]!r}",
                  room.verdict(result, allowed))


EXPERIMENTS = {"locale": check_locales, "limits": check_limits}
