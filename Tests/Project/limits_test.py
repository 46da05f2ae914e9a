"""Limits that keep the code readable at a glance: lengths of files and functions, a contract in each header, and the
share of comments. Functions are found by the braces that clang-format puts on lines of their own."""

import pathlib
import re
import sys

from tree import tracked

root = pathlib.Path(sys.argv[1])
CODE = (".cpp", ".h", ".qml", ".vert", ".frag")
PRODUCT = ("Sources", "Resources", "Example")
LONGEST_FILE, LONGEST_FUNCTION, LONGEST_TEST = 350, 45, 600
HEADER_SHARE, SOURCE_SHARE = (0.30, 0.45), (0, 0.06)
failures = []

# Files by path, as lists of lines.
files = {path: (root / path).read_text(encoding="utf-8").splitlines() for path in tracked(root)
         if path.parts[0] in (*PRODUCT, "Tests", "Fuzzers", "Benchmarks") and path.suffix in CODE}


def functions(lines):
    """The functions of a C++ file: number of the first line, number of the last, the first line."""
    for number, line in enumerate(lines):
        if line.strip() != "{":
            continue
        end = next((k for k in range(number, len(lines)) if re.match(rf"{line[:-1]}}}", lines[k])), number)
        if lines[end].rstrip() != line[:-1] + "}":
            continue  # A type or a table ends with a semicolon.
        start = number
        while start > 0 and re.search(r"[\w,()&|<>\]\"]$", lines[start - 1]) and not re.match(r"\s*(//|#|public|private|protected)", lines[start - 1]):
            start -= 1
        yield start, end, lines[start].strip()


def qml_functions(lines):
    """The JavaScript functions and signal handlers of a QML file, likewise."""
    for number, line in enumerate(lines):
        match = re.match(r"( *)(function \w+\(|on\w+: (\(?[\w, ]*\)? => |function ?\(.*\) )?\{$)", line)
        if match and line.endswith("{"):
            end = next((k for k in range(number, len(lines)) if lines[k] == match[1] + "}"), number)
            yield number, end, line.strip()


def has_contract(path, lines):
    """Whether a comment stands before the type that the header is named after; without such a type, before its namespace
    or its first declaration."""
    declaration = r"(?!using|namespace|extern|static_assert|Q_|QT_|[{}])[A-Za-z]"
    forward = r"(class|struct|enum class) [\w:]+;"
    named = [k for k, line in enumerate(lines)
             if re.match(rf"(class|struct|enum class) (\w+_EXPORT )?{path.stem}\b(?!;)", line)]
    others = [k for k, line in enumerate(lines) if re.match(declaration, line) and not re.match(forward, line)]
    spaces = [k for k, line in enumerate(lines) if line.startswith("namespace")]
    if not named and (not others or any(lines[k - 1].startswith("///") for k in spaces)):
        return True
    start = (named or others)[0]
    while start > 0 and re.match(r"template|\[\[", lines[start - 1]):
        start -= 1
    return lines[start - 1].startswith("///")


def share_of_comments(suffix):
    written = [line.strip() for path, lines in files.items() if path.parts[0] == "Sources" and path.suffix == suffix
               for line in lines if line.strip()]
    return sum(line.startswith("//") for line in written) / max(1, len(written))


for path, lines in files.items():
    is_product = path.parts[0] in PRODUCT
    longest = LONGEST_FILE if is_product else LONGEST_TEST
    if len(lines) > longest:
        failures.append(f"{path}: {len(lines)} lines, more than {longest}")
    for start, end, name in (qml_functions if path.suffix == ".qml" else functions)(lines):
        # A test or fuzz target may be one long table.
        if is_product and end - start + 1 > LONGEST_FUNCTION:
            failures.append(f"{path}:{start + 1}: {end - start + 1} lines, more than {LONGEST_FUNCTION}: {name}")
    if path.parts[0] == "Sources" and path.suffix == ".h" and not has_contract(path, lines):
        failures.append(f"{path}: no contract (///) before its main declaration")

shares = {"headers": (share_of_comments(".h"), HEADER_SHARE), "sources": (share_of_comments(".cpp"), SOURCE_SHARE)}
failures += [f"Sources: {share:.1%} of the {kind}' lines are comments, not {low:.0%} to {high:.0%}"
             for kind, (share, (low, high)) in shares.items() if not low <= share <= high]

print("\n".join(failures) or f"{len(files)} files; comments: "
      + ", ".join(f"{share:.1%} of the {kind}" for kind, (share, _) in shares.items()))
sys.exit(bool(failures or len(files) < 100))
