"""What is in the packages, and what they ask for."""

import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

from support import NAMES, SOURCE, VERSION, contents, field, output, package

PROGRAMS = {
    "folvero": {"./usr/bin/folvero", "./usr/libexec/folvero/folvero-book-server",
                "./usr/libexec/folvero/folvero-page-worker"},
    "folvero-desktop": {"./usr/bin/folvero-desktop"},
}
# The programs of the Mac application that lies among the templates.
SCRIPTS = {"folvero": {"./usr/share/folvero/AppFiles/TmplData/mac.app/Contents/MacOS/OpenBook"},
           "folvero-desktop": set()}


def wanted(name):
    return {entry.split()[0] for entry in field(name, "Depends").split(",")}


class Contents(unittest.TestCase):
    def test_headless_package_needs_no_window_and_no_browser_engine(self):
        needed = wanted("folvero")
        self.assertIn("libqt6core6", needed)
        self.assertFalse({name for name in needed if "webengine" in name or "widgets" in name})

    def test_desktop_package_needs_the_headless_one_of_its_version_and_the_web_engine(self):
        self.assertIn(f"folvero (= {VERSION})", field("folvero-desktop", "Depends"))
        self.assertLessEqual({"libqt6webenginecore6", "libqt6webenginecore6-bin", "libqt6svg6"},
                             wanted("folvero-desktop"))

    def test_packages_share_no_file(self):
        files = [{member.name for member in contents(name) if not member.isdir()} for name in NAMES]
        self.assertFalse(files[0] & files[1])

    def test_files_belong_to_root_and_only_programs_can_be_run(self):
        for name in NAMES:
            runnable = set()
            for member in contents(name):
                with self.subTest(member.name):
                    self.assertEqual((member.uname, member.gname), ("root", "root"))
                    mode = stat.S_IMODE(member.mode)
                    if member.isdir():
                        self.assertEqual(mode, 0o755)
                    elif member.isfile() and mode & 0o111:
                        self.assertEqual(mode, 0o755)
                        runnable.add(member.name)
                    elif member.isfile():
                        self.assertEqual(mode, 0o644)
            self.assertEqual(runnable, PROGRAMS[name] | SCRIPTS[name])

    def test_programs_are_stripped_and_know_nothing_of_the_build(self):
        for name in NAMES:
            for path in PROGRAMS[name]:
                with self.subTest(path), tempfile.TemporaryDirectory() as folder:
                    data = contents(name).extractfile(path).read()
                    # Not assertNotIn(), which would show the whole program.
                    self.assertEqual(data.count(str(SOURCE).encode()), 0)
                    file = Path(folder, "program")
                    file.write_bytes(data)
                    shape = output("readelf", "--wide", "--sections", "--dynamic", file).decode()
                    self.assertNotIn(".symtab", shape)
                    self.assertNotIn("RUNPATH", shape)
                    self.assertNotIn("RPATH", shape)
                    self.assertIn("NOW", shape)

    def test_library_holds_what_the_program_lists(self):
        names = set(contents("folvero").getnames())
        library = SOURCE / "resources/AppFiles"
        for style in (library / "Styles").glob("*/*"):
            for file in ("tmplSetting.txt", "shot.jpg"):
                self.assertIn(f"./usr/share/folvero/{(style / file).relative_to(SOURCE / 'resources')}",
                              names)
        for template in (SOURCE / "player/templates").glob("*/template.json"):
            for file in ("index.html", "flashTemplate.xml", "book.swf", "moveSound.mp3", "icon.png"):
                self.assertIn(f"./usr/share/folvero/AppFiles/Templates/{template.parent.name}/{file}",
                              names)
        # The licence asks for the source of the player, which books carry minified.
        self.assertIn("./usr/share/folvero/player/src/main.js", names)

    def test_lintian_finds_nothing(self):
        # The compression is only that of the tests, and what look like words of the programs are
        # within the fonts of the PDF engine.
        result = subprocess.run(
            ["lintian", "--allow-root", "--fail-on", "error,warning",
             "--suppress-tags", "malformed-deb-archive", "--dont-check-part", "binaries/spelling",
             *map(package, NAMES)], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)


if __name__ == "__main__":
    unittest.main()
