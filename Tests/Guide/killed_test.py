"""Kills an app at random moments while it finishes its guide: its settings are wholly old or wholly new, never broken."""

import concurrent.futures
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

app, rounds = sys.argv[1], int(sys.argv[2])
# Large, so that writing takes its time.
others = {f"Other{number}": "x" * 500 for number in range(200)}


def entries(path):
    text = path.read_text(encoding="utf-8")
    lines = [line for line in text.splitlines() if line and not line.startswith("[")]
    assert all("=" in line for line in lines), "a broken line"
    return dict(line.split("=", 1) for line in lines)


def one_round(seed):
    moment = random.Random(seed).uniform(0, 0.02)
    with tempfile.TemporaryDirectory() as home:
        path = pathlib.Path(home, "TQFoundation", "KilledFlow.conf")
        path.parent.mkdir()
        path.write_text("[General]\n" + "".join(f"{key}={value}\n" for key, value in others.items()), encoding="utf-8")
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home,
                           QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software")
        with subprocess.Popen([app], env=environment, stdout=subprocess.PIPE, text=True) as process:
            assert process.stdout.readline() == "1\n", "the guide was not to be shown"
            time.sleep(moment)
            process.kill()
        found = entries(path)
        flag = found.pop("KeyOfDidShowGuide", None)
        assert flag in (None, "true"), f"half a flag: {flag}"
        assert found == others, "settings of the app are lost"
        return flag is not None


with concurrent.futures.ThreadPoolExecutor(2) as pool:
    written = sum(pool.map(one_round, range(rounds)))
print(f"killed {rounds} times: {rounds - written} times before the flag was stored, {written} times after")
sys.exit(0 if rounds < 50 or 0 < written < rounds else "every moment was on one side")
