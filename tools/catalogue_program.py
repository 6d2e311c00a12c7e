"""What the built program answers about the catalogue, compared with the files and facts it was made from.

Used by check_catalogue.py --program. A number counts by its type too: files hold 2 and 2.0 in different forms.
"""

import json
import subprocess

import catalogue_facts as facts

# The type of the default, in the program's own words.
UNSET_TYPE = None
REFERENCE_TYPE = "QSharedPointer<orv::ResourceReference>"
MULTICORE_TYPE = "orv::PropertyEditorUtils::MulticoreMode"
TYPE_OF_PYTHON = {str: "QString", bool: "bool", int: "int", float: "double", list: "QStringList"}


def ask(program, *names):
    """The program's answer; raises OSError or ValueError where there is none."""
    result = subprocess.run([program, "properties", "--json", *names], capture_output=True, timeout=120,
                            stdin=subprocess.DEVNULL)
    if result.returncode != 0 or result.stderr:
        raise ValueError(f"{program} ended with {result.returncode}: {result.stderr.decode('utf-8', 'replace')}")
    return json.loads(result.stdout)


class ProgramCheck:
    """Appends to the problems of a checker that has loaded the catalogue's files."""

    def __init__(self, checker, value_of):
        self.checker = checker
        self.value_of = value_of

    def run(self, answer):
        numbers = [entry["id"] for entry in answer]
        if numbers != sorted(self.checker.rows):
            self.checker.fail("program", f"knows {len(numbers)} properties and not {len(self.checker.rows)}, or "
                                         "in another order")
        for entry in answer:
            if entry["id"] in self.checker.rows:
                self.check_entry(entry["id"], entry)

    def check_entry(self, number, entry):
        row = self.checker.rows[number]
        for member, column in (("internalName", "internalNameV2"), ("internalNameV1", "internalNameV1"),
                               ("displayName", "displayName"), ("toolTip", "toolTip"), ("typeName", "typeName")):
            self.compare(number, member, entry[member], row[column])
        self.compare(number, "typeOptions", entry["typeOptions"], self.checker.options(row))
        self.compare(number, "verification", entry["verification"], rule_of(row))
        self.compare(number, "list", entry["list"], self.list_of(number))
        code, text = self.checker.readers[number]
        self.compare(number, "reader", entry["reader"], code)
        self.check_default(number, text, entry)

    def compare(self, number, member, seen, wanted):
        if type(seen) is not type(wanted) or seen != wanted:
            self.checker.fail(f"id {number}", f"the program's {member} is {seen!r} and not {wanted!r}")

    def list_of(self, number):
        entry = self.checker.lists.get(number)
        return entry and [e["text"] for e in entry["entries"]]

    def check_default(self, number, text, entry):
        value, kind = entry["default"], entry["defaultType"]
        if text in facts.TABLES:
            self.compare(number, "type of the default", kind, "QByteArray")
            columns, rows = facts.TABLES[text]
            self.compare(number, "columns of the default", value["data"], columns)
            self.compare(number, "rows of the default", len(value["children"]), rows)
        elif text in facts.RECORDS:
            self.compare(number, "type of the default", kind, "QJsonObject")
            self.compare(number, "default", value, facts.RECORDS[text])
        elif text.startswith("unit"):
            self.compare(number, "type of the default", kind, "QByteArray")
            unit, amount = self.value_of(number, text).split()
            self.compare(number, "default", {**value, "value": float(value["value"])},
                         {"unit": unit, "value": float(amount)})
        else:
            self.check_plain_default(number, text, value, kind)

    def check_plain_default(self, number, text, value, kind):
        wanted = self.value_of(number, text)
        wanted_type = {"null": UNSET_TYPE, "ref": REFERENCE_TYPE, "multicore1": MULTICORE_TYPE} \
            .get(text, TYPE_OF_PYTHON.get(type(wanted)))
        self.compare(number, "type of the default", kind, wanted_type)
        # JSON text has one kind of number: its type stands beside it.
        is_number = isinstance(wanted, float) and not isinstance(value, (bool, str)) and value is not None
        self.compare(number, "default", float(value) if is_number else value, wanted)


def rule_of(row):
    keyword, parameter = row["verificationFunction"], row["verificationParameters"]
    return {"keyword": keyword, "parameter": parameter} if keyword else None
