#!/usr/bin/env python3
"""Writes the documents that the tests of upgrade steps read.

usage: tools/make_upgrade_fixtures.py [--check]

For each step of the chain, documents of the version before it: one that the step changes ("applies"), one that it
leaves alone ("passes"). They hold the settings of their age. What the steps make of them is told by golden files
beside them, which test_upgrade writes when ORV_UPDATE_GOLDEN is set. --check writes nothing and fails when a file
would change.
"""
import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import make_examples as examples
from make_examples import Writer, proteins, rows, sample, tab

FOLDER = examples.ROOT / "tests" / "data" / "upgrade"

STEPS = ["5.5.0", "5.6.0", "5.9.0", "5.10.1", "5.12.0", "5.12.2", "5.13.0", "5.15.0", "5.16.1"]
STEPS += [f"5.{minor}.0" for minor in range(17, int(examples.CURRENT.split(".")[1]) + 1)]

TYPES = {1: "IntactMass", 2: "ProteinSearch", 3: "CompoundProfiling", 5: "PeptideMap", 6: "TargetedPeptideMap", 11: "IcIefMs",
         12: "DenaturedIntactMass", 18: "MultiAttributeMethod", 20: "ReleasedGlycans", 25: "ProteinQuantification",
         27: "IntactOligo", 28: "DigestedOligo", 29: "LabelFreeQuantification", 30: "DataIndependentAcquisition",
         32: "GlycoproteinSearch"}
ICONS = {5: "peptide-map", 28: "digested-oligo"}

DIGEST = "In-silico options (Theoretical Digest)"
CSV = "In-silico options (CSV import)"

SEARCH = [("Instrument Parameters", [55, 80, 27, 62, 68]), ("Digestion", [43, 44]), ("modifications", [67]),
          ("protein database options", [112, 111]), ("glycans", [58, 70]), ("peptide output options", [83, 33, 36, 50]),
          ("protein output options", [84]), ("Report", [136]), ("Inclusion", [59]), ("Advanced", [0, 49])]
MAP = [("Digestion", [130, 132]), ("modifications", [219]), ("Feature Finder", [142, 145, 201]), ("XIC", [306, 137, 138, 139]),
       (DIGEST, [134, 167, 235, 271]), (CSV, [169, 1, 285, 2]), ("Report", [264, 227, 290, 291]), ("Advanced", [220, 109, 0])]
LABEL_FREE = [("Digestion", [130, 132]), ("modifications", [219]), ("Match between runs", [209, 261]),
              ("Reported peptide filtering", [257, 258, 254]), (CSV, [169, 1, 285, 2]), ("Report", [264, 227]),
              ("Advanced", [3, 109, 0])]
GLYCANS = [("Feature Finder", [142, 145, 201]), ("In-silico options (file import)", [169, 168]), ("Report", [264]),
           ("Advanced", [220, 109, 0])]
INTACT = [("Deconvolution", [5, 106, 107]), ("Masses", [4, 204]), ("Report", [264]), ("Advanced", [220, 0])]
OLIGO = [("Deconvolution", [5, 106, 107]), ("Masses", [4, 204]), ("Report", [264]), ("Advanced", [220, 0])]
DIA = [("Instrument Parameters", [182, 180, 183]), ("Digestion", [181]), ("modifications", [67]), ("Glycans", [58]),
       ("Output Options", [196, 200]), ("Advanced", [220, 0])]
GROUPS = {"Karvon": SEARCH, "Senthia": MAP, "Trenq": LABEL_FREE, "Dravik": GLYCANS, "Intact": INTACT, "Oligo": OLIGO,
          "CaldrinDIA": DIA}

