#!/usr/bin/env python3
"""Runs clang-tidy over the product: tools/tidy.py [--since REV | --all] [FILE...]

The checks that match patterns go over everything, in the joined units of the preset ci, which read the headers once for
a dozen sources. The analyzer follows paths through functions and takes longer; it goes over the sources that changed
since REV, with those that include a changed header, or over all. It passes over what is included, so its sources are
copied into one file, and what it says is told of the place they come from. Named files get every check, one by one.
"""

import argparse
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BUILD = os.path.join(ROOT, "build", "ci")
WORK = os.path.join(ROOT, "build", "tidy")
PRODUCT = re.compile(r"^(common|propertyeditor|apps)/.*\.cpp$")
GCC_ONLY = re.compile(r"-Winvalid-pch|-fpch-preprocess|-Wno-stringop-overflow|-Wno-subobject-linkage|"
                      r"-fsanitize=\S*|-fno-sanitize-recover=\S*")
# A joined unit includes sources, which is what this check warns of; the analyzer has a run of its own.
MATCHERS = "-clang-analyzer-*,-bugprone-suspicious-include"
# Without what .clang-tidy leaves out, too.
ANALYZER = ("-*,bugprone-suspicious-include,clang-analyzer-*,-clang-analyzer-cplusplus.NewDelete,"
            "-clang-analyzer-cplusplus.NewDeleteLeaks,-clang-analyzer-optin.cplusplus.VirtualCall")
# Looks into no source but the main one, and takes a name that two sources of a copy declare for unused in the second.
USING = "-*,misc-unused-using-decls"
USING_DECLARATION = re.compile(r"^\s*using (?!namespace)[\w:]+::\w+;", re.MULTILINE)
SOURCES_OF_A_UNIT = 6
DIAGNOSTIC = re.compile(r"^(/[^:]+):(\d+):(\d+): (.*)$")


class Unit:
    """What clang-tidy reads at once, and how it is compiled."""

    def __init__(self, entry, path, sources):
        self.directory = entry["directory"]
        self.command = for_clang(entry["command"]).replace(entry["file"], path)
        self.path = path
        self.sources = sources
        self.places = []  # in a copy: (first line, source) of each

    def entry(self):
        return {"directory": self.directory, "command": self.command, "file": self.path}

    def origin(self, path, line):
        if path != self.path or not self.places:
            return path, line
        first, source = [place for place in self.places if place[0] <= line][-1]
        return source, line - first + 1


def for_clang(command):
    """The command without what only GCC knows: clang reads the headers instead of GCC's precompiled one."""
    def header(match):
        name = "pch.h" if match.group(1) == "core" else "pch_widgets.h"
        return "-include " + os.path.join(ROOT, "cmake", name)
    return GCC_ONLY.sub("", re.sub(r"-include \S*orv_(core|widgets)_pch\.dir/cmake_pch\.hxx", header, command))


def read_units():
    """The units of the preset ci; a source that is compiled alone is a unit too."""
    try:
        with open(os.path.join(BUILD, "compile_commands.json"), encoding="utf-8") as file:
            entries = json.load(file)
    except OSError:
        sys.exit("lint: build the preset ci first")
    units = []
    for entry in entries:
        path = entry["file"]
        if "/Unity/unity_" in path:
            with open(path, encoding="utf-8") as file:
                sources = re.findall(r'^#include "(.*)"$', file.read(), re.MULTILINE)
        else:
            sources = [path]
        sources = [source for source in sources if PRODUCT.match(os.path.relpath(source, ROOT))]
        if sources:
            units.append((entry, Unit(entry, path, sources)))
    return units


def copied(entry, sources, name):
    """One file with the text of the sources."""
    unit = Unit(entry, os.path.join(WORK, name), sources)
    text = ""
    for source in sources:
        unit.places.append((text.count("\n") + 1, source))
        with open(source, encoding="utf-8") as file:
            text += file.read() + "\n"
    with open(unit.path, "w", encoding="utf-8") as file:
        file.write(text)
    folders = sorted({os.path.dirname(source) for source in sources})
    unit.command += "".join(" -iquote " + shlex.quote(folder) for folder in folders)
    return unit


