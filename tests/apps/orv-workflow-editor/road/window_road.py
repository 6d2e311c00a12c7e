"""The picture at the top of README.md: a peptide map with the search of its settings."""
from steps import Step

FILES = ["Documents/workflows/antibody_peptide_map.wflw"]


def search(road, person):
    person.clicks("page tab", "Peptide map")
    person.presses("ctrl+f")
    person.sees_focus("text", "Find settings")
    person.types("tolerance")
    person.sees("tree item", "Precursor mass tolerance", within=("tree", "Settings that were found"))


STEPS = [Step("window", "the settings of a peptide map are searched", search)]
