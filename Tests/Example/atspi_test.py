"""The example as a screen reader gets it: over the accessibility bus (AT-SPI) of an X session.

Reads the trees of the home and More screens, the guide and both sheets, operates them by accessible actions alone, and
checks that each paragraph of the guide is announced once. Needs an X server; runs under xvfb-run and starts a bus of its
own. Skips (77) if the bus or its Python module is missing."""

import http.server
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import time


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(77)


if "TQ_OWN_BUS" not in os.environ:
    if not shutil.which("dbus-run-session"):
        skip("dbus-run-session is missing (package dbus-daemon)")
    os.execvpe("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv], dict(os.environ, TQ_OWN_BUS="1"))
try:
    import pyatspi
    from gi.repository import GLib
    pyatspi.Registry.getDesktop(0).childCount  # starts the accessibility bus
except Exception as error:  # of several libraries
    skip(f"no accessibility bus or no module for it (packages at-spi2-core, python3-pyatspi): {error}")

grove = sys.argv[1]
focused = []  # name and description of each object that has received the focus
failures = []


def expect(found, wanted, what):
    if found != wanted:
        failures.append(f"{what}:\n  found  {found}\n  wanted {wanted}")


def record_focus(event):
    try:
        if event.detail1:
            focused.append((event.source.name, event.source.description))
    except GLib.Error:
        pass  # the object is already destroyed


def process_events():
    while GLib.MainContext.default().iteration(False):
        pass
    time.sleep(0.02)


def wait_for(condition, what):
    deadline = time.monotonic() + 20
    while True:
        try:
            if found := condition():
                return found
        except GLib.Error:
            pass  # an object was destroyed while it was read
        assert time.monotonic() < deadline, f"timeout: {what}"
        process_events()


def announced(name):
    """The announcements of focus on objects called `name` since the last call; waits for one and for a repetition."""
    deadline = time.monotonic() + 5
    while name not in [entry[0] for entry in focused] and time.monotonic() < deadline:
        process_events()
    deadline = time.monotonic() + 0.3
    while time.monotonic() < deadline:
        process_events()
    found = [entry for entry in focused if entry[0] == name]
    focused.clear()
    return found


def role(accessible):
    return accessible.getRoleName().replace("push button", "button")  # its name in older versions


def shown(accessible):
    """The objects below `accessible` that are shown, in reading order."""
    for child in accessible:
        if child and child.getState().contains(pyatspi.STATE_SHOWING):
            yield child
            yield from shown(child)


class App:
    """The running example: started on entry with its window active, killed on exit. The window becomes active before or
    after the example has connected to the bus."""

    def __init__(self, app, *options, activates_first=False):
        self.activates_first = activates_first
        programs = pathlib.Path(home) / "bin"
        programs.mkdir(exist_ok=True)
        (programs / "sendmail").write_text("#!/bin/sh\ncat > /dev/null\n")
        (programs / "sendmail").chmod(0o755)
        # Qt WebEngine starts for root only without its sandbox, and shows web content on the bus only with this flag.
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, QT_QPA_PLATFORM="xcb",
                           QT_SCALE_FACTOR="1", LIBGL_ALWAYS_SOFTWARE="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           QTWEBENGINE_DISABLE_SANDBOX="1", QTWEBENGINE_CHROMIUM_FLAGS="--force-renderer-accessibility",
                           PATH=f"{programs}:{os.environ['PATH']}")
        self.process = subprocess.Popen([grove, "--app", app, "--language", "en", *options], env=environment)

    def __enter__(self):
        focused.clear()
        if not self.activates_first:
            wait_for(self.find_frame, "the example on the bus")
        windows = subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(self.process.pid)],
                                 check=True, timeout=20, capture_output=True, text=True).stdout.split()
        subprocess.run(["xdotool", "windowfocus", windows[-1]], check=True)
        self.frame = wait_for(self.find_frame, "the example on the bus")
        wait_for(lambda: self.frame.getState().contains(pyatspi.STATE_ACTIVE), "the active window")
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()

    def find_frame(self):
        assert self.process.poll() is None, "the example has ended"
        applications = [child for child in pyatspi.Registry.getDesktop(0) if child and child.name.startswith("Grove")]
        return next((child for application in applications if application.get_process_id() == self.process.pid
                     for child in application), None)

    def tree(self, first=None):
        """One line for each named object that is shown, beginning with the line `first`; empty if that is missing."""
        lines = wait_for(self.lines, "the tree of the window")
        return lines if first is None else lines[lines.index(first):] if first in lines else []

    def lines(self):
        words = (("focusable", pyatspi.STATE_FOCUSABLE), ("focused", pyatspi.STATE_FOCUSED), ("editable", pyatspi.STATE_EDITABLE))
        lines = []
        for item in shown(self.frame):
            states = item.getState()
            held = [word for word, state in words if states.contains(state)]
            if item.name:
                lines.append(" ".join([role(item), repr(item.name), *held]))
        return lines

    def find(self, wanted_role, name):
        return next((item for item in shown(self.frame) if role(item) == wanted_role and item.name == name), None)

    def press(self, name):
        actions = wait_for(lambda: self.find("button", name), f"the button '{name}'").queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        actions.doAction(names.index("Press"))


