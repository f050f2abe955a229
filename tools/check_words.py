#!/usr/bin/env python3
"""Refuses words that no reader of this tree can follow, and names that macros take. Usage: check_words.py [ROOT]"""

import re
import sys

sys.dont_write_bytecode = True
import tree  # noqa: E402

PHRASES = [
    (re.compile(r"\bParts? [0-9]+\.[0-9]+"), "refers to a chapter that is not in this tree"),
    (re.compile(r"\bthe\s+spec\b|\bspec\.md\b|\bspecification\b", re.I), "refers to a paper that is not in this tree"),
    (re.compile(r"(?<![\w.~/-])/(?:work/|tmp/bash)"), "names a folder of one machine"),
]
# Qt and the Windows headers make macros of these.
TAKEN = r"(?:slots|signals|emit|foreach|near|far|min|max)"
# The tree is formatted, so `Type& name` declares where `a & name` and `a > name` do not.
DECLARED = re.compile(
    rf"(?P<type>\w+|(?<=[\w>*&\])])>)[*&]*\s+(?P<name>{TAKEN})\b\s*[;={{(,)\[]")
NOT_A_TYPE = {"return", "case", "else", "do", "throw", "new", "delete", "sizeof", "goto", "and", "or", "not", "co_return",
              "co_yield", "co_await", "using", "public", "protected", "private", "if", "while"}
ENUM = re.compile(r"\benum\b[^;{()]*\{([^}]*)\}")
ENUMERATOR = re.compile(rf"(?:^|,)\s*({TAKEN})\b")


def taken_names(code):
    """Yields (name, offset) of each declaration of a name that a macro takes."""
    for match in DECLARED.finditer(code):
        if match["type"] not in NOT_A_TYPE and not match["type"].isdigit():
            yield match["name"], match.start("name")
    for enum in ENUM.finditer(code):
        for match in ENUMERATOR.finditer(enum.group(1)):
            yield match.group(1), enum.start(1) + match.start(1)


def main():
    root = tree.root_from_arguments()
    findings = {}
    for name in tree.files(root):
        if b"\0" in (root / name).read_bytes():
            continue
        text = tree.read(root, name)
        for pattern, wrong in PHRASES:
            for match in pattern.finditer(text):
                line = text.count("\n", 0, match.start()) + 1
                findings[f"{name}: \"{' '.join(match.group().split())}\" {wrong}"] = f"{name}:{line}"
        if name.endswith((".h", ".cpp")):
            code = tree.without_directives(tree.without_comments(text))
            for taken, offset in taken_names(code):
                line = code.count("\n", 0, offset) + 1
                findings[f"{name}: \"{taken}\" is a macro elsewhere; choose another name"] = f"{name}:{line}"
    return tree.report(root, "words", findings)


if __name__ == "__main__":
    sys.exit(main())
