"""Adds an app to a copy of the library as docs/add-an-app.md describes (one name, one row, one icon), builds the copy
and uses the app in C++ and in QML."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

source = pathlib.Path(sys.argv[1])
host = pathlib.Path(__file__).parent / "OneMoreApp"

NAME = """
each(sorrel)
"""
ROW = """
{"sorrel", "9990000011", "10A", "sorrel", Rgba{0.5F, 0.25F, 0.125F}},
"""


def add(path, end_of_list, addition):
    """Appends to the list whose last entry the pattern matches."""
    text = path.read_text(encoding="utf-8")
    longer, count = re.subn(end_of_list, lambda found: f"{found[0]} {addition.strip()}", text, flags=re.DOTALL)
    if count != 1:
        sys.exit(f"{path.name} has {count} lists like {end_of_list}")
    path.write_text(longer, encoding="utf-8")


def run(*command):
    print("+", *command, flush=True)
    result = subprocess.run(list(map(str, command)), timeout=600, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    if result.returncode:
        sys.exit(f"ended with {result.returncode}: {result.stdout}")


with tempfile.TemporaryDirectory() as name:
    copy, build = pathlib.Path(name) / "library", pathlib.Path(name) / "build"
    for folder in ("Resources", "Sources", "Tests/Support", "cmake"):
        shutil.copytree(source / folder, copy / folder)
    shutil.copy(source / "CMakeLists.txt", copy)

    catalogue = copy / "Sources/Catalogue"
    add(catalogue / "TQApp.h", r"#define TQFOUNDATION_APPS\(each\)(\s|\\|each\(\w+\))*each\(\w+\)", NAME)
    add(catalogue / "DeveloperIdentity.h", r"App apps\[\] = \{.*?\},(?=\n\};)", ROW)
    shutil.copy(copy / "Resources/Icons/birch.png", copy / "Resources/Icons/sorrel.png")

    run("cmake", "-S", host, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
        f"-DTQFOUNDATION_SOURCE_DIR={copy}")
    run("cmake", "--build", build)
    run(build / host.name)
    print("one name, one row and one icon made an app")
