"""Who may include whom: the folders of Sources form layers, and files form no cycles."""

import pathlib
import re
import sys

ALLOWED = {
    "Platform": {"Platform"},
    # What Qt answers stands on the library's own resources; nothing stands on it.
    "Desktop": {"Platform", "Probes", "Desktop"},
    "Probes": {"Platform", "Probes"},
    "Catalogue": {"Platform", "Probes", "Catalogue"},
    "More": {"Platform", "Probes", "Catalogue", "More"},
    "Guide": {"Platform", "Probes", "Catalogue", "More", "Guide"},
    "Background": {"Platform", "Probes", "Background"},
}

root = pathlib.Path(sys.argv[1]) / "Sources"
files = {path.name: path for path in root.rglob("*") if path.suffix in (".h", ".cpp")}
failures = []


def layer(path):
    return "Desktop" if path.parent.name == "Desktop" else path.relative_to(root).parts[0]


graph = {}

for path in files.values():
    folder = layer(path)
    # A header and its source are one component.
    component = graph.setdefault(path.stem, set())
    for name in re.findall(r'^#include "([^"]+)"', path.read_text(encoding="utf-8"), re.MULTILINE):
        if name == "tqfoundation_export.h":
            continue
        if name not in files:
            failures.append(f"{path}: {name} is no file of Sources")
            continue
        component.add(files[name].stem)
        target = layer(files[name])
        if target not in ALLOWED.get(folder, set()):
            failures.append(f"{path}: {folder} may not include {target} ({name})")

done, under_way = set(), []


def visit(stem):
    if stem in under_way:
        failures.append("cycle: " + " -> ".join(under_way[under_way.index(stem):] + [stem]))
    elif stem not in done:
        under_way.append(stem)
        for other in graph.get(stem, set()) - {stem}:
            visit(other)
        under_way.pop()
        done.add(stem)


for stem in sorted(graph):
    visit(stem)

print("\n".join(failures) or f"{len(files)} files, no forbidden include, no cycle")
sys.exit(bool(failures))
