"""The documents agree with the tree: folders, packages, build options, the catalogue, the rows of the More screen, the
sample Info.plist, dependencies between folders."""

import ast
import pathlib
import plistlib
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
    if found == expected:
        return
    if isinstance(found, dict):
        found, expected = ({(key, *sorted(values)) for key, values in each.items()} for each in (found, expected))
    failures.append(f"{title}: missing {sorted(expected - found)}, unexpected {sorted(found - expected)}")


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
           if path.is_dir() and not path.name.startswith(".") and path.name not in ("build", "LICENSES", "Sources", "shots")}
compare("folders in README.md", in_readme, tracked | {f"Sources/{folder}" for folder in layers})


def words(text):
    return set(re.findall(r"`([\w.+-]+)`", text))


def section(page, heading):
    """The text from a heading to the next one of the same or a higher level."""
    level = heading.split()[0]
    return re.split(rf"^#{{1,{len(level)}}} ", page.split(f"\n{heading}\n")[1], flags=re.MULTILINE)[0]


# Files and folders that a page names.
pages = [*root.glob("*.md"), *(root / "docs").glob("*.md")]
paths = {(page.name, path) for page in pages if page.name != "CHANGELOG.md"
         for path in re.findall(r"`((?:Sources|Resources|Example|Tests|Fuzzers|Benchmarks|cmake|tools)/[\w./-]+)`",
                                page.read_text(encoding="utf-8"))}
failures += [f"{page}: {path} does not exist" for page, path in sorted(paths) if not (root / path).exists()]

# Building and installing.
install = section(readme, "## Install it")
cmake = (root / "CMakeLists.txt").read_text(encoding="utf-8")
compare("build options in README.md", set(re.findall(r"^\| `(TQFOUNDATION_\w+)`", install, re.MULTILINE)),
        set(re.findall(r"^option\((TQFOUNDATION_\w+)", cmake, re.MULTILINE)))
packages = [line.split() for line in (root / "tools/packages.txt").read_text().splitlines() if not line.startswith("#")]
needed = {name for purpose, name in packages if purpose == "run"}
listed = dict(re.findall(r"^\| (at [\w ,]+) \|(.*)\|$", install, re.MULTILINE))
compare("packages at run time in README.md", words(listed["at run time"]),
        {name for name in needed if not name.startswith("fonts-")})
compare("fonts in README.md", {name for name in words(listed["at run time, optional"]) if name.startswith("fonts-")},
        {name for name in needed if name.startswith("fonts-")})
version = re.search(r"project\(TQFoundation VERSION (\S+)", cmake)[1]
packaging = (root / "cmake/Packages.cmake").read_text(encoding="utf-8")
for name, package_version in re.findall(r"`([\w-]+?)_([\d.]+)-1_amd64\.deb`", install):
    if package_version != version or name.removesuffix(version[0]) not in packaging:
        failures.append(f"README.md: there is no package {name} {package_version}")

# Releasing.
release = (root / "docs/release.md").read_text(encoding="utf-8")
check = release.split("make release-check")[1].split("**Tag")[0]
compare("commands of release-check in release.md", set(re.findall(r"`(\.ci/run|(?:ctest|make) [^`]+)`", check)),
        set(constant(root / "tools/release-check", "RUNS")))

# The catalogue: name, filing or null, and a guide at the end of the row.
identity = (root / "Sources/Catalogue/DeveloperIdentity.h").read_text(encoding="utf-8")
apps = re.findall(r'\{"(\w+)", "\d+", ("\w+"|nullptr), .*?(, \w+Guide)?\},$', identity, re.MULTILINE)
expected = {(name, bool(guide), filing != "nullptr") for name, filing, guide in apps}
rows = re.findall(r"^\| ([\w, ]+) \| (yes )?\| (yes )?\|$", section(readme, "### Catalogue"), re.MULTILINE)
compare("apps in README.md", {(name, bool(guide), bool(filing)) for names, guide, filing in rows
                              for name in names.split(", ") if names != "app"}, expected)

# The More screen.
more = (root / "Sources/More/TQMore.h").read_text(encoding="utf-8")
functions = set(re.findall(r"^    static QString (\w+)\(", more, re.MULTILINE))
named = set(re.findall(r"\b(\w+(?:Text|Url))\b", section(readme, "### More screen"))) - {"openUrl"}
compare("rows of the More screen in README.md", named, functions)

# Each step of the first app adds lines to the one before.
steps = [path.read_text(encoding="utf-8").splitlines()
         for path in [*sorted((root / "Tests/Consumer/FirstApp").glob("Step?.qml")),
                      root / "Tests/Consumer/FirstApp/Main.qml"]]
for number, (step, following) in enumerate(zip(steps, steps[1:]), 1):
    rest = iter(following)
    if lines := [line for line in step if line not in rest]:
        failures.append(f"step {number} of the first app has lines that the next one lacks: {lines}")
length = sum(len((root / "Tests/Consumer/FirstApp" / name).read_text(encoding="utf-8").splitlines())
             for name in ("CMakeLists.txt", "main.cpp", "Main.qml"))
if length > 60:
    failures.append(f"the first app has {length} lines, more than 60")

# The sample Info.plist has the entries that tq_add_host_info() writes.
adopt = (root / "docs/adopt-the-library.md").read_text(encoding="utf-8")
if f"GIT_TAG v{version})" not in adopt:
    failures.append(f"adopt-the-library.md: FetchContent does not get version {version}")
sample = plistlib.loads(re.search(r"```xml\n(.*?)```", adopt, re.DOTALL)[1].encode())
host_info = (root / "cmake/TQFoundationHostInfo.cmake").read_text(encoding="utf-8")
compare("sample Info.plist", set(sample), set(re.findall(r"CFBundle\w+", host_info)))

print("\n".join(failures) or f"{len(layers)} folders with their dependencies, {len(in_readme)} in README.md, {len(paths)} paths")
sys.exit(bool(failures))
