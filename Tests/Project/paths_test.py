"""No two paths of the tree differ only in case or in Unicode normalisation: file systems of macOS and Windows would
merge them."""

import pathlib
import sys
import unicodedata

from tree import tracked

spellings = {}
files = tracked(pathlib.Path(sys.argv[1]))
for file in files:
    for path in (file, *file.parents):
        spellings.setdefault(unicodedata.normalize("NFC", str(path)).casefold(), set()).add(str(path))
failures = [f"{' and '.join(sorted(paths))}: differ only in case" for paths in spellings.values() if len(paths) > 1]

print("\n".join(failures) or f"{len(files)} files, all distinct on every file system")
sys.exit(bool(failures or not files))
