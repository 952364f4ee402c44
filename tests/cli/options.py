"""Checks that every option which a --help of the command shows stands in its man page and in
its completion, and that these name no other.

usage: options.py COMMAND MAN-PAGE COMPLETION
"""

import pathlib
import re
import subprocess
import sys

COMMANDS = [[], ["catalog"], ["catalog", "check"], ["catalog", "coverage"], ["catalog", "render"],
            ["config"], ["config", "explain"], ["config", "dump"]]


def main(arguments):
    command, man_page, completion = arguments
    man = pathlib.Path(man_page).read_text(encoding="utf-8").replace("\\-", "-")
    bash = pathlib.Path(completion).read_text(encoding="utf-8")
    problems, known = [], set()
    for path in COMMANDS:
        text = subprocess.run([command, *path, "--help"], stdout=subprocess.PIPE, text=True, check=True).stdout
        options = set(re.findall(r"^  (?:-\w,)?(--[\w-]+)", text, re.MULTILINE))
        known |= options
        name = " ".join(path)
        line = re.search(rf"^\t'?{name}'?\) options='([^']*)'" if name else r"^\t''\) options='([^']*)'", bash, re.MULTILINE)
        completed = set(line.group(1).split()) if line else set()
        subcommands = set(re.findall(r"^  (\w+) {4,}", text.partition("Subcommands:")[2], re.MULTILINE))
        if completed - {"--"} != options | subcommands:
            problems.append(f"completion of \"quor {name}\": {sorted(completed)}, help: {sorted(options | subcommands)}")
    listed = set(re.findall(r"^\.B\w* .*?(--[\w-]+)", man.partition(".SH OPTIONS")[2], re.MULTILINE))
    if listed != known:
        problems.append(f"man page: {sorted(listed)}, help: {sorted(known)}")
    print("\n".join(problems) or f"{len(known)} options agree")
    return 1 if problems else 0


sys.exit(main(sys.argv[1:]))
