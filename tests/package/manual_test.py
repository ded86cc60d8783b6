"""The manual pages name each command and option that the programs have."""

import gzip
import os
import re
import tempfile
import unittest
from pathlib import Path

from support import contents, output


class Manual(unittest.TestCase):
    def page(self, name):
        """Text of a manual page, without the escapes of its dashes."""
        file = contents(name).extractfile(f"./usr/share/man/man1/{name}.1.gz")
        return gzip.decompress(file.read()).decode().replace("\\-", "-")

    def assert_names_options(self, name, *arguments):
        """That the page names what the packaged program's help does, which is returned."""
        with tempfile.TemporaryDirectory() as folder:
            contents(name).extract(f"./usr/bin/{name}", folder)
            environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
            text = output(Path(folder, "usr/bin", name), *arguments, "--help", env=environment).decode()
        options = set(re.findall(r"(?<!\S)--[a-z]+", text)) - {"--help-all"}
        self.assertTrue(options)
        self.assertEqual([option for option in options if option not in self.page(name)], [])
        return text

    def test_folvero(self):
        commands = re.findall(r"^  ([a-z]+)  ", self.assert_names_options("folvero"), re.M)
        self.assertEqual(set(commands), {"publish", "info", "templates", "decode", "serve", "library"})
        for command in commands:
            self.assertIn(f".TP\n.B {command}\n", self.page("folvero"))
            if command != "library":
                self.assert_names_options("folvero", command)
        for command in ("make", "status", "sbatch", "catalogue", "index", "serve", "export"):
            self.assert_names_options("folvero", "library", command)

    def test_folvero_desktop(self):
        self.assertIn("--version", self.assert_names_options("folvero-desktop"))


if __name__ == "__main__":
    unittest.main()
