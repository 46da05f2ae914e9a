"""The tracked baked shaders are up to date with their sources. Other versions of the shader baker write other files, so
only the version that baked them is compared."""

import os
import pathlib
import subprocess
import sys
import tempfile

BAKED_BY = "qsb 6.4"

root = pathlib.Path(sys.argv[1])
os.environ["PATH"] += ":/usr/lib/qt6/bin"
version = subprocess.run(["qsb", "--version"], check=True, capture_output=True, text=True).stdout.strip()
failures = []
with tempfile.TemporaryDirectory() as folder:
    subprocess.run([root / "tools/bake-shaders", folder], check=True)
    baked = sorted(pathlib.Path(folder).glob("*.qsb"))
    for path in baked:
        tracked = root / "Sources/Drawing/Shaders" / path.name
        if not tracked.exists():
            failures.append(f"{path.name} is missing: run tools/bake-shaders")
        elif version.startswith(BAKED_BY) and path.read_bytes() != tracked.read_bytes():
            failures.append(f"{path.name} is out of date: run tools/bake-shaders")

print("\n".join(failures) or f"{len(baked)} shaders, "
      + ("all up to date" if version.startswith(BAKED_BY) else f"not compared: {version} is not {BAKED_BY}"))
sys.exit(bool(failures or not baked))
