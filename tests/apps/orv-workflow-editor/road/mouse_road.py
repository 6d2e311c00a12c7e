"""The road with the pointer: from an old workflow to a run folder. Each step ends at what its picture shows."""
import re

from steps import Step

OLD = "intact_mass_2022.wflw"
NEW = "intact_mass.wflw"
SETTINGS = ("tree", "Properties")
STEPS_OF_UPGRADE = ("tree", "Steps of the upgrade")


def open_old(road, person):
    person.clicks("menu item", "File")
    person.clicks("menu item", "Open...")
    person.sees("dialog", "Launch Workflow")
    for folder in ("workflows", "outdated"):
        person.clicks("tree item", folder, times=2)
    person.clicks("tree item", OLD)
    person.sees("text", OLD)


def read_upgrade(road, person):
    person.clicks("push button", "Open")
    person.sees("alert message", "Workflow upgrade", ["active"])
    person.sees("label", re.compile("outdated.*upgraded"))
    person.sees("label", "What the upgrade from 5.30.0 to 5.47.0 changes; nothing is written before you save:")
    person.sees("tree item", "5.33.0, changes: 1", within=STEPS_OF_UPGRADE)
    person.sees("tree item", "changed", within=STEPS_OF_UPGRADE)


def save_upgraded(road, person):
    person.clicks("push button", "Apply and save...")
    person.sees("dialog", "Save upgraded workflow", ["active"])
    person.types(NEW)
    person.sees("text", NEW)
    person.presses("Return")
    person.sees("page tab", "Intact mass")
    person.sees("label", "Saved")
    road.expects_file("Documents/workflows/outdated/" + NEW)
    person.clicks("menu item", "View")
    person.clicks("menu item", "Upgrade")
    person.sees("label", "Upgraded from 5.30.0 to 5.47.0, and saved.")
    person.sees("tree item", "5.33.0, changes: 1", within=STEPS_OF_UPGRADE)
    person.clicks("menu item", "View")
    person.clicks("menu item", "Upgrade")
    person.sees_no(*STEPS_OF_UPGRADE)


def find_setting(road, person):
    person.clicks("menu item", "Edit")
    person.clicks("menu item", "Find Settings...")
    person.sees_focus("text", "Find settings")
    person.types("charge")
    person.sees("tree item", "Highest charge", within=("tree", "Settings that were found"))


def edit_value(road, person):
    person.clicks("tree item", "Highest charge", within=("tree", "Settings that were found"))
    person.sees_focus("tree item", "Highest charge: 100")
    person.clicks("tree item", "100", within=SETTINGS)
    person.sees_focus("spin box", "Highest charge")
    person.types("60")
    person.presses("Return")
    person.sees("tree item", "Highest charge: 60", within=SETTINGS)
    person.sees("label", "Unsaved changes")


def free_place_of_samples(person):
    """Below the row: a drop on a file's cell gives that sample another file."""
    table = person.sees("table", "Samples").extent
    row = person.sees("cell", "Lot 0423", within=("table", "Samples")).extent
    return table[0] + table[2] // 2, (row[1] + row[3] + table[1] + table[3]) // 2


def drop_samples(road, person):
    person.clicks("page tab", "Samples")
    files = road.offers_files([road.data / "mab_stressed.mzML"])
    person.drags(files.place, lambda: free_place_of_samples(person), files.is_accepted)
    person.sees("cell", "mab_stressed", within=("table", "Samples"))
    person.sees("label", "Rows: 2")


def run_check(road, person):
    person.clicks("push button", "Findings: Not checked")
    person.sees("tree item", re.compile("Spectrum upper m/z"), within=("tree", "Findings"))
    person.sees("push button", "Findings: Errors: 1, warnings: 0")


def mend_fault(road, person):
    person.clicks("tree item", re.compile("^The value of .Spectrum upper m/z"))
    person.sees_focus("tree item", "Spectrum upper m/z: 0.0 m/z")
    person.clicks("tree item", "0.0 m/z", within=SETTINGS)
    person.sees_focus("spin box", "Spectrum upper m/z")
    person.types("4000")
    person.presses("Return")
    person.sees("tree item", "Spectrum upper m/z: 4000.0 m/z", within=SETTINGS)
    person.sees("push button", "Findings: No findings")


def undo(road, person):
    person.clicks("menu item", "Edit")
    person.clicks("menu item", re.compile("^Undo: Spectrum upper m/z"))
    person.sees("tree item", "Spectrum upper m/z: 0.0 m/z", within=SETTINGS)
    person.sees("push button", "Findings: Errors: 1, warnings: 0")
    person.clicks("menu item", "Edit")
    person.points_at(person.sees("menu item", re.compile("^Redo: Spectrum upper m/z")))


def redo_and_save(road, person):
    person.clicks("menu item", re.compile("^Redo: Spectrum upper m/z"))
    person.sees("tree item", "Spectrum upper m/z: 4000.0 m/z", within=SETTINGS)
    person.clicks("menu item", "File")
    person.points_at(person.sees("menu item", "Save"))


def name_project(road, person):
    person.clicks("menu item", "Save")
    person.sees("label", "Saved")
    person.clicks("push button", "Create Project...")
    person.sees("dialog", "Save project as", ["active"])
    person.types("lot_0423")
    person.sees("text", "lot_0423")


def find_run(road, person):
    person.clicks("push button", "Save")
    folder = road.home / "Documents/lot_0423.intact.run"
    road.expects_opened(folder)
    for file in ("workflow.wflw", "sequences.fasta", "creation_status.json"):
        road.expects_file(folder / file)
    person.sees("status bar", re.compile(re.escape(str(folder))))


STEPS = [
    Step("open", "an old workflow is chosen", open_old),
    Step("upgrade", "the upgrade is told", read_upgrade),
    Step("upgraded", "the upgraded workflow is saved", save_upgraded),
    Step("find", "a setting is found", find_setting),
    Step("edit", "its value is edited", edit_value),
    Step("samples", "a file is dropped on the samples", drop_samples),
    Step("check", "the check reports a fault", run_check),
    Step("mend", "the fault is mended", mend_fault),
    Step("undo", "the edit is taken back", undo),
    Step("save", "it is made again and saved", redo_and_save),
    Step("project", "a project is named", name_project),
    Step("run", "the run folder is there", find_run),
]