# Settings that came or went: numbers, kinds of cells, workflow types (none for all), first version, first without.
AGES = [
    ([306, 137, 138, 139], ["Senthia"], None, "5.12.2", None), ([168], ["Dravik"], None, "5.13.0", None),
    ([136], ["Karvon"], None, "5.15.0", None), ([201], ["Senthia", "Dravik"], None, "5.20.0", None),
    ([50], ["Karvon"], [28], None, "5.22.0"), ([112, 111, 58], ["Karvon"], [28], None, "5.22.0"),
    ([134, 167, 235, 271], ["Senthia"], [28], None, "5.22.0"), ([62, 36], ["Karvon"], [28], None, "5.23.0"),
    ([68], ["Karvon"], None, "5.23.0", None), ([134, 167, 235, 271], ["Senthia"], [6], None, "5.28.0"),
    ([209], ["Trenq"], None, "5.34.0", None), ([261], ["Trenq"], None, "5.36.0", None),
    ([258], ["Trenq"], None, "5.37.0", None), ([227], ["Senthia", "Trenq"], None, "5.38.0", None),
    ([59], ["Karvon"], None, "5.40.0", None), ([70], ["Karvon"], None, "5.41.0", None),
    ([109], ["Senthia", "Trenq", "Dravik"], None, None, "5.42.0"),
    ([1, 285, 2], ["Senthia", "Trenq"], None, "5.43.0", None), ([200], ["CaldrinDIA"], None, None, "5.44.0"),
    ([196, 181], ["CaldrinDIA"], None, "5.44.0", None), ([182], ["CaldrinDIA"], None, "5.45.0", None),
    ([134], ["Senthia"], None, None, "5.46.0"), ([167, 271], ["Senthia"], None, "5.46.0", None),
    ([58], ["CaldrinDIA"], None, "5.47.0", None),
]
# Only some types of workflows ever had these.
ONLY = {68: [28], 59: [29, 32]}
NEVER = {70: [28]}

PRESETS = [{"name": name, "creationOptions": {}} for name in
           ("MS-preset", "UV-preset", "IntaBio_pI_slices", "XIC-preset", "Wide-preset")]


def number(version):
    return tuple(int(part) for part in version.split("."))


def existed(setting, kind, workflow, version):
    if setting in ONLY and workflow not in ONLY[setting] or workflow in NEVER.get(setting, []):
        return False
    if setting == 169 and kind == "Senthia" and workflow == 28:  # went and came back
        return not number("5.22.0") <= number(version) < number("5.30.0")
    for settings, kinds, workflows, since, until in AGES:
        if setting not in settings or kind not in kinds or workflows and workflow not in workflows:
            continue
        if since and number(version) < number(since) or until and number(version) >= number(until):
            return False
    return True


class Age:
    """Makes documents as the application of a version wrote them."""

    def __init__(self, version, workflow):
        self.version = version
        self.workflow = workflow
        self.writer = Writer(version, user="old.hand", created="2020-02-11T10:00:00")

    def step(self, kind, without=(), extra=None, move=None, **changes):
        groups = [(group, [i for i in settings if i not in without and existed(i, kind, self.workflow, self.version)])
                  for group, settings in GROUPS[kind]]
        if extra:
            groups.append(extra)
        if move:
            groups = [(move.get(group, group), settings) for group, settings in groups]
        cell = self.writer.step(kind, kind, groups, **changes)
        if number(self.version) < number("5.12.0"):
            former = {row["internalNameV2"]: row["internalNameV1"] for row in self.writer.rows.values()}
            for entry in cell["properties"]:
                entry["name"] = former[entry["name"]] or entry["name"]
        return cell

    def samples(self, presets=5, traces=()):
        cell = self.writer.samples([sample(1, "reference", "data/reference.raw"), sample(2, "stressed", "data/stressed.raw")])
        cell["properties"][0]["value"]["TraceImportAndProcessingOptions"] = {
            "ElutionPeaksOptions": PRESETS[:presets], "TracesImportList": list(traces)}
        return cell

    def old_samples(self):
        tree = rows(["SampleName", "SamplePath", "Metadata"], ["reference", "data/reference.raw", ""],
                    ["stressed", "data/stressed.raw", ""])
        return self.writer.cell("Samples", "Sample Input", [{"name": "Samples", "value": tree}])

    def document(self, *cells, samples=None, **metadata):
        tabs = [tab("Samples", samples or self.samples())]
        if self.workflow == 28:
            name = "Proteins (drag and drop FASTA files)" if number(self.version) < number("5.22.0") else \
                "Oligonucleotides (drag and drop FASTA files)"
            tabs.append(tab("Sequences", proteins(self.writer, name, ["guide", "Guide RNA", "GGAAUCUGAC"])))
        if cells:
            tabs.append(tab("Steps", *cells))
        known = {"name": "Fixture", "icon": ICONS.get(self.workflow, "")}
        if number(self.version) >= number("5.12.0"):
            known["workflowType"] = TYPES[self.workflow]
        return self.writer.document(tabs, **{**known, **metadata})


