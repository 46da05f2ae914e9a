"""Judges one mutant at a time in a scratch copy."""

import collections
import os
import pathlib
import re
import subprocess

from . import suite
from .scratch import FOLDER, Scratch

CAUGHT, SURVIVED, INVALID = "caught", "survived", "does not compile"


class Slot:
    """A build in which one mutant at a time is compiled and tested."""

    def __init__(self, number, reach):
        self.scratch = Scratch(str(number))
        self.reach = reach
        self.home = FOLDER / f"home{number}"
        self.green = set()  # tests that were seen to pass without a mutant
        self.unusable = set()  # tests that fail without one

    def prepare(self):
        self.home.mkdir(parents=True, exist_ok=True)
        self.home.chmod(0o700)
        self.scratch.update()
        self.tests = suite.tests_of(self.scratch.build)
        listed = subprocess.run(["ninja", "-C", self.scratch.build, "-t", "deps"], capture_output=True, text=True, check=True)
        self.texts = {}
        self.includers = collections.defaultdict(list)
        target = ""
        for line in listed.stdout.splitlines():
            if line.startswith("    "):
                self.includers[os.path.normpath(self.scratch.build / line.strip())].append(target)
            elif line:
                target = line.split(":")[0]

    def text(self, file):
        if file not in self.texts:
            self.texts[file] = pathlib.Path(file).read_text(errors="replace")
        return self.texts[file]

    def judge(self, mutant):
        """The verdict on a mutant, and the test that caught it."""
        path = self.scratch.tree / mutant.file
        original, status = path.read_bytes(), path.stat()
        try:
            path.write_bytes(original[:mutant.start] + mutant.new.encode() + original[mutant.end:])
            self.mutant, self.original, self.changed = mutant, original, path.read_bytes()
            stages = self.stages(path)
            for self.targets in stages:
                self.is_last = self.targets is stages[-1]
                self.built = set()
                self.mark_changed(status)
                found = self.verdict()
                if found[0] != SURVIVED:
                    break
            return found
        finally:
            path.write_bytes(original)
            os.utime(path, ns=(status.st_atime_ns, status.st_mtime_ns))
            self.scratch.restore()

    def stages(self, path):
        """The objects to compile again, stage by stage. Those that include a header take minutes, so its own test comes
        first."""
        # A macro that moc reads changes a generated file, too.
        if path.suffix != ".h" or self.mutant.text.startswith(("Q_", "QML_")):
            return [None]
        targets = affected(self, path)
        first = [target for target in targets if f"/{path.stem}Test.cpp" in target]
        return [first, targets] if first else [targets]

    def mark_changed(self, status):
        """Of a header's includers, only those are compiled again that mention what changed."""
        if self.targets is None:
            return
        path = self.scratch.tree / self.mutant.file
        os.utime(path, ns=(status.st_atime_ns, status.st_mtime_ns))
        for target in self.targets:
            (self.scratch.build / target).unlink(missing_ok=True)

    def build(self, target):
        if target not in self.built and not self.scratch.compile([target]):
            return False
        self.built.add(target)
        return True

    def verdict(self):
        groups = self.candidates()
        if not any(groups) and not self.build("TQFoundation"):
            return INVALID, ""
        # A mutant that no test notices in 90 seconds of tests, the likeliest first, counts as a survivor.
        left = 90.0
        for tests in groups:
            batches = collections.defaultdict(list)
            for test in tests:
                batches[test.suite].append(test)
            for batch in batches.values():
                if left > 0 and (found := self.try_batch(batch)):
                    return found
                left -= sum(self.reach.seconds(test.name) for test in batch)
        # Tests of one process may hide a failure from each other.
        left = 20.0
        for tests in groups:
            sizes = collections.Counter(test.suite for test in tests)
            for test in tests:
                left -= self.reach.seconds(test.name)
                if sizes[test.suite] > 1 and left > 0 and (found := self.try_alone(test)):
                    return found
        return SURVIVED, ""

    def candidates(self):
        """The tests that may notice the mutant, in the order of their chance to do so in little time."""
        mutant = self.mutant
        names = self.reach.names_for(mutant)
        is_reached = bool(names)
        usable = {name: test for name, test in self.tests.items() if name not in self.unusable}
        if not names:
            names = set(usable)
        stem, folder = pathlib.Path(mutant.file).stem, mutant.folder
        if mutant.file.endswith(".h"):
            names |= {name for name in usable if self.reach.path(name).startswith(f"Tests/{folder}/{stem}")}

        def order(test):
            path = self.reach.path(test.name)
            return (not path.startswith(f"Tests/{folder}/{stem}"), f"/{folder}/" not in path, self.reach.seconds(test.name))

        if not self.is_last:
            own = {name for name in names if self.reach.path(name).startswith(f"Tests/{folder}/{stem}Test")}
            names = own or names
        chosen = [usable[name] for name in names if name in usable]
        translations = []
        if mutant.operator == "text" and not mutant.functions:
            translations = [usable[name] for name in ("Translations",) if name in usable]
        first, windows, last = (sorted((test for test in chosen if test.group == group), key=order) for group in range(3))
        # Checks of the tree are quick; hosts take long to build.
        checks = [test for test in last if "host" not in test.labels]
        hosts = [test for test in last if "host" in test.labels and mutant.functions]
        return [translations, first, checks, windows, [] if is_reached else hosts]

    def try_batch(self, batch):
        batch = [test for test in batch if test.name not in self.unusable]
        if len(batch) < 2:
            return self.try_alone(batch[0]) if batch else None
        if not self.build_for(batch[0]):
            return INVALID, ""
        limit = 20 + 10 * sum(self.reach.seconds(test.name) for test in batch)
        code, output, _ = suite.run(batch[0], limit, self.home, [test.case for test in batch])
        if code == 0:
            return None
        case = suite.first_red(output)
        suspects = [test for test in batch if test.case == case] or batch
        for test in suspects:
            if found := self.try_alone(test):
                return found
        rest = [test for test in batch if test not in suspects]
        for test in rest:
            if found := self.try_alone(test):
                return found
        return None

    def try_alone(self, test):
        """Runs one test. It counts if it fails twice, and passes without the mutant."""
        if test.name in self.unusable:
            return None
        if not self.build_for(test):
            return INVALID, ""
        limit = 20 + 10 * self.reach.seconds(test.name)
        code, _, _ = suite.run(test, limit, self.home)
        if code == 0:
            return None
        if code != "time" and suite.run(test, limit, self.home)[0] == 0:
            return None
        return (CAUGHT, test.name) if self.is_green(test) else None

    def is_green(self, test):
        if test.name not in self.green:
            path = self.scratch.tree / self.mutant.file
            changed_status = path.stat()
            path.write_bytes(self.original)
            self.scratch.restore()
            # The test program itself is not built again: the clean build is complete.
            code, _, _ = suite.run(test, 20 + 10 * self.reach.seconds(test.name), self.home)
            if code == 0:
                self.green.add(test.name)
                return True
            self.unusable.add(test.name)
            print(f"    {test.name} fails without a mutant; it is left out", flush=True)
            path.write_bytes(self.changed)
            self.built = set()
            self.mark_changed(changed_status)
            return False
        return True

    def build_for(self, test):
        """Compiles the programs that a test runs."""
        prefix = f"{self.scratch.build}/"
        programs = [word[len(prefix):] for word in test.command
                    if word.startswith(prefix) and os.path.isfile(word) and os.access(word, os.X_OK)]
        return all(self.build(program) for program in programs or ["TQFoundation"])


