"""REUSE.toml states a copyright holder and a licence for every file, and the text of each licence is there."""

import pathlib
import re
import sys
import tomllib

from tree import tracked

root = pathlib.Path(sys.argv[1])
# Licence texts have no licence of their own.
EXEMPT = re.compile(r"LICENSE|LICENSES/.*|REUSE\.toml")
failures = []


def pattern(glob):
    """A regular expression for a path of REUSE.toml: * stays within a folder, ** does not."""
    parts = re.split(r"(\*\*|\*)", glob)
    return re.compile("".join({"**": ".*", "*": "[^/]*"}.get(part, re.escape(part)) for part in parts))


reuse = tomllib.loads((root / "REUSE.toml").read_text(encoding="utf-8"))
if reuse.get("version") != 1:
    failures.append("REUSE.toml: version is not 1")
patterns = []
for annotation in reuse["annotations"]:
    globs = annotation["path"] if isinstance(annotation["path"], list) else [annotation["path"]]
    patterns += [pattern(glob) for glob in globs]
    licence, holder = annotation["SPDX-License-Identifier"], annotation["SPDX-FileCopyrightText"]
    text = root / f"LICENSES/{licence}.txt"
    if not text.exists():
        failures.append(f"{text.relative_to(root)}: missing")
    elif f"Copyright (c) {holder}" not in text.read_text(encoding="utf-8"):
        failures.append(f"REUSE.toml: '{holder}' is not the copyright holder of {text.relative_to(root)}")
if (root / "LICENSE").read_text(encoding="utf-8") != (root / "LICENSES/MIT.txt").read_text(encoding="utf-8"):
    failures.append("LICENSE and LICENSES/MIT.txt differ")

paths = [str(path) for path in tracked(root)]
failures += [f"{path}: not covered by REUSE.toml" for path in paths
             if not EXEMPT.fullmatch(path) and not any(each.fullmatch(path) for each in patterns)]

print("\n".join(failures) or f"{len(paths)} files, each with a licence")
sys.exit(bool(failures or not paths))
