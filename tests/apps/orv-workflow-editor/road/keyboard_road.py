"""The same road by keys alone. What each step sees is what the road with the pointer sees."""
import re

from mouse_road import NEW, OLD, SETTINGS
from steps import Step

HITS = ("tree", "Settings that were found")


def open_old(road, person):
    person.presses("ctrl+o")
    person.sees("dialog", "Launch Workflow", ["active"])
    person.types("workflows/outdated/" + OLD)
    person.sees("text", "workflows/outdated/" + OLD)
    person.presses("Return")
    person.sees("alert message", "Workflow upgrade", ["active"])


def save_upgraded(road, person):
    person.sees_focus("push button", "Cancel")
    person.presses("Left")
    person.sees_focus("push button", "Apply and save...")
    person.presses("Return")
    person.sees("dialog", "Save upgraded workflow", ["active"])
    person.types(NEW)
    person.sees("text", NEW)
    person.presses("Return")
    person.sees("label", "Saved")
    person.sees("page tab", "Intact mass")
    person.sees("frame", states=["active"])
    road.expects_file("Documents/workflows/outdated/" + NEW)


def find_and_edit(road, person):
    person.presses("ctrl+f")
    person.sees_focus("text", "Find settings")
    person.types("charge")
    person.sees("tree item", "Lowest charge", within=HITS)
    person.presses("Down")
    person.sees("tree item", "Lowest charge", ["selected"], HITS)
    person.presses("Return")
    person.sees_focus("tree item", "Lowest charge: 5")
    person.presses("F2")
    person.sees_focus("spin box", "Lowest charge")
    person.types("8")
    person.presses("Return")
    person.sees("tree item", "Lowest charge: 8", within=SETTINGS)


def copy_setting(road, person):
    person.presses("ctrl+c", "ctrl+f")
    person.sees_focus("text", "Find settings")
    person.presses("ctrl+v")
    person.sees("text", re.compile("^Lowest charge.*8"))
    person.presses("Escape")
    person.sees_focus("tree item", "Lowest charge: 8")


def see_other_columns(road, person):
    person.presses("F7")
    person.sees("label", "Lowest charge: 8")
    person.sees_focus("tree item", re.compile("^Intact mass › Intact mass, 8"))
    person.presses("Escape")
    person.sees_focus("tree item", "Lowest charge: 8")


def compare_with_old(road, person):
    person.presses("ctrl+F7")
    person.sees("dialog", "Compare With Workflow", ["active"])
    path = str(road.home / "Documents/workflows/outdated" / OLD)
    person.types(path)
    person.sees("text", path)
    person.presses("Return")
    person.sees("tree item", "Lowest charge", within=("tree", "Differences"))
    person.sees_focus("tree item", "Intact mass")
    person.presses("Escape")
    person.sees_focus("tree item", "Lowest charge: 8")


def add_samples(road, person):
    person.presses("ctrl+Next")
    person.sees("table", "Samples")
    person.presses("alt+a")
    person.sees("dialog", "Add Files", ["active"])
    file = str(road.data / "mab_stressed.mzML")
    person.types(file)
    person.sees("text", file)
    person.presses("Return")
    person.sees("cell", "mab_stressed", within=("table", "Samples"))
    person.sees("frame", states=["active"])


def check_and_mend(road, person):
    person.presses("F9")
    person.sees("push button", "Findings: Errors: 1, warnings: 0")
    person.presses("F8")
    person.sees_focus("tree item", "Spectrum upper m/z: 0.0 m/z")
    person.types("4000")
    person.sees_focus("spin box", "Spectrum upper m/z")
    person.presses("Return")
    person.sees("push button", "Findings: No findings")


def undo_and_redo(road, person):
    person.presses("ctrl+z")
    person.sees("tree item", "Spectrum upper m/z: 0.0 m/z", within=SETTINGS)
    person.presses("ctrl+shift+z")
    person.sees("tree item", "Spectrum upper m/z: 4000.0 m/z", within=SETTINGS)
    person.sees("push button", "Findings: No findings")


def save(road, person):
    person.presses("ctrl+shift+s")
    person.sees("dialog", "Save Workflow", ["active"])
    person.presses("Escape")
    person.sees("frame", states=["active"])
    person.presses("ctrl+s")
    person.sees("label", "Saved")
    person.sees("frame", states=["active"])


def create_project(road, person):
    person.presses("alt+f")
    person.sees("menu item", "Create Project...")
    person.presses("j")
    person.sees("dialog", "Save project as", ["active"])
    person.types("lot_0423")
    person.sees("text", "lot_0423")
    person.presses("Return")
    folder = road.home / "Documents/lot_0423.intact.run"
    road.expects_opened(folder)
    road.expects_file(folder / "workflow.wflw")
    person.sees("status bar", re.compile(re.escape(str(folder))))
    person.sees("frame", states=["active"])
    person.sees_any_focus()


def leave(road, person):
    person.presses("ctrl+q")


STEPS = [
    Step("keys_open", "an old workflow is opened", open_old),
    Step("keys_upgraded", "the upgraded workflow is saved", save_upgraded),
    Step("keys_edit", "a setting is found and edited", find_and_edit),
    Step("keys_copy", "a setting is copied", copy_setting),
    Step("keys_columns", "the columns with a setting are listed", see_other_columns),
    Step("keys_compare", "the workflow is compared with the old one", compare_with_old),
    Step("keys_samples", "a sample is added", add_samples),
    Step("keys_mend", "a fault is found and mended", check_and_mend),
    Step("keys_undo", "an edit is taken back and made again", undo_and_redo),
    Step("keys_save", "the workflow is saved", save),
    Step("keys_run", "the run folder is there", create_project),
    Step("keys_quit", "the application is left", leave),
]