def affected(slot, header):
    """The objects that change with a function or variable of a header."""
    includers = slot.includers[str(header)]
    owner = slot.mutant.owner
    line = header.read_text().splitlines()[slot.mutant.line - 1]
    # Every constructor sets a member's default value, also those that the compiler writes.
    is_default = re.match(rf" +(?!static|constexpr|inline)[\w:<>*, ]+ {re.escape(owner)}( = |\{{)", line)
    if not re.fullmatch(r"\w+", owner) or owner == header.stem or is_default:
        return includers
    names = {owner}
    # Other functions of the header that use it.
    bodies = re.split(r"\n\s*\n", header.read_text())
    while True:
        more = {name for body in bodies if mentions(body, names) for name in re.findall(r"\b([A-Za-z_]\w+)(?=\()|\b(\w+) ?=", body)
                for name in name if name}
        if more <= names:
            break
        names |= more
    if "operator" in names:
        return includers
    chosen = []
    for target in includers:
        files = [file for file, targets in slot.includers.items()
                 if target in targets and file.startswith(str(slot.scratch.folder)) and file != str(header)]
        if any(mentions(slot.text(file), names) for file in files):
            chosen.append(target)
    return chosen or includers


def mentions(text, names):
    return not names.isdisjoint(re.findall(r"\w+", text))
