#!/usr/bin/env python3
"""Lets the search of MIP.EXE crash, and its second attempt too: it must report all the same.

    crashed_search.py PROGRAM

Starts the program on a problem that has no end, sends the signal of a crash to each thread that searches, and reads
OUTPUT.Dat.
"""
import ctypes
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

# Two whole numbers, the double of one 1 above the double of the other.
ENDLESS = ["1", "1,2,0,1,0", "'a','b'", "2,-2", "1", "0", "-1,-1", "0,1E+30,0,1E+30", "2", "1,2"]
ATTEMPTS = 2
TIME_LIMIT = 20  # seconds


def search_thread(process, before):
    """The thread that is none of those before, once there is one."""
    while process.poll() is None:
        threads = [int(t) for t in os.listdir(f"/proc/{process.pid}/task")]
        new = [t for t in threads if t not in before]
        if new:
            return new[0]
        time.sleep(0.01)
    raise SystemExit("the program has ended")


def crash(program, number):
    with tempfile.TemporaryDirectory(prefix="vantore-mip-") as folder:
        path = pathlib.Path(folder)
        path.joinpath("TEMP.DAT").write_text("\r\n".join(ENDLESS) + "\r\n", newline="")
        with subprocess.Popen([program], env=dict(os.environ, VANTORE_IO=folder + "/")) as process:
            known = [process.pid]
            for _ in range(ATTEMPTS):
                known.append(search_thread(process, known))
                time.sleep(0.2)
                ctypes.CDLL(None).tgkill(process.pid, known[-1], number)
            status = process.wait(TIME_LIMIT)
        return status, path.joinpath("OUTPUT.Dat").read_text(encoding="utf-8").splitlines()


def main():
    for number in (signal.SIGSEGV, signal.SIGABRT):
        status, lines = crash(sys.argv[1], number)
        if status != 0 or lines[:2] != [
            "STATUS: STOPPED",
            "The search was stopped by a failure of the solver's library. No solution had",
        ]:
            print(number, status, *lines, sep="\n")
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
