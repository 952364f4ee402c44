"""Prints Doxygen's layout with the navigation of docs/site/pages.txt, from Doxygen's own layout.

Fails on a guide that stands in no group.

usage: layout.py DEFAULT-LAYOUT
"""

import pathlib
import re
import sys
from xml.sax.saxutils import quoteattr

import pages

REFERENCE = """    <tab type="usergroup" title="Reference">
      <tab type="classlist" visible="yes" title="Classes"/>
      <tab type="namespacelist" visible="yes" title="Namespaces"/>
      <tab type="namespacemembers" visible="yes" title="Functions and types"/>
      <tab type="classmembers" visible="yes" title="Members"/>
      <tab type="hierarchy" visible="yes" title="Hierarchy"/>
      <tab type="filelist" visible="yes" title="Headers"/>
    </tab>"""
EXAMPLES = '    <tab type="examples" visible="yes" title="Examples"/>'


def tabs():
    yield '    <tab type="mainpage" visible="yes" title="Start"/>'
    is_open = False
    for depth, text in pages.entries():
        if depth == 0 and is_open:
            yield "    </tab>"
            is_open = False
        if text == "= reference":
            yield REFERENCE
        elif text == "= examples":
            yield EXAMPLES
        elif text.endswith(".md"):
            yield f'    <tab type="user" url="@ref {pages.label(text)}" title={quoteattr(pages.title(text))}/>'
        else:
            yield f'    <tab type="usergroup" title={quoteattr(text)}>'
            is_open = True
    if is_open:
        yield "    </tab>"


def main():
    lost = sorted({path.as_posix() for path in pathlib.Path("docs").rglob("*.md")} - set(pages.files()))
    if lost:
        raise SystemExit(f"docs: in no group of {pages.LIST}: {', '.join(lost)}")
    layout = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    navigation = "<navindex>\n" + "\n".join(tabs()) + "\n  </navindex>"
    print(re.sub(r"<navindex>.*?</navindex>", lambda _: navigation, layout, flags=re.DOTALL), end="")


main()
