"""Writes what benchmark programs measured as tables, and judges it by the limits.

usage: bench_table.py [--compiler TEXT] [--peers TEXT] [--results FILE] JSON...

Each JSON file is the output of one program, named after its area: times are the medians of
all repetitions, limits and figures come from its context. In FILE the sections of the areas are
replaced and the others kept. Fails when a limit is broken.
"""

import argparse
import json
import pathlib
import platform
import re
import statistics
import sys
import typing

LIBRARY = "quor"
HEAD = """# Benchmark results

Written by `tools/bench`; the programs stand in `bench/`. All competitors of an operation run in
one process on the same input and are first checked to give the same results. They take turns in
random order, and some turns of each come before more of any. Times are medians of processor time;
only the ratios compare from one machine to another. A limit is what we hold ourselves to
(`tools/bench` fails beyond it), an aim what we would like. A limit such as "0.25 + 2 ns" allows
the call of an operation of a few nanoseconds that much more than the ratio; the aim is a ratio
alone.
"""


def split(text, by="/"):
    """"operation/competitor" in its two parts; a competitor has no slash."""
    left, _, right = text.rpartition(by)
    return left, right


class Limit(typing.NamedTuple):
    most: float  # times the peer
    aim: float  # times the peer; 0 for none
    extra_ns: float  # on top of it

    def at(self, peer_time):
        """The ratio that is allowed to a peer of that time."""
        return self.most + self.extra_ns * 1e-9 / peer_time

    def text(self):
        most = f"{self.most:.3g}" + (f" + {self.extra_ns:g} ns" if self.extra_ns else "")
        return f"{most}, aim {self.aim:.3g}" if self.aim else most


class Area:
    def __init__(self, path):
        data = json.loads(path.read_text(encoding="utf-8"))
        self.name = path.stem
        self.date = data["context"]["date"][:10]
        self.cores = data["context"]["num_cpus"]
        samples = {}  # operation -> competitor -> list of seconds
        for run in sorted(data["benchmarks"], key=lambda run: run["family_index"]):
            if run.get("error_occurred"):
                raise SystemExit(f"bench: {run['name']}: {run['error_message']}")
            if run["run_type"] == "iteration":
                operation, competitor = split(run["run_name"])
                samples.setdefault(operation, {}).setdefault(competitor, []).append(seconds(run))
        self.times = {operation: {competitor: statistics.median(times) for competitor, times in of_each.items()}
                      for operation, of_each in samples.items()}
        self.repetitions = min((len(times) for of_each in samples.values() for times in of_each.values()), default=0)
        self.limits = {}  # operation -> peer -> Limit
        self.medians = []  # (part of operations' names, peer, most)
        self.figures = {}  # figure -> competitor -> number
        self.bounds = {}  # figure -> number
        for key, value in data["context"].items():
            kind, _, name = key.partition(": ")
            if kind == "limit":
                operation, peer = split(name)
                self.limits.setdefault(operation, {})[peer] = Limit(*map(float, value.split()))
            elif kind == "median":
                self.medians.append((*split(name), float(value)))
            elif kind == "figure":
                figure, competitor = split(name)
                self.figures.setdefault(figure, {})[competitor] = float(value)
            elif kind == "bound":
                self.bounds[name] = float(value)
        self.broken = []

    def time_rows(self):
        for operation, times in self.times.items():
            own = times.get(LIBRARY)
            limits = self.limits.get(operation, {})
            for peer in list(limits) + [name for name in times if name not in limits and name != LIBRARY]:
                limit = limits.get(peer)
                row = [operation, duration(own), peer, duration(times.get(peer))]
                if own is None or peer not in times:
                    yield row + ["", limit.text() if limit else "", "not measured"]
                    continue
                ratio = own / times[peer]
                met = limit and self.judge(f"{operation}, {peer}", ratio, limit.at(times[peer]), limit.aim)
                yield row + [f"{ratio:.2f}", limit.text() if limit else "", met or ""]

    def figure_rows(self):
        for figure, numbers in self.figures.items():
            own = numbers.get(LIBRARY)
            most = self.bounds.get(figure)
            peers = ", ".join(f"{name} {short(number)}" for name, number in numbers.items() if name != LIBRARY)
            if own is None or most is None:
                yield [figure, short(own), peers, "" if most is None else short(most), ""]
            else:
                yield [figure, short(own), peers, short(most), self.judge(figure, own, most)]

    def median_rows(self):
        for part, peer, most in self.medians:
            ratios = [times[LIBRARY] / times[peer] for operation, times in self.times.items()
                      if part in operation and LIBRARY in times and peer in times]
            what = f'{LIBRARY} / {peer}, median of the {len(ratios)} operations with "{part}"'
            if not ratios:
                yield [what, "", "", short(most), "not measured"]
                continue
            median = statistics.median(ratios)
            yield [what, f"{median:.2f}", "", short(most), self.judge(what, median, most)]

    def judge(self, what, value, most, aim=0):
        if value > most:
            self.broken.append(f"{self.name}: {what}: {value:.3g} is more than {most:.3g}")
            return "**no**"
        if aim == 0:
            return "yes"
        return "yes, the aim too" if value <= aim else "yes, the aim not yet"

    def section(self, compiler, peers):
        lines = [f"## {self.name}", ""]
        lines.append(f"{processor()}, {self.cores} cores, {system()}. {compiler}. {self.date}. "
                     f"{self.repetitions} repetitions.")
        competitors = {name for times in self.times.values() for name in times}
        if peers and any(name != LIBRARY and not name.startswith("std::") for name in competitors):
            lines.append(f"Peers: {peers}.")
        lines.append("")
        lines += table(["operation", LIBRARY, "peer", "its time", f"{LIBRARY} / peer", "limit", "met"], "lrlrrll",
                       self.time_rows())
        figures = [*self.median_rows(), *self.figure_rows()]
        if figures:
            lines.append("")
            lines += table(["figure", LIBRARY, "peers", "limit", "met"], "lrlrl", figures)
        return "\n".join(lines) + "\n"


