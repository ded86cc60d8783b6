"""Runs a program, and kills it and whatever it has started once standard input ends.

    keeper.py COMMAND...

Whoever starts it holds the other end of a pipe: when that process ends, however it ends, so does all
that is kept. Processes that leave their parents are found, too: they become children of this one.
"""

import ctypes
import os
import select
import signal
import subprocess
import sys
from pathlib import Path

sys.path.append(str(Path(__file__).parent.parent / "support"))
from processes import descendants

PR_SET_CHILD_SUBREAPER = 36
INTERVAL = 0.2  # seconds


def reap():
    """False once there is no child left."""
    try:
        while os.waitpid(-1, os.WNOHANG)[0]:
            pass
        return True
    except ChildProcessError:
        return False


def main():
    ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    signal.signal(signal.SIGTERM, signal.SIG_IGN)
    signal.signal(signal.SIGINT, signal.SIG_IGN)
    subprocess.Popen(sys.argv[1:], stdin=subprocess.DEVNULL, start_new_session=True)
    while reap() and not select.select([sys.stdin], [], [], INTERVAL)[0]:
        pass
    while reap():
        for pid in descendants(os.getpid()):
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        select.select([], [], [], 0.01)


if __name__ == "__main__":
    main()
