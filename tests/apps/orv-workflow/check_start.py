#!/usr/bin/env python3
"""The command line starts without libraries that few of its commands need: check_start.py PROGRAM."""

import os
import subprocess
import sys

# Each takes longer to load than the rest of the start.
TOO_SLOW = ("libQt6Gui.", "libpwiz.", "libGLX.", "libOpenGL.")


def main():
    program = sys.argv[1]
    # The loader of the GNU system lists what it would load, and runs nothing.
    listed = subprocess.run([program], env={**os.environ, "LD_TRACE_LOADED_OBJECTS": "1"}, text=True,
                            stdout=subprocess.PIPE, check=True).stdout
    if "libQt6Core." not in listed:
        sys.exit("The loader didn't list the libraries of the program:\n" + listed)
    loaded = [line.strip() for line in listed.splitlines() if any(name in line for name in TOO_SLOW)]
    if loaded:
        sys.exit("Loaded at every start:\n" + "\n".join(loaded))


if __name__ == "__main__":
    main()