def changed_since(revision, sources):
    """The sources that changed, and those that include a header that did; all when the checks themselves changed. What
    was only moved didn't change."""
    output = subprocess.run(["git", "diff", "--name-status", "--find-renames=100%", "--diff-filter=r", revision, "--"],
                            cwd=ROOT, capture_output=True, text=True)
    untracked = subprocess.run(["git", "ls-files", "--others", "--exclude-standard"], cwd=ROOT, capture_output=True,
                               text=True, check=True)
    if output.returncode != 0:
        sys.exit("lint: " + output.stderr.strip())
    changed = {line.split("\t")[-1] for line in (output.stdout + untracked.stdout).splitlines()}
    if ".clang-tidy" in changed:
        return set(sources)
    headers = {os.path.basename(path) for path in changed if path.endswith(".h")}
    found = {source for source in sources if os.path.relpath(source, ROOT) in changed}
    for source in sources:
        with open(source, encoding="utf-8") as file:
            included = {os.path.basename(name) for name in re.findall(r'#\s*include\s*[<"]([^>"]+)', file.read())}
        if included & headers:
            found.add(source)
    return found


def declares_names(source):
    with open(source, encoding="utf-8") as file:
        return USING_DECLARATION.search(file.read()) is not None


def run(unit, checks):
    command = ["clang-tidy", "-p", WORK, "--quiet"] + (["--checks=" + checks] if checks else []) + [unit.path]
    done = subprocess.run(command, capture_output=True, text=True)
    lines = []
    for line in done.stdout.splitlines():
        match = DIAGNOSTIC.match(line)
        if match:
            path, number = unit.origin(match.group(1), int(match.group(2)))
            line = f"{os.path.relpath(path, ROOT)}:{number}:{match.group(3)}: {match.group(4)}"
        lines.append(line)
    if done.returncode != 0 and not lines:
        lines = done.stderr.splitlines()
    return done.returncode, "\n".join(lines)


def run_all(tasks):
    """Runs the tasks on all cores, says at least every ten seconds how many are left, and counts those that failed."""
    failed, reports, finished, told = 0, set(), 0, time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        waiting = {pool.submit(run, unit, checks) for unit, checks in tasks}
        while waiting:
            done, waiting = concurrent.futures.wait(waiting, timeout=2,
                                                    return_when=concurrent.futures.FIRST_COMPLETED)
            finished += len(done)
            for future in done:
                status, report = future.result()
                failed += status != 0
                if report and report not in reports:
                    reports.add(report)
                    print(report, flush=True)
            if time.monotonic() - told >= 10 and waiting:
                told = time.monotonic()
                print(f"   {finished} of {len(tasks)} units checked", flush=True)
    return failed


def tasks_for(options, units):
    sources = sorted({source for _, unit in units for source in unit.sources})
    if options.files:
        wanted = {os.path.abspath(file) for file in options.files}
        return [(Unit(entry, source, [source]), None) for entry, unit in units for source in unit.sources
                if source in wanted]
    tasks = [(unit, None if unit.path in unit.sources else MATCHERS) for _, unit in units]
    analyzed = set()
    if options.all:
        analyzed = set(sources)
    elif options.since:
        analyzed = changed_since(options.since, sources)
        print(f"   the analyzer reads {len(analyzed)} of {len(sources)} sources: what changed since {options.since}")
    for entry, unit in units:
        chosen = [source for source in unit.sources if source in analyzed and source != unit.path]
        for at in range(0, len(chosen), SOURCES_OF_A_UNIT):
            tasks.append((copied(entry, chosen[at:at + SOURCES_OF_A_UNIT], f"unit_{len(tasks)}.cpp"), ANALYZER))
        tasks += [(Unit(entry, source, [source]), USING) for source in chosen if declares_names(source)]
    return tasks


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--since", metavar="REV")
    parser.add_argument("--all", action="store_true")
    parser.add_argument("files", nargs="*", metavar="FILE")
    options = parser.parse_args()
    os.makedirs(WORK, exist_ok=True)
    tasks = tasks_for(options, read_units())
    with open(os.path.join(WORK, "compile_commands.json"), "w", encoding="utf-8") as file:
        json.dump([unit.entry() for unit, _ in tasks], file)
    return 1 if run_all(tasks) else 0


if __name__ == "__main__":
    sys.exit(main())
