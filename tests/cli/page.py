"""Opens the coverage page in a browser without a window, filters it and takes a picture.

Ends with 77, after saying why, where there is no browser.

usage: page.py COMMAND CATALOGS WORK-DIRECTORY
"""

import pathlib
import re
import shutil
import subprocess
import sys

BROWSERS = ["chromium", "chromium-browser", "google-chrome"]


class Browser:
    def __init__(self, program, work):
        self.program = program
        self.work = work

    def run(self, url, *options):
        command = [self.program, "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                   f"--user-data-dir={self.work}/profile", "--virtual-time-budget=3000", *options, url]
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
                              timeout=120).stdout

    def rows(self, url):
        """The names of the messages that are shown, and the text beside the filter."""
        page = self.run(url, "--dump-dom")
        names = []
        for row in re.findall(r'<tr class="message"([^>]*)>(.*?)</tr>', page, re.DOTALL):
            if "hidden" not in row[0]:
                names.append(re.sub("<[^>]*>", "", re.search(r"<button.*?</button>", row[1], re.DOTALL).group(0)))
        shown = re.search(r'<span id="shown">([^<]*)</span>', page)
        return names, shown.group(1) if shown else ""


def main(arguments):
    command, catalogs, work = arguments[0], arguments[1], pathlib.Path(arguments[2]).resolve()
    program = next((path for path in map(shutil.which, BROWSERS) if path), None)
    if program is None:
        print("SKIPPED: there is no Chromium here, so the coverage page was not opened")
        return 77
    work.mkdir(parents=True, exist_ok=True)
    page = work / "coverage.html"
    subprocess.run([command, "catalog", "coverage", "--html", page, catalogs], stdout=subprocess.DEVNULL, check=True)
    browser = Browser(program, work)
    url = page.as_uri()
    problems = []

    def expect(what, found, wanted):
        if found != wanted:
            problems.append(f"{what}: {found}, expected {wanted}")

    everything, shown = browser.rows(url)
    expect("all", shown, f"{len(everything)} of {len(everything)}")
    if len(everything) < 60:
        problems.append(f"only {len(everything)} messages are shown")
    expect("by name", browser.rows(url + "#filter=greeting"), (["app/greeting"], f"1 of {len(everything)}"))
    expect("by text", browser.rows(url + "#filter=hello%2C")[0], ["app/greeting"])
    expect("nothing", browser.rows(url + "#filter=no-such-text"), ([], f"0 of {len(everything)}"))
    expect("missing", browser.rows(url + "#state=missing")[0], [])
    picture = work / "coverage.png"
    browser.run(url + "#filter=app", f"--screenshot={picture}", "--window-size=1280,900")
    if not picture.is_file() or picture.stat().st_size < 10000:
        problems.append("the picture is missing or empty")
    print("\n".join(problems) or f"{len(everything)} messages shown, filtered and pictured")
    return 1 if problems else 0


sys.exit(main(sys.argv[1:]))
