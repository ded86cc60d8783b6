"""What the command line asks for."""

from dataclasses import dataclass, field
from pathlib import Path

from .bench import Bench


@dataclass
class Context:
    program: Path
    samples: Path
    work: Path
    pairs: list
    is_long: bool
    is_whole: bool  # whether every experiment takes all pairs
    documents: list  # folders of documents to mutate
    first: int
    count: int
    made: dict = field(default_factory=dict)

    def folder(self, name):
        path = self.work / name
        path.mkdir()
        return path

    def benches(self, in_short):
        """The pairs that an experiment takes; each is published once, when it is first needed."""
        taken = self.pairs if self.is_whole else self.pairs[:in_short]
        for pair in taken:
            if pair not in self.made:
                self.made[pair] = Bench(self.program, self.samples, self.folder(pair.replace(":", "-")), pair)
        return [self.made[pair] for pair in taken]
