"""A library is made on a cluster with Slurm, one node of which fails in the middle, and then brought
up to date."""

import json
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from support import (FOLVERO, Cluster, check_book, eventually, make_pdfs, output, pages_of,
                     state_of)

BOOKS = 60
SHARDS = 6
NODES = ("n1", "n2")
PROPERTIES = {"TutorialTitle": "it's \"here\" for $HOME", "FlashWindowsColor": "0x123456"}


class OnACluster(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # In the build folder, so that where the node allows it tasks have a /tmp of their own.
        cls.folder = Path(tempfile.mkdtemp(prefix="cluster test's \"", dir=Path.cwd()))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.pdfs, cls.out = cls.folder / "scans", cls.folder / "100% done"
        make_pdfs(BOOKS, cls.pdfs, 4)
        settings = cls.folder / "settings file.txt"
        settings.write_bytes(b"\n\rmainColor=0x123456")
        cls.cluster = Cluster(NODES)
        cls.addClassCleanup(cls.cluster.remove)
        cls.script = output(FOLVERO, "library", "sbatch", cls.pdfs / "list.csv", cls.out,
                            "--shards", str(SHARDS), "--settings", settings,
                            "--set", f"TutorialTitle={PROPERTIES['TutorialTitle']}")
        cls.scratch = cls.folder / "scratch"
        cls.scratch.mkdir()

    def submit(self):
        return self.cluster.command("sbatch", "--parsable", input=self.script, cwd="/",
                                    env_changes={"TMPDIR": str(self.scratch)}).strip()

    def results(self):
        return list(self.out.glob(".folvero-library/results/*/*.json"))

    def finish(self, job):
        eventually(lambda: not self.cluster.tasks(job), "the job has ended")
        logs = self.cluster.log(*self.out.glob(".folvero-library/log/*"))
        self.assertEqual(set(self.cluster.ended(job)), {("COMPLETED", "0:0")}, logs)

    def check_library(self):
        status = json.loads(output(FOLVERO, "library", "status", "--json", self.out))
        self.assertTrue(status["done"], status)
        self.assertEqual(status["listed"], BOOKS)
        for number in range(1, BOOKS + 1):
            check_book(self, self.out / f"books/b{number:07}",
                       pages_of(self.pdfs / f"{number:07}.pdf"), PROPERTIES)
        hidden = {path.relative_to(self.out) for path in self.out.glob("books/**/.*")}
        self.assertEqual({path.name for path in hidden}, {".index.html.stamp"})
        state = self.out / ".folvero-library"
        others = [file for file in state.rglob("*") if file.is_file()
                  and not (file.suffix == ".json" and file.parent.name != "leases"
                           or file.suffix == ".txt" or file.name == "clock")]
        self.assertEqual(others, [])
        self.assertEqual(list(self.scratch.glob("Lumivex/*")), [])

    def test_1_all_books_are_made_although_a_node_fails(self):
        job = self.submit()
        eventually(lambda: len(self.results()) >= BOOKS // 6, "some books are made")
        on_node = [number for number, state in self.cluster.tasks(job).items() if "n1" in state]
        self.assertTrue(on_node)
        self.cluster.kill_node("n1")
        self.assertLess(len(self.results()), BOOKS)
        eventually(lambda: "n1" not in str(self.cluster.tasks(job)), "the failure is noticed")
        self.cluster.start_node("n1")
        self.finish(job)
        self.check_library()

    def test_2_only_a_book_whose_document_changed_is_made_again(self):
        before = state_of(self.out)
        changed = "0000007"
        make_pdfs(1, self.folder / "other", 9)
        shutil.copy(self.folder / "other/0000001.pdf", self.pdfs / f"{changed}.pdf")
        self.finish(self.submit())
        self.check_library()
        after = state_of(self.out)
        different = {path for path in before | after if before.get(path) != after.get(path)}
        outside = {path for path in different
                   if not path.startswith((f"books/b{changed}/", ".folvero-library/runs/",
                                           ".folvero-library/log/", ".folvero-library/leases/clock"))}
        self.assertEqual({Path(path).name for path in outside}, {f"b{changed}.json"})


if __name__ == "__main__":
    unittest.main()
