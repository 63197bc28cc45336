#!/usr/bin/env python3
"""Installs a build into a folder that nobody may write, and plays from there as a user without a home of his own yet.

    installed_for_all.py CMAKE BUILD

Checks what lies where, that samples and solver are in reach, that the user's changes last, and that nothing of what was
installed has changed.
"""
import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

NOBODY = 65534

SOLVE_AND_SAVE = """module MIPROG
file ILP01.dat
press cmdOpen
answer Yes
press cmdSolve
report
press cmdContinue
type txtTitle A problem of one's own
file ILP01.dat
press cmdSave
answer No
press cmdExit
"""
START = "launcher\nshow txtDir\n"


def contents(folder):
    """Each file below a folder with its digest."""
    return {path.relative_to(folder).as_posix(): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*")) if path.is_file()}


def protect(folder):
    for path in [folder, *folder.rglob("*")]:
        path.chmod(path.stat().st_mode & ~0o222)


def unprotect(folder):
    for path in [folder, *folder.rglob("*")]:
        path.chmod(path.stat().st_mode | 0o200)


class User:
    """Plays scripts with the installed program; a superuser plays as nobody."""

    def __init__(self, prefix, home):
        self.program = prefix / "bin" / "vantore-script"
        self.home = home
        self.id = NOBODY if os.geteuid() == 0 else None
        if self.id is not None:
            os.chown(home, self.id, self.id)

    def play(self, script):
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.home)}
        run = subprocess.run([str(self.program), "-"], input=script, capture_output=True, text=True, check=False,
                             env=environment, cwd="/", user=self.id, group=self.id, extra_groups=[] if self.id else None)
        assert run.returncode == 0, run.stderr + run.stdout
        return run.stdout


def check(prefix, home):
    installed = contents(prefix)
    for name in ("bin/vantore-script", "libexec/vantore/MIP.EXE", "share/vantore/COG01.dat", "share/vantore/tour.txt"):
        assert name in installed, name + " isn't installed"
    user = User(prefix, home)
    own = home / ".local" / "share" / "vantore"

    first = user.play(START)
    assert f"set to the installed directory for VANTORE, or {own}." in first, first
    assert (own / "VANTORE.DRV").is_file()
    samples = {path.name for path in (prefix / "share" / "vantore").iterdir()}
    assert samples <= {path.name for path in own.iterdir()}, "a sample is missing"

    tour = (prefix / "share" / "vantore" / "tour.txt").read_text(encoding="utf-8")
    assert "EXACT CENTER-OF-GRAVITY METHOD RESULTS" in user.play(tour)
    solved = user.play(SOLVE_AND_SAVE)
    assert "run MIP.EXE\n" in solved and "STATUS: OPTIMAL" in solved, solved

    saved = (own / "ILP01.dat").read_bytes()
    assert b"A problem of one's own" in saved
    later = user.play(START)
    assert f'"Input/output folder: {own}/"' in later, later
    assert (own / "ILP01.dat").read_bytes() == saved, "a saved sample was replaced at the next start"
    assert contents(prefix) == installed, "what was installed has changed"


def main():
    cmake, build = sys.argv[1:]
    work = pathlib.Path(tempfile.mkdtemp(prefix="vantore-install-"))
    work.chmod(0o755)
    prefix, home = work / "usr", work / "home"
    home.mkdir()
    try:
        subprocess.run([cmake, "--install", build, "--prefix", str(prefix)], check=True, stdout=subprocess.DEVNULL)
        protect(prefix)
        check(prefix, home)
    finally:
        if prefix.exists():
            unprotect(prefix)
        shutil.rmtree(work)


if __name__ == "__main__":
    main()
