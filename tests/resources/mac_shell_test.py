"""The shell of a book that is published as a Mac application: its files, and its script in a dry run.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree; FOLVERO_CMAKE and FOLVERO_RESOURCES_BUILD_DIR, to install what was built.
"""

import os
import plistlib
import shutil
import stat
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

SHELL = Path("AppFiles/TmplData/mac.app/Contents")
SOURCE = Path(os.environ["FOLVERO_SOURCE_RESOURCES"]) / SHELL
BUILT = Path(os.environ["FOLVERO_BUILT_RESOURCES"]) / SHELL

# Names that a published book has in the folder of the icon.
BOOK_NAMES = {"index.html", "book.swf", "files", "swfobject.js"}


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


class ShellFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with (SOURCE / "Info.plist").open("rb") as file:
            cls.info = plistlib.load(file)

    def test_property_list_says_what_the_system_asks_for(self):
        wanted = {
            "CFBundlePackageType": "APPL", "CFBundleSignature": "????", "CFBundleInfoDictionaryVersion": "6.0",
            "CFBundleDevelopmentRegion": "en", "NSHighResolutionCapable": True,
        }
        self.assertEqual({key: self.info.get(key) for key in wanted}, wanted)
        for key in ("CFBundleIdentifier", "CFBundleName", "CFBundleVersion", "CFBundleShortVersionString",
                    "LSMinimumSystemVersion"):
            self.assertTrue(self.info.get(key), key)
        self.assertRegex(self.info["CFBundleIdentifier"], r"^[A-Za-z0-9-]+(\.[A-Za-z0-9-]+)+$")

    def test_names_in_the_property_list_are_files(self):
        self.assertTrue((SOURCE / "MacOS" / self.info["CFBundleExecutable"]).is_file())
        self.assertTrue((SOURCE / "Resources" / self.info["CFBundleIconFile"]).is_file())

    def test_package_info_is_exact(self):
        self.assertEqual((SOURCE / "PkgInfo").read_bytes(), b"APPL????")

    def test_leaves_the_names_of_a_book_free(self):
        names = {path.name.lower() for path in (SOURCE / "Resources").iterdir()}
        self.assertFalse(names & BOOK_NAMES)

    def test_script_can_be_executed_in_the_source_the_build_tree_and_when_installed(self):
        with tempfile.TemporaryDirectory() as prefix:
            subprocess.run([os.environ["FOLVERO_CMAKE"], "--install", os.environ["FOLVERO_RESOURCES_BUILD_DIR"],
                            "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
            installed = Path(prefix) / "share/folvero" / SHELL
            for place, folder in (("source", SOURCE), ("build tree", BUILT), ("installed", installed)):
                with self.subTest(place):
                    self.assertEqual(files_below(folder), files_below(SOURCE))
                    mode = (folder / "MacOS" / self.info["CFBundleExecutable"]).stat().st_mode
                    self.assertEqual(mode & 0o555, 0o555, stat.filemode(mode))


def unpacked(data):
    """Undoes the packing of one old small icon."""
    result = bytearray()
    at = 0
    while at < len(data):
        count = data[at]
        if count < 128:
            result += data[at + 1:at + 2 + count]
            at += count + 2
        else:
            result += data[at + 1:at + 2] * (count - 125)
            at += 2
    return result


class Icon(unittest.TestCase):
    PNG_SIZES = {"ic07": 128, "ic08": 256, "ic09": 512, "ic10": 1024, "ic11": 32, "ic12": 64, "ic13": 256, "ic14": 512}
    PIXELS = {("is32", "s8mk"): 16, ("il32", "l8mk"): 32}

    @classmethod
    def setUpClass(cls):
        data = (SOURCE / "Resources/BookIcon.icns").read_bytes()
        cls.magic, cls.length = struct.unpack(">4sI", data[:8])
        cls.size = len(data)
        cls.parts = {}
        at = 8
        while at < len(data):
            name, length = struct.unpack(">4sI", data[at:at + 8])
            cls.parts[name.decode()] = data[at + 8:at + length]
            at += length

    def test_file_is_as_long_as_it_says(self):
        self.assertEqual((self.magic, self.length), (b"icns", self.size))

    def test_sizes_from_16_to_512_are_there_for_both_densities(self):
        self.assertEqual(set(self.parts), set(self.PNG_SIZES) | {name for pair in self.PIXELS for name in pair})

    def test_pictures_have_the_sizes_of_their_types(self):
        for name, size in self.PNG_SIZES.items():
            with self.subTest(name):
                self.assertEqual(self.parts[name][:8], b"\x89PNG\r\n\x1a\n")
                self.assertEqual(struct.unpack(">II", self.parts[name][16:24]), (size, size))

    def test_small_pictures_unpack_to_three_channels_and_a_mask(self):
        for (colours, mask), size in self.PIXELS.items():
            with self.subTest(colours):
                self.assertEqual(len(unpacked(self.parts[colours])), 3 * size * size)
                self.assertEqual(len(self.parts[mask]), size * size)
                self.assertEqual((self.parts[mask][0], max(self.parts[mask])), (0, 255))


class Script(unittest.TestCase):
    # What the programs of a Mac are replaced by: they note their arguments, each ended by a zero byte.
    STAND_IN = '#!/bin/sh\nprintf \'%s\\0\' "$@" > "$NOTES/{name}"\nexit {code}\n'

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.programs = self.folder / "programs"
        self.programs.mkdir()
        self.stand_in("open")
        self.stand_in("osascript")

    def stand_in(self, name, code=0):
        program = self.programs / name
        program.write_text(self.STAND_IN.format(name=name, code=code))
        program.chmod(0o755)

    def book(self, parent="", name="Book.app", page=True):
        contents = self.folder / parent / name / "Contents"
        shutil.copytree(BUILT, contents)
        if page:
            (contents / "Resources/index.html").write_text("<!DOCTYPE html><title>Book</title>")
        return contents

    def run_script(self, command, cwd=None):
        environment = {"PATH": f"{self.programs}:/usr/bin:/bin", "NOTES": str(self.folder), "LC_ALL": "C"}
        return subprocess.run([str(part) for part in command], cwd=cwd, env=environment, capture_output=True,
                              text=True, timeout=30)

    def arguments_of(self, name):
        notes = self.folder / name
        return notes.read_bytes().decode().split("\0")[:-1] if notes.exists() else None

    def assert_opens(self, contents, command, cwd=None):
        result = self.run_script(command, cwd)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        self.assertEqual(self.arguments_of("open"), [str(contents.resolve() / "Resources/index.html")])
        self.assertIsNone(self.arguments_of("osascript"))

    def test_opens_the_page_of_its_book_wherever_that_lies(self):
        for parent in ("", "My books", "Bücher für Ærøskøbing", "書庫", "it's \"quoted\"", "$HOME `x` \\n *", " ends "):
            with self.subTest(parent):
                contents = self.book(parent, f"{parent or 'Book'}.app")
                self.assert_opens(contents, [contents / "MacOS/OpenBook"])

    def test_runs_in_every_shell_that_may_be_sh(self):
        contents = self.book("My books")
        for shell in filter(shutil.which, ("dash", "bash", "zsh", "busybox")):
            with self.subTest(shell):
                words = [shell, "sh"] if shell == "busybox" else [shell]
                self.assert_opens(contents, [*words, contents / "MacOS/OpenBook"])

    def test_is_found_from_relative_paths(self):
        contents = self.book("My books")
        for command, cwd in ((["sh", "OpenBook"], contents / "MacOS"), (["./MacOS/OpenBook"], contents),
                             (["Book.app/Contents/MacOS/OpenBook"], self.folder / "My books")):
            with self.subTest(command):
                self.assert_opens(contents, command, cwd)

    def test_follows_symbolic_links_to_itself_and_to_its_folders(self):
        contents = self.book("My books")
        links = self.folder / "links"
        links.mkdir()
        (links / "absolute").symlink_to(contents / "MacOS/OpenBook")
        (links / "a relative one").symlink_to("../My books/Book.app/Contents/MacOS/OpenBook")
        (links / "chain").symlink_to("a relative one")
        (links / "Linked.app").symlink_to(contents.parent)
        for link in ("absolute", "a relative one", "chain", "Linked.app/Contents/MacOS/OpenBook"):
            with self.subTest(link):
                self.assert_opens(contents, [links / link])

    def test_a_missing_page_is_told_in_a_dialog(self):
        contents = self.book(page=False)
        result = self.run_script([contents / "MacOS/OpenBook"])
        self.assertEqual((result.returncode, result.stderr), (2, ""))
        self.assertIsNone(self.arguments_of("open"))
        *script, title, text = self.arguments_of("osascript")
        self.assertEqual(title, "This book is not complete.")
        self.assertIn(str(contents.resolve() / "Resources/index.html"), text)
        self.assertEqual(script[::2], ["-e"] * 3)

    def test_without_a_dialog_the_missing_page_is_told_on_the_terminal(self):
        contents = self.book(page=False)
        for case in ("fails", "is not there"):
            with self.subTest(f"osascript {case}"):
                if case == "fails":
                    self.stand_in("osascript", code=1)
                else:
                    (self.programs / "osascript").unlink()
                result = self.run_script([contents / "MacOS/OpenBook"])
                self.assertEqual(result.returncode, 2)
                self.assertRegex(result.stderr, r"^This book is not complete\.\n.*index\.html")

    def test_a_page_that_the_system_does_not_open_is_told(self):
        contents = self.book()
        self.stand_in("open", code=1)
        self.assertEqual(self.run_script([contents / "MacOS/OpenBook"]).returncode, 1)
        self.assertEqual(self.arguments_of("osascript")[-2], "This book could not be opened.")


if __name__ == "__main__":
    unittest.main()
