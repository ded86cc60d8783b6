"""What programs have started, for tests in Python."""

from pathlib import Path


def descendants(pid):
    """Process numbers of a process's children and theirs."""
    parents = {}
    for stat in Path("/proc").glob("[0-9]*/stat"):
        try:
            parents[int(stat.parent.name)] = int(stat.read_text().rpartition(")")[2].split()[1])
        except OSError:
            pass  # has ended
    found, new = set(), {pid}
    while new:
        new = {child for child, parent in parents.items() if parent in new} - found
        found |= new
    return found
