#!/usr/bin/env python3
"""Checks the walls between the folders of src/: who may include whom, and what only the services may touch.

Prints each breach as file:line and exits 1 when there is one. A folder that is missing from the table may include
nothing; the table is the architecture.
"""

import os
import re
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")

CORE = ["shell", "database", "collection_files", "people", "audit", "queries", "browser", "skin", "html_export"]
BELOW_CORE = ["base", "platform", "sql", "xml"]

# Folder: folders that its files may include besides their own.
ALLOWED = {
    "base": [],
    "platform": ["base"],
    "sql": ["base"],
    "xml": ["base"],
    "services": ["base", "platform"],
    **{folder: CORE + BELOW_CORE for folder in CORE},
    "platform_qt": BELOW_CORE + ["services"],
    "web_engine": ["platform", "platform_qt"],
    # The windows of every subsystem.
    "ui": CORE + BELOW_CORE + ["services", "platform_qt"],
}

# What a person or the system is reached by: only through an interface of platform/.
GUARDED = re.compile(
    r"\b(QMessageBox|QFileDialog|QInputDialog|QProcess|QClipboard|QRandomGenerator|QNetworkAccessManager"
    r"|QDateTime::current\w+|QDate::currentDate|QTime::currentTime|QStandardPaths)\b"
)
MAY_TOUCH_GUARDED = {"services", "platform_qt"}

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def group(unit):
    """The folder of the table that a file below src/ belongs to; windows are one group, whatever their subsystem."""
    parts = unit.split("/")
    return "ui" if "ui" in parts[:-1] else parts[0]


def sources(folder):
    for directory, _, names in os.walk(os.path.join(ROOT, "src", folder)):
        for name in sorted(names):
            if name.endswith((".h", ".cpp")):
                yield os.path.join(directory, name)


def include_cycles(graph):
    """Yields one path for each circle of includes."""
    state = {}
    stack = []

    def visit(node):
        state[node] = 1
        stack.append(node)
        for other in graph.get(node, ()):
            if state.get(other) == 1:
                yield stack[stack.index(other):] + [other]
            elif other not in state:
                yield from visit(other)
        stack.pop()
        state[node] = 2

    for node in sorted(graph):
        if node not in state:
            yield from visit(node)


def main():
    breaches = []
    graph = {}
    folders = [f for f in sorted(os.listdir(os.path.join(ROOT, "src"))) if os.path.isdir(os.path.join(ROOT, "src", f))]
    for folder in folders:
        for path in sources(folder):
            shown = os.path.relpath(path, ROOT)
            unit = os.path.relpath(path, os.path.join(ROOT, "src"))
            own = group(unit)
            allowed = set(ALLOWED.get(own, [])) | {own}
            with open(path, encoding="utf-8") as file:
                for number, line in enumerate(file, 1):
                    match = INCLUDE.match(line)
                    if match:
                        graph.setdefault(unit, []).append(match.group(1))
                        included = match.group(1)
                        if "/" in included and group(included) not in allowed:
                            breaches.append(f"{shown}:{number}: {own} may not include {included}")
                    elif own not in MAY_TOUCH_GUARDED:
                        guarded = GUARDED.search(line)
                        if guarded:
                            breaches.append(f"{shown}:{number}: {guarded.group(1)} belongs behind an interface")
    for cycle in include_cycles(graph):
        breaches.append("circle of includes: " + " -> ".join(cycle))
    for breach in breaches:
        print(breach)
    print(f"walls: {len(graph)} files, {len(breaches)} breaches")
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
