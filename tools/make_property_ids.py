#!/usr/bin/env python3
"""Writes the header with the numbers of all properties, PropertyId.h, from the catalogue.

usage: tools/make_property_ids.py [--check]

Run it after every change of the column internalNameV2. --check writes nothing and fails when the header is not what
the catalogue asks for.
"""
import csv
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CATALOGUE = ROOT / "propertyeditor" / "resources" / "properties.csv"
HEADER = ROOT / "propertyeditor/src/document/include/orv/propertyeditor/PropertyId.h"

TEXT = """\
// Written by tools/make_property_ids.py from properties.csv; change that and run the script.
#pragma once

#include <orv/core/Export.h>

#include <QObject>

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

}} // namespace orv
"""


def header():
    with open(CATALOGUE, encoding="utf-8", newline="") as file:
        rows = list(csv.DictReader(file))
    enumerators = "\n".join(f"        {row['internalNameV2']} = {row['id']}," for row in rows)
    return TEXT.format(enumerators=enumerators, count=len(rows))


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__.split("\n\n")[1], file=sys.stderr)
        return 2
    text = header()
    if not arguments:
        HEADER.write_text(text, encoding="utf-8")
        return 0
    if HEADER.exists() and HEADER.read_text(encoding="utf-8") == text:
        return 0
    print(f"{HEADER.relative_to(ROOT)} is not what the catalogue asks for; run tools/make_property_ids.py")
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
