"""Runs the example as a program: pictures of every app, region rows by storefront, and invalid options."""

import os
import pathlib
import struct
import subprocess
import sys
import tempfile

grove = sys.argv[1]
failures = []
environment = {name: value for name, value in os.environ.items()
               if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR")}


def run(*options, folder=None):
    return subprocess.run([grove, *options], env=environment, cwd=folder, capture_output=True, text=True, timeout=60)


def size_of(path):
    header = path.read_bytes()[:24]
    return struct.unpack(">II", header[16:24]) if header.startswith(b"\x89PNG") else None


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    environment["XDG_RUNTIME_DIR"] = name
    apps = "larch juniper hazel ginkgo fir elm dogwood cedar birch alder".split()
    for index, app in enumerate(apps):
        language = ("en", "zh-Hans", "ar", "de")[index % 4]
        target = folder / app
        dark = ["--dark"] if index % 2 else []
        result = run("--app", app, "--language", language, *dark, "--shots", str(target))
        if result.returncode or result.stderr:
            failures.append(f"{app}: {result.returncode} {result.stderr}")
        if (target / "guide.png").exists() != (app in ("hazel", "dogwood")):
            failures.append(f"{app}: guide.png is written for an app without a guide, or missing for one that has one")
        guide = ["guide.png"] if app in ("hazel", "dogwood") else []
        for picture in ("home.png", "more.png", *guide):
            if size_of(target / picture) != (780, 1688):
                failures.append(f"{app}: {picture} is {size_of(target / picture)}")

    # If there is no display, pictures are written below the current folder.
    result = run(folder=folder)
    if result.returncode or size_of(folder / "shots" / "more.png") is None:
        failures.append(f"without a display: {result.returncode} {result.stdout} {result.stderr}")

    result = run("--background-only", "--shots", str(folder / "background"))
    pictures = sorted(path.name for path in (folder / "background").glob("*"))
    if result.returncode or result.stderr or pictures != [f"background-{moment}.png" for moment in (0.5, 4.5, 9.1, 9.9)]:
        failures.append(f"--background-only: {result.returncode} {pictures} {result.stderr}")
    result = run("--compose", "--shots", str(folder / "compose"))
    if result.returncode or size_of(folder / "compose" / "sheet.png") != (780, 1688):
        failures.append(f"--compose: {result.returncode} {result.stderr}")
    if (folder / "compose" / "sheet.png").read_bytes() == (folder / "compose" / "more.png").read_bytes():
        failures.append("--compose shows no sheet")

    def more_picture(app, storefront):
        target = folder / f"{app}-{storefront}"
        run("--app", app, "--storefront", storefront, "--shots", str(target))
        return (target / "more.png").read_bytes()

    if more_picture("hazel", "CHN") != more_picture("hazel", "none"):
        failures.append("an unknown storefront differs from CHN")
    if more_picture("hazel", "CHN") == more_picture("hazel", "USA"):
        failures.append("CHN shows the same rows as USA")
    if more_picture("alder", "CHN") != more_picture("alder", "USA"):
        failures.append("an app without a filing differs by storefront")

    refused = (["--app", "oak"], ["--size", "10x10"], ["--size", "huge"], ["--text-size", "10"], ["--text-size", "large"],
               ["--nonsense"], ["--shots", ""], ["--frames", "0"], ["--open-browser", ""], ["--open-browser", "http://[1"])
    for options in refused:
        result = run(*options, folder=folder)
        if result.returncode != 2 or not result.stderr.startswith("Grove: "):
            failures.append(f"{options}: {result.returncode} {result.stderr}")

print("\n".join(failures) or "all pictures written, all invalid options refused with a message")
sys.exit(bool(failures))
