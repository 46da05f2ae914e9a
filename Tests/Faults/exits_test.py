"""exits_test.py APP ROUNDS: ends an app at random moments while a background draws and a guide fades. It never crashes."""

import concurrent.futures
import os
import random
import subprocess
import sys

app, rounds = sys.argv[1], int(sys.argv[2])
kinds = [(way, "rhi") for way in ("exit", "quick_exit", "return", "quit", "close")]
# The software backend has a render thread on request only, and the destructor of any window may then wait for it
# forever, so these do not destroy the window.
kinds += [(way, "software") for way in ("exit", "quick_exit")]
environment = dict(os.environ, QSG_RENDER_LOOP="threaded", QSG_RHI_BACKEND="opengl", LIBGL_ALWAYS_SOFTWARE="1")


def code(number):
    moment = random.Random(number).randint(0, 400)
    way, backend = kinds[number % len(kinds)]
    result = subprocess.run([app, way, str(moment)], env=dict(environment, QT_QUICK_BACKEND=backend),
                            capture_output=True, text=True, timeout=60, check=False)
    return f"{way} {moment} {backend}", result.returncode, result.stderr.strip()


with concurrent.futures.ThreadPoolExecutor(2) as pool:
    failed = [result for result in pool.map(code, range(rounds)) if result[1] != 0]
for result in failed:
    print(*result)
print(f"{rounds} exits, {len(failed)} failed")
sys.exit(1 if failed else 0)
