#!/usr/bin/env python3
"""Checks that no folder includes what lies above it, that records, methods and solver programs see no window, and that
no logic sees a toolkit.

    floors.py ROOT

What a module's core is, its CMakeLists.txt says: vantore_module(NAME CORE ... WINDOW ...). What several cores share is a
library of their subsystem that is linked to the base alone: vantore_library(NAME SOURCES ... LINKS vantore_base).
"""
import pathlib
import re
import sys

# What each floor may include besides itself.
SHELL = ["shell", "shell/forms", "shell/base"]
SUBSYSTEMS = ["location", "routing", "mathprog", "demand", "simulator"]
BELOW = {
    "shell/base": [],
    "shell/forms": ["shell/base"],
    "shell": ["shell/forms", "shell/base"],
    **{subsystem: SHELL for subsystem in SUBSYSTEMS},
    "suite": SHELL + SUBSYSTEMS,
    "drawing": ["shell/forms", "shell/base"],
    "processes": SHELL,
    "script": SHELL + ["processes", "suite", "drawing"],
    "desktop": SHELL + ["processes", "suite", "drawing"],
    "solvers": ["shell/base"] + SUBSYSTEMS,
}
WITH_TOOLKIT = ("desktop", "drawing")
TOOLKIT = re.compile(r"#include\s+<(Q[A-Z]\w*|Qt\w*/.*)>")
INCLUDE = re.compile(r'#include\s+"([^"]+)"')
MODULE = re.compile(r"vantore_module\(\s*(\w+)([^)]*)\)")
LIBRARY = re.compile(r"vantore_library\(([^)]*)\)")


def floor(path):
    """The floor of a path relative to the root, None outside the floors."""
    return next((name for name in sorted(BELOW, key=len, reverse=True) if path.startswith(name + "/")), None)


def words_behind(keyword, arguments):
    """The words of a CMake call from a keyword to the next."""
    words = re.sub(r"#.*", "", arguments).split()
    found = []
    taking = False
    for word in words:
        if word in ("CORE", "CORE_LINKS", "WINDOW", "SOURCES", "LINKS"):
            taking = word == keyword
        elif taking:
            found.append(word)
    return found


def listed(root, keyword):
    """The files that stand behind CORE or WINDOW of all modules, without their endings."""
    found = set()
    for lists in sorted(root.glob("*/CMakeLists.txt")):
        for name, arguments in MODULE.findall(lists.read_text(encoding="utf-8")):
            found.update(f"{lists.parent.name}/{name}/{file}" for file in words_behind(keyword, arguments))
    return found


def shared_by_cores(root):
    """The files of the subsystems' libraries that see the base alone, without their endings."""
    found = set()
    for subsystem in SUBSYSTEMS:
        lists = root / subsystem / "CMakeLists.txt"
        for arguments in LIBRARY.findall(lists.read_text(encoding="utf-8")) if lists.exists() else []:
            if words_behind("LINKS", arguments) == ["vantore_base"]:
                found.update(f"{subsystem}/{stem(file)}" for file in words_behind("SOURCES", arguments))
    return found


def stem(path):
    return path.rsplit(".", 1)[0]


def is_of_a_core(path, root, core, window):
    """A core's file, or a header in a module's folder that no list names: it belongs to all of the module."""
    if stem(path) in core:
        return True
    listed_by_nobody = path.endswith(".h") and not (root / (stem(path) + ".cpp")).exists()
    return path.count("/") == 2 and stem(path) not in window and listed_by_nobody


def faults(root):
    core, window = listed(root, "CORE") | shared_by_cores(root), listed(root, "WINDOW")
    for path in sorted(root.rglob("*")):
        name = path.relative_to(root).as_posix()
        own = floor(name)
        if path.suffix not in (".h", ".cpp") or own is None:
            continue
        sees_no_window = own == "solvers" or stem(name) in core
        if path.suffix == ".cpp" and own in SUBSYSTEMS and name.count("/") == 2 and stem(name) not in core | window:
            yield f"{name} is neither in its module's core nor in its window"
        text = path.read_text(encoding="utf-8")
        if own not in WITH_TOOLKIT and TOOLKIT.search(text):
            yield f"{name} includes a toolkit's header"
        for target in INCLUDE.findall(text):
            other = floor(target)
            if other is None:
                continue
            if other != own and other not in BELOW[own]:
                yield f"{name} reaches upwards to {target}"
            elif sees_no_window and other in ("shell", "shell/forms"):
                yield f"{name} is a record or method and sees {target}"
            elif sees_no_window and other in SUBSYSTEMS and not is_of_a_core(target, root, core, window):
                yield f"{name} is below the windows and sees {target}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
