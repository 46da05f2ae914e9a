"""The installed example: menu entry, AppStream metadata, icon and program belong together and are valid."""

import configparser
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

source, build = map(pathlib.Path, sys.argv[1:3])
failures = []


def expect(holds, failure):
    if not holds:
        failures.append(failure)


with tempfile.TemporaryDirectory() as name:
    prefix = pathlib.Path(name)
    subprocess.run(["cmake", "--install", build, "--prefix", prefix, "--component", "example"], check=True,
                   stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--install", build, "--prefix", prefix, "--component", "runtime"], check=True,
                   stdout=subprocess.DEVNULL)
    metainfo, = prefix.glob("share/metainfo/*.metainfo.xml")
    result = subprocess.run(["appstreamcli", "validate", "--no-net", "--pedantic", metainfo], capture_output=True, text=True)
    expect(result.returncode == 0, result.stdout)

    component = ElementTree.parse(metainfo).getroot()
    app_id = component.findtext("id")
    entry_file = prefix / "share/applications" / component.findtext("launchable")
    expect(metainfo.name == f"{app_id}.metainfo.xml", f"{metainfo.name} is not named after {app_id}")
    expect(entry_file.name == f"{app_id}.desktop", f"{entry_file.name} is not named after {app_id}")
    version = re.search(r'VERSION "([\d.]+)"', (source / "Example/CMakeLists.txt").read_text(encoding="utf-8"))[1]
    newest = component.find("releases/release").get("version")
    expect(newest == version, f"the newest release is {newest}, the example's version {version}")

    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(entry_file, encoding="utf-8")
    entry = parser["Desktop Entry"]
    expect(entry["Type"] == "Application" and entry["Terminal"] == "false", "the menu entry is not a graphical program")
    expect(entry["Name"] == component.findtext("name"), "the names differ")
    expect(entry["Categories"].endswith(";"), "Categories does not end with a semicolon")
    icon = prefix / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg"
    expect(icon.exists(), f"{icon.name} is not installed")
    program = prefix / "bin" / entry["Exec"]
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=name)
    help_text = subprocess.run([program, "--help"], env=environment, capture_output=True, text=True, timeout=60)
    expect(help_text.returncode == 0 and "--storefront" in help_text.stdout, f"{program.name} does not start: {help_text.stderr}")
    main = (source / "Example/main.cpp").read_text(encoding="utf-8")
    expect(f'setDesktopFileName(QStringLiteral("{app_id}"))' in main, "the window does not name its menu entry")

print("\n".join(failures) or f"{app_id} {version}: program, menu entry, metadata and icon")
sys.exit(bool(failures))
