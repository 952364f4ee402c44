"""Compares the names that the shared library exports with the list kept in the tree.

usage: exported_symbols.py NM LIBRARY LIST [--update]
"""

import subprocess
import sys


def exported(nm, library):
    """The exported definitions, demangled and sorted."""
    output = subprocess.run([nm, "--dynamic", "--defined-only", "--demangle", "--without-symbol-versions", library],
                            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True, check=True).stdout
    names = set()
    for line in output.splitlines():
        kind, name = line[17:18], line[19:]
        # A: the version node itself.
        if kind != "A":
            names.add(name)
    return sorted(names)


def main(arguments):
    nm, library, path, *rest = arguments
    found = exported(nm, library)
    if rest == ["--update"]:
        with open(path, "w", encoding="utf-8") as file:
            file.write("".join(name + "\n" for name in found))
        print(f"{path}: {len(found)} names")
        return 0
    with open(path, encoding="utf-8") as file:
        listed = file.read().splitlines()
    missing = sorted(set(listed) - set(found))
    added = sorted(set(found) - set(listed))
    for name in missing:
        print("no longer exported:", name)
    for name in added:
        print("not in the list:   ", name)
    if missing or added:
        print("When the change is meant, run tools/symbols --update and review the difference; "
              "a name that is gone breaks programs that are linked to the library.")
    return 1 if missing or added else 0


sys.exit(main(sys.argv[1:]))
