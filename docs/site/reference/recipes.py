"""The cookbook's recipes: the programs that a paragraph names, and what they print."""
import re

PARAGRAPH = re.compile(r"^\[[^\n]*(?:\n[^\n]+)*", re.M)
LINKS = re.compile(r"\[[^\]]+\]\(([^)]+\.(?:cpp|c|py))\)")
RECIPE = re.compile(r"(" + PARAGRAPH.pattern + r")\n\n```\n(.*?)^```$", re.M | re.S)


def programs_of(paragraph):
    """The programs of a paragraph that has links to them and says that they print; otherwise none."""
    found = LINKS.findall(paragraph)
    return found if found and re.fullmatch(r"(?:\[[^\]]+\]\([^)]+\)|[\s,]|and|prints?)+", paragraph) else []


def recipes(text):
    """[(names of programs, what each prints)]"""
    return [(programs_of(match.group(1)), match.group(2)) for match in RECIPE.finditer(text) if programs_of(match.group(1))]
