"""The pages about the tree agree with the tree: folders in README, dependencies in CONTRIBUTING."""

import ast
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
readme = (root / "README.md").read_text(encoding="utf-8")
contributing = (root / "CONTRIBUTING.md").read_text(encoding="utf-8")
failures = []


def constant(path, name):
    """The value of a constant of a Python file, without running the file."""
    for node in ast.parse(path.read_text(encoding="utf-8")).body:
        if isinstance(node, ast.Assign) and node.targets[0].id == name:
            return ast.literal_eval(node.value)
    sys.exit(f"{path} has no constant {name}")


def compare(title, found, expected):
    if found != expected:
        failures.append(f"{title}: {found}\ninstead of {expected}")


includes_test = root / "Tests/Project/includes_test.py"
layers = {folder: set(others) for folder, others in constant(includes_test, "LAYERS").items()}
upwards = {(declared, function.split("::")[-1], defined)
           for (declared, function), defined in constant(includes_test, "DEFINED_ELSEWHERE").items()}

rows = re.findall(r"^\| `(\w+)` \|(.*)\|$", contributing, re.MULTILINE)
compare("table in CONTRIBUTING.md", {folder: set(re.findall(r"`(\w+)`", others)) for folder, others in rows}, layers)
graph = re.search(r"```mermaid\n(.*?)```", contributing, re.DOTALL)[1]
arrows = {folder: set(others.split(" & ")) for folder, others in re.findall(r"(\w+) --> (.*)", graph)}
compare("picture in CONTRIBUTING.md", arrows, {folder: others for folder, others in layers.items() if others})
dotted = {(declared, function.split("::")[-1], defined)
          for declared, function, defined in re.findall(r'(\w+) -\. "([\w:]+)\(\)" \.-> (\w+)', graph)}
compare("dotted arrows in CONTRIBUTING.md", dotted, upwards)

in_readme = {name for row in re.findall(r"^\| (`[\w/`, ]+`) \|", readme.split("## Folders")[1], re.MULTILINE)
             for name in re.findall(r"`([\w/]+)`", row)}
tracked = {path.name for path in root.iterdir()
           if path.is_dir() and not path.name.startswith(".") and path.name not in ("build", "Sources", "shots")}
compare("folders in README.md", in_readme, tracked | {f"Sources/{folder}" for folder in layers})

print("\n".join(failures) or f"{len(layers)} folders with their dependencies, {len(in_readme)} in README.md")
sys.exit(bool(failures))
