"""The library never reads the wall clock, which may jump by years. Times come from Platform::mediaTime() and from Qt's
timers and animations, whose clocks are steady."""

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

print("\n".join(failures) or f"{len(files)} files, none reads the wall clock")
sys.exit(bool(failures or len(files) < 30))
