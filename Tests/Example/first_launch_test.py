"""First launch of the example in a real window: clicks walk through the guide, and it is not shown a second time.

Needs an X server; runs under xvfb-run."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

grove = sys.argv[1]
flag = "KeyOfDidShowGuide=true"


def settings(home):
    return "".join(path.read_text(encoding="utf-8") for path in pathlib.Path(home).glob("TQ Studio/*.conf"))


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], capture_output=True, text=True).stdout.split()


class App:
    """The running example, its window at the given place: started on entry, killed on exit."""

    def __init__(self, home, *options, left=0):
        self.home, self.left = home, str(left)
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, QT_QPA_PLATFORM="xcb",
                           QT_SCALE_FACTOR="1", LIBGL_ALWAYS_SOFTWARE="1")
        self.process = subprocess.Popen([grove, "--app", "hazel", "--language", "en", *options], env=environment)

    def __enter__(self):
        deadline = time.monotonic() + 30
        while not (found := xdotool("search", "--onlyvisible", "--pid", str(self.process.pid))):
            assert time.monotonic() < deadline and self.process.poll() is None, "no window"
            time.sleep(0.1)
        self.window = found[-1]
        xdotool("windowmove", self.window, self.left, "0")
        time.sleep(1)  # first frame and fade-in
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def click_next(*apps):
    """Clicks the guide's next button in each app. Nothing below it stores a setting."""
    for app in apps:
        xdotool("mousemove", "--window", app.window, "329", "783", "click", "1")
    time.sleep(1.5)  # the next paragraph takes 0.8 s, longer on a busy machine


with tempfile.TemporaryDirectory() as home, tempfile.TemporaryDirectory() as other_home:
    pathlib.Path(other_home, "TQ Studio").mkdir()
    pathlib.Path(other_home, "TQ Studio/Grove hazel.conf").write_text(f"[General]\n{flag}\n", encoding="utf-8")
    with App(home) as app, App(other_home, "--reset-guide", left=500) as reset:
        for paragraph in range(6):
            assert flag not in settings(home), f"stored before click {paragraph + 1}"
            assert flag not in settings(other_home), f"--reset-guide kept the flag until click {paragraph + 1}"
            click_next(app, reset)
        assert flag in settings(home), "the sixth click did not end the guide"
        assert flag in settings(other_home), "--reset-guide did not show the guide again"
    stored = settings(home)
    with App(home) as app:
        for _ in range(2):
            click_next(app)
    assert settings(home) == stored
print("the guide ends after 6 clicks, is not shown again, and is shown again after --reset-guide")
