#!/usr/bin/python3
"""The desktop program's start, from its launch until the demo book is visible, and where the time goes.

Runs on the screen that DISPLAY names, and without a screen when there is none. The first start is
shown as it is; the others, for which the system has the files in memory, as medians.
"""

import argparse
import os
import subprocess
import time

from support import BUILD, ScratchFolder, fail, median, print_table, require

STAGES = ("main function", "application", "window, preview published", "book on show")
PROGRAM = BUILD / "bin" / "folvero-bench-startup"


def start(home):
    """Milliseconds after the launch at which each milestone was reached."""
    environment = os.environ | {"HOME": str(home), "XDG_CONFIG_HOME": "", "XDG_DATA_HOME": ""}
    if "DISPLAY" not in environment:
        environment["QT_QPA_PLATFORM"] = "offscreen"
    if os.geteuid() == 0:
        environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
    command = [PROGRAM, str(time.monotonic_ns())]
    run = subprocess.run(command, env=environment, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        fail(f"the program ended with {run.returncode}: {run.stderr.strip()}")
    return [float(number) for number in run.stdout.split()]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--rounds", type=int, default=10, help="default %(default)s")
    options = parser.parse_args()
    require(PROGRAM)
    with ScratchFolder() as home:
        first = start(home)
        warm = [start(home) for _ in range(options.rounds)]
    rows = []
    for stage, name in enumerate(STAGES):
        numbers = [run[stage] for run in warm]
        rows.append([name, f"{first[stage]:.0f}", f"{median(numbers):.0f}",
                     f"{min(numbers):.0f} to {max(numbers):.0f}"])
    print_table(["reached, ms after the launch", "first", "warm", "range"], rows)


main()