def check_screens_and_mail():
    with App("alder") as app:
        expect(announced("More"), [("More", "")], "announcements of the home screen")
        expect(app.tree(), ["heading 'Grove'", "label 'Version 2.3.1(57)' focusable", "button 'More' focusable focused"],
               "home screen")
        app.press("More")
        expect(announced("Privacy Policy"), [("Privacy Policy", "")], "announcements of the More screen")
        wait_for(lambda: not app.find("button", "More"), "the end of the transition")
        rows = ["Contact", "Rate on the App Store", "Browse My Personal Website", "Follow me on Social Media Platforms",
                "More Apps I Developed", "More Apps I Developed"]
        icons = ["Larch", "Juniper", "Hazel", "Ginkgo", "Fir", "Elm", "Dogwood", "Cedar", "Birch"]
        expect(app.tree(), ["button 'Back' focusable", "heading 'More'", "check box 'Dark Appearance' focusable",
                            "button 'Privacy Policy' focusable focused",
                            *(f"button '{row}' focusable" for row in rows), *(f"image '{icon}'" for icon in icons),
                            "label 'Version 2.3.1(57)' focusable"], "More screen")

        app.press("Contact")
        expect(announced("Message"), [("Message", "")], "announcements of the mail sheet")
        sheet = "dialog 'New Message' focused"
        expect(app.tree(sheet), [sheet, "button 'Cancel' focusable", "heading 'New Message'", "button 'Send' focusable",
                                 "label 'To: support@tqstudio.example' focusable", "text 'Subject:' focusable editable",
                                 "text 'Message' focusable focused editable"], "mail sheet")
        app.press("Send")
        wait_for(lambda: not app.tree(sheet), "the end of the mail sheet")
        expect(announced("Privacy Policy"), [("Privacy Policy", "")], "announcements after the mail sheet")


class Page(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(b"<title>Page</title><h1>Filings</h1><a href='/next'>Further</a>")

    def log_message(self, *_):
        pass


def check_browser():
    with http.server.HTTPServer(("127.0.0.1", 0), Page) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        site = f"http://127.0.0.1:{server.server_port}"
        with App("alder", "--open-browser", site) as app:
            wait_for(lambda: app.find("link", "Further"), "the page in the browser sheet")
            sheet = f"dialog '{site}' focused"
            # Without states: Qt 6.4 reports the disabled Back as enabled.
            expect([line.split(" focus")[0] for line in app.tree(sheet)],
                   [f"dialog '{site}'", "button 'Close'", "button 'Back'", f"heading '{site}'", "button 'Reload'",
                    "document web 'Page'", "heading 'Filings'", "label 'Filings'", "link 'Further'", "label 'Further'"],
                   "browser sheet")
            app.press("Close")
            wait_for(lambda: not app.tree(sheet), "the end of the browser sheet")
        server.shutdown()


def check_guide():
    with App("hazel") as app:
        paragraphs = []
        for number in range(6):
            found = announced("Next")
            paragraphs.append(found[0][1] if found else None)
            expect(len(found), 1, f"announcements of paragraph {number}")
            expect(app.tree()[-2:], [f"label {paragraphs[-1]!r} focusable", "button 'Next' focusable focused"],
                   f"guide at paragraph {number}")
            app.press("Next")
        expect(announced("More"), [("More", "")], "announcements after the guide")
        expect(app.find("button", "Next"), None, "button of the guide after its end")
        expect(len(set(paragraphs)), 6, "number of different paragraphs")
    with App("hazel", "--reset-guide", activates_first=True) as app:
        expect(announced("Next"), [("Next", paragraphs[0])], "announcements in a window that is active first")


pyatspi.Registry.registerEventListener(record_focus, "object:state-changed:focused")
with tempfile.TemporaryDirectory() as home:
    for check in (check_screens_and_mail, check_browser, check_guide):
        check()
print("\n".join(failures) or "both screens, both sheets and all paragraphs are on the accessibility bus, each announced once")
sys.stdout.flush()
os._exit(bool(failures))  # the module of the bus may crash when Python ends
