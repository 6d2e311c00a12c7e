#!/usr/bin/env python3
"""Writes the example workflows and the fixtures of old format versions.

usage: tools/make_examples.py [--check]

Names, types and lists of settings come from the catalogue in propertyeditor/resources, so the documents follow it
when it changes: run this again and read the difference. --check writes nothing and fails when a file would change.
"""
import json
import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import catalogue_files

ROOT = Path(__file__).resolve().parent.parent
EXAMPLES = ROOT / "examples" / "workflows"
VERSIONS = ROOT / "tests" / "data" / "versions"

DATA = EXAMPLES / "data"
FORMAT = ROOT / "propertyeditor/src/document/include/orv/propertyeditor/workflow/WflwMetaData.h"


def current_version():
    """As the program has it, which is the one place that says so."""
    text = FORMAT.read_text("utf-8")
    return ".".join(re.search(rf"WORKFLOW_JSON_VERSION_{part} = (\d+);", text)[1] for part in ("MAJOR", "MINOR", "PATCH"))


CURRENT = current_version()


def read_fasta(name):
    """Entries as (name, description, sequence)."""
    entries = []
    for block in (DATA / name).read_text("utf-8").split(">")[1:]:
        head, *lines = block.splitlines()
        accession, _, description = head.partition(" ")
        entries.append((accession, description, "".join(lines)))
    return entries


# Which settings a property cell shows, in order, under the caption of their group.
SEARCH = [("Instrument Parameters", [55, 56, 80, 27, 28, 29]), ("Digestion", [43, 44, 62]),
          ("modifications", [67]), ("protein database options", [112, 111]), ("glycans", [58, 70]),
          ("peptide output options", [83, 33, 36]), ("protein output options", [84, 85]),
          ("Report", [136, 264]), ("Advanced", [0, 25, 26, 49, 266])]
# Without peptides, digestion of proteins and glycans; with the kind of molecule.
OLIGO_SEARCH = [("Instrument Parameters", SEARCH[0][1] + [68]), SEARCH[2]] + SEARCH[5:7] + SEARCH[-1:]
GLYCO_SEARCH = SEARCH[:-1] + [("Inclusion", [59]), SEARCH[-1]]
PEPTIDE_MAP = [("Digestion", [130, 132]), ("modifications", [219]), ("Feature Finder", [142, 145, 152, 153, 201]),
               ("XIC", [306, 137, 138, 139]), ("In-silico options (Theoretical Digest)", [167, 271]),
               ("In-silico options (CSV import)", [169, 1, 285, 2]), ("Report", [264, 227, 289, 119, 290, 291]),
               ("Advanced", [220, 266, 0])]
LABEL_FREE = [("Digestion", [130, 132]), ("modifications", [219]), ("Feature Finder", [142, 145, 152, 153]),
              ("Match between runs", [209, 261]), ("Reported peptide filtering", [238, 258, 257, 254, 255]),
              ("In-silico options (CSV import)", [169, 1, 285, 2]), ("Report", [264, 227]), ("Advanced", [3, 220, 0])]
RELEASED_GLYCANS = [("Trace peaks", list(range(272, 285))), ("Feature Finder", [142, 145, 152, 153, 201]),
                    ("In-silico options (file import)", [169, 168]), ("Report", [264]), ("Advanced", [220, 0])]
INTACT = [("Deconvolution", [5, 106, 107, 108, 205, 206, 208, 212, 213, 214, 216, 217]),
          ("Masses", [4, 204, 228, 229]), ("Trace peaks", list(range(6, 19))), ("Report", [264, 289, 119]),
          ("Advanced", [220, 0])]
OLIGO = [("Deconvolution", [5, 106, 107, 108, 205, 206, 208, 212, 213, 214]), ("Masses", [4, 204]),
         ("Report", [264, 290]), ("Advanced", [220, 0])]
DE_NOVO = [("Digestion", [43, 44]), ("Instrument Parameters", [55, 80]), ("Assembly", [121, 122, 123, 124, 125, 126, 127]),
           ("Advanced", [220, 0])]
