"""Which tests reach which functions and QML files: each test runs once in an instrumented build."""

import collections
import concurrent.futures
import hashlib
import json
import re
import subprocess

from . import suite
from .scratch import FOLDER, ROOT, Scratch, tracked_files

PROBE = 'readonly property int reachedByTests: {{ console.warn("reached: {}"); return 0; }}'


def with_probe(name, content):
    """A QML file that reports when it is loaded."""
    if not re.match(r"(Sources/.*|Resources/Nibs/.*)\.qml$", name):
        return content
    return re.sub(rb"^(\w[\w.]* \{)$", lambda match: match[1] + b" " + PROBE.format(name).encode(), content, count=1, flags=re.MULTILINE)


def hash_of(prefixes):
    digest = hashlib.sha1()
    for name in tracked_files():
        if name.startswith(prefixes):
            digest.update(name.encode() + b"\0" + (ROOT / name).read_bytes())
    return digest.hexdigest()[:16]


def sources_hash():
    return hash_of(("Sources/", "Resources/", "CMakeLists.txt", "cmake/"))


def tests_hash():
    return hash_of(("Tests/", "Example/"))


class Reach:
    """For each test: its duration in seconds, the functions and the QML files that it reaches."""

    def __init__(self):
        self.file = FOLDER / "reach.json"
        self.tests = {}
        self.starts = {}

    def load(self):
        self.scratch = Scratch("reach", "", f"-DTQ_REACH={ROOT}/tools/mutation/reach.cpp")
        state = {"sources": sources_hash(), "tests": tests_hash()}
        if self.file.exists():
            known = json.loads(self.file.read_text())
            if known["state"]["sources"] == state["sources"]:
                self.tests = known["tests"]
            if known["state"] == state:
                self.index()
                return
        print("finding out which test reaches which function …", flush=True)
        self.scratch.update(with_probe)
        self.collect(state)
        self.save(state)
        self.index()

    def collect(self, state):
        # A test that is known and whose file is unchanged is not run again.
        files, paths = files_of_cases(self.scratch.build)
        tests = suite.tests_of(self.scratch.build)
        (FOLDER / "home").mkdir(mode=0o700, exist_ok=True)
        waiting = [test for name, test in tests.items() if test.group < 2 and (
            name not in self.tests or self.tests[name]["file"] != files.get(test.case, state["tests"]))]
        print(f"running {len(waiting)} of {len(tests)} tests …", flush=True)
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            for number, (test, found) in enumerate(zip(waiting, pool.map(self.run, waiting)), 1):
                self.tests[test.name] = dict(found, file=files.get(test.case, state["tests"]),
                                              path=paths.get(test.first_case, ""))
                if number % 100 == 0:
                    # An interrupted run continues from here.
                    self.save(dict(state, tests=""))
        self.tests = {name: found for name, found in self.tests.items() if name in tests}

    def save(self, state):
        self.resolve()
        self.file.write_text(json.dumps({"state": state, "tests": self.tests}))

    def run(self, test):
        report = FOLDER / f"reach/{hashlib.sha1(test.name.encode()).hexdigest()[:12]}.txt"
        report.unlink(missing_ok=True)
        _, output, seconds = suite.run(test, 60, FOLDER / "home", extra=(f"TQ_REACH={report}",))
        lines = sorted(set(report.read_text().splitlines())) if report.exists() else []
        report.unlink(missing_ok=True)
        qml = sorted(set(re.findall(r"reached: (\S+\.qml)", output)))
        return {"seconds": round(seconds, 2), "raw": lines, "qml": qml}

    def resolve(self):
        """Turns addresses into files and lines."""
        addresses = collections.defaultdict(set)
        for found in self.tests.values():
            for line in found.get("raw", []):
                module, offset = line.rsplit(" ", 1)
                addresses[module].add(offset)
        where = {}
        for module, offsets in addresses.items():
            offsets = sorted(offsets)
            program = (self.scratch.build / module).resolve()
            if not program.is_relative_to(self.scratch.build.resolve()):
                # A test's own copy of the library, which may be deleted by now.
                program = self.scratch.build / program.name
            if not program.exists():
                continue
            answer = subprocess.run(["addr2line", "-e", program, *offsets], capture_output=True, text=True, check=True)
            for offset, place in zip(offsets, answer.stdout.splitlines()):
                match = re.search(r"/tree/((?:Sources)/[\w./]+):(\d+)", place)
                where[module, offset] = [match[1], int(match[2])] if match else None
        for found in self.tests.values():
            if "raw" in found:
                places = [where.get(tuple(line.rsplit(" ", 1))) for line in found.pop("raw")]
                found["functions"] = sorted({tuple(place) for place in places if place})

    def index(self):
        self.starts = collections.defaultdict(lambda: collections.defaultdict(set))
        self.qml = collections.defaultdict(set)
        for name, found in self.tests.items():
            for file, line in found["functions"]:
                self.starts[file][line].add(name)
            for file in found["qml"]:
                self.qml[file].add(name)

    def seconds(self, name):
        return self.tests[name]["seconds"] if name in self.tests else 30

    def path(self, name):
        """The file of a test's case or suite, such as Tests/Guide/TQGuideTest.cpp; empty for other tests."""
        return self.tests[name].get("path", "") if name in self.tests else ""

    def names_for(self, mutant):
        """The tests that reach a mutant: those that run its function, or load its QML file."""
        if mutant.file.endswith(".qml"):
            return set(self.qml.get(mutant.file, ()))
        for first, last in mutant.functions:
            if names := set().union(*(self.starts[mutant.file][line] for line in range(first, last + 1))):
                return names
        # Declarations outside of functions belong to the source of the same name.
        source = self.starts.get(mutant.file.removesuffix(".h") + ".cpp", {})
        return set().union(*source.values()) if mutant.file.endswith(".h") else set()


def files_of_cases(build):
    """The hash and the path of the file that defines each test case. Suites have a path too."""
    hashes, paths = {}, {}
    for program in ("Tests", "CoreTests"):
        listing = FOLDER / f"{program}.json"
        subprocess.run([build / "Tests" / program, "--gtest_list_tests", f"--gtest_output=json:{listing}"],
                       capture_output=True, check=True)
        content = {}
        for each in json.loads(listing.read_text())["testsuites"]:
            for case in each["testsuite"]:
                if case["file"] not in content:
                    with open(build / case["file"], "rb") as file:
                        content[case["file"]] = hashlib.sha1(file.read()).hexdigest()[:16]
                hashes[f"{each['name']}.{case['name']}"] = content[case["file"]]
                paths[f"{each['name']}.{case['name']}"] = case["file"][case["file"].index("/tree/") + 6:]
                paths[each["name"]] = paths[f"{each['name']}.{case['name']}"]
    return hashes, paths
