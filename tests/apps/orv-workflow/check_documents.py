#!/usr/bin/env python3
"""Checks that what README.md and docs/command-line.md show of the command line is what it prints.

usage: check_documents.py PROGRAM [--update]

A line "$ orv-workflow ..." in a block of code is a call, and what follows up to the next call or the end of the block
is its output; long lines may be broken anywhere at a blank. --update writes what the program prints into the block.
"""
import re
import shlex
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
DOCUMENTS = [ROOT / "README.md", ROOT / "docs" / "command-line.md"]
WIDTH = 120
BLOCK = re.compile(r"(?<=^```\n)\$ orv-workflow .*?(?=^```$)", re.MULTILINE | re.DOTALL)
# Files that a call may name beside the examples.
FILES = {"broken.wflw": '{\n  "tabs": [ , ]\n}\n'}


def answer(program, call, folder):
    arguments = shlex.split(call.removeprefix("$ orv-workflow"))
    result = subprocess.run([program, *arguments], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, timeout=120)
    return result.stdout


def calls_in(block):
    """Pairs of a call and the output that is shown."""
    parts = re.split(r"^(\$ .*)\n", block, flags=re.MULTILINE)[1:]
    return list(zip(parts[0::2], parts[1::2]))


def broken_up(text):
    return "".join(line + "\n" if len(line) <= WIDTH else textwrap.fill(line, WIDTH) + "\n" for line in text.splitlines())


def shown(program, block, folder):
    return "\n".join(f"{call}\n{broken_up(answer(program, call, folder))}" for call, _ in calls_in(block))


def words(text):
    return [line.split() for line in text.strip().splitlines()]


def differences(program, block, folder):
    for call, output in calls_in(block):
        expected = answer(program, call, folder)
        if words(output) != words(expected) and words(output) != words(broken_up(expected)):
            yield f"{call}\nprints\n{expected}but the document shows\n{output}"


def main(arguments):
    program = str(Path(arguments[0]).resolve())
    problems, calls = [], 0
    with tempfile.TemporaryDirectory(prefix="orv-documents-") as folder:
        (Path(folder) / "examples").symlink_to(ROOT / "examples")
        for name, text in FILES.items():
            (Path(folder) / name).write_text(text, "utf-8")
        for document in DOCUMENTS:
            text = document.read_text("utf-8")
            if "--update" in arguments:
                document.write_text(BLOCK.sub(lambda match: shown(program, match[0], folder), text), "utf-8")
                continue
            for block in BLOCK.findall(text):
                calls += len(calls_in(block))
                problems += [f"{document.name}: {problem}" for problem in differences(program, block, folder)]
    print("\n".join(problems))
    if "--update" not in arguments and calls == 0:
        print("The documents show no calls.")
        return 1
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
