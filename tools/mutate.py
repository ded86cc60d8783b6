#!/usr/bin/env python3
"""Injects one-line faults into the code and reports which of them the tests catch.

Works on the last commit in a worktree of its own, build/mutate; the working tree is never touched. Each fault takes
one compile, one link and the tests, nearest and fastest first, until one fails or hangs. A fault that does not compile
is replaced by another. The same seed over the same sources gives the same faults.
"""

import argparse
import collections
import fcntl
import functools
import itertools
import json
import os
import pathlib
import random
import re
import resource
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutate"
BIN = WORK / "build/release/bin"

# Test programs for the sources of a folder; the first row that matches.
PROGRAMS = [("app/desktop", ["folvero-desktop-tests"]), ("ui", ["folvero-ui-tests", "folvero-desktop-tests"]),
            ("app|template", ["folvero-tests", "folvero-ui-tests"]), ("", ["folvero-tests"])]
# Folders whose tests are not in the folder of tests/ that has their name.
NEAR = {"server": "cli", "console": "cli", "webbook": "cli", "worker": "drawing", "app/desktop": "desktop"}
# Tests that take a larger share of their program's time are run last.
SLOW_SHARE = 0.02
# Files of tests/browser for the folders of the player.
BROWSER = {"book": "opening|layout|settings|backgrounds|hostile", "turning": "turning|zoom", "web": "web-.*",
           "controls": "controls|zoom|turning|backgrounds", "panels": "panels|thumbnails|printing|controls"}

# Log texts, assertions, layout in pixels, and what makes things faster only.
LEFT_OUT = re.compile(
    r"\s*(?:#|(?:static_assert|using|import|export \{|template|friend|enum)\b)"
    r"|.*\b(?:\w*Log(?:\.\w+)?|log|Log::\w+|console\.\w+|\w*(?:assert|ASSERT)|Q_UNUSED|reserve|squeeze|setObjectName"
    r"|setSpacing|set\w*Margins?|setFixed\w+|setMinimum\w+|resize)\(")

Fault = collections.namedtuple("Fault", "path line kind old new")
Test = collections.namedtuple("Test", "name folder seconds")

# Text whose brackets are balanced.
NESTED = r"(?:[^()]|\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\))*"

# Each kind yields replacements (start, end, text). `code` is the line with texts and comments blanked out.


def negated_condition(line, code):
    for match in re.finditer(rf"\b(?:if|while) \(({NESTED})\)", code):
        if not re.search(r" = |;", match[1]):
            yield *match.span(1), f"!({line[slice(*match.span(1))]})"


def removed_statement(_, code):
    match = re.match(r"\s+((?!(?:const|let|auto|delete|case|else|public|void|if|for|while|switch)\b)"
                     r"(?:(?:return|break|continue)(?=;)|throw |\+\+|--"
                     r"|[\w*][^\s(=]*(?:\(| [-+*/|&]?= |\+\+|--)).*);\s*$", code)
    if match and re.fullmatch(NESTED, match[1]):
        yield match.start(1), match.end(1) + 1, "{}"


def changed_constant(_, code):
    for match in re.finditer(r"(?<![\w.'])(\d[\d']*)(\.\d+)?(?=[uUlLfF]*(?![\w.']))", code):
        if re.search(r"\.adjusted\([^()]*$", code[:match.start()]):
            continue  # layout in pixels
        value = (float if match[2] else int)(match[0].replace("'", ""))
        # The next number after a large one makes no difference that anyone would see.
        yield *match.span(), str(value * 2 if value >= 10 or match[2] and value else value + 1)


def changed_text(line, code):
    for match in re.finditer(r"([\"'`])[^\"'`]+\1", code):
        if "\\" not in line[slice(*match.span())] and not re.search(r"translate\($|u$", code[:match.start()]):
            yield match.end() - 1, match.end() - 1, "~"


def swapped_arguments(line, code):
    value = r"((?:[\w.]|->|::)+(?:\(\))?)"
    for match in re.finditer(rf"(?<=[(,{{ ]){value}, {value}(?=[,)}}])", code):
        if match[1] != match[2] and not re.search(r"\b\w*(?:max|min|[sS]wap|hypot)\w*(?:<[\w:]+>)?\($", code[:match.start()]):
            yield *match.span(), f"{line[slice(*match.span(2))]}, {line[slice(*match.span(1))]}"


