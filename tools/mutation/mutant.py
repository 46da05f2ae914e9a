"""A mutant: one small change of one file."""

import dataclasses
import hashlib
import re


@dataclasses.dataclass(frozen=True)
class Mutant:
    file: str  # relative to the root of the tree
    start: int  # offset of the first changed byte
    end: int  # offset after the last one
    new: str  # replaces these bytes
    operator: str
    line: int  # of the start, from 1
    old: str  # the bytes that are replaced
    text: str = ""  # the whole line
    functions: tuple = ()  # the functions around it, innermost first: the lines from the name to the opening brace
    owner: str = ""  # the name of the function or variable that it belongs to

    @property
    def key(self):
        """Identifies the mutant as long as its file stays the same up to there and a little after."""
        return hashlib.sha1(f"{self.file}:{self.start}:{self.old}:{self.new}".encode()).hexdigest()[:12]

    @property
    def folder(self):
        """The folder of Sources that the mutant counts for. The guide loads the nib."""
        return self.file.split("/")[1] if self.file.startswith("Sources/") else "Guide"

    def change(self):
        """The change on one line, such as `<` -> `<=`."""
        old, new = (" ".join(text.split()) for text in (self.old, self.new))
        return f"`{old[:90]}` -> `{new[:90]}`"

    def described(self):
        return f"{self.file}:{self.line} | {self.operator} | {self.text} | {self.change()}"


class Listing:
    """Collects the mutants of one file."""

    def __init__(self, file, text):
        self.file = file
        self.text = text
        self.lines = text.split(b"\n")
        self.mutants = {}
        self.declared = []

    def declare(self, start, end, name, lines=None):
        """Notes the extent of a function or variable. \a name is empty for a lambda, \a lines null for a variable."""
        self.declared.append((start, end, name, lines))

    def all(self):
        """The mutants, with the functions around them."""
        found = []
        for mutant in self.mutants.values():
            around = sorted((each for each in self.declared if each[0] <= mutant.start and mutant.end <= each[1]),
                            key=lambda each: each[1] - each[0])
            found.append(dataclasses.replace(
                mutant, functions=tuple(lines for *_, lines in around if lines),
                owner=next((name for *_, name, lines in reversed(around) if name), "")))
        return found

    def add(self, start, end, new, operator):
        old = self.text[start:end].decode()
        if old == new or (start, end, new) in self.mutants:
            return
        line = self.text.count(b"\n", 0, start)
        text = self.lines[line].decode().strip()
        self.mutants[start, end, new] = Mutant(self.file, start, end, new, operator, line + 1, old, text)


# Replacements of operators.
BOUNDARIES = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "<<": ">>", ">>": "<<", "|": "&", "&": "|",
              "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|=", "++": "--", "--": "++"}
LOGIC = {"&&": "||", "||": "&&"}


def other_operators(token):
    """Pairs of a replacement for \a token and the name of the change."""
    if token in BOUNDARIES:
        yield BOUNDARIES[token], "condition"
        if token not in ("==", "!="):
            yield {"<": ">", "<=": ">=", ">": "<", ">=": "<="}[token], "condition"
    elif token in ARITHMETIC:
        yield ARITHMETIC[token], "arithmetic"
    elif token in LOGIC:
        yield LOGIC[token], "logic"


def other_numbers(text):
    """Replacements for a number: one more, one less, zero. The suffix stays."""
    match = re.fullmatch(r"(0[xX][0-9a-fA-F']+|\d[\d']*)([uUlLzZ]*)", text)
    if match:
        value = int(match[1].replace("'", ""), 16 if match[1][:2].lower() == "0x" else 10)
        return [f"{number}{match[2]}" for number in dict.fromkeys([value + 1, value - 1, 0]) if number != value]
    match = re.fullmatch(r"(\d*\.\d*(?:[eE][-+]?\d+)?|\d+[eE][-+]?\d+)([fFlL]?)", text)
    if match:
        value = float(match[1])
        return [f"{number!r}{match[2]}" for number in dict.fromkeys([value + 1, round(value - 1, 9), 0.0])
                if number != value]
    return []