DIA = [("Instrument Parameters", [182, 180, 183]), ("Digestion", [181]), ("Glycans", [58]), ("modifications", [67]),
       ("Search", [185, 186, 187, 188, 189]), ("Output Options", [196]), ("Advanced", [220, 0])]
PREVIEW = [("Search", [241, 242, 243, 244, 245]), ("Output", [246, 247, 248, 251, 252]), ("Advanced", [220, 0])]
REPORT = [("Report", [264])]

OBJECTS = {
    55: {"unit": "ppm", "value": 10.0}, 56: {"unit": "ppm", "value": 20.0}, 80: {"unit": "ppm", "value": 10.0},
    228: {"unit": "ppm", "value": 9000}, 229: {"unit": "ppm", "value": 300},
    58: {"glycans": "% Custom glycan text below\nHexNAc(2)Hex(5) @ NGlycan | rare1\n"},
    59: {"inclusion": ""},
    67: {"modifications": "Carbamidomethyl / +57.021464 @ C | fixed\nOxidation / +15.994915 @ M | common1\n"
                          "% Custom modification text below\n"},
    219: {"modifications": "Carbamidomethyl / +57.021464 @ C | fixed\nDeamidated / +0.984016 @ N | common1\n"},
    271: {}, 289: {"tracePlot": ""}, 119: {"dmsPlot": ""}, 204: {"data": [], "children": []},
}


def catalogue():
    return dict(enumerate(catalogue_files.read_properties()))


def lists():
    table = {}
    for entry in json.loads((catalogue_files.RESOURCES / "lists.json").read_text("utf-8"))["lists"]:
        for number in entry["ids"]:
            table[number] = entry
    return table


# The format version that brought a setting to a kind of cell: documents from before it don't have it.
SINCE = {("Karvon", 136): (5, 15, 0), ("Karvon", 264): (5, 21, 0), ("Karvon", 59): (5, 40, 0), ("Karvon", 70): (5, 41, 0),
         ("Senthia", 201): (5, 20, 0), ("Dravik", 201): (5, 20, 0), ("Dravik", 168): (5, 13, 0),
         ("Senthia", 227): (5, 38, 0), ("Trenq", 227): (5, 38, 0), ("Trenq", 209): (5, 34, 0), ("Trenq", 261): (5, 36, 0),
         ("Trenq", 258): (5, 37, 0), ("Senthia", 167): (5, 46, 0), ("Senthia", 271): (5, 46, 0)}
SINCE.update({(kind, number): (5, 43, 0) for kind in ("Senthia", "Trenq") for number in (1, 2, 285)})
SINCE.update({("Senthia", number): (5, 12, 2) for number in (137, 138, 139, 306)})


class Writer:
    """Builds cells as the application writes them, for one stamp."""

    def __init__(self, version, user="maria.keller", created="2023-05-04T09:12:44"):
        self.stamp = {"user": user, "created": created, "version": version}
        self.rows = catalogue()
        self.lists = lists()
        self.defaults = catalogue_files.read_defaults(list(self.rows.values()))
        self.from_code = catalogue_files.answered_defaults()

    def name(self, number):
        return self.rows[number]["internalNameV2"]

    def list_text(self, number, default):
        entry = self.lists[number]
        if isinstance(default, str):
            return default
        for index, item in enumerate(entry["entries"]):
            if item.get("value", index) == default:
                return default if not entry["stringSerialized"] else item["text"]
        return default

    def value(self, number):
        row = self.defaults[number]
        reader = row.reader
        default = self.from_code[row.name] if row.is_from_code() else row.value()
        if reader == "O":
            return OBJECTS.get(number, {})
        if reader == "R":
            return ""
        if reader == "B":
            return "true" if default else "false"
        if reader in "DP":
            factor = 100.0 if reader == "P" else 1.0
            return f"{float(default) * factor:g}"
        if reader == "Q":
            return round(float(default) * 100)
        if reader in "IN":
            return int(float(default))
        if reader in "LT":
            return self.list_text(number, default)
        return default

    def cell(self, kind, name, properties):
        return {"type": kind, "name": name, "title": name, "metadata": json.dumps(self.stamp, separators=(",", ":"), sort_keys=True),
                "properties": properties}

    def step(self, kind, name, groups, **changes):
        changed = {int(key[1:]): value for key, value in changes.items()}
        entries = []
        age = tuple(int(part) for part in self.stamp["version"].split("."))
        for group, numbers in groups:
            known = [number for number in numbers if SINCE.get((kind, number), (0,)) <= age]
            for position, number in enumerate(known):
                value = changed.get(number, self.value(number))
                entries.append({"name": self.name(number), "value": value, "priority": 1 if position < 3 else 2,
                                "group": group})
        return self.cell(kind, name, entries)

    def table(self, kind, name, number, value):
        return self.cell(kind, name, [{"name": self.name(number), "value": value}])

    def samples(self, entries, columns=(), traces=()):
        options = {"TracesImportList": list(traces)} if traces else {}
        value = {"Samples": entries, "TraceImportAndProcessingOptions": options}
        if columns:
            value["CustomColumns"] = [{"name": name, "type": kind} for name, kind in columns]
        return self.table("Samples", "Sample Input", 265, value)

    def document(self, tabs, **metadata):
        stamp = dict(self.stamp)
        stamp.update(metadata)
        return {"tabs": tabs, "metadata": json.dumps(stamp, separators=(",", ":"), sort_keys=True, ensure_ascii=False),
                "extendedMetadata": {"metadataCache": [], "metadataMappingConnections": []}}


