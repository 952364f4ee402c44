"""Prints a comment for Doxygen that makes a page of each example: its opening words and its text.

usage: examples.py
"""

import pathlib
import re
import subprocess

KINDS = {".cpp", ".hpp", ".xmc", ".xml", ".cfg"}


def opening(path):
    """The first paragraph of the comment in front of a program."""
    rows = []
    for line in path.read_text(encoding="utf-8").splitlines():
        if not line.startswith("// "):
            break
        rows.append(line.removeprefix("// "))
    text = " ".join(rows) or "A file of the examples."
    return re.sub(r"[<>@#\\]", "", text.removesuffix(":"))


def main():
    listed = subprocess.run(["git", "ls-files", "examples"], check=False, stdout=subprocess.PIPE, text=True).stdout
    names = listed.split() or [path.as_posix() for path in pathlib.Path("examples").rglob("*") if path.is_file()]
    for path in sorted(map(pathlib.Path, names)):
        if path.suffix in KINDS:
            print(f"/** @example {path.as_posix()}\n{opening(path)} */")


main()
