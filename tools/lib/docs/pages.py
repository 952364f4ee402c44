"""The pages of the site: docs/site/pages.txt and the names that pages and headings get."""

import pathlib
import re

LIST = pathlib.Path("docs/site/pages.txt")
MAIN = "docs/main.md"
HEADING = re.compile(r"^(#{1,6}) +(.*?)\s*$")
FENCE = re.compile(r"^\s*(```|~~~)")


def entries():
    """Yields (depth, text) for each line of the list."""
    for line in LIST.read_text(encoding="utf-8").splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        depth = 1 if line.startswith("\t") else 0
        text = line.strip()
        yield depth, text


def files():
    """All files that become pages."""
    return [MAIN] + [text for _, text in entries() if text.endswith(".md")]


def label(path):
    """The name of a file's page, from which its address is made: "formats_xmc" for docs/formats/xmc.md."""
    if path == MAIN:
        return "mainpage"
    return re.sub(r"[^a-z0-9]+", "_", path.removeprefix("docs/").removesuffix(".md").lower())


def slug(heading):
    """The anchor of a heading as the hosts of repositories make it."""
    text = re.sub(r"[`*]", "", heading).strip().lower()
    return re.sub(r"\s", "-", re.sub(r"[^\w\s-]", "", text))


def anchor(path, heading_slug):
    """The anchor of a heading in the site, where all pages share one set of names."""
    return label(path) + "--" + heading_slug


def title(path):
    """The first heading of a file."""
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        match = HEADING.match(line)
        if match:
            return re.sub(r"\s*\{#.*\}$", "", match.group(2))
    raise SystemExit(f"docs: {path} has no heading")
