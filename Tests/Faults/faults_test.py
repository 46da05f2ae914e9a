"""Runs a host on a system in which something is missing or broken. The host must show its guide and end by itself.

faults_test.py HOST FAULT [QT_PREFIX MODULES PLUGINS PROGRAMS DATA]
"""

import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

host, fault, *folders = sys.argv[1:]


def expect(holds, failure):
    if not holds:
        sys.exit(f"{fault}: {failure}")


def full_disk():
    # Makes every write fail, as on a full disk, and ignores the signal that this limit raises in addition.
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


with tempfile.TemporaryDirectory() as name:
    home = pathlib.Path(name) / "home"
    settings = home / "config/Faults/FaultyHost.conf"
    (home / "run").mkdir(parents=True, mode=0o700)
    settings.parent.mkdir(parents=True)
    environment = {"PATH": os.environ["PATH"], "HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"),
                   "XDG_RUNTIME_DIR": str(home / "run"), "TMPDIR": name, "QT_QPA_PLATFORM": "offscreen",
                   "QT_QUICK_BACKEND": "software", "QSG_RENDER_LOOP": "basic", "LC_ALL": "C.UTF-8"}
    # Options of the sanitizers.
    environment.update({key: value for key, value in os.environ.items() if key.endswith("SAN_OPTIONS")})

    def run(*arguments, **options):
        return subprocess.run([host, *arguments], env=environment, capture_output=True, text=True, timeout=50, **options)

    before = "[General]\nkept=1\n"
    arguments, options, is_stored, is_silent = (), {}, True, True
    if fault == "NoDisplay":
        arguments = ("without-display",)
        del environment["QT_QPA_PLATFORM"]
    elif fault == "NoFonts":
        (home / "fonts.conf").write_text("<fontconfig></fontconfig>", encoding="utf-8")
        environment.update(FONTCONFIG_FILE=str(home / "fonts.conf"), FONTCONFIG_PATH=name)
        is_silent = False  # Fontconfig and Qt log warnings.
    elif fault == "UnwritableHome":
        environment.update(HOME="/dev/null/home", XDG_CONFIG_HOME="/dev/null/config")
        is_stored = False
    elif fault == "FullHome":
        options, is_stored = {"preexec_fn": full_disk}, False
    elif fault == "CorruptSettings":
        before, is_stored = "\x7fELF\x02\x01\0\nname=Grove\n[Gen", False
    elif fault == "VanishingHome":
        arguments, is_stored = ("remove-home",), None
    elif fault == "LocaleC":
        environment.update(LC_ALL="C", LANG="C")
        is_silent = False  # Qt logs a warning about the encoding.
    elif fault == "TwoApps":
        processes = [subprocess.Popen([host, "store-settings", letter], env=environment) for letter in "ab"]
        expect([process.wait(50) for process in processes] == [0, 0], "an app failed")
        lines = set(settings.read_text(encoding="utf-8").split())
        expect(lines == {"[General]", "KeyOfDidShowGuide=true"} | {f"{letter}{number}={number}" for letter in "ab"
                                                                   for number in range(40)},
               f"the settings hold {sorted(lines)}")
        sys.exit(0)
    elif fault in ("NoWebEngine", "BrokenWebEngine", "WebEngine"):
        # A Qt installation with a missing, a broken or a working web engine.
        prefix, qml, plugins, programs, data = folders
        modules = pathlib.Path(name) / "modules"
        modules.mkdir()
        for module in pathlib.Path(prefix, qml).iterdir():
            if module.name != "QtWebEngine" or fault == "WebEngine":
                (modules / module.name).symlink_to(module)
        if fault == "BrokenWebEngine":
            (modules / "QtWebEngine").mkdir()
            (modules / "QtWebEngine/qmldir").write_text("module QtWebEngine\nplugin broken\n", encoding="utf-8")
            (modules / "QtWebEngine/libbroken.so").write_bytes(b"\x7fELF\x02\x01\x01")
        shutil.copy(host, name)
        (pathlib.Path(name) / "qt.conf").write_text(
            f"[Paths]\nPrefix={prefix}\nQmlImports={modules}\nPlugins={plugins}\nLibraryExecutables={programs}\n"
            f"Data={data}\n", encoding="utf-8")
        host = str(pathlib.Path(name) / pathlib.Path(host).name)
        environment.update({key: os.environ[key] for key in ("DISPLAY", "XAUTHORITY")}, QT_QPA_PLATFORM="xcb",
                           LIBGL_ALWAYS_SOFTWARE="1", QTWEBENGINE_DISABLE_SANDBOX="1")
        del environment["QT_QUICK_BACKEND"]
        shown = "sheet" if fault == "WebEngine" else "system https://beian.miit.gov.cn\nno sheet"
        for end in ([], ["close"]):
            result = run("open-filing-site", *end)
            expect(result.returncode == 0 and result.stdout.strip() == shown,
                   f"{end} {result.returncode} {result.stdout} {result.stderr}")
        sys.exit(0)
    else:
        sys.exit(f"unknown: {fault}")

    settings.write_text(before, encoding="utf-8")
    result = run(*arguments, **options)
    expect(result.returncode == 0, f"{result.returncode} {result.stdout} {result.stderr}")
    expect("more=Privacy Policy" in result.stdout, result.stdout)
    expect(not is_silent or not result.stderr, result.stderr)
    if fault == "NoDisplay":
        expect("screen=0x0@1" in result.stdout and "guide=1" in result.stdout, result.stdout)
        sys.exit(0)
    expect(result.stdout.count("completed") == 1, result.stdout)
    if is_stored is not None:
        stored = settings.read_text(encoding="utf-8") if settings.exists() else ""
        expect(("KeyOfDidShowGuide=true" in stored) == is_stored, f"the settings hold {stored!r}")
        expect(before.strip() in stored or is_stored and "kept=1" in stored, f"the settings hold {stored!r}")
