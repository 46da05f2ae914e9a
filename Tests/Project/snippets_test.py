"""Code in the documents is quoted, except for indentation, from files that the tests compile or run."""

import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
QUOTED = {"cpp": (".cpp", ".h", ".py"), "qml": (".qml",), "cmake": ("CMakeLists.txt", ".cmake")}
PLAIN = {"mermaid", "sh", "text", "xml"}
LONGEST_HOST = 30
failures = []


def lines_of(text):
    return [line.strip() for line in text.strip("\n").splitlines()]


def contains(lines, wanted):
    return any(lines[start:start + len(wanted)] == wanted for start in range(len(lines) - len(wanted) + 1))


builders = [path for path in root.rglob("*") if path.name == "CMakeLists.txt" or path.suffix in (".cmake", ".py")]
builders = {path: path.read_text(encoding="utf-8") for path in builders if "build" not in path.relative_to(root).parts}


def is_used(path):
    """Whether a build file or test names the file, or, for a build file, its folder."""
    name = path.parent.name if path.name == "CMakeLists.txt" else path.name
    return path.parent == root or any(name in text for builder, text in builders.items() if builder != path)


compiled = {}
for folder in ("Example", "Resources", "Sources", "Tests"):
    for path in (root / folder).rglob("*"):
        if path.name.endswith((".cpp", ".h", ".py", ".qml", "CMakeLists.txt")) and is_used(path):
            compiled[path] = lines_of(path.read_text(encoding="utf-8"))

count = 0
for page in [root / "README.md", root / "CONTRIBUTING.md", *sorted((root / "docs").glob("*.md"))]:
    text = page.read_text(encoding="utf-8")
    for language, snippet in re.findall(r"^ *```(\w*)\n(.*?)^ *```$", text, re.DOTALL | re.MULTILINE):
        if language in PLAIN:
            continue
        if language not in QUOTED:
            failures.append(f"{page.name}: '{language}' is no language of a quotation")
            continue
        count += 1
        # An empty list of paragraphs stops the process, and most apps have no guide.
        if "showGuide(" in snippet and not re.search(r"guideText(\.length|\(\)\.isEmpty\(\))", snippet):
            failures.append(f"{page.name}: shows a guide without asking for paragraphs\n{snippet}")
        wanted = lines_of(snippet)
        if not any(path.name.endswith(QUOTED[language]) and contains(lines, wanted) for path, lines in compiled.items()):
            failures.append(f"{page.name}: no file of the tests holds\n{snippet}")

if count < 10:
    failures.append(f"only {count} quotations were found")

smallest = root / "Tests/Consumer/SmallestHost"
length = sum(len(path.read_text(encoding="utf-8").splitlines()) for path in smallest.iterdir())
if length > LONGEST_HOST:
    failures.append(f"the smallest host has {length} lines, more than {LONGEST_HOST}")

print("\n".join(failures) or f"{count} quotations, a smallest host of {length} lines")
sys.exit(bool(failures))
