"""What a step of a road is, and what steps may use beside what a person has."""
import re
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable

from waiting import until


@dataclass
class Step:
    """One thing that a person does; its picture is called as the step."""
    name: str
    what: str
    act: Callable
    heard: set = field(default_factory=set)


class OfferedFiles:
    """A window of another program, from which files are dragged."""

    def __init__(self, road, files):
        self.reader, self.desktop = road.reader, road.desktop
        self.process = self.desktop.start(road.drag_source, *files, log="files")
        self.seen = self.reader.find(self.process, "label", "Files to drag")
        window = self.desktop.ask("xdotool", "search", "--name", "^Files$").split()[-1].decode()
        self.desktop.ask("xdotool", "windowmove", "--sync", window, *road.place_of_files)
        until("the window of files at its place",
              lambda: self.reader.find(self.process, "label", "Files to drag").extent[:2] == road.place_of_files)
        self.place = self.reader.find(self.process, "label", "Files to drag").centre

    def is_accepted(self):
        return bool(self.reader.find_all(self.process, "label", "Accepted here"))

    def close(self):
        self.process.terminate()
        self.process.wait(30)


class Road:
    """A desktop with the program and the example workflows, as a person finds them on the first day."""
    place_of_files = (880, 640)

    def __init__(self, desktop, reader, drag_source):
        self.desktop, self.reader, self.drag_source = desktop, reader, drag_source
        self.home = desktop.home
        self.data = self.home / "Documents/workflows/data"
        self.offered = []

    def offers_files(self, files):
        self.offered.append(OfferedFiles(self, files))
        return self.offered[-1]

    def clear_away(self):
        """What another program showed for one step."""
        while self.offered:
            self.offered.pop().close()

    def expects_file(self, path):
        until(f"the file {path}", lambda: (self.home / path).is_file())

    def expects_opened(self, folder):
        """That the desktop was asked to show the folder."""
        opened = self.desktop.opened_folders
        until(f"{folder} opened", lambda: opened.exists() and Path(folder).as_uri() in opened.read_text("utf-8").split())


def told_in(text):
    """The texts that a passage of the guide promises: those in bold."""
    return [re.sub(r"\s+", " ", each) for each in re.findall(r"\*\*(.+?)\*\*", text, re.DOTALL)]
