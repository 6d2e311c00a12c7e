#!/usr/bin/env python3
"""Runs benchmarks and compares their figures with benchmarks/figures.csv, one row per figure with its bar.

    tools/benchmark.py [--binaries FOLDER] [--short | --write] [SECTION...]

Prints each figure beside its bar, and what exceeds its bar last. --write puts the tables into docs/performance.md between
the marks of each section, with machine and commit above. --short takes the figures that the table marks so, quickly, and
fails where one exceeds 1.5 times its bar: figures are ratios within one run, so a busy machine moves them less than that.
"""
import argparse
import csv
import datetime
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/performance.md"
TOLERANCE = 1.5
SPECIAL = re.compile(r"[][.^$*+?(){}|\\]")
FIGURE = re.compile(r"^(.+?)\s+[\d.]+\s+([\d.]+)$")


def rows_of(sections, short):
    with open(ROOT / "benchmarks/figures.csv", newline="", encoding="utf-8") as table:
        rows = list(csv.DictReader(table))
    known = {row["section"] for row in rows}
    unknown = [name for name in sections if name not in known]
    if unknown:
        sys.exit(f"benchmark: there is no section {unknown[0]}; choose from {', '.join(sorted(known))}")
    return [row for row in rows
            if (not sections or row["section"] in sections) and (not short or row["short"])]


def run(program, figures, short):
    """The figures that the program prints, by name."""
    # The baseline of each figure is the one of its group.
    groups = sorted({SPECIAL.sub(r"\\\g<0>", name.rsplit("/", 1)[0]) for name in figures if "/" in name})
    command = [program]
    if groups:
        command.append(f"--benchmark_filter=^({'|'.join(groups)})/")
        if short:
            command.append("--benchmark_repetitions=3")
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    done = subprocess.run(command, capture_output=True, text=True, env=environment, check=False)
    if done.returncode != 0:
        sys.exit(f"benchmark: {program.name} failed\n{done.stdout}{done.stderr}")
    found = {}
    for line in done.stdout.splitlines():
        match = FIGURE.match(line)
        if match:
            found[match[1]] = float(match[2])
    return found


def measure(rows, binaries, short):
    programs = {}
    for row in rows:
        programs.setdefault(row["program"], []).append(row["figure"])
    for name, figures in programs.items():
        print(f"   {name}", file=sys.stderr, flush=True)
        found = run(binaries / name, figures, short)
        for row in rows:
            if row["program"] == name:
                if row["figure"] not in found:
                    sys.exit(f"benchmark: {name} prints no figure \"{row['figure']}\"")
                row["ratio"] = found[row["figure"]]


def first_line(*command):
    return subprocess.run(command, capture_output=True, text=True, cwd=ROOT, check=True).stdout.splitlines()[0]


def conditions():
    processor = "unknown processor"
    with open("/proc/cpuinfo", encoding="utf-8") as info:
        for line in info:
            if line.startswith("model name"):
                processor = line.split(":", 1)[1].strip()
                break
    commit = first_line("git", "rev-parse", "--short", "HEAD")
    qt = first_line("qmake6", "-query", "QT_VERSION")
    compiler = first_line("c++", "-dumpfullversion")
    return (f"Measured on {datetime.date.today()} at commit {commit}: {os.cpu_count()} cores, {processor}, "
            f"GCC {compiler}, Qt {qt}, RelWithDebInfo; medians of nine.")


def table_of(rows):
    lines = [conditions(), "", "| what | against | ratio | at most |", "|---|---|---|---|"]
    lines += [f"| {row['what']} | {row['against']} | {row['ratio']:.2f} | {row['bar']} |" for row in rows]
    return "\n".join(lines)


def write(rows):
    page = PAGE.read_text(encoding="utf-8")
    for section in dict.fromkeys(row["section"] for row in rows):
        begin, end = f"<!-- figures: {section} -->", "<!-- end of figures -->"
        start = page.find(begin)
        stop = page.find(end, start)
        if start < 0 or stop < 0:
            sys.exit(f"benchmark: {PAGE.name} has no place for the figures of {section}: write {begin} and {end}")
        table = table_of([row for row in rows if row["section"] == section])
        page = page[:start + len(begin)] + "\n" + table + "\n" + page[stop:]
    PAGE.write_text(page, encoding="utf-8")


def excess(row, tolerance):
    return row["bar"] and row["ratio"] > float(row["bar"]) * tolerance


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binaries", type=pathlib.Path, default=ROOT / "build/release/bin")
    parser.add_argument("--programs", action="store_true", help="only names the programs that are needed")
    parser.add_argument("--short", action="store_true")
    parser.add_argument("--write", action="store_true")
    parser.add_argument("sections", nargs="*")
    options = parser.parse_args()
    if options.short and options.write:
        parser.error("short runs aren't precise enough to be written")
    rows = rows_of(options.sections, options.short)
    if options.programs:
        print("\n".join(dict.fromkeys(row["program"] for row in rows)))
        return 0
    measure(rows, options.binaries, options.short)
    for row in rows:
        print(f"{row['ratio']:8.2f}  {'at most ' + row['bar'] if row['bar'] else '':12s}  {row['what']}")
    if options.write:
        write(rows)
    tolerance = TOLERANCE if options.short else 1.0
    over = [row for row in rows if excess(row, tolerance)]
    for row in over:
        print(f"beyond its bar: {row['what']}: {row['ratio']:.2f}, at most {row['bar']}", file=sys.stderr)
    return 1 if over and options.short else 0


if __name__ == "__main__":
    sys.exit(main())
