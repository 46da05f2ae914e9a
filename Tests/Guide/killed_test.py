"""Kills an app at random moments while it finishes its guide. Its settings are either old or new, never broken, and no
copy of them is left behind, unless the kill falls between two system calls: one gives the new file a name, and the next
puts it in place of the old file."""

import concurrent.futures
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time

app, rounds = sys.argv[1], int(sys.argv[2])
# Large, so that writing takes some time.
others = {f"Other{number}": "x" * 500 for number in range(200)}


def entries(path):
    text = path.read_text(encoding="utf-8")
    lines = [line for line in text.splitlines() if line and not line.startswith("[")]
    assert all("=" in line for line in lines), "a broken line"
    return dict(line.split("=", 1) for line in lines)


def one_round(seed):
    moment = random.Random(seed).uniform(0, 0.04)
    with tempfile.TemporaryDirectory() as home:
        path = pathlib.Path(home, "TQFoundation", "KilledFlow.conf")
        path.parent.mkdir()
        path.write_text("[General]\n" + "".join(f"{key}={value}\n" for key, value in others.items()), encoding="utf-8")
        temporary = pathlib.Path(home, "tmp")
        temporary.mkdir()
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, TMPDIR=str(temporary),
                           QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software")
        with subprocess.Popen([app], env=environment, stdout=subprocess.PIPE, text=True) as process:
            assert process.stdout.readline() == "1\n", "the guide was not to be shown"
            time.sleep(moment)
            process.kill()
        found = entries(path)
        flag = found.pop("KeyOfDidShowGuide", None)
        assert flag in (None, "true"), f"half a flag: {flag}"
        assert found == others, "settings of the app are lost"
        # QSettings cannot remove its lock any more. The next app that stores something does.
        left = {entry.name for folder in (path.parent, temporary) for entry in folder.iterdir()}
        copies = [name for name in left if re.fullmatch(re.escape(path.name) + r"\.\w{6}", name)]
        assert left <= {path.name, path.name + ".lock", *copies}, f"left behind: {left}"
        if flag is None and len(left) > 1 and seed % 10 == 0:
            with subprocess.Popen([app], env=environment, stdout=subprocess.DEVNULL) as process:
                deadline = time.monotonic() + 60
                while pathlib.Path(path.parent, path.name + ".lock").exists() or len(entries(path)) == len(others):
                    assert time.monotonic() < deadline, "the lock of the killed app is still there"
                    time.sleep(0.02)
                process.kill()
        return flag is not None, len(copies)


with concurrent.futures.ThreadPoolExecutor(2) as pool:
    results = list(pool.map(one_round, range(rounds)))
written, copies = (sum(counts) for counts in zip(*results))
print(f"killed {rounds} times: {rounds - written} times before the flag was stored, {written} times after; "
      f"{copies} copies left behind")
assert copies <= rounds / 50, "too many copies of the settings"
sys.exit(0 if rounds < 50 or 0 < written < rounds else "every moment was on one side")
