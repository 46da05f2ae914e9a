"""Guards the layers of Sources: which folder includes which, no include cycles, and each function defined in the folder
that declares it."""

import pathlib
import re
import sys

LAYERS = {
    "Base": (),
    "Platform": ("Base",),
    "Probes": ("Base", "Platform"),
    "Drawing": ("Base",),
    "Catalogue": ("Base", "Platform", "Probes"),
    "More": ("Base", "Platform", "Probes", "Catalogue"),
    "Guide": ("Base", "Platform", "Probes"),
    "Background": ("Base", "Platform", "Probes", "Drawing"),
    "Desktop": ("Base", "Platform", "Probes"),
}
# The two links that point up: what they define is declared in Platform.
DEFINED_ELSEWHERE = {
    ("Platform", "makeDefaultPlatform"): "Desktop",
    ("Platform", "ViewController::mailComposeController"): "More",
}

root = pathlib.Path(sys.argv[1]) / "Sources"
files = {path.name: path for path in root.rglob("*") if path.suffix in (".h", ".cpp", ".glsl")}
failures = []


def folder_of(path):
    return path.relative_to(root).parts[0]


def code_of(path):
    """The file without comments, strings and preprocessor lines."""
    text = re.sub(r"/\*.*?\*/|//[^\n]*", "", path.read_text(encoding="utf-8"), flags=re.DOTALL)
    return re.sub(r'^#.*(?:\\\n.*)*$|"(?:\\.|[^"\\])*"', "", text, flags=re.MULTILINE)


# Who includes whom.
graph = {}
for path in files.values():
    folder = folder_of(path)
    allowed = {folder, *LAYERS.get(folder, ())}
    # A header and its source are one component.
    component = graph.setdefault(path.stem, set())
    for name in re.findall(r'^#include "(?:TQFoundation/|Shaders/)?([^"]+)"', path.read_text(encoding="utf-8"), re.MULTILINE):
        if name == "tqfoundation_export.h":
            continue
        if name not in files:
            failures.append(f"{path}: {name} is not a file of Sources")
            continue
        component.add(files[name].stem)
        if folder_of(files[name]) not in allowed:
            failures.append(f"{path}: {folder} may not include {folder_of(files[name])} ({name})")

# Types that QML files use.
qml_types = {path.stem: folder_of(path) for path in root.rglob("*.qml")}
for path in files.values():
    text = path.read_text(encoding="utf-8")
    for macro, name in re.findall(r"QML_(NAMED_ELEMENT|VALUE_TYPE)\((\w+)\)", text):
        qml_types[name] = folder_of(path)
    if re.search(r"\bQML_ELEMENT\b", text):
        qml_types[path.stem] = folder_of(path)
for path in root.rglob("*.qml"):
    allowed = {folder_of(path), *LAYERS.get(folder_of(path), ())}
    code = re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))
    for name in sorted(set(re.findall(r"\b[A-Za-z]\w+\b", code)) & set(qml_types)):
        if qml_types[name] not in allowed:
            failures.append(f"{path}: {folder_of(path)} may not use {name} of {qml_types[name]}")

# Cycles.
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

# Functions declared in one folder and defined in another.
classes, functions = {}, {}
for path in files.values():
    if path.suffix == ".h":
        code = code_of(path)
        for name in re.findall(r"\b(?:class|struct) (?:\w+_EXPORT )?(\w+)[^;{()]*\{", code):
            classes[name] = folder_of(path)
        for name in re.findall(r"^(?!using|return)\w[\w:<>&*, ]*[ &*](\w+)\([^;{}]*\)(?: noexcept)?;", code, re.MULTILINE):
            functions[name] = folder_of(path)
excused = set()
for path in files.values():
    if path.suffix != ".cpp":
        continue
    folder, code = folder_of(path), code_of(path)
    # An unnamed namespace is internal to its file.
    code = re.sub(r"^namespace \{.*?^\} // namespace$|^namespace \{.*?^\}\s*$", "", code, flags=re.DOTALL | re.MULTILINE)
    defined = [(match[1], classes.get(match[1].split("::")[0]))
               for match in re.finditer(r"^[^\s#].*?((?:\w+::)+~?\w+)\([^;]*$", code, re.MULTILINE)]
    defined += [(match[1], functions.get(match[1]))
                for match in re.finditer(r"^\w[\w:<>&*, ]*[ &*](\w+)\([^;]*$", code, re.MULTILINE)]
    for name, declared in defined:
        if declared is None or declared == folder:
            continue
        if DEFINED_ELSEWHERE.get((declared, name)) == folder:
            excused.add((declared, name))
        else:
            failures.append(f"{path}: {name} is declared in {declared} and defined in {folder}")
for declared, name in DEFINED_ELSEWHERE.keys() - excused:
    failures.append(f"{name} of {declared} is not defined where this test expects it")

print("\n".join(failures) or f"{len(files)} files: no forbidden include, no cycle, no definition in another folder")
sys.exit(bool(failures))