def rows(columns, *lines):
    return {"data": list(columns), "children": [{"data": list(line), "children": []} for line in lines]}


def tab(name, *cells):
    return {"name": name, "columns": [cell["name"] for cell in cells], "cells": list(cells)}


def sample(number, name, path, **more):
    entry = {"SamplesId": number, "SampleName": name, "SamplePath": path, "Reference": number == 1}
    entry.update(more)
    return entry


TIC = {"type": 1, "channelName": "TIC", "channelId": "TIC", "imported": True}


def proteins(writer, name, *lines):
    value = rows(["ProteinAccessionName", "ProteinAliasName", "ProteinSequence"], *lines)
    value["proteinAnnotations"] = []
    return writer.table("Proteins", name, 253, value)


def antibody(writer):
    return proteins(writer, "Protein Input", *[list(entry) for entry in read_fasta("antibody.fasta")])


def molecules(chains, complexes):
    """Chains as (id, name, sequence), whose masses the software fills in, and what is built of them."""
    numbered = [[number, *chain, None, None, 1] for number, chain in enumerate(chains, 1)]
    tables = [rows(["Number", "ChainId", "Name", "Sequence", "MonoisotopicMass", "AverageMass", "isCustom"], *numbered),
              rows(["Name", "ChainNumbers", "Disulfides", "SamplesIds"], *complexes),
              rows(["Symbol", "Name", "Type", "Formula"])]
    return {"data": ["Chains", "Proteins", "BuildingBlocks"], "children": tables}


def masses(*lines):
    return rows(["Name", "Mass", "Protein", "SamplesIds"], *[[name, mass, "", []] for name, mass in lines])


def deconvolution(*line):
    return rows(["Name", "MinimumMz", "MaximumMz", "MinimumMass", "MaximumMass", "MinimumCharge", "MaximumCharge",
                 "Adduct"], list(line))


def database(writer, *paths):
    entries = [{"id": number, "fasta": path, "species": ""} for number, path in enumerate(paths, 1)]
    return writer.table("Database", "Databases", 268, {"sequences": entries})