def seconds(run):
    if "items_per_second" in run:
        return 1 / run["items_per_second"]
    return run["cpu_time"] * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}[run["time_unit"]]


def duration(value):
    if value is None:
        return ""
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value * 1e9:.3g} ns"


def short(value):
    return "" if value is None else f"{value:.3g}"


def table(head, alignment, rows):
    yield "| " + " | ".join(head) + " |"
    yield "|" + "|".join("---:" if one == "r" else "---" for one in alignment) + "|"
    for row in rows:
        yield "| " + " | ".join(row) + " |"


def processor():
    try:
        match = re.search(r"^model name\s*:\s*(.*)$", pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8"), re.M)
    except OSError:
        match = None
    return match.group(1) if match else platform.machine()


def system():
    try:
        name = platform.freedesktop_os_release()["PRETTY_NAME"]
    except OSError:
        name = platform.system()
    return f"{name}, {platform.machine()}"


def write(path, sections):
    """Replaces sections of the file; those of other areas stay."""
    kept = {}
    if path.is_file():
        for part in re.split(r"(?m)^(?=## )", path.read_text(encoding="utf-8"))[1:]:
            kept[part.splitlines()[0][3:]] = part.rstrip("\n") + "\n"
    kept.update(sections)
    path.write_text("\n".join([HEAD] + [kept[name] for name in sorted(kept)]), encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--compiler", default="")
    parser.add_argument("--peers", default="")
    parser.add_argument("--results", type=pathlib.Path)
    parser.add_argument("json", nargs="+", type=pathlib.Path)
    arguments = parser.parse_args()
    areas = [Area(path) for path in arguments.json]
    sections = {area.name: area.section(arguments.compiler, arguments.peers) for area in areas}
    print("\n".join(sections.values()))
    if arguments.results:
        write(arguments.results, sections)
    broken = [text for area in areas for text in area.broken]
    for text in broken:
        print(f"bench: limit broken: {text}", file=sys.stderr)
    return 1 if broken else 0


sys.exit(main())
