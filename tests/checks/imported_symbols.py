"""Compares the system names that the library's objects use with the list of those that
they may use, and with the objects that may use them.

usage: imported_symbols.py NM OBJECT-LIST RULES
"""

import pathlib
import re
import subprocess
import sys


def read_rules(path):
    """A list of (name pattern, object pattern, line number)."""
    rules = []
    for number, line in enumerate(pathlib.Path(path).read_text(encoding="utf-8").splitlines(), 1):
        words = line.split("#")[0].split()
        if words:
            name, users = words[0], words[1:] or [".*"]
            rules.append((re.compile(name), [re.compile(user) for user in users], number))
    return rules


def object_name(path):
    """src/CMakeFiles/quor_objects.dir/strings/unichar.cpp.o -> strings/unichar"""
    name = re.sub(r"^.*/CMakeFiles/[^/]+\.dir/", "", path)
    name = re.sub(r"\.cpp\.o(?:bj)?$", "", name).removeprefix("./")
    if "platform/CMakeFiles" in path:
        name = "platform/" + name
    return name


def symbols(nm, path, option):
    output = subprocess.run([nm, option, "-P", path], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            text=True, check=True).stdout
    return {line.split()[0] for line in output.splitlines() if line.strip()}


def main(arguments):
    nm, object_list, rule_file = arguments
    objects = pathlib.Path(object_list).read_text(encoding="utf-8").split()
    rules = read_rules(rule_file)
    defined = set()
    for path in objects:
        defined |= symbols(nm, path, "--defined-only")
    problems = []
    for path in objects:
        user = object_name(path)
        for name in sorted(symbols(nm, path, "--undefined-only") - defined):
            if re.match(r"_Z\w*8QUOR_2_9", name):
                continue
            for pattern, users, number in rules:
                if pattern.fullmatch(name):
                    if any(allowed.fullmatch(user) for allowed in users):
                        break
            else:
                problems.append(f"{user}: {name} may not be used there ({rule_file})")
    for text in problems:
        print(text)
    print(f"{len(objects)} objects, {len(problems)} problems")
    return 1 if problems else 0


sys.exit(main(sys.argv[1:]))