def antibody_peptide_map():
    w = Writer(CURRENT)
    samples = [sample(1, "mAb reference", "data/mab_reference.mzML", Traces=["data/uv_214nm.csv"], Weeks=0,
                      Operator="M. Keller"),
               sample(2, "mAb 4 weeks 40 °C", "data/mab_stressed.mzML", Weeks=4, Operator="J. Okafor")]
    glycans = {"glycans": "% Glycan databases\n[data/n_glycans.txt]\n% Custom glycan text below\n"}
    labels = rows(["Name", "Element", "MassNumber", "Enrichment"], ["Heavy lysine", "C", 13, 99.0],
                  ["Heavy lysine", "N", 15, 99.0])
    return w.document([tab("Samples", w.samples(samples, columns=[("Weeks", "number"), ("Operator", "text")])),
                       tab("Sequences", antibody(w), w.table("Isotope", "Isotope labels", 202, labels)),
                       tab("Peptide map", w.step("Karvon", "MS/MS search", SEARCH, p58=glycans),
                           w.step("Senthia", "Peptide map", PEPTIDE_MAP, p169="data/expected_peptides.csv",
                                  p264="data/report_configuration.json"))],
                      name="Antibody peptide map", workflowType="PeptideMap", icon="peptide-map", contentMode=0,
                      description="Tryptic map of a monoclonal antibody: identity, modifications and their "
                                  "relative amounts, stressed against reference.")


def intact_mass_check():
    w = Writer(CURRENT, user="j.okafor", created="2024-01-17T15:02:31")
    heavy, light = (sequence for _, _, sequence in read_fasta("antibody.fasta"))
    chains = molecules([("HC", "Heavy chain", heavy), ("LC", "Light chain", light)], [["mAb", [1, 1, 2, 2], 16, []]])
    glycoforms = masses(("G0F/G0F", 148055.9), ("G0F/G1F", 148218.1), ("G1F/G1F", 148380.2))
    masses_cell = w.cell("Masses", "Delta masses", [
        {"name": w.name(207), "value": glycoforms},
        {"name": w.name(210), "value": rows(["Value", "Unit"], [30.0, "ppm"])}])
    return w.document([tab("Samples", w.samples([sample(1, "Lot 0423", "data/mab_reference.mzML", Traces=["data/uv_214nm.csv"])],
                                                traces=[TIC])),
                       tab("Proteins", w.table("IntactProteins", "Intact proteins", 171, chains), masses_cell),
                       tab("Intact mass", w.step("Intact", "Intact mass", INTACT),
                           w.table("IntactOptions", "Options", 170, deconvolution("Denatured", 600, 5000, 20000, 200000, 10, 100, "H")))],
                      name="Intact mass check", workflowType="DenaturedIntactMass", icon="denatured-intact-mass",
                      contentMode=0, description="Release check: intact mass of one lot against the expected glycoforms.")


def oligonucleotide_map():
    w = Writer(CURRENT)
    return w.document([tab("Samples", w.samples([sample(1, "sgRNA RNase T1", "data/oligo_negative.mzML"),
                                                 sample(2, "sgRNA cusativin", "data/oligo_negative.mzML")])),
                       tab("Sequences", proteins(w, "Oligonucleotides (drag and drop FASTA files)",
                                                 ["sgRNA", "Guide RNA", "GGAAUCUGACUUCAGGCAUU"])),
                       tab("Oligonucleotide map", w.step("Karvon", "Oligo search", OLIGO_SEARCH, p83=2,
                                  p67={"modifications": "Methyl / +14.015650 @ A | common1\n"}),
                           w.step("Senthia", "Oligo map", PEPTIDE_MAP[2:4] + PEPTIDE_MAP[6:],
                                  p291="data/viewer_layout.ini"))],
                      name="Guide RNA map", workflowType="DigestedOligo", icon="digested-oligo", contentMode=0,
                      description="Two RNases, one map: sequence coverage of a guide RNA.")


def intact_oligonucleotide():
    w = Writer("5.46.0")
    return w.document([tab("Samples", w.samples([sample(1, "ASO lot A", "data/oligo_negative.mzML")])),
                       tab("Molecules", w.table("OligoMolecules", "Molecules", 226, molecules([("A", "ASO", "GCATTGGTATTC")], [["ASO", [1], 0, []]])),
                           w.cell("OligoMasses", "Impurities", [
                               {"name": w.name(207), "value": masses(("PO for PS", -15.977))},
                               {"name": w.name(210), "value": rows(["Value", "Unit"], [20.0, "ppm"])},
                               {"name": w.name(286), "value": {"fullLengthProduct": {"unit": "ppm", "value": 10},
                                                               "impurities": {"unit": "ppm", "value": 20}}},
                               {"name": w.name(224), "value": {"additions": 1, "baseLosses": 1, "sulfurLoss": True,
                                                               "fivePrimeTruncations": 3, "threePrimeTruncations": 3}}])),
                       tab("Intact oligo", w.step("Oligo", "Deconvolution", OLIGO),
                           w.table("OligoOptions", "Options", 225, deconvolution("Isotopically resolved", 400, 3000, 1000, 35000, 2, 20, "H")))],
                      name="Antisense oligonucleotide impurities", workflowType="IntactOligo", icon="intact-oligo",
                      contentMode=0, description="")


