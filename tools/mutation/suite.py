"""The tests of a build, and running them."""

import dataclasses
import json
import os
import pathlib
import re
import signal
import subprocess
import time

# Tests of these labels run in order; those of the last group only if no other test reaches a line.
FIRST, LAST = {"unit", "core", "interop"}, {"docs", "host", "project", "qml", "shaders", "slow", "threads"}


@dataclasses.dataclass(frozen=True)
class Test:
    name: str
    command: tuple
    environment: tuple
    labels: tuple
    folder: str

    @property
    def group(self):
        return 0 if FIRST & set(self.labels) else 2 if LAST & set(self.labels) else 1

    @property
    def case(self):
        """The test case if the test is one of an executable."""
        match = re.fullmatch(r"--gtest_filter=([\w/]+\.[\w/]+)", self.command[1]) if len(self.command) > 1 else None
        return match[1] if match else None

    @property
    def first_case(self):
        """The test case, or the suite that the test begins with."""
        match = re.search(r"--gtest_filter=([\w/]+)\.", " ".join(self.command))
        return self.case or match and match[1]

    @property
    def suite(self):
        return (self.command[0], self.case.split(".")[0], self.environment) if self.case else self.name


def tests_of(build):
    """The tests that CTest knows, by name."""
    shown = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], capture_output=True, text=True, check=True)
    tests = {}
    for entry in json.loads(shown.stdout)["tests"]:
        properties = {each["name"]: each["value"] for each in entry.get("properties", [])}
        if "command" in entry and not properties.get("DISABLED"):
            tests[entry["name"]] = Test(entry["name"], tuple(entry["command"]), tuple(properties.get("ENVIRONMENT", [])),
                                        tuple(properties.get("LABELS", [])), properties.get("WORKING_DIRECTORY", str(build)))
    return tests


def run(test, limit, home, cases=(), extra=()):
    """Runs a test, or several \a cases of its executable. Returns the exit code, "time" after \a limit seconds, the
    output and the seconds that it took."""
    command = list(test.command)
    if cases:
        command = [command[0], "--gtest_filter=" + ":".join(cases), "--gtest_fail_fast"]
    environment = dict(os.environ, XDG_RUNTIME_DIR=str(home), **dict(each.split("=", 1) for each in (*test.environment, *extra)))
    begin = time.monotonic()
    pathlib.Path(test.folder).mkdir(parents=True, exist_ok=True)
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                               env=environment, cwd=test.folder, start_new_session=True)
    try:
        output = process.communicate(timeout=limit)[0]
        code = process.returncode
    except subprocess.TimeoutExpired:
        output, code = b"", "time"
    # Also the programs that the test started.
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()
    return code, output.decode(errors="replace"), time.monotonic() - begin


def first_red(output):
    """The test case that failed or was running at the end."""
    failed = re.search(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    started = re.findall(r"^\[ RUN      \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    return failed[1] if failed else started[-1] if started else None
