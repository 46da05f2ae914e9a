"""Every command of the pages works as it is written: in a copy of the tree, in the folder of a host, or, for those that
take long, as far as make tells what it would do. A new command fails until this test says how it is tried."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from tree import tracked

root, build, qt_tools = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]
COMMAND = re.compile(r"(make|cmake|ctest|cpack|git|sudo|apt-get|g\+\+|rsvg-convert|qmllint|lupdate|grep|python3|sh) .+"
                     r"|tools/[\w-]+( .+)?|\./[\w.]+|\.ci/run|Tests/\S+\.py .+")
PLACEHOLDERS = {"…": "/tmp/prefix", "<folder of Qt>": "/usr", "COMMAND": "true", "build/release/lib": f"{build}/lib"}
# Not run, and why.
EXCEPTIONS = {
    ".ci/run": "runs this test",
    "cmake --preset release -DCMAKE_PREFIX_PATH=/usr": "configures the tree as for this test",
    "cmake --build --preset release": "builds the tree as for this test",
    "ctest --preset release": "runs this test",
    "build/MoreHost CHN\nbuild/MoreHost USA": "the test MoreHost runs them",
    "git tag -s v1.0.0": "needs the key of the one who makes the release",
    "sudo apt-get install ./build/packages/packages/*.deb": "tools/try-packages installs them in a system of its own",
}
IDENTITY = "Sources/Catalogue/DeveloperIdentity.h"
failures, tried = [], set()


def commands_of(page):
    """Blocks of commands and single commands in the text of a page."""
    text = page.read_text(encoding="utf-8")
    for block in re.findall(r"^ *```sh\n(.*?)^ *```$", text, re.DOTALL | re.MULTILINE):
        yield "\n".join(line.strip() for line in block.splitlines())
    text = re.sub(r"^ *```.*?^ *```$", "", text, flags=re.DOTALL | re.MULTILINE)
    # In a table a bar is written with a backslash.
    yield from (span.replace("\\|", "|") for span in re.findall(r"`([^`\n]+)`", text) if COMMAND.fullmatch(span))


def run(command, folder, **environment):
    """Runs the block in a shell. A host that still runs after three seconds is well."""
    command = re.sub(r"^(build/FirstApp)$", r"timeout 3 \1 || test $? = 124", command, flags=re.MULTILINE)
    result = subprocess.run(["sh", "-ec", command], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            timeout=300, env=dict(os.environ, QT_QPA_PLATFORM="offscreen", **environment))
    if result.returncode:
        failures.append(f"{command}: {result.returncode}\n{result.stdout[-600:]}")


def try_in_host(command, host):
    folder = scratch / host
    if not folder.exists():
        shutil.copytree(root / "Tests/Consumer" / host, folder)
    prefix = scratch / "prefix"
    if not prefix.exists():
        run(f"cmake --install '{build}' --prefix '{prefix}'", scratch)
    run(command, folder, CMAKE_PREFIX_PATH=str(prefix), PKG_CONFIG_PATH=str(prefix / "lib/pkgconfig"))


def try_in_tree(command):
    if command == "tools/replace-developer":
        path = tree / IDENTITY
        path.write_text(re.sub(r'(\*socialPage = ").*?"', r'\1https://links.example/other"', path.read_text("utf-8")), "utf-8")
    run(command, tree)


def try_one(command):
    for placeholder, text in PLACEHOLDERS.items():
        command = command.replace(placeholder, text)
    tried.add(command)
    preset = re.search(r"--preset (\w+)", command)
    if preset and f'"name": "{preset[1]}"' not in (root / "CMakePresets.json").read_text(encoding="utf-8"):
        failures.append(f"{command}: there is no such preset")
    if command in EXCEPTIONS:
        return
    if command.startswith("make "):
        run(command.replace("make ", "make -n ", 1), tree)
    elif command.startswith("ctest "):
        run(f"{command.replace('--preset release', f'--test-dir {build}')} -N | grep -v 'Total Tests: 0' | grep Total", root)
    elif command.startswith("g++ "):
        try_in_host(command, "CppHost")
    elif "build/FirstApp" in command:
        try_in_host(command, "FirstApp")
    elif command.startswith("qmllint "):
        run(f"{command.replace('<prefix>/lib/qml', f'{build}/qml')} Main.qml", root / "Tests/Consumer/FirstApp",
            PATH=f"{qt_tools}:{os.environ['PATH']}")
    elif command.startswith("rsvg-convert "):
        icon = re.search(r"(\w+)\.svg", command)[1]
        shutil.copy(root / "Resources/Icons/birch.svg", tree / f"{icon}.svg")
        run(command, tree)
        (tree / f"{icon}.svg").unlink()
        (tree / f"{icon}.png").unlink()
    elif command.startswith(("tools/", "python3 Tests/")):
        try_in_tree(command)
    else:
        failures.append(f"{command}: not tried")


with tempfile.TemporaryDirectory() as name:
    scratch = pathlib.Path(name)
    tree = scratch / "tree"
    for path in tracked(root):
        (tree / path).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(root / path, tree / path)
    run("git init -q . && git add -A && git -c user.name=a -c user.email=a@b.example commit -qm 'Tree: begin'", tree)
    pages = [root / page for page in ("README.md", "CONTRIBUTING.md", "SECURITY.md")] + sorted((root / "docs").glob("*.md"))
    for page in pages:
        for command in commands_of(page):
            count = len(failures)
            if command not in tried:
                try_one(command)
            failures[count:] = [f"{page.name}: {failure}" for failure in failures[count:]]

failures += [f"{command}: an exception that no page has" for command in sorted(set(EXCEPTIONS) - tried)]
print("\n".join(failures) or f"{len(tried)} commands")
sys.exit(bool(failures))