def glycoproteomics_search():
    w = Writer("5.44.0", user="s.lindqvist", created="2022-11-08T11:45:00")
    samples = [sample(i, f"plasma {i:02d}", f"\\\\store\\glyco\\plasma_{i:02d}.raw") for i in range(1, 13)]
    return w.document([tab("Samples", w.samples(samples), database(w, "data/contaminants.fasta", "data/serum_albumin.fasta")),
                       tab("Search", w.step("Karvon", "N-glycans", GLYCO_SEARCH, p264=""),
                           w.step("Karvon", "O-glycans", GLYCO_SEARCH))],
                      name="Plasma glycoproteomics", workflowType="GlycoproteinSearch", icon="glycoprotein-search",
                      contentMode=0, description="N- and O-glycopeptides of twelve plasma samples, searched separately.")


def released_glycans():
    w = Writer("5.12.0", created="2021-03-30T16:20:10")
    glycans = rows(["Name", "Composition", "Mass", "Label", "RetentionTime"],
                   ["G0F", "HexNAc(4)Hex(3)Fuc(1)", 1462.544, "2-AB", None],
                   ["G1F", "HexNAc(4)Hex(4)Fuc(1)", 1624.597, "2-AB", None],
                   ["Man5", "HexNAc(2)Hex(5)", 1234.433, "2-AB", None])
    options = rows(["Kind", "Name", "Formula", "Complete"], ["Moiety", "Hex", "C6H10O5", True],
                   ["Moiety", "HexNAc", "C8H13NO5", True], ["Moiety", "Fuc", "C6H10O4", True],
                   ["Label", "2-AB", "C7H8N2", True], ["Adduct", "H", "H", True])
    return w.document([tab("Samples", w.samples([sample(1, "released, 2-AB", "data/mab_stressed.mzML")], traces=[TIC])),
                       tab("Glycans", w.table("DetachedGlycans", "Glycans", 129, glycans),
                           w.table("GlycanOptions", "Options", 164, options),
                           w.table("Isotope", "Isotopes", 202, rows(["Name", "Element", "MassNumber", "Enrichment"], ["Natural abundance", "C", 13, None]))),
                       tab("Profile", w.step("Dravik", "Glycan profile", RELEASED_GLYCANS))],
                      name="Released N-glycans, 2-AB", workflowType="ReleasedGlycans", icon="released-glycans",
                      contentMode=0, description="Fluorescence-labelled N-glycans.")


def label_free_study():
    w = Writer("5.33.0", user="proteomics-core", created="2022-06-14T08:30:00")
    samples = []
    for number in range(1, 97):
        group = "treated" if number % 2 else "control"
        plate = f"{'ABCDEFGH'[(number - 1) // 12]}{(number - 1) % 12 + 1:02d}"
        samples.append(sample(number, f"{group}_{plate}", f"/mnt/runs/2022-06/{plate}.d", Condition=group, Plate=plate))
    return w.document([tab("Samples", w.samples(samples), database(w, "/mnt/databases/human_reviewed.fasta")),
                       tab("Quantification", w.step("Karvon", "Search", SEARCH), w.step("Trenq", "Label-free", LABEL_FREE, p238=24))],
                      name="Label-free study, 96 samples", workflowType="LabelFreeQuantification",
                      icon="label-free-quantification", contentMode=0,
                      description="One plate, treated against control.")


