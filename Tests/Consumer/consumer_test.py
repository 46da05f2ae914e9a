"""Builds and runs a host project against the installed library, whose prefix was moved after installing."""

import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import time

build, source, tools = map(pathlib.Path, sys.argv[1:4])
hosts = pathlib.Path(__file__).parent
host = hosts / sys.argv[4]


def run(*command, **options):
    print("+", *command, flush=True)
    return subprocess.run(list(map(str, command)), check=True, timeout=580, **options)


def configure_and_build(folder, *options):
    configured = subprocess.run(["cmake", "-S", host, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", *options],
                                capture_output=True, text=True, timeout=300)
    if configured.returncode or configured.stderr:
        sys.exit(f"{host.name}: cmake ended with {configured.returncode}: {configured.stderr}")
    run("cmake", "--build", folder, stdout=subprocess.DEVNULL)


def compile_with_pkg_config(folder, prefix):
    environment = dict(os.environ, PKG_CONFIG_PATH=str(prefix / "lib/pkgconfig"))
    flags = run("pkg-config", "--cflags", "--libs", "tqfoundation", env=environment, stdout=subprocess.PIPE, text=True)
    folder.mkdir()
    run("g++", "-std=c++20", "-fPIC", host / "main.cpp", "-o", folder / host.name, *shlex.split(flags.stdout),
        f"-Wl,-rpath,{prefix}/lib")


def keep_running(*commands):
    """Fails unless every host still runs and has printed nothing three seconds after its start. All run at once."""
    hosts = [subprocess.Popen(list(map(str, command)), env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True) for command in commands]
    time.sleep(3)
    ended = [process.poll() for process in hosts]
    for process in hosts:
        process.terminate()
    outputs = [process.communicate()[0] for process in hosts]
    for command, code, output in zip(commands, ended, outputs):
        if code is not None or output:
            sys.exit(f"{command} " + ("" if code is None else f"ended with {code}, ") + f"printed: {output}")


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    # A host needs no variables for library or QML import paths.
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("QML", "LD_LIBRARY", "CMAKE_"))}
    environment.update(QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", HOME=name, XDG_CONFIG_HOME=name,
                       XDG_RUNTIME_DIR=name)
    run("cmake", "--install", build, "--prefix", folder / "first", stdout=subprocess.DEVNULL)
    prefix = (folder / "first").rename(folder / "moved")
    binary = folder / "build"
    is_shared = (prefix / "lib/pkgconfig").exists()

    if files := sorted(host.glob("*.qml")):
        lint = subprocess.run([tools / "qmllint", "-I", prefix / "lib/qml", *files], capture_output=True, text=True,
                              timeout=60)
        if lint.returncode or lint.stdout or lint.stderr:
            sys.exit(f"qmllint: {lint.returncode} {lint.stdout} {lint.stderr}")

    qml = (tools / "qml", "-I", prefix / "lib/qml")
    if host.name == "QmlOnlyHost":
        keep_running((*qml, host / "Main.qml"))
    elif host.name == "FetchedHost":
        configure_and_build(binary, f"-DFETCHCONTENT_SOURCE_DIR_TQFOUNDATION={source}", "-DCMAKE_UNITY_BUILD=ON",
                            "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0")
        keep_running((binary / host.name,))
    elif host.name == "CppHost":
        configure_and_build(binary, f"-DCMAKE_PREFIX_PATH={prefix}")
        started = [(binary / host.name,)]
        if is_shared:
            compile_with_pkg_config(folder / "pkg-config", prefix)
            started.append((folder / "pkg-config" / host.name,))
        keep_running(*started)
    elif host.name == "NewApp":
        # A name without a letter for a program's name.
        host = folder / "app"
        run(source / "tools/new-app", "「青岚」 & 1", "dogwood", host)
        configure_and_build(binary, f"-DCMAKE_PREFIX_PATH={prefix}")
        run("ctest", "--test-dir", binary, "--output-on-failure")
        keep_running((binary / "Dogwood1",))
    elif host.name == "SheetHost":
        (folder / "sendmail").write_text("#!/bin/sh\ncat >/dev/null\n")
        (folder / "sendmail").chmod(0o755)
        environment["PATH"] = f"{folder}:{environment['PATH']}"
        configure_and_build(binary, f"-DCMAKE_PREFIX_PATH={prefix}")
        run(binary / host.name, env=environment)
    elif host.name == "HostTests":
        configure_and_build(binary, f"-DCMAKE_PREFIX_PATH={prefix}")
        run("ctest", "--test-dir", binary, "--output-on-failure", env=environment)
    else:
        configure_and_build(binary, f"-DCMAKE_PREFIX_PATH={prefix}")
        started = [(binary / host.name,)]
        if host.name == "MoreHost":
            started += [(binary / host.name, "CHN"), (binary / host.name, "USA")]
        elif host.name == "FirstApp":
            started += [(*qml, host / step) for step in ("Step1.qml", "Step2.qml", "Step3.qml")]
        elif host.name == "SmallestHost" and is_shared:
            # A copy for an app without a guide.
            copy = folder / "Main.qml"
            copy.write_text((host / "Main.qml").read_text().replace("TQApp.hazel", "TQApp.fir"))
            started.append((*qml, copy))
        keep_running(*started)