def changed_operator(_, code):
    others = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "===": "!==", "!==": "===",
              "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="}
    for match in re.finditer(r"(?<= )(?:[<>]=?|[!=]==?|&&|\|\||[-+]=?|[*/])(?= )", code):
        if match[0] != "+" or not re.search(r"[\"'`] \+ |\+ \w*[\"'`]", code):  # as + of texts
            yield *match.span(), others[match[0]]


def changed_result(line, code):
    match = re.match(r"\s*(?:if \(.*\) )?return (.+);\s*$", code)
    result = line[slice(*match.span(1))] if match else ""
    if result in ("true", "false"):
        yield *match.span(1), "false" if result == "true" else "true"
    elif result.startswith("!") and " " not in result:
        yield *match.span(1), result[1:]
    elif match and re.search(r" (?:[<>=!]==?|&&|\|\||<|>) |\b(?:is|has|contains|startsWith|endsWith)\w*\([^()]*\)$",
                             match[1]):
        yield *match.span(1), f"!({result})"


KINDS = [negated_condition, removed_statement, changed_constant, changed_text, swapped_arguments, changed_operator,
         changed_result]


def blanked(line, is_script):
    single = r"'(?:[^'\\]|\\.)*'|`(?:[^`\\]|\\.)*`" if is_script else r"'(?:[^'\\]|\\.)'"
    return re.sub(rf'"(?:[^"\\]|\\.)*"|{single}|//.*|/\*.*?(?:\*/|$)|^\s*\*.*', lambda match: " " * len(match[0])
                  if match[0][0] in "/ *" else match[0][0] + "_" * (len(match[0]) - 2) + match[0][-1], line)


def faults_in(path):
    left_out, before = False, ""
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n")):
        code = blanked(line, path.suffix == ".js")
        left_out = left_out or bool(LEFT_OUT.match(code))
        for kind in [] if left_out else KINDS:
            if kind is not removed_statement or re.search(r"(?:[;{}:)]|\belse|^)\s*$", before):
                for start, end, text in kind(line, code):
                    yield Fault(path, number, kind.__name__.replace("_", " "), line, line[:start] + text + line[end:])
        if code.strip():
            left_out = left_out and not re.search(r"[;{}]\s*$", code)
            before = code


def shuffled(paths, seed):
    """All faults in random order, one a line, the kinds in turn."""
    kinds = {kind.__name__.replace("_", " "): [] for kind in KINDS}
    for fault in itertools.chain.from_iterable(map(faults_in, sorted(paths))):
        kinds[fault.kind].append(fault)
    shuffler = random.Random(seed)
    for faults in kinds.values():
        shuffler.shuffle(faults)
    taken = set()
    for fault in filter(None, itertools.chain.from_iterable(itertools.zip_longest(*kinds.values()))):
        if (fault.path, fault.line) not in taken:
            taken.add((fault.path, fault.line))
            yield fault


def limit():
    """A fault may fill the memory or the disk."""
    resource.setrlimit(resource.RLIMIT_DATA, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (8 << 30, 8 << 30))


def run(command, patience=None, home=None):
    """Output and exit code, which is None when it prints nothing for so many seconds."""
    environment = dict(os.environ, HOME=home, TMPDIR=home) if home else None
    output = bytearray()
    with subprocess.Popen(command, cwd=WORK, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, env=environment,
                          stderr=subprocess.STDOUT, start_new_session=True,
                          preexec_fn=limit if home else None) as process:
        try:
            while select.select([process.stdout], [], [], patience)[0]:
                piece = os.read(process.stdout.fileno(), 1 << 16)
                output += piece
                if not piece or len(output) > 10_000_000:
                    break
            return output.decode(errors="replace"), process.wait(patience and 5)
        except subprocess.TimeoutExpired:
            return output.decode(errors="replace"), None
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass


