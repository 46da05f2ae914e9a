"""The tracked baked shaders are up to date with their sources."""

import pathlib
import subprocess
import sys
import tempfile

root = pathlib.Path(sys.argv[1])
failures = []
with tempfile.TemporaryDirectory() as folder:
    subprocess.run([root / "tools/bake-shaders", folder], check=True)
    baked = sorted(pathlib.Path(folder).glob("*.qsb"))
    for path in baked:
        if path.read_bytes() != (root / "Sources/Drawing/Shaders" / path.name).read_bytes():
            failures.append(f"{path.name} is out of date: run tools/bake-shaders")

print("\n".join(failures) or f"{len(baked)} shaders, all up to date")
sys.exit(bool(failures) or not baked)
