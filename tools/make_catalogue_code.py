#!/usr/bin/env python3
"""Writes the code that repeats the property catalogue: the numbers of all properties, their readers and defaults.

usage: tools/make_catalogue_code.py [--check]

Run it after every change of properties.csv or defaults.csv. --check writes nothing and fails when a file is not what
the catalogue asks for.
"""
import csv
import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import catalogue_files as files

ROOT = files.ROOT
HEADER = ROOT / "propertyeditor/src/document/include/orv/propertyeditor/PropertyId.h"
ROWS = ROOT / "propertyeditor/src/catalogue/PropertyRows.inc"

HEADER_TEXT = """\
// Written by tools/make_catalogue_code.py from properties.csv; change that and run the script.
#pragma once

#include <orv/core/Export.h>

#include <QObject>

#include <bitset>

namespace orv {{

/// Holder that makes the enumeration known to the meta-object system.
class ORV_WORKFLOW_EXPORT ORV_QEnumsPropertyId
{{
    Q_GADGET

public:
    /// The number of a property. The enumerator's name is the property's "name" in files, and the numbers tie
    /// the catalogue's rows to code: never renumber, and rename only with an upgrade step.
    enum PropertyId : int
    {{
        NoProperty = -1, ///< what a look-up of an unknown name gives
{enumerators}
    }};
    Q_ENUM(PropertyId)
}};

using PropertyId = ORV_QEnumsPropertyId::PropertyId;

/// The numbers run from 0 to one less than this.
inline constexpr int kPropertyCount = {count};

/// Some of the properties, by number.
using PropertyIdSet = std::bitset<kPropertyCount>;

}} // namespace orv
"""

ROWS_TEXT = """\
// Written by tools/make_catalogue_code.py from defaults.csv; change that and run the script.
{rows}
"""

EXPRESSION_OF_KIND = {
    "none": "kNone", "bool": "{}", "int": "{}", "double": "{}", "ppm": "PartsPerMillion{{{}}}",
    "featureFinder": "PropertyDefaults::featureFinder<&SettableFeatureFinderParameters::{}>",
    "fastXic": "PropertyDefaults::fastXic<&TurboXicSettings::{}>", "code": "PropertyDefaults::{}",
}


def literal(text):
    # The escapes of JSON are also those of C++.
    return json.dumps(text, ensure_ascii=False)


def expression(default):
    if default.kind == "text":
        return literal(default.text)
    if default.kind == "list":
        return f"TextList{{{literal(default.text)}}}"
    return EXPRESSION_OF_KIND[default.kind].format(default.text)


def row(default):
    reader, _ = files.READERS[default.reader]
    return f"Row{{PropertyId::{default.name}, Reader::{reader}, {expression(default)}}},"


def generated():
    """The text of each file that the catalogue asks for."""
    properties = files.read_properties()
    enumerators = "\n".join(f"        {entry['internalNameV2']} = {entry['id']}," for entry in properties)
    rows = "\n".join(map(row, files.read_defaults(properties)))
    return {HEADER: HEADER_TEXT.format(enumerators=enumerators, count=len(properties)),
            ROWS: ROWS_TEXT.format(rows=rows)}


def is_current(path, text):
    return path.exists() and path.read_text(encoding="utf-8") == text


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__.split("\n\n")[1], file=sys.stderr)
        return 2
    try:
        outdated = {path: text for path, text in generated().items() if not is_current(path, text)}
    except (OSError, UnicodeError, csv.Error, files.CatalogueError) as error:
        print(error, file=sys.stderr)
        return 2
    for path, text in outdated.items():
        if arguments:
            print(f"{path.relative_to(ROOT)} is not what the catalogue asks for; run tools/make_catalogue_code.py")
        else:
            path.write_text(text, encoding="utf-8")
    return 1 if arguments and outdated else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
