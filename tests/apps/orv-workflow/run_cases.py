#!/usr/bin/env python3
"""Runs the command line on every case folder and compares what a caller sees.

usage: run_cases.py PROGRAM [--update] [CASE...]

A case is a folder below cases/ with a file "command" (a shell command; "orv-workflow" is the program), the expected
"stdout" and "stderr" (a missing file means empty) and "exit" (missing means 0). Other files of the folder are copied
to the empty folder in which the command runs; "examples" and "versions" there are links to the example workflows and
the version fixtures. Times of stamps are replaced by TIME, the user by USER, the
folder by WORK, and what the head of a parameter file tells of the system by SYSTEM. --update writes the expectations.
"""
import getpass
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[2]
EXPECTATIONS = ("stdout", "stderr", "exit")
USER = subprocess.run(["id", "-un"], capture_output=True, text=True).stdout.strip() or getpass.getuser()


def masked(text, work):
    text = text.replace(os.path.realpath(work), "WORK").replace(str(work), "WORK")
    text = re.sub(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d", "TIME", text)
    text = re.sub(r"^(#(?:Build info|OS Arch|OS Name): ).+$", r"\1SYSTEM", text, flags=re.MULTILINE)
    return re.sub(r'(user\\?":\\?"|"user": ")' + re.escape(USER) + r'(\\?")', r"\1USER\2", text)


def run(program, case):
    with tempfile.TemporaryDirectory(prefix="orv-case-") as name:
        work = Path(name)
        for file in case.iterdir():
            if file.name not in EXPECTATIONS + ("command",):
                (shutil.copytree if file.is_dir() else shutil.copy)(file, work / file.name)
        (work / "examples").symlink_to(ROOT / "examples" / "workflows")
        (work / "versions").symlink_to(ROOT / "tests" / "data" / "versions")
        (work / "aged").symlink_to(ROOT / "tests" / "data" / "upgrade")
        (work / "bin").mkdir()
        (work / "bin" / "orv-workflow").symlink_to(program)
        environment = dict(os.environ, PATH=f"{work / 'bin'}:{os.environ['PATH']}", LC_ALL="C.UTF-8", NO_COLOR="1")
        result = subprocess.run(["bash", "-c", (case / "command").read_text("utf-8")], cwd=work, env=environment,
                                stdin=subprocess.DEVNULL, capture_output=True, timeout=120)
        return {"stdout": masked(result.stdout.decode("utf-8", "replace"), work),
                "stderr": masked(result.stderr.decode("utf-8", "replace"), work), "exit": f"{result.returncode}\n"}


def expected(case):
    texts = {name: (case / name).read_text("utf-8") if (case / name).exists() else "" for name in EXPECTATIONS}
    texts["exit"] = texts["exit"] or "0\n"
    return texts


def update(case, seen):
    for name, text in seen.items():
        path = case / name
        if text and not (name == "exit" and text == "0\n"):
            path.write_text(text, "utf-8")
        elif path.exists():
            path.unlink()


def main(arguments):
    program = Path(arguments[0]).resolve()
    wanted = [a for a in arguments[1:] if not a.startswith("--")]
    cases = sorted(p for p in (HERE / "cases").iterdir() if p.is_dir() and (not wanted or p.name in wanted))
    if not cases:
        print("no cases", file=sys.stderr)
        return 1
    failures = 0
    for case in cases:
        seen = run(program, case)
        if "--update" in arguments:
            update(case, seen)
            continue
        for name, text in expected(case).items():
            if seen[name] != text:
                failures += 1
                print(f"FAIL {case.name}: {name}\n--- expected\n{text}--- seen\n{seen[name]}---")
    print(f"{len(cases)} cases, {failures} differences")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