def stability_report():
    w = Writer("5.38.0", created="2023-01-20T12:00:00")
    documents = [sample(i, f"{month} months", f"/mnt/projects/stability/{month:02d}m.senthia") for i, month in enumerate((0, 3, 6, 12), 1)]
    return w.document([tab("Samples", w.samples(documents)),
                       tab("Reports", w.step("MultiDocReport", "Stability report", REPORT))],
                      name="Stability over one year", workflowType="MultiDocumentReport", icon="multi-document-report",
                      contentMode=0, description="One report over the peptide maps of four points in time.")


def de_novo_antibody():
    w = Writer(CURRENT)
    return w.document([tab("Samples", w.samples([sample(1, "trypsin", "data/trypsin.mgf"), sample(2, "pepsin", "data/pepsin.mgf")])),
                       tab("De novo", w.step("Ostrale", "Sequencing", DE_NOVO))],
                      name="Antibody de novo", workflowType="DeNovoSequencing", icon="de-novo-sequencing", contentMode=0,
                      description="Sequence of an unknown antibody from two digests.")


def dia_glycopeptides():
    w = Writer("5.43.0", created="2022-10-02T13:37:00")
    return w.document([tab("Samples", w.samples([sample(i, f"run {i}", f"dia_{i}.mzML") for i in range(1, 7)]),
                           database(w, "data/contaminants.fasta")),
                       tab("DIA", w.step("CaldrinDIA", "DIA search", DIA))],
                      name="DIA glycopeptides", workflowType="DataIndependentAcquisition",
                      icon="data-independent-acquisition", contentMode=0, description="")


def server_preview():
    w = Writer("5.30.0", user="svc-talvane", created="2022-04-01T00:00:00")
    return w.document([tab("Samples", w.samples([sample(1, "QC injection", "talvane:/projects/17/qc.tolq")]), database(w, "")),
                       tab("Preview", w.step("Preview", "Preview", PREVIEW), w.step("TrenqPreview", "Preview, label-free", PREVIEW))],
                      name="Preview on the server", workflowType="ProteinSearch", icon="protein-search", contentMode=1,
                      description="A quick look at mass errors and modifications before the search.")


def first_generation():
    """As the first versions wrote it: former names of settings, samples as a tree of rows, and cells that have been retired since."""
    w = Writer("5.5.0", user="old.hand", created="2018-10-09T17:45:00")
    tree = rows(["SampleName", "SamplePath", "Metadata", "Condition"], ["digest A", "../data/mab_reference.mzML", "", "control"],
                ["digest B", "../data/mab_stressed.mzML", "", "stressed"])
    samples = w.cell("Samples", "Sample Input", [{"name": "Samples", "value": tree}])
    sequences = [w.cell("Proteins", "Protein Input", antibody(w)["properties"]),
                 w.table("Disulfide", "Disulfides", 131, rows(["FirstChain", "FirstPosition", "SecondChain", "SecondPosition"],
                                                              ["trastuzumab_HC", 22, "trastuzumab_HC", 96])),
                 w.table("SamplesProteins", "Proteins in samples", 267, rows(["Sample", "Protein"], ["digest A", "trastuzumab_HC"]))]
    search = w.step("Karvon", "MS/MS search", SEARCH)
    for entry in search["properties"]:
        number = next(n for n, row in w.rows.items() if row["internalNameV2"] == entry["name"])
        entry["name"] = w.rows[number]["internalNameV1"] or entry["name"]
    return w.document([tab("Samples", samples), tab("Sequences", *sequences), tab("Search", search)],
                      name="Antibody search of 2018", icon="protein-search",
                      description="A validated search in the form of its age.")


def intact_mass_2022():
    """For those who learn the application: it is upgraded, and has a value that the rules didn't refuse in its day."""
    w = Writer("5.30.0", user="j.okafor", created="2022-05-12T10:24:00")
    heavy, light = (sequence for _, _, sequence in read_fasta("antibody.fasta"))
    chains = molecules([("HC", "Heavy chain", heavy), ("LC", "Light chain", light)], [["mAb", [1, 1, 2, 2], 16, []]])
    masses_cell = w.cell("Masses", "Delta masses", [
        {"name": w.name(207), "value": masses(("G0F/G0F", 148055.9), ("G0F/G1F", 148218.1))},
        {"name": w.name(210), "value": rows(["Value", "Unit"], [30.0, "ppm"])}])
    return w.document([tab("Samples", w.samples([sample(1, "Lot 0423", "../data/mab_reference.mzML")], traces=[TIC])),
                       tab("Proteins", w.table("IntactProteins", "Intact proteins", 171, chains), masses_cell),
                       tab("Intact mass", w.step("Intact", "Intact mass", INTACT, p213="0"),
                           w.table("IntactOptions", "Options", 170, deconvolution("Denatured", 600, 5000, 20000, 200000, 10, 100, "H")))],
                      name="Intact mass of 2022", workflowType="DenaturedIntactMass", icon="denatured-intact-mass",
                      contentMode=0, description="Release check of an antibody, as it was run in 2022.")


