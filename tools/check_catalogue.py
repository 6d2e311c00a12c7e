#!/usr/bin/env python3
"""Proves that the property catalogue and its lists agree with each other and with what the program expects.

Usage: check_catalogue.py [--program ORV_WORKFLOW] [RESOURCE_FOLDER]

With a program, what it answers about its properties must be what the files say, and defaults that come from its code
are checked as well; without one only those that it has been expected to answer. Prints one line per problem and exits
with 1 when there is any, with 2 when a file cannot be read at all.
Needs nothing but the standard library.
"""

import argparse
import csv
import json
import re
import sys
from pathlib import Path

import catalogue_facts as facts
import catalogue_files as files
import catalogue_program

NUMBER_OPTIONS = {"min", "max", "step", "suffix", "prefix"}
OPTIONS_OF_TYPE = {"double": NUMBER_OPTIONS | {"precision"}, "int": NUMBER_OPTIONS, "object": {"min", "max"},
                   "ResourceReference": {"fileMode", "ext"}}

# What a tooltip says for the unit that an editor shows behind the number.
UNIT_WORDS = {"ppm": "ppm", "Da": "Da", "m/z": "m/z", "min": "minutes", "s": "seconds", "%": "percent",
              "counts": "counts", "counts·s": "counts times seconds", "°": "degrees", "MB": "megabytes",
              "scans": "scans", "residues": "residues", "dpi": "dots per inch"}

RANGE = re.compile(r"([\[\(])\s*([-0-9.]+)\s*;\s*([-0-9.]+)\s*([\]\)])")
DIGESTION = re.compile(r"[^@|]+ @ [A-Z](,[A-Z])* \| [CN]-term")
IDENTIFIER = re.compile(r"[A-Za-z][A-Za-z0-9]*(_[A-Za-z0-9]+)*")
CPP_KEYWORDS = set("""alignas alignof and asm auto bool break case catch char class const constexpr continue decltype
default delete do double else enum explicit export extern false float for friend goto if inline int long mutable
namespace new not nullptr operator or private protected public register requires return short signed sizeof static
struct switch template this throw true try typedef typeid typename union unsigned using virtual void volatile while
signals slots emit foreach forever""".split())

ORDERINGS = {"greater-than": lambda a, b: a > b, ">": lambda a, b: a > b,
             "greater-or-equal-to": lambda a, b: a >= b, ">=": lambda a, b: a >= b,
             "less-than": lambda a, b: a < b, "<": lambda a, b: a < b,
             "less-or-equal-to": lambda a, b: a <= b, "<=": lambda a, b: a <= b,
             "equal-to": lambda a, b: a == b, "=": lambda a, b: a == b,
             "not-equal-to": lambda a, b: a != b, "!=": lambda a, b: a != b}
TEXT_RULES = {"contains": lambda v, p: p in v, "~": lambda v, p: p in v,
              "not-contains": lambda v, p: p not in v, "!~": lambda v, p: p not in v,
              "starts-with": str.startswith, "ends-with": str.endswith,
              "empty": lambda v, p: not v, "not-empty": lambda v, p: bool(v)}
MEMBER_OF_KIND = {"plain": "value", "associativeInteger": "value", "associativeKey": "key", "checkable": "key"}
# Rules that only make sense on rows of one type.
TYPE_OF_RULE = {"modifications": "object", "glycans": "object", "isotope": "object", "digestion_valid": "list"}
FILE_RULES = {"local-url", "local-or-talvane-url"}


