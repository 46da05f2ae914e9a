"""An app is added by one name, one row and one icon, as docs/add-an-app.md says: does that to a copy of the library,
builds it and looks for the app in C++ and in QML."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

source = pathlib.Path(sys.argv[1])
host = pathlib.Path(__file__).parent / "EleventhApp"

NAME = """
each(sorrel)
"""
ROW = """
{"sorrel", "9990000011", "10A", "sorrel", Rgba{0.5F, 0.25F, 0.125F}},
"""


def add_after(path, last, addition):
    """Adds to a list whose last entry is given."""
    text = path.read_text(encoding="utf-8")
    if text.count(last) != 1:
        sys.exit(f"{path.name} does not hold {last!r} once")
    path.write_text(text.replace(last, f"{last} {addition.strip()}"), encoding="utf-8")


def run(*command):
    print("+", *command, flush=True)
    result = subprocess.run(list(map(str, command)), timeout=600, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    if result.returncode:
        sys.exit(result.stdout)


with tempfile.TemporaryDirectory() as name:
    copy, build = pathlib.Path(name) / "library", pathlib.Path(name) / "build"
    for folder in ("Resources", "Sources", "cmake"):
        shutil.copytree(source / folder, copy / folder)
    shutil.copy(source / "CMakeLists.txt", copy)

    catalogue = copy / "Sources/Catalogue"
    add_after(catalogue / "TQApp.h", "each(alder)", NAME)
    add_after(catalogue / "DeveloperIdentity.h", '{"alder", "9990000010", nullptr, "alder-page", Rgba{0, 0.6980392F, 0.7137255F}},', ROW)
    shutil.copy(copy / "Resources/Icons/birch.png", copy / "Resources/Icons/sorrel.png")

    run("cmake", "-S", host, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
        f"-DTQFOUNDATION_SOURCE_DIR={copy}")
    run("cmake", "--build", build)
    run(build / host.name)
    print("one name, one row and one icon made an app")
