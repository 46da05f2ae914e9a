"""Outside projects: installs the library to a clean prefix, moves the prefix, and builds and runs each host against it."""

import os
import pathlib
import subprocess
import sys
import tempfile

build, qmllint, *sources = sys.argv[1:]


def run(*command, **options):
    print("+", *command, flush=True)
    subprocess.run(command, check=True, timeout=240, **options)


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    run("cmake", "--install", build, "--prefix", str(folder / "first"), stdout=subprocess.DEVNULL)
    prefix = (folder / "first").rename(folder / "moved")

    for source in map(pathlib.Path, sources):
        binary = folder / source.name
        run("cmake", "-S", str(source), "-B", str(binary), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
            f"-DCMAKE_PREFIX_PATH={prefix}", stdout=subprocess.DEVNULL)
        run("cmake", "--build", str(binary))

        # The host's own QML, against the installed module alone.
        if files := [str(file) for file in source.glob("*.qml")]:
            lint = subprocess.run([qmllint, "-I", str(prefix / "lib/qml"), *files],
                                  capture_output=True, text=True, timeout=60)
            if lint.returncode or lint.stdout or lint.stderr:
                sys.exit(f"qmllint: {lint.returncode} {lint.stdout} {lint.stderr}")

        # A host shows its window until it is closed, so being alive and silent after its start is what passes.
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", HOME=name,
                           XDG_CONFIG_HOME=name, XDG_RUNTIME_DIR=name)
        host = subprocess.Popen([str(binary / source.name)], env=environment, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True)
        try:
            output, _ = host.communicate(timeout=3)
            sys.exit(f"{source.name} ended with {host.returncode}: {output}")
        except subprocess.TimeoutExpired:
            host.terminate()
            output, _ = host.communicate()
            if output:
                sys.exit(f"{source.name} said: {output}")
