"""Checks the includes of the library against the rule file: which folder may include
which.

usage: include_graph.py ROOT RULES
"""

import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+[<"]([^>"]+)[>"]')


def read_rules(path):
    rules = {}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        line = line.split("#")[0].strip()
        if not line:
            continue
        folder, colon, allowed = line.partition(":")
        if not colon:
            sys.exit(f"{path}:{number}: no colon in the line")
        rules[folder.strip()] = set(allowed.split())
    for folder, allowed in rules.items():
        for other in sorted(allowed - set(rules)):
            sys.exit(f"{path}: {folder} names {other}, which has no line")
    return rules


def folder_of(path, rules):
    """The longest folder with a rule that holds the path."""
    for parent in pathlib.PurePosixPath(path).parents:
        if parent.as_posix() in rules:
            return parent.as_posix()
    return None


def target_of(name, path, root, rules):
    """The folder of an included file, or None for a file that is not the library's."""
    if name.startswith("quor/"):
        return folder_of(name[len("quor/"):], rules)
    if (root / "src" / name).is_file():
        return folder_of(name, rules)
    beside = (path.parent / name).resolve()
    if beside.is_file() and (root / "src").resolve() in beside.parents:
        return folder_of(beside.relative_to((root / "src").resolve()).as_posix(), rules)
    return None


def main(arguments):
    root = pathlib.Path(arguments[0])
    rules = read_rules(pathlib.Path(arguments[1]))
    problems = 0
    files = 0
    for base in (root / "include/quor", root / "src"):
        for path in sorted(base.rglob("*")):
            if path.suffix not in (".hpp", ".cpp"):
                continue
            relative = path.relative_to(base).as_posix()
            if base.name == "quor" and relative == "quor.hpp":
                continue
            files += 1
            folder = folder_of(relative, rules)
            if folder is None:
                print(f"{path}: its folder has no line in the rules")
                problems += 1
                continue
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if match is None:
                    continue
                if match.group(1) == "quor/quor.hpp":
                    print(f"{path}:{number}: the library itself must not include the umbrella header")
                    problems += 1
                    continue
                target = target_of(match.group(1), path, root, rules)
                if target is not None and target != folder and target not in rules[folder]:
                    print(f"{path}:{number}: {folder} may not include {target} ({match.group(1)})")
                    problems += 1
    print(f"{files} files, {problems} problems")
    return 1 if problems else 0


sys.exit(main(sys.argv[1:]))
