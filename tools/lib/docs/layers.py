"""Prints the drawing of the layers, as text for dot, from tests/checks/include_graph.txt.

The folders stand in that file in the order of the layers. An arrow leads from a folder to each lower
one that it may include, but for those that one on the way includes anyway; a dashed one to each
higher one. "support" and the top folder, which nearly all include, are left out. Fails when
docs/architecture.md has no row for a folder.

usage: layers.py
"""

import pathlib

GRAPH = pathlib.Path("tests/checks/include_graph.txt")
PAGE = pathlib.Path("docs/architecture.md")
LEFT_OUT = {".", "support"}


def read():
    graph = {}
    for line in GRAPH.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            folder, _, included = line.partition(":")
            graph[folder.strip()] = included.split()
    return graph


def reachable(graph, start):
    found, left = set(), [start]
    while left:
        for folder in graph[left.pop()]:
            if folder not in found:
                found.add(folder)
                left.append(folder)
    return found


def without_short_cuts(graph):
    """The same graph, which has no circles, without arrows that a longer way replaces."""
    reach = {folder: reachable(graph, folder) for folder in graph}
    return {folder: [to for to in included if not any(to in reach[other] for other in included)]
            for folder, included in graph.items()}


def main():
    graph = read()
    text = PAGE.read_text(encoding="utf-8")
    lost = [folder for folder in graph if folder != "." and f"| `{folder}`" not in text]
    if lost:
        raise SystemExit(f"docs: {PAGE} has no row for {', '.join(lost)}")
    order = {folder: place for place, folder in enumerate(graph) if folder not in LEFT_OUT}
    down = {folder: [to for to in graph[folder] if to in order and order[to] < order[folder]] for folder in order}
    up = {folder: [to for to in graph[folder] if order.get(to, -1) > order[folder]] for folder in order}
    print("digraph layers {")
    print("\trankdir=TB; bgcolor=transparent; nodesep=0.15; ranksep=0.4;")
    print('\tnode [shape=box style="rounded,filled" fontname="Helvetica" fontsize=13 height=0.35 margin="0.1,0.05"];')
    print("\tedge [arrowsize=0.6];")
    for folder, included in without_short_cuts(down).items():
        print(f'\t"{folder}";')
        for to in included:
            print(f'\t"{folder}" -> "{to}";')
        for to in up[folder]:
            print(f'\t"{folder}" -> "{to}" [style=dashed constraint=false];')
    print("}")


main()
