"""Runs the commands that a guide shows and compares what they print.

A block of `sh` whose first line is `$ quor ...` holds commands, each behind "$ ", and
beneath each what it prints, the standard error stream included. They run from the root of
the source tree. Lines of `...` alone stand for any number of lines.

usage: guide.py COMMAND ROOT GUIDE...
"""

import pathlib
import re
import shlex
import subprocess
import sys
import tempfile


def examples(text):
    for block in re.findall(r"^```sh\n(\$ quor .*?)^```$", text, re.MULTILINE | re.DOTALL):
        for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            line, _, output = part.partition("\n")
            yield line, output.rstrip("\n")


def agrees(shown, printed):
    pattern = "".join(r"(?:.*\n)*?" if line == "...\n" else re.escape(line)
                      for line in (shown + "\n").splitlines(keepends=True))
    return re.fullmatch(pattern, printed.rstrip("\n") + "\n") is not None


def main(arguments):
    command, root, *guides = arguments
    count, failures = 0, 0
    with tempfile.TemporaryDirectory() as work:
        for guide in guides:
            for line, shown in examples((pathlib.Path(root) / guide).read_text(encoding="utf-8")):
                words = shlex.split(line)[1:]
                words = [f"{work}/{word}" if word.endswith(".html") else word for word in words]
                done = subprocess.run([command, *words], cwd=root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                      text=True, check=False, env={"LOG_LEVEL": "trace"})
                count += 1
                if not agrees(shown, done.stdout):
                    failures += 1
                    print(f"{guide}: \"{line}\" printed\n{done.stdout}--- shown\n{shown}")
    print(f"{count} commands, {failures} failed")
    return 1 if failures or count == 0 else 0


sys.exit(main(sys.argv[1:]))
