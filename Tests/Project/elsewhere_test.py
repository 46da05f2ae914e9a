"""tools/elsewhere refuses what cannot work with one line of advice, and leaves nothing behind. Stubs replace the programs
that need root, a network or a full disk."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

root = pathlib.Path(sys.argv[1])
# The stubs of a machine on which everything works; unshare runs its command without a namespace.
WORKING = {"id": "echo 0", "df": "printf 'Avail\\n100\\n'", "git": "exit 0", "unshare": 'shift 3; exec "$@"',
           "mmdebstrap": "exit 0", "arch-test": "exit 0"}
CASES = {
    "unknown SUITE": (["sarge"], {}, "use bookworm, trixie, sid or bookworm-arm64"),
    "unknown SUITE for packages": (["--packages", "sarge"], {}, "use bookworm, trixie, sid or bookworm-arm64"),
    "packages for arm64": (["--packages", "bookworm-arm64"], {}, "use bookworm, trixie or sid"),
    "no arch-test": (["bookworm-arm64"], {"arch-test": None}, "apt-get install"),
    "no emulator": (["bookworm-arm64"], {"arch-test": "exit 1"}, "update-binfmts"),
    "no mirror for arm64": (["bookworm-arm64"], {"mmdebstrap": "exit 25"}, "MIRROR"),
    "no root": (["trixie"], {"id": "echo 1000"}, "sudo"),
    "no mmdebstrap": (["trixie"], {"mmdebstrap": None}, "apt-get install"),
    "no space": (["trixie"], {"df": "printf 'Avail\\n1\\n'"}, "GiB"),
    "no mirror": (["trixie"], {"mmdebstrap": "mkdir -p \"$4/etc\"; echo 'Could not connect to 192.0.2.1'; exit 25"}, "MIRROR"),
    "old mirror of sid": (["sid"], {"mmdebstrap": "echo \"Could not use $*\"; exit 25"}, 'Check-Valid-Until "false"'),
}
TOOLS = ("sh", "dirname", "mkdir", "rm", "tail", "grep", "umount")
failures = []

for name, (arguments, changes, advice) in CASES.items():
    with tempfile.TemporaryDirectory() as folder:
        tree, stubs = pathlib.Path(folder) / "tree", pathlib.Path(folder) / "stubs"
        (tree / "tools").mkdir(parents=True)
        stubs.mkdir()
        shutil.copy(root / "tools/elsewhere", tree / "tools")
        for tool in TOOLS:
            (stubs / tool).symlink_to(shutil.which(tool, path=os.defpath + ":/usr/sbin:/sbin"))
        for tool, script in {**WORKING, **changes}.items():
            if script is not None:
                (stubs / tool).write_text(f"#!/bin/sh\n{script}\n", encoding="utf-8")
                (stubs / tool).chmod(0o755)
        run = subprocess.run([tree / "tools/elsewhere", *arguments], env={"PATH": str(stubs)}, capture_output=True,
                             text=True, timeout=60)
        if run.returncode != 2 or run.stdout or len(run.stderr.splitlines()) != 1 or advice not in run.stderr:
            failures.append(f"{name}: exit code {run.returncode}, {run.stdout!r}, {run.stderr!r}")
        if left := [str(path) for path in tree.rglob("*") if path.is_file() and path.parent.name != "tools"]:
            failures.append(f"{name}: leaves {left}")

print("\n".join(failures) or f"{len(CASES)} refusals")
sys.exit(bool(failures))
