#!/usr/bin/env python3
"""Checks that every include points down the floors of src/. Usage: check_includes.py [ROOT]"""

import re
import sys

sys.dont_write_bytecode = True
import tree  # noqa: E402

FLOORS = {"platform": 1, "core": 2, "query": 3, "browser": 3, "join": 3, "maps": 3, "links": 3, "export": 3,
          "appearance": 3, "desktop": 4, "app": 5}
# Floor 3 is where a folder may need its neighbour, but only in these directions.
NEIGHBOURS = {("join", "query"), ("maps", "query"), ("maps", "export")}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"]', re.M)
# The names of the standard library's headers have neither a capital nor a dot nor a folder.
STANDARD = re.compile(r"[a-z_0-9]+")


def judge(name, bracket, target):
    """What is wrong with the include, or None."""
    area, _, rest = name.partition("/")
    folder = rest.partition("/")[0]
    aim = target.partition("/")[0] if "/" in target else ""
    if ".." in target.split("/"):
        return "an include path must not go upwards"
    if area == "sandbox" and aim in FLOORS:
        return "the sandbox must not know the program"
    if area != "src":
        return None
    if aim == "sandbox":
        return "the program must not know the sandbox"
    if folder not in FLOORS:
        return f"the folder {folder} has no floor yet; give it one in tools/check_includes.py"
    if aim in FLOORS:
        if bracket == "<":
            return "a header of this tree is included in quotes"
        if aim == folder or FLOORS[aim] < FLOORS[folder] or (folder, aim) in NEIGHBOURS:
            return None
        return f"{folder} must not use {aim}"
    if FLOORS[folder] <= 3:
        if bracket == '"':
            return "a header is included as \"folder/Header.h\" with a folder of src"
        if not STANDARD.fullmatch(target):
            return "below the desktop only the standard library may be used"
    return None


def find_circle(graph):
    """The files of one circle of includes in their order, or None."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):]
        if node in done:
            return None
        path.append(node)
        for following in sorted(graph.get(node, ())):
            circle = visit(following)
            if circle:
                return circle
        path.pop()
        done.add(node)
        return None

    for node in sorted(graph):
        circle = visit(node)
        if circle:
            return circle
    return None


def main():
    root = tree.root_from_arguments()
    names = tree.sources(root)
    findings, graph = {}, {}
    for name in names:
        area = name.partition("/")[0]
        code = tree.without_comments(tree.read(root, name), keep_texts=True)
        for match in INCLUDE.finditer(code):
            bracket, target = match.groups()
            wrong = judge(name, bracket, target)
            if wrong:
                line = code.count("\n", 0, match.start()) + 1
                findings[f"{name} includes {target}: {wrong}"] = f"{name}:{line}"
            beside = f"{name.rpartition('/')[0]}/{target}"
            for place in (beside, f"src/{target}", f"{area}/{target}", target):
                if bracket == '"' and place in names:
                    graph.setdefault(name, set()).add(place)
                    break
    # One circle at a time: each is taken apart at its first arrow, so that the search comes to an end.
    while circle := find_circle(graph):
        start = circle.index(min(circle))
        circle = circle[start:] + circle[:start]
        findings["circle of includes: " + " -> ".join(circle + circle[:1])] = circle[0]
        graph[circle[0]].discard(circle[1] if len(circle) > 1 else circle[0])
    return tree.report(root, "includes", findings)


if __name__ == "__main__":
    sys.exit(main())
