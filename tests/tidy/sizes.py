"""Limits on the size of functions, files and lines."""

import unicodedata

from functions import function_bodies
from tree import Finding

FUNCTION_LINES = 70
FILE_LINES = 600
LINE_COLUMNS = 100
README_LINES = 150

CODE = (".h", ".cpp", ".py", ".cmake", "CMakeLists.txt")


def columns(line):
    """The width on a screen: wide characters count twice, combining ones not at all."""
    return sum(width(character) for character in line)


def width(character):
    if unicodedata.combining(character):
        return 0
    return 2 if unicodedata.east_asian_width(character) in "WF" else 1


def is_code(path):
    return path.endswith(CODE) or path.startswith("script/") and "." not in path


def check_lines(path, lines):
    for number, line in enumerate(lines, 1):
        width = columns(line)
        if width > LINE_COLUMNS:
            yield Finding(path, number, f"{width} columns; break the line at {LINE_COLUMNS}")


def check_functions(path, text):
    for first, last in function_bodies(text):
        length = last - first + 1
        if length > FUNCTION_LINES:
            yield Finding(path, first, f"function of {length} lines; split it, {FUNCTION_LINES} is "
                                       "the limit and 25 the aim")


def check(tree):
    for path in tree.paths:
        readme = path == "README.md"
        if not readme and not is_code(path):
            continue
        text = tree.text(path) or ""
        lines = text.splitlines()
        limit = README_LINES if readme else FILE_LINES
        if len(lines) > limit:
            advice = f"{len(lines)} lines; split the file, {limit} is the limit"
            yield Finding(path, limit + 1, advice)
        if not readme:
            yield from check_lines(path, lines)
        if path.endswith((".h", ".cpp")):
            yield from check_functions(path, text)
