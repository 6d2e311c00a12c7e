#!/usr/bin/env python3
"""Checks documents against the JSON Schema that the command line prints, with a validator of another house.

usage: check_schema.py PROGRAM

The example workflows and what "new" makes of every cell type pass; documents with one fault are refused at the place
of the fault.
"""
import copy
import json
import subprocess
import sys
import tempfile
from pathlib import Path

from jsonschema import Draft202012Validator

EXAMPLES = Path(__file__).resolve().parents[3] / "examples" / "workflows"


def output(program, *arguments):
    return subprocess.run([program, *arguments], check=True, capture_output=True, text=True, timeout=120).stdout


def faults(validator, document):
    return sorted(f"{error.json_path}: {error.message[:200]}" for error in validator.iter_errors(document))


def made_documents(program):
    types = [entry["name"] for entry in json.loads(output(program, "types", "--json"))["cellTypes"]]
    with tempfile.TemporaryDirectory(prefix="orv-schema-") as folder:
        for cell in types:
            if cell != "Unknown":
                path = Path(folder) / f"{cell}.wflw"
                output(program, "new", "--cell", cell, "-o", str(path))
                yield cell, json.loads(path.read_text("utf-8"))


def setting(name, value):
    return {"name": name, "value": value}


def cell_of(document, index):
    return document["tabs"][0]["cells"][index]


def broken_documents():
    """What is wrong, the change, and where the validator must complain."""
    def settings(*entries):
        return lambda d: cell_of(d, 0).update(properties=list(entries))

    entry = "$.tabs[0].cells[0].properties[0]"
    return [
        ("an unknown cell type", lambda d: cell_of(d, 0).update(type="Nonsense"), "$.tabs[0].cells[0].type"),
        ("no cell type", lambda d: cell_of(d, 0).pop("type"), "$.tabs[0].cells[0]"),
        ("an unknown property", settings(setting("Nonsense", 1)), entry + ".name"),
        ("a property of other cells", settings(setting("MassTable", {"data": []})), entry + ".name"),
        ("no value", settings({"name": "KarvonCentroidTopk"}), entry),
        ("a whole number as text", settings(setting("KarvonCentroidTopk", "four")), entry + ".value"),
        ("a number beyond its range", settings(setting("KarvonCentroidTopk", -1)), entry + ".value"),
        ("an object as a list's text", settings(setting("KarvonDigestType", {})), entry + ".value"),
        ("a list as an object", settings(setting("KarvonPrecursorMassError", [])), entry + ".value"),
        ("a text as a value with unit", settings(setting("KarvonPrecursorMassError", {"value": "ten"})),
         entry + ".value.value"),
        ("a former name with a wrong value", settings(setting("DebugText", 5)), entry + ".value"),
        ("a priority that is none", settings({**setting("KarvonCentroidTopk", 4), "priority": 9}), entry + ".priority"),
        ("settings that are no array", lambda d: cell_of(d, 0).update(properties={}), "$.tabs[0].cells[0].properties"),
        ("cells that are no array", lambda d: d["tabs"][0].update(cells={}), "$.tabs[0].cells"),
        ("a tab without columns", lambda d: d["tabs"][0].pop("columns"), "$.tabs[0]"),
        ("a column that is no text", lambda d: d["tabs"][0].update(columns=[1, "b"]), "$.tabs[0].columns[0]"),
        ("no tabs", lambda d: d.pop("tabs"), "$"),
        ("metadata that are no text", lambda d: d.update(metadata={}), "$.metadata"),
        ("a row without data", lambda d: cell_of(d, 1)["properties"][0]["value"]["children"][2].pop("data"),
         "$.tabs[0].cells[1].properties[0].value.children[2]"),
        ("a table without data", lambda d: cell_of(d, 1)["properties"][0]["value"].pop("data"),
         "$.tabs[0].cells[1].properties[0].value"),
        ("rows that are no array", lambda d: cell_of(d, 1)["properties"][0]["value"].update(children={}),
         "$.tabs[0].cells[1].properties[0].value.children"),
    ]


def main(arguments):
    program = str(Path(arguments[0]).resolve())
    schema = json.loads(output(program, "schema"))
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    failures = []

    examples = [(path.name, json.loads(path.read_text("utf-8"))) for path in sorted(EXAMPLES.glob("*.wflw"))]
    made = list(made_documents(program))
    if not examples or not made:
        failures.append("there is nothing to check")
    for name, document in examples + made:
        failures += [f"{name} is refused: {fault}" for fault in faults(validator, document)]

    sound = json.loads(output(program, "new", "--cell", "Karvon", "--cell", "Masses", "-o", "-"))
    failures += [f"the sound document is refused: {fault}" for fault in faults(validator, sound)]
    for what, spoil, place in broken_documents():
        document = copy.deepcopy(sound)
        spoil(document)
        places = {error.json_path for error in validator.iter_errors(document)}
        if places != {place}:
            failures.append(f"{what}: a complaint at {place} was due, there are {sorted(places)}")

    print("\n".join(failures) or f"{len(examples) + len(made)} documents pass, {len(broken_documents())} are refused")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
