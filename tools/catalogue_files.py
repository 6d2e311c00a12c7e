"""Reads the documents of the property catalogue for the scripts beside it.

properties.csv says what a property is called and means, defaults.csv how it is read and what it begins with; the
README beside them explains both.
"""
import csv
import json
import re
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
RESOURCES = ROOT / "propertyeditor" / "resources"
# What the program answered when the expectations of its cases were last updated.
ANSWER = ROOT / "tests/apps/orv-workflow/cases/properties_json/stdout"

PROPERTY_COLUMNS = ["id", "internalNameV2", "internalNameV1", "displayName", "toolTip", "typeName", "typeOptions",
                    "verificationFunction", "verificationParameters"]
DEFAULT_COLUMNS = ["internalNameV2", "reader", "kind", "default"]

# Code of a reader, its enumerator in the program, and the types of rows that it serves.
READERS = {
    "S": ("String", ("QString", "multiLine", "double")), "U": ("UpperLetters", ("QString",)), "B": ("Bool", ("bool",)),
    "D": ("Double", ("double",)), "P": ("Percent", ("double",)), "I": ("Int", ("int",)),
    "N": ("NonNegativeInt", ("int",)), "Q": ("IntPercent", ("int",)), "L": ("ListIndex", ("list",)),
    "T": ("ListText", ("list",)), "O": ("Object", ("object",)), "R": ("Resource", ("ResourceReference",)),
    "A": ("StringList", ("CheckableList",)),
}

# A number's notation says of which type it is, for this difference reaches the files.
INT = re.compile(r"-?(0|[1-9]\d*)")
DOUBLE = re.compile(r"-?\d+\.\d+")
NAME = re.compile(r"[a-z]\w*")
NOTATION_OF_KIND = {"none": re.compile(""), "text": re.compile(r"[^\x00-\x08\x0b-\x1f\x7f]*"),
                    "bool": re.compile("true|false"), "int": INT, "double": DOUBLE, "list": re.compile(r"[^;]+(;[^;]+)*"),
                    "ppm": re.compile(f"{INT.pattern}|{DOUBLE.pattern}"),
                    "featureFinder": NAME, "fastXic": NAME, "code": NAME}
KINDS_FROM_CODE = {"featureFinder", "fastXic", "code"}


class CatalogueError(ValueError):
    """A document that can't be used; the text names the file and the place."""


@dataclass(frozen=True)
class Default:
    """A row of defaults.csv."""
    name: str
    reader: str
    kind: str
    text: str

    def is_from_code(self):
        return self.kind in KINDS_FROM_CODE

    def value(self):
        """In the type that the program holds, or a number with its unit; only of what doesn't come from code."""
        if self.kind in ("none", "text"):
            return self.text if self.kind == "text" else None
        if self.kind == "list":
            return self.text.split(";")
        if self.kind == "ppm":
            return {"unit": "ppm", "value": json.loads(self.text)}
        return json.loads(self.text)


def read_records(path, columns):
    """The records below the heading, as dictionaries."""
    with open(path, encoding="utf-8", newline="") as file:
        records = list(csv.reader(file, strict=True))
    if not records or records[0] != columns:
        raise CatalogueError(f"{path.name}: the header is not {','.join(columns)}")
    for index, record in enumerate(records[1:]):
        if len(record) != len(columns):
            raise CatalogueError(f"{path.name}, record {index + 2}: has {len(record)} fields and not {len(columns)}")
    return [dict(zip(columns, record)) for record in records[1:]]


def read_properties(folder=RESOURCES):
    """The rows of properties.csv; the position is the number."""
    rows = read_records(folder / "properties.csv", PROPERTY_COLUMNS)
    for index, row in enumerate(rows):
        if row["id"] != str(index):
            raise CatalogueError(f"properties.csv, record {index + 2}: id {row['id']} stands where {index} belongs")
    return rows


def read_defaults(properties, folder=RESOURCES):
    """The rows of defaults.csv, one for each property and in their order."""
    defaults = [Default(*row.values()) for row in read_records(folder / "defaults.csv", DEFAULT_COLUMNS)]
    names = [row["internalNameV2"] for row in properties]
    for index, (default, name) in enumerate(zip(defaults, names)):
        where = f"defaults.csv, record {index + 2}"
        if default.name != name:
            raise CatalogueError(f"{where}: \"{default.name}\" stands where \"{name}\" belongs")
        if default.reader not in READERS:
            raise CatalogueError(f"{where}: unknown reader \"{default.reader}\"")
        if default.kind not in NOTATION_OF_KIND:
            raise CatalogueError(f"{where}: unknown kind \"{default.kind}\"")
        if not NOTATION_OF_KIND[default.kind].fullmatch(default.text):
            raise CatalogueError(f"{where}: \"{default.text}\" is no default of the kind {default.kind}")
    if len(defaults) != len(names):
        raise CatalogueError(f"defaults.csv: has {len(defaults)} rows and properties.csv {len(names)}")
    return defaults


def answered_defaults(answer=None):
    """What the program answers as default, by name and in the type that it says it is of.

    Without an answer it is the expected one, which may not yet know the newest rows."""
    if answer is None:
        answer = json.loads(ANSWER.read_text("utf-8"))
    # JSON text has one kind of number: its type stands beside it.
    return {entry["internalName"]: float(entry["default"]) if entry["defaultType"] == "double" else entry["default"]
            for entry in answer}
