"""Ends an app at random moments while a background draws and a guide fades. It never crashes.

Without exit(), which does not wait for the render thread: even a bare window that draws crashes in Qt then at times."""

import concurrent.futures
import os
import random
import subprocess
import sys

app, rounds = sys.argv[1], int(sys.argv[2])
ways = ("quick_exit", "quit", "close")
environment = dict(os.environ, QSG_RENDER_LOOP="threaded", LIBGL_ALWAYS_SOFTWARE="1")


def code(number):
    moment = random.Random(number).randint(0, 400)
    arguments = [app, ways[number % len(ways)], str(moment)]
    result = subprocess.run(arguments, env=environment, capture_output=True, text=True, timeout=60, check=False)
    return " ".join(arguments[1:]), result.returncode, result.stderr.strip()


with concurrent.futures.ThreadPoolExecutor(2) as pool:
    failed = [result for result in pool.map(code, range(rounds)) if result[1] != 0]
for result in failed:
    print(*result)
print(f"{rounds} exits, {len(failed)} failed")
sys.exit(1 if failed else 0)
