"""Finds the bodies of the functions of a C++ file, well enough to measure them."""

import re

# Comments, literals and preprocessor lines: a brace in there is none.
NOISE = re.compile(
    r'R"(?P<mark>[^\s()\\]*)\(.*?\)(?P=mark)"'
    r"|//[^\n]*|/\*.*?\*/"
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'"
    r"|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*",
    re.DOTALL | re.MULTILINE)

ATTRIBUTES = re.compile(r"\b(alignas|__attribute__)\s*\(\)|\[\[.*?\]\]", re.DOTALL)
TEMPLATE = re.compile(r"\btemplate\s*<.*?>(?=\s*[\w:])", re.DOTALL)
OPERATOR = re.compile(r"\boperator\s*[^\w\s(]+")
SCOPE = re.compile(r"\b(namespace|class|struct|union|enum)\b|\bextern\s*$")
LAMBDA = re.compile(r"=\s*\[[^\]]*\][^=]*$")
MEMBER_INITIALIZER = re.compile(r"\)[^:]*:(?!:).*[\w>]\s*$", re.DOTALL)


def without_noise(text):
    """The text with noise blanked out; lines keep their numbers."""
    return NOISE.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)


def kind_of_block(head):
    """What a brace after this head opens; parentheses in the head are empty."""
    head = OPERATOR.sub("operator", TEMPLATE.sub(" ", ATTRIBUTES.sub(" ", head)))
    if LAMBDA.search(head):
        return "function"
    if "=" in head:
        return "value"
    if "(" not in head:
        return "scope" if SCOPE.search(head) else "value"
    return "value" if MEMBER_INITIALIZER.search(head) else "function"


class Walker:
    """Walks over braces and notes the functions that are not inside of another function."""

    def __init__(self):
        self.open_blocks = []  # kind, head, first line and depth of parentheses around it
        self.head = ""  # what was read since the last statement, parentheses emptied
        self.parentheses = 0
        self.bodies = []

    def open(self, line):
        outside = not self.open_blocks or self.open_blocks[-1][0] == "scope"
        kind = kind_of_block(self.head) if outside and not self.parentheses else "value"
        self.open_blocks.append((kind, self.head, line, self.parentheses))
        self.head, self.parentheses = "", 0

    def close(self, line):
        if not self.open_blocks:
            return
        kind, head, first, self.parentheses = self.open_blocks.pop()
        if kind == "value":
            self.head = head if self.parentheses else head + "()"
        else:
            self.head = ""
        if kind == "function":
            self.bodies.append((first, line))

    def read(self, text):
        if text == ";" and not self.parentheses:
            self.head = ""
            return
        self.parentheses -= text == ")"
        if not self.parentheses:
            self.head += text
        self.parentheses += text == "("


def function_bodies(text):
    """Pairs of first and last line, braces included, of each function outside of functions."""
    walker = Walker()
    line = 1
    for token in re.findall(r"[{}();\n]|[^{}();\n]+", without_noise(text)):
        if token == "{":
            walker.open(line)
        elif token == "}":
            walker.close(line)
        else:
            walker.read(token)
            line += token == "\n"
    return walker.bodies
