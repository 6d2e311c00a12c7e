"""Compares docs/guide.md with what the steps of a road showed, and keeps its pictures."""
import re
import shutil
from pathlib import Path

from steps import told_in

ROOT = Path(__file__).resolve().parents[4]
GUIDE = ROOT / "docs" / "guide.md"
PICTURES = ROOT / "docs" / "pictures"
MOST_BYTES = 60_000
# Where the pictures of a road lie, and the passages of the guide that end with them.
FOLDERS = {"mouse": PICTURES / "guide", "window": PICTURES}
PICTURE = re.compile(r"!\[[^\]]*\]\(pictures/guide/(\w+)\.png\)")
KEYS_HEADING = "## With the keyboard alone"
KEY_ROW = re.compile(r"^\|(?P<what>[^|]*)\|(?P<keys>[^|]*)\|$", re.MULTILINE)
# Names of keys on the screen that differ from those of the guide.
KEY_NAMES = {"Enter": "Return", "Menu": "Menu", "Page Down": "Next", "Page Up": "Prior", "Space": "space"}


def passages(text):
    """(name of the picture, text before it) in their order."""
    found, start = [], text.find("\n## ")
    for picture in PICTURE.finditer(text):
        found.append((picture[1], text[start:picture.start()]))
        start = picture.end()
    return found


def compare_passages(steps, text):
    faults = []
    told = passages(text)
    names = [step.name for step in steps]
    if [name for name, _ in told] != names:
        faults.append(f"{GUIDE.name}: its pictures are {[name for name, _ in told]}, but the steps are {names}")
    heard = {step.name: " \n".join(sorted(step.heard)) for step in steps}
    for name, passage in told:
        faults += [f"{GUIDE.name}: \"{words}\" didn't show in the step \"{name}\", whose passage tells of it"
                   for words in told_in(passage) if words not in heard.get(name, words)]
    for name in names:
        picture = FOLDERS["mouse"] / f"{name}.png"
        if not picture.is_file():
            faults.append(f"{picture.relative_to(ROOT)} is missing; the update makes it")
        elif picture.stat().st_size > MOST_BYTES:
            faults.append(f"{picture.relative_to(ROOT)} has {picture.stat().st_size} bytes, more than {MOST_BYTES}")
    unused = sorted(path.stem for path in FOLDERS["mouse"].glob("*.png") if path.stem not in names)
    return faults + [f"docs/pictures/guide/{name}.png is made by no step" for name in unused]


def as_pressed(key):
    """A key of the guide, such as Ctrl+F, as it is called on the screen."""
    *modifiers, last = key.split("+")
    last = KEY_NAMES.get(last, last)
    return "+".join([*map(str.lower, modifiers), last.lower() if len(last) == 1 else last])


def keys_told(text):
    """Of the rows of the keyboard's table, what each is for and its keys."""
    section = text[text.find(KEYS_HEADING):].split("\n## ", 2)
    table = section[1] if section[0] == "" else section[0]
    rows = [(row["what"].strip(), re.findall(r"`([^`]+)`", row["keys"])) for row in KEY_ROW.finditer(table)]
    return [(what, keys) for what, keys in rows if keys]


def compare_keys(pressed, text):
    rows = keys_told(text)
    if not rows:
        return [f"{GUIDE.name}: no keys are told under \"{KEYS_HEADING}\""]
    told = {as_pressed(key) for _, keys in rows for key in keys}
    return ([f"{GUIDE.name}: the road doesn't press {key}, which the table of keys tells" for key in sorted(told - pressed)] +
            [f"{GUIDE.name}: the road presses {key}, which the table of keys doesn't tell" for key in sorted(pressed - told)])


def compare(name, steps, pressed):
    """What the guide tells and the road doesn't show, and the reverse."""
    text = GUIDE.read_text("utf-8")
    if name == "mouse":
        return compare_passages(steps, text)
    if name == "keyboard":
        return compare_keys(pressed, text)
    return []


def update(name, made):
    """Puts the pictures of a road where pages show them; those of the keyboard are on no page."""
    if name not in FOLDERS:
        return
    FOLDERS[name].mkdir(parents=True, exist_ok=True)
    for picture in sorted(Path(made).glob("*.png")):
        shutil.copyfile(picture, FOLDERS[name] / picture.name)
