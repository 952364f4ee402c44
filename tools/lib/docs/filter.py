"""Prints a page of the tree as Doxygen shall read it.

Headings get names of their own, links between pages become references that Doxygen checks, links
to examples lead to their pages, and a file's name stands above its text. Entities in code stay as
they are written; of a header's comments this is all that changes.

usage: filter.py FILE
"""

import pathlib
import posixpath
import re
import sys

import pages

LINK = re.compile(r"(?<!!)\[([^\]\[]+)\]\(([^)\s]+)\)")
FILE_NOTE = re.compile(r"^<!-- file: (.+?) -->$")
NAMED = re.compile(r"\{#[^}]*\}\s*$")
ENTITY = re.compile(r"&(?=[a-z]+;)")
CODE = re.compile(r"`[^`]+`")


def spelled_out(match):
    """Code with its entities as they are written; Doxygen reads them even there."""
    return ENTITY.sub("&amp;", match.group(0))


def example_page(path):
    """The address that Doxygen gives to an example."""
    escaped = path.replace("/", "_2").replace(".", "_8")
    return escaped + "-example.html"


class Page:
    def __init__(self, path):
        self.path = path
        self.known = set(pages.files())
        self.in_code = False
        self.seen_title = False
        self.caption = None
        self.times = {}

    def link(self, match):
        text, target = match.groups()
        if re.match(r"[a-z]+:|@", target):
            return match.group(0)
        file, _, fragment = target.partition("#")
        file = posixpath.normpath(posixpath.join(posixpath.dirname(self.path), file)) if file else self.path
        if not pathlib.Path(file).exists():
            raise SystemExit(f"docs: {self.path} leads to {target}, which isn't there")
        if file in self.known:
            return f"[{text}](@ref {pages.anchor(file, fragment) if fragment else pages.label(file)})"
        if file.startswith("examples/"):
            return f"[{text}]({example_page(file)})"
        return f"[{text}]({file})"

    def heading(self, marks, text):
        if NAMED.search(text):
            self.seen_title = True
            return f"{marks} {text}"
        slug = pages.slug(text)
        times = self.times.get(slug, 0)
        self.times[slug] = times + 1
        name = pages.anchor(self.path, f"{slug}-{times}" if times else slug)
        if not self.seen_title:
            self.seen_title = True
            name = pages.label(self.path)
        return f"{marks} {text} {{#{name}}}"

    def line(self, line):
        if pages.FENCE.match(line):
            opens = not self.in_code
            self.in_code = opens
            if opens and self.caption:
                line = f'<div class="file-name">{self.caption}</div>\n\n{line}'
            self.caption = None
            return line
        if self.in_code:
            return line
        note = FILE_NOTE.match(line)
        if note:
            self.caption = note.group(1)
            return ""
        match = pages.HEADING.match(line)
        if match:
            return self.heading(*match.groups())
        return LINK.sub(self.link, CODE.sub(spelled_out, line))


def main():
    path = posixpath.relpath(sys.argv[1])
    lines = pathlib.Path(path).read_text(encoding="utf-8").splitlines()
    if path.endswith(".hpp"):
        for line in lines:
            print(ENTITY.sub("&amp;", line) if line.lstrip().startswith("///") else line)
        return
    page = Page(path)
    for line in lines:
        print(page.line(line))


main()
