"""links_test.py ROOT BUILD: files, folders and pictures to which the documents link exist, in the source tree and among
the installed files of a build folder."""

import pathlib
import re
import subprocess
import sys
import tempfile

from tree import tracked

root, build = map(pathlib.Path, sys.argv[1:])
counts, failures = {}, []


def check(place, pages):
    counts[place] = 0
    for page in pages:
        for link in re.findall(r'(?:\]\(|src=")(?!https?:)([^)#"]+)', page.read_text(encoding="utf-8")):
            counts[place] += 1
            if not (page.parent / link).exists():
                failures.append(f"{place}: {page.name} links to {link}, which is missing")


check("source tree", [root / path for path in tracked(root) if path.suffix == ".md"])
with tempfile.TemporaryDirectory() as prefix:
    subprocess.run(["cmake", "--install", build, "--component", "development", "--prefix", prefix], check=True,
                   stdout=subprocess.DEVNULL)
    check("installed", pathlib.Path(prefix).rglob("*.md"))

print("\n".join(failures) or ", ".join(f"{place}: {count} links" for place, count in counts.items()))
sys.exit(bool(failures or not all(counts.values())))
