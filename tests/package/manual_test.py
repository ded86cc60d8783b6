"""The manual pages tell of each command and option that the programs have."""

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

    def help_of(self, name, *arguments):
        """What a packaged program tells of itself."""
        with tempfile.TemporaryDirectory() as folder:
            contents(name).extract(f"./usr/bin/{name}", folder)
            program = Path(folder, "usr/bin", name)
            environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
            return output(program, *arguments, "--help", env=environment).decode()

    def test_folvero(self):
        page = self.page("folvero")
        commands = ("publish", "info", "templates", "decode", "serve")
        for arguments in ((), *((command,) for command in commands)):
            text = self.help_of("folvero", *arguments)
            for option in re.findall(r"(?<!\S)--[a-z]+", text):
                self.assertIn(option, page)
            if not arguments:
                self.assertEqual(set(re.findall(r"^  ([a-z]+)  ", text, re.M)), set(commands))
        for command in commands:
            self.assertIn(f".TP\n.B {command}\n", page)

    def test_folvero_desktop(self):
        page = self.page("folvero-desktop")
        text = self.help_of("folvero-desktop")
        options = re.findall(r"(?<!\S)--[a-z]+", text)
        self.assertIn("--version", options)
        for option in options:
            if option != "--help-all":
                self.assertIn(option, page)


if __name__ == "__main__":
    unittest.main()
