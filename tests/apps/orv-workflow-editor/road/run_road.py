#!/usr/bin/python3
"""Walks the road of docs/guide.md on a desktop of its own, by real clicks and keys, and compares the guide with what shows.

Each passage of the guide ends with the picture of its step: all texts in bold in it must have shown in that step, and
each picture belongs to a step. --update writes the pictures of the guide and of README.md anew; otherwise pictures go
to --pictures, or nowhere. A step that fails leaves a picture and tells what was on the screen.
"""
import argparse
import shutil
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import guide
import keyboard_road
import mouse_road
import window_road
from accessibility import ScreenReader
from desktop import Desktop
from person import Person
from steps import Road
from waiting import NotSeen, until

ROOT = Path(__file__).resolve().parents[4]
ROADS = {"mouse": mouse_road, "keyboard": keyboard_road, "window": window_road}
# Shown in pictures: whose folder it is should not depend on chance.
HOME_OF_PICTURES = Path("/tmp/maria")


def first_day(home):
    """The folder of somebody who has just got the examples."""
    shutil.copytree(ROOT / "examples" / "workflows", home / "Documents" / "workflows")


def walk(name, options, folder, pictures):
    """The steps with what they heard; raises at the first that fails."""
    module = ROADS[name]
    with Desktop(folder, home=HOME_OF_PICTURES if options.update else None) as desktop:
        first_day(desktop.home)
        program = desktop.start(options.editor, *(desktop.home / file for file in getattr(module, "FILES", ())), log="editor")
        reader = ScreenReader(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        person = Person(desktop, reader, program)
        road = Road(desktop, reader, options.drag_source)
        person.sees("frame", states=["active"])
        for step in module.STEPS:
            take(step, road, person, pictures, options)
        if name == "keyboard":
            ends(person, program)
        else:
            leave(person, program)
        return person


def take(step, road, person, pictures, options):
    person.reader.heard = step.heard
    try:
        step.act(road, person)
        if person.program.poll() is None:
            person.reader.tree(person.program)
        if pictures:
            road.desktop.picture(pictures / f"{step.name}.png")
    except Exception as fault:
        picture = Path(tempfile.gettempdir()) / f"road_{step.name}_failed.png"
        road.desktop.picture(picture)
        ended = person.program.poll()
        log = (road.desktop.folder / "editor.log").read_text("utf-8", "replace")[-4000:]
        raise NotSeen(f"step \"{step.name}\" ({step.what}): {fault}\nA picture of it: {picture}\n"
                      f"The program {'runs' if ended is None else f'ended with {ended}'}; it said:\n{log}") from fault
    finally:
        road.clear_away()


def leave(person, program):
    """A program that was used well ends well, and hears keys to the end."""
    person.sees("frame", states=["active"])
    person.presses("alt+f")
    person.clicks("menu item", "Quit")
    ends(person, program)


def ends(person, program):
    code = until("the end of the program", lambda: program.poll() is not None and [program.returncode])
    if code != [0]:
        log = (person.desktop.folder / "editor.log").read_text("utf-8", "replace")[-4000:]
        raise NotSeen(f"the program ended with {code[0]}:\n{log}")


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--editor", required=True, type=Path)
    parser.add_argument("--drag-source", required=True, type=Path)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("--pictures", type=Path)
    parser.add_argument("roads", nargs="*", metavar="ROAD", help=f"of {', '.join(ROADS)}; all without one")
    options = parser.parse_args(arguments)
    # Programs start in the home folder of the desktop.
    options.editor, options.drag_source = options.editor.resolve(), options.drag_source.resolve()
    unknown = sorted(set(options.roads) - set(ROADS))
    if unknown:
        parser.error(f"there is no road {', '.join(unknown)}; there are {', '.join(ROADS)}")
    faults = []
    for name in options.roads or ROADS:
        with tempfile.TemporaryDirectory(prefix="road_") as folder:
            made = Path(folder) / "pictures"
            made.mkdir()
            try:
                person = walk(name, options, Path(folder) / "desktop", made)
            except NotSeen as fault:
                print(f"{name}: {fault}", file=sys.stderr)
                return 1
            if options.update:
                guide.update(name, made)
            if options.pictures:
                shutil.copytree(made, options.pictures / name, dirs_exist_ok=True)
            faults += guide.compare(name, ROADS[name].STEPS, person.pressed)
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
