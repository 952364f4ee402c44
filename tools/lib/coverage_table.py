"""Prints a table of line coverage from an lcov file.

usage: coverage_table.py ROOT LCOV BOUND
"""

import collections
import os
import pathlib
import sys


def read(path):
    """file name -> {line: times run}; a line counts as run if any instance of it was."""
    files = collections.defaultdict(dict)
    lines = {}
    with open(path, encoding="utf-8") as file:
        for record in file:
            kind, _, value = record.rstrip("\n").partition(":")
            if kind == "SF":
                lines = files[os.path.normpath(value)]
            elif kind == "DA":
                number, count = value.split(",")[:2]
                lines[int(number)] = max(lines.get(int(number), 0), int(count))
    return files


def ranges(numbers):
    """[1, 2, 3, 7] -> "1-3 7" """
    parts = []
    for number in sorted(numbers):
        if parts and number == parts[-1][1] + 1:
            parts[-1][1] = number
        else:
            parts.append([number, number])
    return " ".join(str(first) if first == last else f"{first}-{last}" for first, last in parts)


def main(arguments):
    root, lcov, bound = pathlib.Path(arguments[0]).resolve(), arguments[1], float(arguments[2])
    total = run = 0
    print(f"{'file':52} {'lines':>6} {'run':>6} {'%':>6}  not run")
    for name, lines in sorted(read(lcov).items()):
        path = pathlib.Path(name)
        if root not in path.parents or path.relative_to(root).parts[0] not in ("include", "src") or not lines:
            continue
        missed = [number for number, count in lines.items() if count == 0]
        total += len(lines)
        run += len(lines) - len(missed)
        share = 100 * (len(lines) - len(missed)) / len(lines)
        print(f"{path.relative_to(root).as_posix():52} {len(lines):6} {len(lines) - len(missed):6} {share:6.1f}  {ranges(missed)}")
    share = 100 * run / total if total else 0
    print(f"{'all':52} {total:6} {run:6} {share:6.1f}")
    if share < bound:
        print(f"coverage: {share:.1f} % of the lines are run, {bound:g} % are asked for", file=sys.stderr)
        return 1
    return 0


sys.exit(main(sys.argv[1:]))
