"""packages_test.py BUILD: makes the Debian packages of a build folder. Neither CPack nor lintian warns, and the packages
hold the changelog, the documents and the examples."""

import pathlib
import subprocess
import sys

build = pathlib.Path(sys.argv[1])
DOCUMENTS = "./usr/share/doc/libtqfoundation-dev"
HELD = {
    "libtqfoundation1": {"./usr/share/doc/libtqfoundation1/changelog.gz"},
    "qml6-module-tqfoundation": {"./usr/share/doc/qml6-module-tqfoundation/changelog.gz"},
    "libtqfoundation-dev": {f"{DOCUMENTS}/{name}" for name in (
        "README.md", "changelog.gz", "copyright", "docs/first-app.md", "docs/pictures/guide.png",
        "examples/FirstApp/CMakeLists.txt", "examples/Grove/Main.qml", "examples/MoreHost/Main.qml")},
}
failures = []


def output_of(*command):
    result = subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            timeout=600)
    if result.returncode:
        failures.append(f"{command[0]} ended with {result.returncode}:\n{result.stdout}")
    return result.stdout


for old in (build / "packages").glob("*.deb"):
    old.unlink()
packing = output_of("cpack", "--config", build / "CPackConfig.cmake")
if "warning" in packing.lower():
    failures.append(packing)
packages = {path.name.split("_")[0]: path for path in sorted((build / "packages").glob("*.deb"))}
if set(packages) != set(HELD):
    failures.append(f"made packages {sorted(packages)}")
output_of("lintian", "--fail-on", "error,warning", "--allow-root", *packages.values())
for name, path in packages.items():
    files = {line.split(maxsplit=5)[5].split(" -> ")[0] for line in output_of("dpkg-deb", "-c", path).splitlines()}
    failures += [f"{path.name}: lacks {file}" for file in sorted(HELD[name] - files)]

print("\n".join(failures + [str(path) for path in packages.values()]))
sys.exit(bool(failures))
