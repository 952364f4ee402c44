"""Compiles every public header alone and twice, and the umbrella header before and
behind all others, with warnings as errors and without making code.

usage: headers.py COMPILER STANDARD INCLUDE-DIRECTORY HEADER-LIST [OPTION...]

With the option --windows-h they are also compiled with the system's big header, which
defines min and max as macros, before them and behind them.
"""

import concurrent.futures
import os
import subprocess
import sys
import tempfile

FLAGS = ["-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def units(headers, windows_h):
    """Yields (name, text) of each translation unit."""
    for header in headers:
        yield header, f"#include <{header}>\n" * 2
    umbrella = "#include <quor/quor.hpp>\n"
    everything = "".join(f"#include <{header}>\n" for header in headers)
    alias = "static_assert(sizeof(quor::types::nil_t) == 1);\n"
    yield "quor/quor.hpp before all others", umbrella + everything + alias
    yield "quor/quor.hpp behind all others", everything + umbrella + alias
    if windows_h:
        system = "#include <windows.h>\n"
        yield "all headers behind windows.h", system + everything + alias.replace("quor::", "QUOR_2_9::")
        yield "all headers before windows.h", everything + system


def compile_unit(compiler, options, directory, number, name, text):
    path = os.path.join(directory, f"unit{number}.cpp")
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    run = subprocess.run([compiler, *FLAGS, *options, path], stdin=subprocess.DEVNULL,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    return name, run.returncode, run.stdout


def main(arguments):
    compiler, standard, include, header_list, *rest = arguments
    with open(header_list, encoding="utf-8") as file:
        headers = file.read().split()
    options = [f"-std={standard}", f"-I{include}"]
    failed = 0
    with tempfile.TemporaryDirectory() as directory:
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as pool:
            jobs = [pool.submit(compile_unit, compiler, options, directory, number, name, text)
                    for number, (name, text) in enumerate(units(headers, "--windows-h" in rest))]
            for job in jobs:
                name, code, output = job.result()
                if code != 0:
                    failed += 1
                    print(f"{name} does not compile with {compiler} -std={standard}:\n{output}")
    print(f"{len(jobs)} translation units, {failed} failed")
    return 1 if failed else 0


sys.exit(main(sys.argv[1:]))
