"""Compiles and runs the C++ blocks of the guides, so that what they show works.

A block with a main function is a program of its own. All other blocks of a file become
functions of one program, run in their order; their asserts must hold. In front of a
block a comment may say more:

  <!-- file: NAME -->   the block is written to NAME, which the programs find beside them
  <!-- runs -->         the block is commands for a shell, run in their place; those of the command
                        quor are passed over where it isn't built
  <!-- prints -->       the block is what the program or the commands before it print
  <!-- same as: PATH -->  the block is the text of this file of the source tree
  <!-- not compiled --> the block is left alone

usage: snippets.py [--package=DIRECTORY] [--command=FILE] COMPILER INCLUDE-DIRECTORY LIBRARY WORK-DIRECTORY FILE...
--package names the CMake package and --command the command quor that shell blocks shall find.
"""

import os
import pathlib
import re
import subprocess
import sys

BLOCK = re.compile(r"(?:^<!-- (?P<note>[^>]*?) -->\n\n?)?^```(?P<language>\w*)\n(?P<text>.*?)^```$",
                   re.MULTILINE | re.DOTALL)
FLAGS = ["-std=c++17", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-O0"]
HEADERS = ["cassert", "cstdint", "iostream", "stdexcept", "string", "vector"]


class Guide:
    """The blocks of one file, sorted by what is done with them."""

    def __init__(self, path):
        self.path = path
        self.files = []
        self.copies = []
        self.programs = []
        self.shells = []
        self.printing = None
        self.pieces = []
        text = path.read_text(encoding="utf-8")
        for match in BLOCK.finditer(text):
            line = text.count("\n", 0, match.start("text")) + 1
            self.add(match["note"] or "", match["language"], match["text"], line)

    def add(self, note, language, text, line):
        if note.startswith("file: "):
            self.files.append((note[len("file: "):], text))
        elif note.startswith("same as: "):
            self.copies.append((note[len("same as: "):], text))
        elif note == "runs":
            self.shells.append([line, text, None])
            self.printing = self.shells[-1]
        elif note == "prints":
            self.printing[2] = text
        elif note == "not compiled" or language != "cpp":
            return
        elif "int main(" in text:
            self.programs.append([line, text, None])
            self.printing = self.programs[-1]
        else:
            self.pieces.append((line, text))

    def sources(self):
        """Yields (name, source text, expected output or None)."""
        for line, text, output in self.programs:
            yield f"line{line}", f'#line {line} "{self.path.name}"\n{text}', output
        if self.pieces:
            yield "pieces", self.joined(), ""

    def joined(self):
        includes = [f"#include <{header}>" for header in HEADERS] + ["#include <quor/quor.hpp>"]
        functions, calls = [], []
        for line, text in self.pieces:
            body = []
            for row in text.splitlines():
                if row.startswith("#include"):
                    includes.append(row)
                    row = ""
                body.append(row)
            functions.append(f'static void block_{line}() {{\n#line {line} "{self.path.name}"\n' + "\n".join(body) + "\n}")
            calls.append(f"\tblock_{line}();")
        return "\n".join(includes + functions + ["int main() {"] + calls + ["}", ""])


def run(command, **options):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, check=False, timeout=300, **options)


def run_shells(guide, folder, options, compiler, library):
    """Runs the commands of a guide; returns how many there were and how many failed."""
    command = options.get("command")
    command = command if command and pathlib.Path(command).exists() else None
    environment = dict(os.environ, CXX=compiler, quor_ROOT=options.get("package", ""),
                       LD_LIBRARY_PATH=str(library.parent), LC_ALL="C.UTF-8",
                       PATH=(str(pathlib.Path(command).parent) + ":" if command else "") + os.environ.get("PATH", ""))
    count = failures = 0
    for line, text, expected in guide.shells:
        if text.startswith("quor ") and not command:
            continue
        count += 1
        done = run(["sh", "-e", "-c", text], cwd=folder, env=environment)
        if expected is None and done.returncode != 0 or expected is not None and done.stdout != expected:
            failures += 1
            print(f"{guide.path} line {line} ended with {done.returncode} and printed\n{done.stdout}--- expected\n{expected}")
    return count, failures


def main(arguments):
    options = dict(argument[2:].split("=", 1) for argument in arguments if argument.startswith("--"))
    compiler, include, library, work, *paths = [argument for argument in arguments if not argument.startswith("--")]
    library = pathlib.Path(library).resolve()
    failures = programs = 0
    for path in map(pathlib.Path, paths):
        guide = Guide(path)
        folder = pathlib.Path(work) / path.stem
        folder.mkdir(parents=True, exist_ok=True)
        for name, text in guide.files:
            target = folder / name
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, encoding="utf-8")
        for name, text in guide.copies:
            if (pathlib.Path(include).parent / name).read_text(encoding="utf-8") != text:
                failures += 1
                print(f"{path} shows another text than {name} holds")
        for name, text, expected in guide.sources():
            programs += 1
            source, program = folder / (name + ".cpp"), folder / name
            source.write_text(text, encoding="utf-8")
            built = run([compiler, *FLAGS, f"-I{include}", source, "-o", program, library,
                         f"-Wl,-rpath,{library.parent}"])
            if built.returncode != 0:
                failures += 1
                print(f"{path} {name} does not compile:\n{built.stdout}")
                continue
            done = run([program.resolve()], cwd=folder)
            if done.returncode != 0 or (expected is not None and done.stdout != expected):
                failures += 1
                print(f"{path} {name} ended with {done.returncode} and printed\n{done.stdout}--- expected\n{expected}")
        count, failed = run_shells(guide, folder, options, compiler, library)
        programs += count
        failures += failed
    print(f"{programs} programs, {failures} failed")
    return 1 if failures else 0


sys.exit(main(sys.argv[1:]))
