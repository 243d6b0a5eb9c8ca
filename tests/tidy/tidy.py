#!/usr/bin/env python3
"""tidy.py CHECK ROOT: prints what breaks a rule of this project as file:line: what to do."""

import sys

import folders
import sizes
import words
from tree import Tree

CHECKS = {"folders": folders.check, "sizes": sizes.check, "words": words.check}


def main(arguments):
    if len(arguments) != 2 or arguments[0] not in CHECKS:
        sys.exit(f"usage: tidy.py {'|'.join(CHECKS)} ROOT")
    findings = list(CHECKS[arguments[0]](Tree(arguments[1])))
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
