"""The shell of a book that is published as a Mac application: its files, and its script in a dry run.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree; FOLVERO_CMAKE and FOLVERO_RESOURCES_BUILD_DIR, to install what was built.
"""

import os
import plistlib
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SHELL = Path("AppFiles/TmplData/mac.app/Contents")
SOURCE = Path(os.environ["FOLVERO_SOURCE_RESOURCES"]) / SHELL
BUILT = Path(os.environ["FOLVERO_BUILT_RESOURCES"]) / SHELL


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


class ShellFiles(unittest.TestCase):
    def test_property_list_says_what_the_system_asks_for(self):
        info = plistlib.loads((SOURCE / "Info.plist").read_bytes())
        self.assertEqual((SOURCE / "PkgInfo").read_text(), info["CFBundlePackageType"] + info["CFBundleSignature"])
        self.assertEqual((info["CFBundleExecutable"], info["CFBundleIconFile"]), ("OpenBook", "BookIcon.icns"))

    def test_all_files_are_built_and_installed_and_leave_the_names_of_a_book_free(self):
        files = {"Info.plist", "PkgInfo", "MacOS/OpenBook", "Resources/BookIcon.icns"}
        with tempfile.TemporaryDirectory() as prefix:
            subprocess.run([os.environ["FOLVERO_CMAKE"], "--install", os.environ["FOLVERO_RESOURCES_BUILD_DIR"],
                            "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
            for folder in (SOURCE, BUILT, Path(prefix) / "share/folvero" / SHELL):
                with self.subTest(folder):
                    self.assertEqual(files_below(folder), files)
                    self.assertEqual((folder / "MacOS/OpenBook").stat().st_mode & 0o555, 0o555)


class Script(unittest.TestCase):
    # What the programs of a Mac are replaced by: they note their arguments, each ended by a zero byte.
    STAND_IN = '#!/bin/sh\nprintf \'%s\\0\' "$@" > "$NOTES/{name}"\nexit {code}\n'

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "programs").mkdir()
        self.stand_in("open")
        self.stand_in("osascript")

    def stand_in(self, name, code=0):
        program = self.folder / "programs" / name
        program.write_text(self.STAND_IN.format(name=name, code=code))
        program.chmod(0o755)

    def book(self, parent="My books", page=True):
        contents = self.folder / parent / "Book.app/Contents"
        shutil.copytree(BUILT, contents)
        if page:
            (contents / "Resources/index.html").write_text("<!DOCTYPE html><title>Book</title>")
        return contents

    def run_script(self, *command, cwd=None):
        environment = {"PATH": f"{self.folder}/programs:/usr/bin:/bin", "NOTES": str(self.folder), "LC_ALL": "C"}
        return subprocess.run(command, cwd=cwd, env=environment, capture_output=True, text=True, timeout=30)

    def arguments_of(self, name):
        notes = self.folder / name
        return notes.read_bytes().decode().split("\0")[:-1] if notes.exists() else None

    def assert_opens(self, contents, *command, cwd=None):
        with self.subTest(command):
            result = self.run_script(*command, cwd=cwd)
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
            self.assertEqual(self.arguments_of("open"), [str(contents.resolve() / "Resources/index.html")])
            self.assertIsNone(self.arguments_of("osascript"))
            (self.folder / "open").unlink()

    def test_opens_the_page_of_its_book_wherever_that_lies(self):
        for parent in ("", "Bücher für Ærøskøbing", "書庫", "it's \"quoted\"", "$HOME `x` \\n *", " ends "):
            contents = self.book(parent)
            self.assert_opens(contents, contents / "MacOS/OpenBook")

    def test_runs_in_every_shell_and_from_relative_paths(self):
        contents = self.book()
        for shell in filter(shutil.which, ("dash", "bash", "zsh")):
            self.assert_opens(contents, shell, contents / "MacOS/OpenBook")
        self.assert_opens(contents, "sh", "OpenBook", cwd=contents / "MacOS")
        self.assert_opens(contents, "Book.app/Contents/MacOS/OpenBook", cwd=self.folder / "My books")

    def test_follows_symbolic_links_to_itself_and_to_its_folders(self):
        contents = self.book()
        links = {"absolute": contents / "MacOS/OpenBook", "a relative one": "My books/Book.app/Contents/MacOS/OpenBook",
                 "chain": "a relative one", "Linked.app": contents.parent}
        for name, target in links.items():
            (self.folder / name).symlink_to(target)
        for link in ("absolute", "a relative one", "chain", "Linked.app/Contents/MacOS/OpenBook"):
            self.assert_opens(contents, self.folder / link)

    def test_a_missing_page_is_reported_in_a_dialog_or_else_on_the_terminal(self):
        script = self.book(page=False) / "MacOS/OpenBook"
        result = self.run_script(script)
        self.assertEqual((result.returncode, result.stderr), (2, ""))
        self.assertIsNone(self.arguments_of("open"))
        *lines, title, text = self.arguments_of("osascript")
        self.assertEqual(title, "This book is not complete.")
        self.assertIn(str(script.resolve().parents[1] / "Resources/index.html"), text)
        self.assertEqual(lines[::2], ["-e"] * 3)
        self.stand_in("osascript", code=1)
        failing = self.run_script(script)
        (self.folder / "programs/osascript").unlink()
        for result in (failing, self.run_script(script)):
            self.assertEqual(result.returncode, 2)
            self.assertRegex(result.stderr, r"^This book is not complete\.\n.*index\.html")

    def test_a_page_that_the_system_does_not_open_is_reported(self):
        self.stand_in("open", code=1)
        self.assertEqual(self.run_script(self.book() / "MacOS/OpenBook").returncode, 1)
        self.assertEqual(self.arguments_of("osascript")[-2], "This book could not be opened.")


if __name__ == "__main__":
    unittest.main()
