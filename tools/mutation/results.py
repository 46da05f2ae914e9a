"""Verdicts that are kept, and mutants without an observable effect."""

import json
import re

from .reach import sources_hash, tests_hash
from .scratch import FOLDER
from .slot import SURVIVED


class Results:
    """The verdicts of all runs, in a file that grows line by line. They hold as long as the sources are the same; a
    mutant that survived is tried again when tests have changed."""

    def __init__(self):
        self.file = FOLDER / "results.jsonl"
        self.state = {"sources": sources_hash(), "tests": tests_hash()}
        self.known = {}
        if self.file.exists():
            for line in self.file.read_text().splitlines():
                entry = json.loads(line)
                if entry["sources"] == self.state["sources"]:
                    self.known[entry["mutant"]] = entry

    def find(self, mutant):
        entry = self.known.get(mutant.key)
        if entry and (entry["verdict"] != SURVIVED or entry["tests"] == self.state["tests"]):
            return entry
        return None

    def add(self, mutant, seed, verdict, test, seconds):
        entry = {"seed": seed, "mutant": mutant.key, "file": mutant.file, "line": mutant.line, "operator": mutant.operator,
                 "change": mutant.change(), "verdict": verdict, "test": test, "seconds": round(seconds, 1), **self.state}
        with open(self.file, "a", encoding="utf-8") as output:
            output.write(json.dumps(entry, ensure_ascii=False) + "\n")


class Equivalents:
    """The lines of tools/equivalent-mutants.txt: mutants without an observable effect."""

    def __init__(self, path):
        self.rules = []
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if not line.strip() or line.startswith("#"):
                continue
            cells = [cell.strip() for cell in line.split(" | ", 4)]
            if len(cells) != 5:
                raise SystemExit(f"{path.name}:{number}: write `file | operator | line | change | reason`.")
            self.rules.append((number, *cells))
        self.used = set()

    def reason(self, mutant):
        for number, file, operator, text, change, reason in self.rules:
            if mutant.file == file and operator in (mutant.operator, "*") and matches(mutant.text, text) \
                    and matches(mutant.change(), change):
                self.used.add(number)
                return reason
        return None

    def unused(self, mutants):
        """The lines that match no mutant."""
        for mutant in mutants:
            self.reason(mutant)
        return [" | ".join(cells[:4]) for number, *cells in self.rules if number not in self.used]


def matches(text, pattern):
    """Whether \a text is like \a pattern, in which * stands for any text."""
    return re.fullmatch(".*".join(re.escape(part) for part in pattern.split("*")), text) is not None
