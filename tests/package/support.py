"""The packages under test, and a folder that they are installed into.

Environment: FOLVERO_PACKAGE_DIR and FOLVERO_PACKAGE_VERSION, where the packages are and their version;
FOLVERO_SOURCE_DIR and FOLVERO_SAMPLES_DIR, the source tree and the sample documents.
"""

import functools
import io
import os
import shutil
import subprocess
import tarfile
import tempfile
from pathlib import Path

VERSION = os.environ["FOLVERO_PACKAGE_VERSION"]
SOURCE = Path(os.environ["FOLVERO_SOURCE_DIR"])
SAMPLES = Path(os.environ["FOLVERO_SAMPLES_DIR"])
NAMES = ("folvero", "folvero-desktop")
STRANGER = 65534  # whom root becomes where a program is meant for ordinary users


def output(*command, **options):
    """What a program prints; it must succeed."""
    return subprocess.run(command, check=True, capture_output=True, **options).stdout


def package(name):
    architecture = output("dpkg", "--print-architecture").decode().strip()
    return Path(os.environ["FOLVERO_PACKAGE_DIR"]) / f"{name}_{VERSION}_{architecture}.deb"


def field(name, field_name):
    return output("dpkg-deb", "--field", package(name), field_name).decode().strip()


@functools.cache
def contents(name):
    """The archive of a package's files; the paths in it begin with "./usr"."""
    data = output("dpkg-deb", "--fsys-tarfile", package(name))
    return tarfile.open(fileobj=io.BytesIO(data))


def as_user(home):
    """Options for subprocess: an ordinary user with a home of their own, and nothing of ours."""
    options = {"env": {"PATH": os.environ["PATH"], "HOME": str(home), "TMPDIR": str(home),
                       "LANG": "C.UTF-8"}}
    if os.geteuid() == 0:
        options |= {"user": STRANGER, "group": STRANGER, "extra_groups": []}
    return options


class Installation:
    """Packages installed into a folder. The packages that they depend on must be installed on the
    machine itself: the folder's database begins as a copy of the machine's."""

    def __init__(self):
        self.top = Path(tempfile.mkdtemp(prefix="folvero-package-"))
        self.top.chmod(0o755)
        self.root = self.top / "root"
        self.prefix = self.root / "usr"
        database = self.root / "var/lib/dpkg"
        for folder in ("info", "updates", "triggers"):
            (database / folder).mkdir(parents=True)
        machine = Path("/var/lib/dpkg")
        shutil.copy(machine / "status", database)
        for file in (machine / "info").glob("*.list"):
            (database / "info" / file.name).touch()
        self.files_before = self.files()

    def files(self):
        """All that lies in the folder but the package database."""
        return {str(path.relative_to(self.root)) for path in self.root.rglob("*")
                if "var/lib/dpkg" not in str(path)}

    def dpkg(self, *arguments):
        environment = os.environ | {"PATH": os.environ["PATH"] + ":/usr/sbin:/sbin", "LC_ALL": "C"}
        return subprocess.run(
            ["dpkg", "--force-not-root", f"--root={self.root}", f"--log={self.top}/log", *arguments],
            env=environment, capture_output=True, text=True)

    def home(self, name):
        """A new folder of the ordinary user."""
        folder = self.top / name
        folder.mkdir()
        if os.geteuid() == 0:
            os.chown(folder, STRANGER, STRANGER)
        return folder

    def remove(self):
        shutil.rmtree(self.top)
