"""The packages are installed into a folder, the programs run from there, and the packages are removed
again."""

import json
import shutil
import signal
import socket
import subprocess
import sys
import time
import unittest
import urllib.request
from pathlib import Path

from support import NAMES, SAMPLES, Installation, as_user, contents, package

sys.path.append(str(Path(__file__).parent.parent / "support"))
from processes import descendants

PATIENCE = 60  # seconds


def eventually(condition):
    """What the condition gives once it is true, or its last answer when time is up."""
    end = time.monotonic() + PATIENCE
    while not (answer := condition()) and time.monotonic() < end:
        time.sleep(0.1)
    return answer


def is_sandboxed(pid):
    """Whether a process has a name space and a seccomp filter of its own, as Chromium's renderers do."""
    try:
        status = Path(f"/proc/{pid}/status").read_text()
    except OSError:
        return False
    spaces = next(line for line in status.splitlines() if line.startswith("NSpid:")).split()[1:]
    return len(spaces) > 1 and "Seccomp:\t2" in status


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.installation = Installation()
        cls.addClassCleanup(cls.installation.remove)
        result = cls.installation.dpkg("--install", *map(str, map(package, NAMES)))
        if result.returncode != 0:
            raise AssertionError(result.stdout + result.stderr)

    def test_1_all_files_are_there_and_no_other(self):
        shipped = {member.name.removeprefix("./").rstrip("/")
                   for name in NAMES for member in contents(name)}
        there = self.installation.files() - self.installation.files_before
        self.assertLessEqual(there, shipped)
        # An administrator may have dpkg leave out documents; programs and resources never.
        missing = shipped - there
        self.assertFalse({path for path in missing if not path.startswith(("usr/share/doc", "usr/share/man"))})

    def test_2_headless_program_publishes_a_book(self):
        home = self.installation.home("reader")
        shutil.copy(SAMPLES / "sample.pdf", home)
        result = subprocess.run(
            [self.installation.prefix / "bin/folvero", "--verbose", "publish", "sample.pdf", "book"],
            cwd=home, capture_output=True, text=True, **as_user(home))
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertNotIn("WARN", result.stderr, "the page workers must be found")
        self.assertEqual(result.stdout, f"{home}/book/index.html\n")
        self.assertTrue((home / "book/files/UserConfig.bin").stat().st_size)
        self.assertEqual(len(list((home / "book/files/page").iterdir())), 18)

    def start_desktop(self, home):
        """The desktop program as an ordinary user's, the port at which Chromium lists its pages, and
        whether this machine has what Chromium's sandbox needs; not every container does."""
        options = as_user(home)
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        options["env"] |= {"QT_QPA_PLATFORM": "offscreen", "QTWEBENGINE_REMOTE_DEBUGGING": f"127.0.0.1:{port}"}
        has_sandbox = subprocess.run(["unshare", "--user", "--pid", "--net", "--fork", "true"],
                                     stderr=subprocess.DEVNULL, **options).returncode == 0
        if not has_sandbox:
            print("Chromium runs without its sandbox: this machine gives ordinary users no namespaces.")
            options["env"]["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
        with open(home / "output", "wb") as log:
            program = subprocess.Popen([self.installation.prefix / "bin/folvero-desktop"], cwd=home,
                                       stdout=log, stderr=log, **options)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program, port, has_sandbox

    def test_3_desktop_program_shows_a_preview_and_ends_in_good_order(self):
        home = self.installation.home("editor")
        program, port, has_sandbox = self.start_desktop(home)

        def shown_page():
            try:
                with urllib.request.urlopen(f"http://127.0.0.1:{port}/json/list", timeout=5) as answer:
                    return next((page for page in json.load(answer) if page["title"] == "Preview"), None)
            except OSError:
                return None

        page = eventually(lambda: program.poll() is not None or shown_page())
        output = (home / "output").read_text()
        self.assertIsNone(program.poll(), output)
        self.assertIsNotNone(page, output)
        preview = home / ".local/share/Folvero/preview"
        self.assertTrue(page["url"].startswith(f"file://{preview}/index.html"), page["url"])
        self.assertTrue((preview / "files/UserConfig.bin").stat().st_size)
        self.assertIn("version is:", (home / ".local/share/Tessamar/Folvero/Folvero.log").read_text())
        family = descendants(program.pid)
        self.assertTrue(family)
        self.assertEqual(any(map(is_sandboxed, family)), has_sandbox)
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(PATIENCE), 0)
        self.assertFalse(preview.exists())
        self.assertTrue(eventually(lambda: not any(Path(f"/proc/{pid}").exists() for pid in family)))

    def test_4_removal_leaves_nothing(self):
        result = self.installation.dpkg("--purge", *NAMES)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.installation.files(), self.installation.files_before)


if __name__ == "__main__":
    unittest.main()
