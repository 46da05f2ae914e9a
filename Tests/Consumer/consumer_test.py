"""An outside project: installs the library to a clean prefix, moves the prefix, and builds and runs a host against it."""

import os
import pathlib
import subprocess
import sys
import tempfile

build, source, qmllint = sys.argv[1:]


def run(*command, **options):
    print("+", *command, flush=True)
    subprocess.run(command, check=True, timeout=240, **options)


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    run("cmake", "--install", build, "--prefix", str(folder / "first"), stdout=subprocess.DEVNULL)
    prefix = (folder / "first").rename(folder / "moved")

    run("cmake", "-S", source, "-B", str(folder / "build"), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
        f"-DCMAKE_PREFIX_PATH={prefix}", stdout=subprocess.DEVNULL)
    run("cmake", "--build", str(folder / "build"))

    # The host's own QML, against the installed module alone.
    lint = subprocess.run([qmllint, "-I", str(prefix / "lib/qml"), *map(str, pathlib.Path(source).glob("*.qml"))],
                          capture_output=True, text=True, timeout=60)
    if lint.returncode or lint.stdout or lint.stderr:
        sys.exit(f"qmllint: {lint.returncode} {lint.stdout} {lint.stderr}")

    # A host shows its window until it is closed, so being alive and silent after its start is what passes.
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", XDG_RUNTIME_DIR=name)
    host = subprocess.Popen([str(folder / "build" / "SmallestHost")], env=environment, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True)
    try:
        output, _ = host.communicate(timeout=3)
        sys.exit(f"the host ended with {host.returncode}: {output}")
    except subprocess.TimeoutExpired:
        host.terminate()
        output, _ = host.communicate()
        sys.exit(f"the host said: {output}" if output else 0)
