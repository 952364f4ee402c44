"""Checks the tree itself:

- every public header is named in its folder's quor_part(), is included by the umbrella
  header, and has its test file tests/<folder>/<header>_test.cpp in a test program,
- headers have at most 300 lines and sources at most 400,
- every public header opens with a banner of @file that says since when it is there, and
  every public class and free function says so too,
- the platform is asked for only where it may be,
- no test is switched off, no note is left behind.

usage: tree.py ROOT HEADER-LIST
"""

import pathlib
import re
import sys

HEADER_LINES = 300
SOURCE_LINES = 400

# Headers without code of their own; the header check compiles them.
WITHOUT_TEST = {"quor/quor.hpp", "quor/export.hpp", "quor/version.hpp"}

# The only files that may ask which platform they are compiled for.
PLATFORM_FILES = {"include/quor/types/widths.hpp", "include/quor/export.hpp"}
PLATFORM_MACRO = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(?:_WIN32|_WIN64|WIN32|__MINGW\w*|__linux__|__unix__|__APPLE__)\b")

LEFT_BEHIND = re.compile(r"\b(?:TODO|FIXME|XXX|HACK)\b")
SWITCHED_OFF = re.compile(r"\bGTEST_SKIP\b|\bDISABLED_\w")

problems = []


def problem(path, text, line=None):
    problems.append(f"{path}{'' if line is None else ':' + str(line)}: {text}")


def sources(root, *folders):
    for folder in folders:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".hpp", ".cpp") and path.is_file():
                yield path, path.relative_to(root).as_posix()


def check_header_lists(root, listed):
    on_disk = {path.relative_to(root / "include").as_posix() for path in (root / "include").rglob("*.hpp")}
    for header in sorted(on_disk - listed):
        problem("include/" + header, "is in no quor_part(), so it is not installed")
    umbrella = (root / "include/quor/quor.hpp").read_text(encoding="utf-8")
    included = re.findall(r"^#include <(quor/[^>]+)>", umbrella, re.MULTILINE)
    for header in sorted(on_disk - {"quor/quor.hpp"} - set(included)):
        problem("include/quor/quor.hpp", f"does not include {header}")
    if included != sorted(included):
        problem("include/quor/quor.hpp", "the includes are not sorted")


def check_tests(root, listed):
    for header in sorted(listed - WITHOUT_TEST):
        relative = pathlib.PurePosixPath(header).relative_to("quor")
        test = pathlib.PurePosixPath("tests") / relative.parent / (relative.stem + "_test.cpp")
        if not (root / test).is_file():
            problem("include/" + header, f"has no test file {test}")
            continue
        lists = [folder / "CMakeLists.txt" for folder in (root / test).parents if (folder / "CMakeLists.txt").is_file()]
        if not any(re.search(rf"\b{re.escape(test.name)}\b", path.read_text(encoding="utf-8")) for path in lists):
            problem(test, "is in no CMakeLists.txt, so it is never run")


def check_sizes(root):
    for folder, limit in (("include", HEADER_LINES), ("src", SOURCE_LINES), ("cli", SOURCE_LINES)):
        for path, name in sources(root, folder):
            count = len(path.read_text(encoding="utf-8").splitlines())
            bound = HEADER_LINES if path.suffix == ".hpp" else limit
            if count > bound:
                problem(name, f"has {count} lines, {bound} are allowed: split it by concept")


def check_banners(root):
    for path, name in sources(root, "include"):
        text = path.read_text(encoding="utf-8")
        banner = re.search(r"/// @file\n((?:///.*\n)+)", text)
        if banner is None:
            problem(name, "has no banner (/// @file)")
            continue
        if "@since" not in banner.group(1):
            problem(name, "its banner has no @since")
        guard = name[len("include/"):].upper().replace("/", "_").replace(".", "_")
        if f"#ifndef {guard}\n#define {guard}\n" not in text:
            problem(name, f"its include guard is not {guard}")


def check_platform(root):
    for path, name in sources(root, "include", "src", "cli"):
        if name in PLATFORM_FILES or name.startswith("src/platform/"):
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if PLATFORM_MACRO.search(line):
                problem(name, "asks for the platform; only src/platform may", number)


def check_left_behind(root):
    for path, name in sources(root, "include", "src", "tests", "examples", "bench", "cli"):
        if not path.is_file():
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if LEFT_BEHIND.search(line):
                problem(name, "a note was left behind", number)
            if SWITCHED_OFF.search(line):
                problem(name, "a test is switched off", number)


def check_since(root):
    """Every class and free function of a public namespace names its first version, at one of its overloads."""
    entity = re.compile(r"^(?:class|struct|enum|QUOR_API|inline|constexpr|template)\b")
    for path, name in sources(root, "include"):
        lines = path.read_text(encoding="utf-8").splitlines()
        private = False
        dated, undated = set(), {}
        for number, line in enumerate(lines):
            if line.startswith("namespace "):
                private = bool(re.search(r"\b(?:detail|_private)\b", line))
            elif line.startswith("} // namespace"):
                private = False
            if private or not entity.match(line) or (number > 0 and lines[number - 1].startswith("template")):
                continue
            declared = declared_name(line if not line.startswith("template") else lines[number + 1])
            first = number
            while first > 0 and lines[first - 1].startswith("///"):
                first -= 1
            comment = "\n".join(lines[first:number])
            if declared is None or "///" not in comment:
                continue
            if "@since" in comment or in_group(lines, first):
                dated.add(declared)
            else:
                undated.setdefault(declared, number + 1)
        for declared, number in undated.items():
            if declared not in dated:
                problem(name, f"{declared} has no @since", number)


def declared_name(line):
    """The name that a line declares; None for a mere announcement of a class."""
    match = re.match(r"^(?:class|struct|enum(?: class)?)\s+(?:QUOR_API\s+)?([\w:]+)(.*)", line)
    if match is not None:
        return None if match.group(2) == ";" else match.group(1)
    match = re.search(r"(operator\s*[^\s\w(]+|\w+)\(", line)
    return match.group(1) if match else None


def in_group(lines, number):
    """Whether the declaration stands in a documentation group (/// @{ ... /// @}) that has one."""
    for index in range(number, -1, -1):
        if re.match(r"^\s*/// @\}", lines[index]):
            return False
        if re.match(r"^\s*/// @\{", lines[index]):
            first = index
            while first > 0 and lines[first - 1].startswith("///"):
                first -= 1
            return "@since" in "\n".join(lines[first:index + 1])
    return False


def main(arguments):
    root = pathlib.Path(arguments[0])
    listed = set(pathlib.Path(arguments[1]).read_text(encoding="utf-8").split())
    check_header_lists(root, listed)
    check_tests(root, listed)
    check_sizes(root)
    check_banners(root)
    check_since(root)
    check_platform(root)
    check_left_behind(root)
    for text in problems:
        print(text)
    print(f"{len(listed)} public headers, {len(problems)} problems")
    return 1 if problems else 0


sys.exit(main(sys.argv[1:]))
