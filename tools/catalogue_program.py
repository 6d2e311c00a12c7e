"""What the built program answers about the catalogue, compared with the files it was made from.

Used by check_catalogue.py --program. A number counts by its type too: files hold 2 and 2.0 in different forms.
"""

import json
import subprocess

# The type of a default, in the program's own words.
TYPE_OF_KIND = {"none": None, "text": "QString", "bool": "bool", "int": "int", "double": "double",
                "list": "QStringList", "ppm": "QByteArray"}


def ask(program, *names):
    """The program's answer; raises OSError or ValueError where there is none."""
    result = subprocess.run([program, "properties", "--json", *names], capture_output=True, timeout=120,
                            stdin=subprocess.DEVNULL)
    if result.returncode != 0 or result.stderr:
        raise ValueError(f"{program} ended with {result.returncode}: {result.stderr.decode('utf-8', 'replace')}")
    return json.loads(result.stdout)


# Files hold percent where these readers make a fraction of it, and the program shows what files hold.
PERCENT_READERS = {"P", "Q"}
DIGITS = 9


class ProgramCheck:
    """Appends to the problems of a checker that has loaded the catalogue's files."""

    def __init__(self, checker):
        self.checker = checker

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
        self.compare(number, "reader", entry["reader"], self.checker.defaults[number].reader)
        self.check_default(number, self.checker.defaults[number], entry)

    def compare(self, number, member, seen, wanted):
        if type(seen) is not type(wanted) or seen != wanted:
            self.checker.fail(f"id {number}", f"the program's {member} is {seen!r} and not {wanted!r}")

    def list_of(self, number):
        entry = self.checker.lists.get(number)
        return entry and [e["text"] for e in entry["entries"]]

    def check_default(self, number, default, entry):
        if default.is_from_code():
            return
        self.compare(number, "type of the default", entry["defaultType"], TYPE_OF_KIND[default.kind])
        value, wanted = entry["default"], default.value()
        if default.kind == "double" and type(value) is int:
            value = float(value)  # JSON text has one kind of number: its type stands beside it
        if default.reader in PERCENT_READERS:
            value, wanted = round(value, DIGITS), round(wanted * 100, DIGITS)
        if default.kind == "ppm":
            wanted = {**wanted, "value": type(value["value"])(wanted["value"])}
        self.compare(number, "default", value, wanted)


def rule_of(row):
    keyword, parameter = row["verificationFunction"], row["verificationParameters"]
    return {"keyword": keyword, "parameter": parameter} if keyword else None
