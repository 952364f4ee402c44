"""Follows the links of the pages that people wrote, with linkchecker.

What Doxygen makes of the headers it links by itself, and headings inside pages are references that it
checks. No address outside is asked. Ends with 1 and a list of what leads nowhere.

usage: links.py HTML-DIRECTORY
"""

import pathlib
import shutil
import subprocess
import sys

import pages


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    if shutil.which("linkchecker") is None:
        print("docs: linkchecker is missing, links are not checked", file=sys.stderr)
        return 0
    starts = ["index.html", "examples.html"]
    starts += [pages.label(page) + ".html" for page in pages.files() if page != pages.MAIN]
    done = subprocess.run(["linkchecker", "--config=/dev/null", "--no-status", "--no-warnings", "--recursion-level=1", "--stdin"],
                          check=False, input="".join(f"{(root / start).as_uri()}\n" for start in starts), timeout=150,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    print(done.stdout if done.returncode else "docs: " + done.stdout.strip().splitlines()[-2])
    return done.returncode


sys.exit(main())