def documents(step, before):
    """The documents of a step by name; functions of one step are short lists of what tells them from the usual."""
    def age(workflow):
        return Age(before, workflow)

    def usual(workflow, *kinds):
        made = age(workflow)
        return made.document(*[made.step(kind) for kind in kinds])

    def samples_of(workflow, kind, **options):
        made = age(workflow)
        return made.document(made.step(kind), samples=made.samples(**options))

    def special(workflow, kind, **options):
        made = age(workflow)
        metadata = options.pop("metadata", {})
        return made.document(made.step(kind, **options), **metadata)

    def blocks(workflow):
        made = age(workflow)
        table = rows(["Symbol", "Name", "Type", "Formula"], ["Xb", "Test base", "Base", "C5H5N5"],
                     ["Xs", "Test sugar", "Sugar", "C5H10O5"])
        tree = examples.molecules([("A", "ASO", "GCATTGG")], [["ASO", [1], 0, []]])
        tree["children"][0] = rows(["Number", "ChainId", "Name", "Sequence", "Type", "isCustom"], [1, "A", "ASO", "GCATTGG", "DNA", 1])
        tree["children"][2] = table
        return made.document(made.writer.table("OligoMolecules", "Molecules", 226, tree), made.step("Oligo"))

    old_oligo = ("[Intact]\nAdvancedMonoCalculation=true\nMaxMonoisotope=35000\nShowObservedMono=true\n"
                 "IsotopeEnvelopeFilter=true\nSteppingMethod=Linear\nMZResolution=35000\nIsotopeSpacing=10\n"
                 "ComputeChargeNew=true\nRemoveChargeOne=0.1\nChargeEnvelopeFilterPower2=true\n"
                 "ChargeEnvelopeWeights=0.05,0.9,0.05")
    xic = "; kept\n[XIC]\nMode=Standard\nBlockScans=64\n[Other]\nKey=1\n"
    align = "[InSilicoAlign]\nEnabled=false\nTolerance=0.5\n[Other]\nKey=1\n"
    later_file = {"In-silico options (file import)": CSV}
    former_file = {CSV: "In-silico options (file import)"}

    def old_samples():
        made = age(5)
        return made.document(made.step("Senthia"), samples=made.old_samples())

    table = {
        "5.6.0": lambda: {"applies": old_samples()},
        "5.9.0": lambda: {"applies": special(1, "Intact", p4=1), "passes": special(1, "Intact", p4=3)},
        "5.10.1": lambda: {"passes": usual(5, "Senthia")},
        "5.12.0": lambda: {"applies": usual(5, "Senthia")},
        "5.12.2": lambda: {"applies": special(5, "Senthia", p0=xic), "passes": usual(5, "Senthia")},
        "5.13.0": lambda: {"applies": special(20, "Dravik", move=later_file), "passes": special(20, "Dravik", without=[169])},
        "5.15.0": lambda: {"applies": usual(5, "Karvon", "Senthia"), "passes": usual(5, "Senthia")},
        "5.16.1": lambda: {"applies": usual(5, "Senthia")},
        "5.17.0": lambda: {"applies": usual(5, "Senthia")},
        "5.18.0": lambda: {"passes": usual(5, "Senthia")},
        "5.19.0": lambda: {
            "applies": special(11, "Intact", p264="../../Intact/report_config/Intact_IntaBioReport.rptc",
                               metadata={"name": "IntaBio icIEF-MS"}),
            "passes": special(1, "Intact", metadata={"name": "IntaBio icIEF-MS"})},
        "5.20.0": lambda: {"applies": usual(5, "Senthia"), "passes": usual(1, "Intact")},
        "5.21.0": lambda: {"applies": usual(2, "Karvon"), "passes": usual(5, "Karvon")},
        "5.22.0": lambda: {"applies": usual(28, "Karvon", "Senthia"), "passes": usual(2, "Karvon")},
        "5.23.0": lambda: {
            "applies": special(28, "Karvon", p67={"modifications": "Methyl / +14.015650 @ A | common1\nenable_rps=1\n"
                                                                   "cleavage_flags=3\noligo_search=1\n"}),
            "passes": usual(2, "Karvon")},
        "5.24.0": lambda: {"applies": usual(28, "Senthia"), "passes": special(28, "Senthia", p291="my.ini")},
        "5.25.0": lambda: {"passes": usual(5, "Senthia")},
        "5.26.0": lambda: {"applies": usual(18, "Senthia"), "passes": usual(18, "Senthia", "Karvon")},
        "5.27.0": lambda: {"applies": usual(1, "Intact"), "passes": samples_of(2, "Karvon", presets=4)},
        "5.28.0": lambda: {"applies": special(6, "Senthia", without=[169]), "passes": usual(5, "Senthia")},
        "5.29.0": lambda: {"passes": usual(5, "Senthia")},
        "5.30.0": lambda: {"applies": usual(28, "Senthia"), "passes": usual(5, "Senthia")},
        "5.31.0": lambda: {"applies": blocks(27), "passes": usual(27, "Oligo")},
        "5.32.0": lambda: {"passes": usual(5, "Senthia")},
        "5.33.0": lambda: {"applies": special(12, "Intact"), "applies_oligo": special(27, "Oligo", p0=old_oligo),
                           "passes": special(12, "Intact", p0="[Intact]\nMode=Native")},
        "5.34.0": lambda: {"applies": usual(29, "Trenq"), "passes": usual(25, "Trenq")},
        "5.35.0": lambda: {"applies": special(5, "Senthia", p306="Standard"), "passes": special(5, "Senthia", p306="Fast")},
        "5.36.0": lambda: {"applies": usual(29, "Trenq"), "passes": special(25, "Trenq")},
        "5.37.0": lambda: {"applies": usual(29, "Trenq"), "passes": usual(25, "Trenq")},
        "5.38.0": lambda: {"applies": usual(29, "Trenq"), "passes": usual(1, "Intact")},
        "5.39.0": lambda: {"passes": usual(5, "Senthia")},
        "5.40.0": lambda: {"applies": usual(32, "Karvon"), "passes": usual(2, "Karvon")},
        "5.41.0": lambda: {"applies": usual(2, "Karvon"), "passes": usual(28, "Karvon")},
        "5.42.0": lambda: {"applies": usual(5, "Senthia"), "passes": special(5, "Senthia", without=[109])},
        "5.43.0": lambda: {"applies": special(3, "Senthia", p0=align, move=former_file, p169="peptides.csv"),
                           "applies_default": special(29, "Trenq", without=[0]), "passes": usual(25, "Trenq")},
        "5.44.0": lambda: {"applies": usual(30, "CaldrinDIA"), "passes": usual(2, "Karvon")},
        "5.45.0": lambda: {"applies": usual(30, "CaldrinDIA"), "passes": usual(2, "Karvon")},
        "5.46.0": lambda: {"applies": special(5, "Senthia", p134="true"), "passes": special(5, "Senthia", without=[134])},
        "5.47.0": lambda: {"applies": usual(30, "CaldrinDIA"),
                           "passes": special(30, "CaldrinDIA", extra=("Glycans", [58]))},
    }
    return table[step]() if step in table else {}


def main(arguments):
    check = "--check" in arguments
    stale = []
    for before, step in zip(STEPS, STEPS[1:]):
        for name, document in documents(step, before).items():
            path = FOLDER / f"{step}_{name}.wflw"
            text = json.dumps(document, indent=1, sort_keys=True, ensure_ascii=False) + "\n"
            if not check:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, "utf-8")
            elif not path.exists() or path.read_text("utf-8") != text:
                stale.append(path)
    for path in stale:
        print(f"{path.relative_to(examples.ROOT)}: differs from what tools/make_upgrade_fixtures.py writes", file=sys.stderr)
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
