"""The user's clock may jump by years: nothing in the library reads it. Times come from Platform::mediaTime() and from
the toolkit's timers and animations, whose clocks never jump."""

import pathlib
import re
import sys

CLOCKS = (r"current(?:DateTime(?:Utc)?|Date|Time|MSecsSinceEpoch|SecsSinceEpoch)\b|\bsystem_clock\b|\bhigh_resolution_clock\b"
          r"|\bgettimeofday\b|\bclock_gettime\b|\b(?:std::)?time\s*\(\s*(?:0|NULL|nullptr)\s*\)|\blocaltime|\bgmtime"
          r"|\bDate\s*\(|\bDate\.now\b|\bQDeadlineTimer\b.*CoarseTimer")

root = pathlib.Path(sys.argv[1])
failures = []
files = [path for folder in ("Sources", "Resources") for path in sorted((root / folder).rglob("*"))
         if path.suffix in (".h", ".cpp", ".qml", ".js")]
for path in files:
    found = [match.group() for match in re.finditer(CLOCKS, path.read_text(encoding="utf-8"))]
    if found:
        failures.append(f"{path}: reads {found}")

print("\n".join(failures) or f"{len(files)} files, none of which keeps time by the user's clock")
sys.exit(bool(failures or len(files) < 30))
