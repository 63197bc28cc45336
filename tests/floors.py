#!/usr/bin/env python3
"""Checks that no folder includes what lies above it, and that no logic sees a toolkit."""
import pathlib
import re
import sys

# What each floor may include besides itself. A module folder may include its own subsystem's shared files.
BELOW = {
    "shell/base": [],
    "shell/forms": ["shell/base"],
    "shell": ["shell/forms", "shell/base"],
    "location": ["shell", "shell/forms", "shell/base"],
    "routing": ["shell", "shell/forms", "shell/base"],
    "mathprog": ["shell", "shell/forms", "shell/base"],
    "demand": ["shell", "shell/forms", "shell/base"],
    "simulator": ["shell", "shell/forms", "shell/base"],
    "suite": ["shell", "shell/forms", "shell/base", "location", "routing", "mathprog", "demand", "simulator"],
    "drawing": ["shell/forms", "shell/base"],
    "script": ["suite", "shell", "shell/forms", "shell/base", "drawing"],
    "desktop": ["suite", "shell", "shell/forms", "shell/base", "drawing"],
    "solvers": ["shell/base", "location", "routing", "mathprog"],
}
CORE_FILES = re.compile(r"^(problem|method)[a-z_]*\.(h|cpp)$")
TOOLKIT = re.compile(r'#include\s+<(Q[A-Z]\w*|Qt\w*/.*)>')
INCLUDE = re.compile(r'#include\s+"([^"]+)"')


def floor(path):
    """The floor of a path relative to the root, None outside the floors."""
    for name in ("shell/base", "shell/forms"):
        if path.startswith(name + "/"):
            return name
    top = path.split("/")[0]
    return top if top in BELOW else None


def faults(root):
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root).as_posix()
        own = floor(name)
        if own is None:
            continue
        text = path.read_text(encoding="utf-8")
        if own not in ("desktop", "drawing") and TOOLKIT.search(text):
            yield f"{name} includes a toolkit's header"
        for target in INCLUDE.findall(text):
            other = floor(target)
            if other is None or other == own:
                continue
            if other not in BELOW[own]:
                yield f"{name} reaches upwards to {target}"
            elif CORE_FILES.match(path.name) and own != "suite" and other in ("shell", "shell/forms"):
                yield f"{name} is a record or method and sees {target}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