EXAMPLE_FILES = {
    "outdated/antibody_search_2018": first_generation, "outdated/intact_mass_2022": intact_mass_2022,
    "antibody_peptide_map": antibody_peptide_map, "intact_mass_check": intact_mass_check,
    "oligonucleotide_map": oligonucleotide_map, "intact_oligonucleotide": intact_oligonucleotide,
    "glycoproteomics_search": glycoproteomics_search, "released_glycans": released_glycans,
    "label_free_study": label_free_study, "stability_report": stability_report, "de_novo_antibody": de_novo_antibody,
    "dia_glycopeptides": dia_glycopeptides, "server_preview": server_preview,
}

OLD_SAMPLES = rows(["SampleName", "SamplePath", "Metadata"], ["digest A", "a.raw", ""], ["digest B", "b.raw", ""])


def old_document(version, mode=None):
    """The smallest document that looks like its age: samples as a tree of rows, and a retired cell."""
    w = Writer(version if version is not None else "0", user="old.hand", created="2019-02-11T10:00:00")
    samples = w.cell("Samples", "Sample Input", [{"name": "Samples", "value": OLD_SAMPLES}])
    disulfide = w.cell("Disulfide", "Disulfides", [{"name": "Disulfide", "value": rows(["From", "To"], ["C22", "C96"])}])
    step = w.cell("Senthia", "Peptide map", [{"name": w.name(0), "value": "", "group": "Advanced"},
                                           {"name": w.name(130), "value": "Trypsin @ R,K | C-term"}])
    document = w.document([tab("Samples", samples), tab("Sequences", disulfide), tab("Peptide map", step)],
                          name="Old peptide map", icon="peptide-map")
    metadata = json.loads(document["metadata"])
    if version is None:
        del metadata["version"]
    if mode == "legacy":
        document["projectCreationMode"] = 1
        del document["extendedMetadata"]
    elif mode is not None:
        metadata["contentMode"] = mode
    document["metadata"] = json.dumps(metadata, separators=(",", ":"), sort_keys=True)
    return document


VERSION_FILES = {
    "v3": ("3",), "v3.0": ("3.0",), "v5.5.0": ("5.5.0",), "v5.9.0": ("5.9.0",), "v5.9.1_server": ("5.9.1", 1),
    "v5.9.0_server": ("5.9.0", 1), "v5.20.0": ("5.20.0",), "v5.46.0": ("5.46.0",), "v5.47": ("5.47",),
    "v5.47.0": ("5.47.0",), "v5.47.0_server": ("5.47.0", 1), "v5.47.1": ("5.47.1",), "v5.99.0": ("5.99.0",),
    "v6.0.0": ("6.0.0",), "no_version": (None,), "v5.5.0_legacy_server": ("5.5.0", "legacy"),
}


def main(arguments):
    check = "--check" in arguments
    files = {EXAMPLES / f"{name}.wflw": make() for name, make in EXAMPLE_FILES.items()}
    files.update({VERSIONS / f"{name}.wflw": old_document(*args) for name, args in VERSION_FILES.items()})
    stale = []
    for path, document in files.items():
        text = json.dumps(document, indent=4, sort_keys=True, ensure_ascii=False) + "\n"
        if check:
            if not path.exists() or path.read_text("utf-8") != text:
                stale.append(path)
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, "utf-8")
    for path in stale:
        print(f"{path.relative_to(ROOT)}: differs from what tools/make_examples.py writes", file=sys.stderr)
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
