"""What each folder may include, so that the arrows between folders keep pointing one way."""

import re

from tree import Finding

LIBRARY_PROPER = {"host", "framework", "accounts", "reports", "engine"}
VENDOR_FOLDERS = {"render", "drivers", "company", "cli"}

# A folder may include itself and these: a folder, or one header.
MAY_INCLUDE = {
    "host": [],
    "framework": ["host"],
    "accounts": ["host", "framework"],
    "reports": ["host", "framework", "accounts"],
    "engine": ["host"],
    "render": ["engine/document.h"],
    "drivers": ["host"],
    "company": ["host", "drivers"],
    "cli": ["host", "framework", "accounts", "reports", "engine", "render", "drivers", "company"],
}

# The one file that knows every report.
CATALOGUE = "reports/catalogue.cpp"

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
STANDARD_HEADER = re.compile(r"[a-z_0-9]+")
VENDOR_HEADER = re.compile(
    r"sqlite3\.h|sql(ext|types|ucode)?\.h|(harfbuzz/)?hb(-[\w-]+)?\.h|unicode/.*|libdeflate\.h"
    r"|CLI/.*|(n?curses|term)\.h")


def home_of(path):
    """The unit that may include itself: a folder, or a report family below reports/."""
    parts = path.split("/")
    family = parts[0] == "reports" and len(parts) > 2 and path != CATALOGUE
    return "/".join(parts[:2]) if family else parts[0]


def lies_in(target, place):
    return target == place or target.startswith(place + "/")


def fault_of_own_include(path, target):
    folder = path.split("/")[0]
    if target.split("/")[0] not in {*MAY_INCLUDE, "tests", "bench", "examples"}:
        return f'write the path of "{target}" from the repository root'
    if folder not in MAY_INCLUDE:
        return None
    allowed = [home_of(path), *MAY_INCLUDE[folder]]
    if folder == "reports" and path != CATALOGUE and home_of(path) == "reports":
        inside = lies_in(target, "reports") and target.count("/") == 1
        allowed = [*MAY_INCLUDE[folder], *([target] if inside else [])]
    if any(lies_in(target, place) for place in allowed):
        return None
    return (f'{home_of(path)}/ may not include "{target}" (only {", ".join(allowed)}); '
            "move what is needed down or take it through an interface of host/")


def fault_of_foreign_include(path, target):
    folder = path.split("/")[0]
    if folder in LIBRARY_PROPER and not STANDARD_HEADER.fullmatch(target):
        return f"{folder}/ uses the standard library alone; move the use of <{target}> out of it"
    if folder not in VENDOR_FOLDERS and path.endswith(".h") and VENDOR_HEADER.fullmatch(target):
        return f"a header here may not include <{target}>; hide it in a .cpp file"
    return None


def check(tree):
    for path, text in tree.sources():
        for number, line in enumerate(text.splitlines(), 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            own = found[1] == '"'
            fault = (fault_of_own_include if own else fault_of_foreign_include)(path, found[2])
            if fault:
                yield Finding(path, number, fault)