def failed_test(command, longest_seconds):
    """What failed, or none. A test hangs when it takes much longer than the longest did without a fault."""
    with tempfile.TemporaryDirectory(prefix="mutate-", ignore_cleanup_errors=True) as home:
        os.chmod(home, 0o755)  # some tests act as other users too
        output, code = run(command, longest_seconds * 3 + 30, home)
    if code == 0:
        return None
    found = re.search(r"\[  FAILED  \] ([\w/]+\.[\w/]+)|^\s*not ok \d+ - (.+)|(error TS\d+)"
                      r"|Test +#\d+: (\S+) \.*\*\*\*", output, re.MULTILINE)
    if found:
        return next(filter(None, found.groups()))
    begun = re.findall(r"\[ RUN      \] ([\w/.]+)", output) or [pathlib.Path(command[0]).name]
    return f"{begun[-1]}, " + ("hangs" if code is None else f"exit code {code}")


def is_built(*targets):
    return run(["cmake", "--build", "--preset", "release", "-j", "1", "--target", *targets])[1] == 0


@functools.cache
def normal_seconds(command):
    start = time.monotonic()
    failed = failed_test(command, 300)
    if failed:
        sys.exit(f"mutate.py: {failed} fails without a fault")
    return time.monotonic() - start


@functools.cache
def tests_of(program):
    """Taken once for a commit: it takes minutes."""
    commit = run(["git", "log", "-1", "--format=%h", "--", "src", "tests"])[0].strip()
    report = WORK / f"build/{program}-{commit}.json"
    if not report.exists():
        is_built(program)  # again without the last fault
        failed = failed_test((str(BIN / program), f"--gtest_output=json:{report}"), 300)
        if not report.exists():
            sys.exit(f"mutate.py: {failed} without a fault")
    suites = json.loads(report.read_text(encoding="utf-8"))["testsuites"]
    tests = [(f"{suite['name']}.{test['name']}", test) for suite in suites for test in suite["testsuite"]]
    for name, test in tests:
        if "failures" in test:
            print(f"{name} fails without a fault: left out\n{test['failures'][0]['failure']}", flush=True)
    return [Test(name, pathlib.Path(test["file"]).parent.name, float(test["time"][:-1]))
            for name, test in tests if "failures" not in test]


def ctest(names, *targets):
    command = ("ctest", "--preset", "release", "-R", f"^({names})$")
    is_built(*targets)  # again without the last fault
    return targets, command, normal_seconds(command)


def checks_of(path, in_browser):
    """Steps (targets to build, command, seconds of its longest test), nearest and fastest first."""
    if path.suffix == ".js":
        commands = [("node", "--test", "player/test")] if (WORK / "player/test").is_dir() else []
        commands.append(("tsc", "--project", "player"))
        checks = [((), command, normal_seconds(command)) for command in commands]
        opened = BROWSER.get(path.parent.name, "opening")
        return checks + ([ctest(rf"browser\.({opened})", "folvero", "resources")] if in_browser else [])
    folder = str(path.parent.relative_to(WORK / "src"))
    near = NEAR.get(folder, folder)
    checks = []
    for program in next(programs for pattern, programs in PROGRAMS if re.match(pattern, folder)):
        steps = [[], [], []]
        slow_seconds = SLOW_SHARE * sum(test.seconds for test in tests_of(program))
        for test in tests_of(program):
            is_slow = test.seconds > slow_seconds
            steps[2 if is_slow else test.folder != near].append(test)
        checks += [((program,), (str(BIN / program), "--gtest_fail_fast",
                              "--gtest_filter=" + ":".join(test.name for test in step)),
                    max(test.seconds for test in step)) for step in steps if step]
    return [*checks, ctest(r"resources\.translations", program)]


def caught_by(command, longest_seconds):
    """What failed, and fails again when it is run by itself, as far as it can: other programs keep the machine busy."""
    while failed := failed_test(command, longest_seconds):
        name = failed.partition(",")[0]
        is_program = command[-1].startswith("--gtest_filter=")  # others can't run one test by itself
        if not is_program or "." not in name or failed_test((command[0], f"--gtest_filter={name}"), longest_seconds):
            return failed
        command = (*command[:-1], command[-1] + (":" if ":-" in command[-1] else ":-") + name)
    return None