class Checker:
    def __init__(self, folder, answer=None):
        self.folder = folder
        self.problems = []
        properties = files.read_properties(folder)
        self.rows = dict(enumerate(properties))
        self.defaults = files.read_defaults(properties, folder)
        self.from_code = files.answered_defaults(answer)
        self.lists = {}

    def fail(self, where, text):
        self.problems.append(f"{where}: {text}")

    def run(self):
        self.load_lists()
        for number, row in sorted(self.rows.items()):
            self.check_texts(number, row)
            self.check_type(number, row)
            self.check_options(number, row)
            self.check_rule(number, row)
            self.check_values(number, row)
            self.check_list_presence(number, row)
        self.check_unique_texts()
        self.check_names()
        self.check_pinned_names()
        for where, entry in self.list_entries():
            self.check_list(where, entry)
        self.check_notes()
        return self.problems

    # Loading

    def load_lists(self):
        with open(self.folder / "lists.json", encoding="utf-8") as file:
            self.document = json.load(file)
        for entry in self.document["lists"]:
            for number in entry["ids"]:
                if number in self.lists:
                    self.fail(f"id {number}", "has two lists")
                if number not in self.rows:
                    self.fail(f"lists.json, id {number}", "is no row of the catalogue")
                self.lists[number] = entry

    def list_entries(self):
        for entry in self.document["lists"]:
            yield "list of " + ", ".join(map(str, entry["ids"])), entry

    # Names and texts

    def check_texts(self, number, row):
        caption, tip = row["displayName"], row["toolTip"]
        where = f"id {number}"
        for column, text in row.items():
            if text != text.strip():
                self.fail(where, f"{column} has blanks at an end")
            if "\n" in text or "\t" in text:
                self.fail(where, f"{column} has a line break or a tab")
        if not caption:
            self.fail(where, "has no caption")
        if len(tip) < 30 or not tip.endswith("."):
            self.fail(where, "the tooltip is no full sentence")
        if len(re.findall(r"[.!?](?= [A-Z]|$)", tip)) > 2:
            self.fail(where, "the tooltip has more than two sentences")
        suffix = self.options(row).get("suffix", "").strip()
        if suffix and UNIT_WORDS.get(suffix, suffix).lower() not in tip.lower():
            self.fail(where, f"the tooltip does not name the unit that is shown as \"{suffix}\"")

    def check_unique_texts(self):
        for column in ("displayName", "toolTip"):
            seen = {}
            for number, row in sorted(self.rows.items()):
                other = seen.setdefault(row[column].lower(), number)
                if other != number:
                    self.fail(f"id {number}", f"has the same {column} as id {other}")

    def check_names(self):
        seen = {}
        for number, row in sorted(self.rows.items()):
            for column in ("internalNameV2", "internalNameV1"):
                name = row[column]
                if not IDENTIFIER.fullmatch(name) or name in CPP_KEYWORDS:
                    self.fail(f"id {number}", f"{column} \"{name}\" is no C++ identifier")
                other = seen.setdefault(name.lower(), number)
                if other != number:
                    self.fail(f"id {number}", f"{column} \"{name}\" is also a name of id {other}")
        if 266 in self.rows and self.rows[266]["displayName"] != self.rows[266]["internalNameV2"]:
            self.fail("id 266", "caption and current name differ, so that renamed samples are not followed")

    def check_pinned_names(self):
        current = {row["internalNameV2"]: number for number, row in self.rows.items()}
        every = {row["internalNameV1"]: number for number, row in self.rows.items()} | current
        for name, number in (read_names(facts.SEARCH_KEYS) | read_names(facts.PREVIEW_KEYS)).items():
            if every.get(name) != number:
                self.fail(f"id {number}", f"the key \"{name}\" resolves to {every.get(name)}")
        pinned = read_names(facts.ENTRY_NAMES)
        for prefix, first in facts.TRACE_BLOCKS.items():
            pinned |= {prefix + key: first + index for index, key in enumerate(facts.TRACE_KEYS)}
        for name, number in pinned.items():
            if current.get(name) != number:
                self.fail(f"id {number}", f"the current name \"{name}\" belongs to {current.get(name)}")

    def check_notes(self):
        text = (self.folder / "naming-notes.md").read_text(encoding="utf-8")
        noted = dict(re.findall(r"^- (\d+) `(\w+)`: \S", text, re.MULTILINE))
        for number, row in sorted(self.rows.items()):
            if noted.get(str(number)) != row["internalNameV2"]:
                self.fail(f"id {number}", "naming-notes.md has no line with its current name")

    # Types, options and rules

    def check_type(self, number, row):
        code = self.defaults[number].reader
        _, types = files.READERS[code]
        if row["typeName"] not in types:
            self.fail(f"id {number}", f"type \"{row['typeName']}\" does not go with reader {code}")

    @staticmethod
    def options(row):
        parts = [part for part in row["typeOptions"].split(";") if part]
        return dict(part.split("=", 1) for part in parts if "=" in part)

    def check_options(self, number, row):
        where, options, kind = f"id {number}", self.options(row), row["typeName"]
        if any("=" not in part for part in row["typeOptions"].split(";") if part):
            self.fail(where, "an option has no \"=\"")
        for name in sorted(set(options) - OPTIONS_OF_TYPE.get(kind, set())):
            self.fail(where, f"option \"{name}\" is not for type {kind}")
        if kind == "ResourceReference" and options.get("fileMode") not in ("existingFile", "dirsOnly"):
            self.fail(where, "the option fileMode is missing or unknown")
        if kind not in ("int", "double"):
            return
        low, high = to_number(options.get("min")), to_number(options.get("max"))
        if low is None or high is None or low >= high:
            self.fail(where, "needs the options min and max, the first below the second")
            return
        if self.knows_default(number):
            self.check_number(number, low, high, options)
        match = RANGE.fullmatch(row["verificationParameters"])
        if match and (float(match[2]), float(match[3])) != (low, high):
            self.fail(where, "the limits of the rule and of the editor differ")

    def check_number(self, number, low, high, options):
        where, default = f"id {number}", to_number(self.default(number))
        if default is None or not low <= default <= high:
            self.fail(where, f"the default {default} is not between min {low} and max {high}")
        if self.rows[number]["typeName"] == "double" and default is not None \
                and abs(round(default, int(options.get("precision", 2))) - default) > 1e-12:
            self.fail(where, f"the default {default} has more decimals than the editor shows")

    def knows_default(self, number):
        default = self.defaults[number]
        return not default.is_from_code() or default.name in self.from_code

    def default(self, number):
        default = self.defaults[number]
        return self.from_code[default.name] if default.is_from_code() else default.value()

    def check_rule(self, number, row):
        where, kind = f"id {number}", row["typeName"]
        keyword, parameter = row["verificationFunction"].strip().lower(), row["verificationParameters"]
        if keyword == "range" or keyword in ORDERINGS:
            if kind not in ("int", "double"):
                self.fail(where, f"the rule {keyword} needs a row of type int or double")
            limits = RANGE.fullmatch(parameter)
            texts = [limits[2], limits[3]] if keyword == "range" and limits else [parameter]
            if keyword == "range" and not limits:
                self.fail(where, f"\"{parameter}\" is no range")
            elif any(not re.fullmatch(r"-?\d+" if kind == "int" else r"-?\d+(\.\d+)?", text) for text in texts):
                self.fail(where, f"\"{parameter}\" is not of type {kind}")
        elif keyword in TEXT_RULES:
            if kind not in ("QString", "multiLine"):
                self.fail(where, f"the rule {keyword} needs a text row")
        elif keyword == "list-not-empty":
            if kind != "CheckableList":
                self.fail(where, f"the rule {keyword} needs a checkable list")
        elif keyword in FILE_RULES:
            if kind != "ResourceReference":
                self.fail(where, f"the rule {keyword} needs a reference")
        elif keyword in TYPE_OF_RULE:
            if kind != TYPE_OF_RULE[keyword]:
                self.fail(where, f"the rule {keyword} needs a row of type {TYPE_OF_RULE[keyword]}")
        elif keyword:
            self.fail(where, f"unknown rule \"{keyword}\"")
        elif parameter:
            self.fail(where, "has a rule parameter without a rule")

    def check_values(self, number, row):
        if self.knows_default(number) and not self.passes(row, self.default(number)):
            self.fail(f"id {number}", f"the default {self.default(number)!r} breaks its own rule")
        for value in facts.SET_BY_OTHERS.get(number, []):
            if not self.passes(row, value):
                self.fail(f"id {number}", f"{value!r}, set by a step or a preset, breaks the rule")
            if row["typeName"] == "list" and not self.in_list(number, value):
                self.fail(f"id {number}", f"{value!r}, set by a step or a preset, is not in the list")

    @staticmethod
    def passes(row, value):
        """As the program compares: a text that is a number orders as one, others do not; a null reference passes."""
        keyword, parameter = row["verificationFunction"].strip().lower(), row["verificationParameters"]
        number = to_number(value)
        if keyword == "range":
            match = RANGE.fullmatch(parameter)
            if not match or number is None:
                return False
            low, high = float(match[2]), float(match[3])
            return (low <= number if match[1] == "[" else low < number) \
                and (number <= high if match[4] == "]" else number < high)
        if keyword in ORDERINGS:
            limit = to_number(parameter)
            return number is not None and limit is not None and ORDERINGS[keyword](number, limit)
        if keyword in TEXT_RULES:
            return TEXT_RULES[keyword]("" if value is None else str(value), parameter)
        if keyword == "list-not-empty":
            return bool(value)
        if keyword == "digestion_valid":
            return bool(DIGESTION.fullmatch(str(value)))
        if keyword in FILE_RULES:
            return not value
        return True

    # Lists

    def check_list_presence(self, number, row):
        code = self.defaults[number].reader
        entry = self.lists.get(number)
        where = f"id {number}"
        if entry is None:
            if code in "LTA":
                self.fail(where, "has no list")
            return
        kind = entry["kind"]
        if code == "A" and kind != "checkable" or code != "A" and kind == "checkable":
            self.fail(where, f"reader {code} does not go with a {kind} list")
        if code == "T" and (kind == "associativeInteger" or not entry["stringSerialized"]):
            self.fail(where, "a text value needs a list that is stored by text or by key")
        if code == "L" and kind == "associativeKey":
            self.fail(where, "an index value cannot come from a list by key")
        if code == "N" and kind != "associativeInteger":
            self.fail(where, "a plain number is explained by a list by integer")
        if code not in "LTAN":
            self.fail(where, f"has a list, although its reader is {code}")
        if self.knows_default(number) and not self.in_list(number, self.default(number)):
            self.fail(where, f"the default {self.default(number)!r} is not in the list")
        if code == "N":
            outside = [e["value"] for e in entry["entries"] if not self.passes(row, e["value"])]
            if outside:
                self.fail(where, f"the listed numbers {outside} break the rule")

    def in_list(self, number, value):
        entry = self.lists.get(number)
        if entry is None:
            return False
        entries, kind = entry["entries"], entry["kind"]
        if kind == "checkable":
            return all(item in [e["text"] for e in entries] for item in value)
        if kind == "associativeInteger":
            return value in [e["value"] for e in entries]
        if kind == "associativeKey":
            return value in [e["key"] for e in entries]
        if isinstance(value, str):
            return entry["editable"] or value in [e["text"] for e in entries]
        return 0 <= value < len(entries)

    def check_list(self, where, entry):
        unknown = set(entry) - {"ids", "kind", "editable", "stringSerialized", "booleans", "entries"}
        if unknown:
            self.fail(where, f"unknown members {sorted(unknown)}")
        kind, entries = entry["kind"], entry["entries"]
        member = MEMBER_OF_KIND.get(kind)
        if member is None or any(set(e) != {"text", member} for e in entries):
            self.fail(where, f"kind \"{kind}\" is unknown, or an entry lacks its text or its {member}")
            return
        keys, texts = [e[member] for e in entries], [e["text"] for e in entries]
        if len(set(keys)) != len(keys) or len(set(t.lower() for t in texts)) != len(texts):
            self.fail(where, "a text or key stands twice")
        if len(entries) < 2 or entry["ids"] != sorted(set(entry["ids"])):
            self.fail(where, "needs two entries at least, and its ids in ascending order")
        if kind == "plain" and keys != list(range(len(keys))):
            self.fail(where, "the values of a plain list are its positions")
        if member == "key" and not all(isinstance(key, str) for key in keys):
            self.fail(where, "keys are texts")
        if kind == "associativeInteger" and entry["stringSerialized"]:
            self.fail(where, "a list by integer is stored as a number")
        if entry["editable"] and not (kind == "plain" and entry["stringSerialized"]):
            self.fail(where, "only a plain list that is stored by text takes other texts")
        booleans = entry.get("booleans")
        if booleans is not None and (kind != "associativeInteger" or sorted(booleans) != ["false", "true"]
                                     or not set(booleans.values()) <= set(keys)):
            self.fail(where, "old booleans must map to values of a list by integer")
        if self.hold_digestions(entry["ids"]) and not all(DIGESTION.fullmatch(text) for text in texts):
            self.fail(where, "a digestion is not written as enzyme @ residues | side")

    def hold_digestions(self, numbers):
        rules = [self.rows[number]["verificationFunction"] for number in numbers if number in self.rows]
        return "digestion_valid" in rules


def read_names(text):
    pairs = (part.split() for part in text.split(";"))
    return {name: int(number) for name, number in pairs}


def to_number(value):
    if isinstance(value, bool) or value is None:
        return None
    try:
        return float(value)
    except (TypeError, ValueError):
        return None


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", help="the built orv-workflow")
    parser.add_argument("folder", nargs="?", type=Path, default=files.RESOURCES)
    options = parser.parse_args(arguments)
    try:
        answer = catalogue_program.ask(options.program) if options.program else None
        checker = Checker(options.folder, answer)
        problems = checker.run()
        if options.program:
            catalogue_program.ProgramCheck(checker).run(answer)
    except files.CatalogueError as error:
        print(f"{options.folder}: {error}", file=sys.stderr)
        return 2
    except (OSError, ValueError, KeyError, TypeError, csv.Error) as error:
        print(f"{options.folder}: cannot be checked: {error!r}", file=sys.stderr)
        return 2
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
