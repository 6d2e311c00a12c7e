#!/usr/bin/env python3
"""Proves that each public header compiles alone, with the warnings of the build: tools/check_headers.py [HEADER...]

A header that needs what others include before it fails. Most of the time goes into Qt's own headers, so those that a
header asks for itself, directly or through headers of ours that it includes, are read precompiled; they can hide
nothing that it lacks. It reads the compile commands of the preset ci.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
COMMANDS = os.path.join(ROOT, "build", "ci", "compile_commands.json")
WORK = os.path.join(ROOT, "build", "headers")
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)
# The first that holds nothing but what a header asks for is used for it.
PRECOMPILED = [("QWidget",), ("QJsonObject", "QObject", "QString", "QStringList"), ("QObject",),
               ("QJsonObject", "QList", "QString", "QStringList"), ("QList", "QString", "QStringList"), ("QString",)]
NOT_FOR_HEADERS = re.compile(r"-fsanitize=\S*|-fno-sanitize-recover=\S*|-fno-omit-frame-pointer|-g1?|-Winvalid-pch|"
                             r"-fpch-preprocess|-MD")
# These decide which libraries are linked and what ours export.
NOT_FOR_QT = re.compile(r"-DQT_\w+_LIB|-D\w+_(BUILD|EXPORTS)|-fvisibility\S*")


def module_of(header):
    return header.split("/include/")[0]


def flags_of(command):
    """The options that decide how a header is read."""
    words = iter(shlex.split(command)[1:])
    flags = []
    for word in words:
        if word in ("-o", "-include", "-c", "-MT", "-MF"):
            next(words)
        elif not NOT_FOR_HEADERS.fullmatch(word):
            flags.append(word)
    return flags


def read_modules():
    """The compiler and, by a module's folder, the options of its sources."""
    with open(COMMANDS, encoding="utf-8") as file:
        entries = json.load(file)
    modules, compiler = {}, None
    for entry in entries:
        # The launcher of a compiler cache isn't part of what is recorded.
        compiler = compiler or shlex.split(entry["command"])[0]
        output = re.search(r" -o (\S+)/CMakeFiles/", entry["command"])
        if output:
            modules.setdefault(output.group(1), flags_of(entry["command"]))
    return compiler, modules


class Includes:
    """What the public headers include."""

    def __init__(self, headers):
        self.by_name = {header.split("/include/", 1)[1]: header for header in headers}
        self.known = {}

    def qt_headers(self, header):
        """Those of Qt that the header asks for, directly or through other headers of ours."""
        if header not in self.known:
            self.known[header] = set()  # for a circle, which asks for nothing more
            with open(os.path.join(ROOT, header), encoding="utf-8") as file:
                names = INCLUDE.findall(file.read())
            found = {name for name in names if re.match(r"Q[A-Z]\w*$", name)}
            for name in names:
                if name in self.by_name:
                    found |= self.qt_headers(self.by_name[name])
            self.known[header] = found
        return self.known[header]


class Check:
    def __init__(self):
        self.compiler, self.modules = read_modules()
        headers = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*/include/*"],
                                 cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
        self.headers = [header for header in headers if module_of(header) in self.modules]
        self.strangers = [header for header in headers if module_of(header) not in self.modules]
        self.includes = Includes(headers)
        owners = {module_of(header) for header in self.headers}
        flags = [flag for module in sorted(owners) for flag in self.modules[module]]
        self.folders = [flag for flag in dict.fromkeys(flags) if flag.startswith("/usr/")]

    def settings_of(self, header):
        """The options that change what Qt's headers say, which a precompiled one must agree with."""
        return tuple(flag for flag in self.modules[module_of(header)]
                     if flag[:2] in ("-D", "-s", "-f", "-W") and not NOT_FOR_QT.fullmatch(flag))

    def precompiled_for(self, header):
        asked = self.includes.qt_headers(header)
        for names in PRECOMPILED:
            if asked.issuperset(names):
                return names, self.settings_of(header)
        return None

    def precompile(self, numbered):
        number, (names, settings) = numbered
        path = os.path.join(WORK, f"qt_{number}.h")
        with open(path, "w", encoding="utf-8") as file:
            file.write("".join(f"#include <{name}>\n" for name in names))
        folders = [word for folder in self.folders for word in ("-isystem", folder)]
        subprocess.run([self.compiler, *settings, *folders, "-x", "c++-header", path, "-o", path + ".gch"], check=True)
        return (names, settings), path

    def compile(self, header, precompiled):
        path = precompiled.get(self.precompiled_for(header))
        name = header.split("/include/", 1)[1]
        command = [self.compiler, *self.modules[module_of(header)], "-Winvalid-pch",
                   *(["-include", path] if path else []), "-fsyntax-only", "-x", "c++", "-"]
        return subprocess.run(command, cwd=ROOT, input=f"#include <{name}>\n", capture_output=True, text=True)


def run(check, headers):
    """The headers that don't compile; says at least every ten seconds how many are left."""
    failed, finished, told = [], 0, time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        wanted = sorted({check.precompiled_for(header) for header in headers} - {None})
        precompiled = dict(pool.map(check.precompile, enumerate(wanted)))
        for header, done in zip(headers, pool.map(lambda header: check.compile(header, precompiled), headers)):
            finished += 1
            if done.returncode != 0:
                failed.append(header)
                print(f"{header} doesn't compile alone:\n{done.stderr}", flush=True)
            if time.monotonic() - told >= 10:
                told = time.monotonic()
                print(f"   {finished} of {len(headers)} headers compiled", flush=True)
    return failed


def main(arguments):
    os.makedirs(WORK, exist_ok=True)
    try:
        check = Check()
    except OSError:
        sys.exit("check_headers: build the preset ci first")
    for header in check.strangers:
        print(f"{header} belongs to no module of the build")
    headers = [os.path.relpath(os.path.abspath(header), ROOT) for header in arguments] or check.headers
    return 1 if run(check, headers) or check.strangers else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