def catcher(fault, checks):
    """The test that caught it, "" if none did, None if it does not compile."""
    original = fault.path.read_bytes()
    lines = original.decode().split("\n")
    lines[fault.line] = fault.new
    fault.path.write_text("\n".join(lines), encoding="utf-8")
    try:
        if fault.path.suffix == ".js" and run(["esbuild", str(fault.path)])[1] != 0:
            return None
        built = ()
        for targets, command, seconds in checks:
            if targets not in ((), built) and not is_built(*targets):
                return None
            built = targets
            failed = caught_by(command, seconds)
            if failed:
                return failed
        return ""
    finally:
        fault.path.write_bytes(original)


def check_out():
    """Brings the worktree to the last commit, whatever an earlier run left of it."""
    def git(*arguments, folder=ROOT):
        return subprocess.run(["git", *arguments], cwd=folder, capture_output=True, text=True, check=False)

    head = git("rev-parse", "HEAD").stdout.strip()
    if (WORK / ".git").is_file():
        pathlib.Path(WORK, git("rev-parse", "--git-path", "index.lock", folder=WORK).stdout.strip()).unlink(True)
    if not (WORK / ".git").is_file() or git("checkout", "--force", "--detach", head, folder=WORK).returncode != 0:
        shutil.rmtree(WORK, ignore_errors=True)
        git("worktree", "prune")
        added = git("worktree", "add", "--force", "--detach", str(WORK), head)
        if added.returncode != 0:
            sys.exit(f"mutate.py: {added.stderr}")


def prepare(options):
    """All faults, numbered, and, unless they are only listed, what gives the checks of a file."""
    check_out()
    paths = {path for name in options.paths for path in (WORK / name, *(WORK / name).rglob("*"))
             if path.is_file() and path.suffix in (".cpp", ".js")}
    faults = itertools.islice(enumerate(shuffled(paths, options.seed), 1), options.skip, None)
    if options.list:
        return faults, None
    extra = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    extra += ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
    needs_build = options.browser or any(path.suffix == ".cpp" for path in paths)
    if needs_build and (run(["cmake", "--preset", "release", *extra])[1] != 0 or not is_built("all")):
        sys.exit("mutate.py: the last commit does not build")
    return faults, functools.cache(lambda path: checks_of(path, options.browser))


def described(fault):
    return f"{fault.path.relative_to(WORK)}:{fault.line + 1} {fault.kind}: {fault.old.strip()} => {fault.new.strip()}"


def measure(faults, checks, count):
    tally = collections.defaultdict(collections.Counter)
    try:
        for number, fault in faults:
            steps, start = checks(fault.path), time.monotonic()
            by = catcher(fault, steps)
            word = "does not compile" if by is None else f"caught by {by}" if by else "SURVIVED"
            print(f"{number} {described(fault)} [{word}, {time.monotonic() - start:.0f} s]", flush=True)
            if by is not None:
                tally[str(fault.path.parent.relative_to(WORK))].update(caught=bool(by), tried=1)
            if sum(row["tried"] for row in tally.values()) == count:
                break
    except KeyboardInterrupt:
        print("stopped")
    for folder, row in [*sorted(tally.items()), ("total", sum(tally.values(), collections.Counter()))]:
        print(f"{folder:24} {row['caught']:3} of {row['tried']:3} caught")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--skip", type=int, default=0, help="faults of the seed to pass over, to go on with a stopped run")
    parser.add_argument("--list", action="store_true", help="print the faults and try none")
    parser.add_argument("--browser", action="store_true", help="open books in a browser for what no other test caught")
    parser.add_argument("paths", nargs="*", default=["src"], help="files or folders of src/ or player/; all of src/")
    options = parser.parse_args()
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    WORK.parent.mkdir(exist_ok=True)
    with open(WORK.with_suffix(".lock"), "w", encoding="utf-8") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            sys.exit("mutate.py: another run is using build/mutate")
        faults, checks = prepare(options)
        if options.list:
            print("\n".join(f"{number} {described(fault)}" for number, fault in itertools.islice(faults, options.count)))
        else:
            measure(faults, checks, options.count)


if __name__ == "__main__":
    main()
