"""`make new-app` writes an app under any name that a user may see, or refuses with one line of advice and leaves nothing
behind. Tests/Consumer builds and runs such an app."""

import pathlib
import subprocess
import sys
import tempfile

root = pathlib.Path(sys.argv[1])
# NAME, APP, DIR, and a part of the advice.
REFUSED = {
    "no name": ("", "hazel", "new", "NAME="),
    "blank name": (" ", "hazel", "new", "NAME"),
    "quote": ('The "Grid"', "hazel", "new", "NAME"),
    "line feed": ("Hazel\nGrid", "hazel", "new", "NAME"),
    "long name": ("x" * 61, "hazel", "new", "NAME"),
    "unknown app": ("Grid", "oak", "new", "larch juniper"),
    "no app": ("Grid", "", "new", "APP"),
    "no folder": ("Grid", "hazel", "", "DIR"),
    "existing folder": ("Grid", "hazel", "there", "DIR"),
    "file": ("Grid", "hazel", "file", "DIR"),
    "missing parent": ("Grid", "hazel", "missing/new", "create it"),
}
# NAME and the name of the program.
PROGRAMS = {"Hazel Grid": "HazelGrid", "Qt Quick": "AppQtQuick", "「青岚」": "Hazel", "2048 & more": "Hazel2048More",
            "l'été-bleu": "LTBleu", "../../x": "X", "`true`": "True", "x" * 60: "X" + "x" * 59}
failures = []


def make(folder, name, app, directory):
    return subprocess.run(["make", "--no-print-directory", "-C", root, "new-app", f"NAME={name}", f"APP={app}",
                           f"DIR={directory and folder / directory}"], capture_output=True, text=True, timeout=60)


def trees(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")}


for case, (name, app, directory, advice) in REFUSED.items():
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        (folder / "there").mkdir()
        (folder / "file").touch()
        before = trees(folder)
        run = make(folder, name, app, directory)
        lines = [line for line in run.stderr.splitlines() if not line.startswith("make")]
        if run.returncode == 0 or run.stdout or len(lines) != 1 or advice not in lines[0]:
            failures.append(f"{case}: {run.returncode}, {run.stdout!r}, {run.stderr!r}")
        if left := trees(folder) - before:
            failures.append(f"{case}: leaves {sorted(left)}")

for name, program in PROGRAMS.items():
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        run = make(folder, name, "hazel", "new app")
        cmake = folder / "new app/CMakeLists.txt"
        if run.returncode or not cmake.exists():
            failures.append(f"{name}: {run.returncode}, {run.stdout!r}, {run.stderr!r}")
            continue
        text = cmake.read_text(encoding="utf-8")
        if f"project({program} " not in text or f'DISPLAY_NAME "{name}" NAME "{program}"' not in text:
            failures.append(f"{name}: {text}")
        if {path.name for path in folder.iterdir()} != {"new app"} or not (folder / "new app/icon.png").exists():
            failures.append(f"{name}: wrote {sorted(trees(folder))}")

print("\n".join(failures) or f"{len(REFUSED)} refusals, {len(PROGRAMS)} names")
sys.exit(bool(failures))
