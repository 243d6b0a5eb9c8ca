"""References to documents that a reader of this repository does not have."""

import re

from tree import Finding

# Written with brackets so that this file passes its own check.
REFERENCE = re.compile(
    r"(?i:spec[i]fication|\bspec[.]md\b|\bissue\s+[#]\d)|\b[P]art\s+\d")


def check(tree):
    for path in tree.paths:
        if REFERENCE.search(path):
            yield Finding(path, 1, "the file is named after a document that is not here; rename it")
        for number, line in enumerate((tree.text(path) or "").splitlines(), 1):
            found = REFERENCE.search(line)
            if found:
                yield Finding(path, number, f'"{found[0]}" refers to a document that is not here; '
                                            "say what is meant in place")
