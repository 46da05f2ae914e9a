"""Compares the system calls of a bare window with those of the same window with the library, both run under strace. The library may read the host's Info.plist and settings, and
may write the settings when the guide ends; nothing else."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

bare, host = sys.argv[1:3]
failures = []


class Traced:
    """One run of a program in a fresh home."""

    def __init__(self, *command):
        with tempfile.TemporaryDirectory() as name:
            self.home = pathlib.Path(name).resolve()
            for folder in ("config", "run", "tmp"):
                (self.home / folder).mkdir(mode=0o700)
            (self.home / "config/Watched").mkdir()
            (self.home / "config/Watched/BareWindow.conf").write_text("[General]\nkept=1\n", encoding="utf-8")
            environment = dict(os.environ, HOME=name, XDG_CONFIG_HOME=f"{name}/config", XDG_RUNTIME_DIR=f"{name}/run",
                               TMPDIR=f"{name}/tmp", QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software",
                               QSG_RENDER_LOOP="basic", LC_ALL="C.UTF-8")
            log = self.home / "trace"
            run = subprocess.run(["strace", "-f", "-s", "4096", "-e", "trace=file,network,process,ftruncate,fchmod",
                                  "-o", log, *command], env=environment, capture_output=True, text=True, timeout=60)
            if run.returncode or run.stdout or run.stderr:
                sys.exit(f"{command}: {run.returncode} {run.stdout} {run.stderr}")
            calls = log.read_text(encoding="utf-8", errors="replace").replace(name, "~")
            self.settings = (self.home / "config/Watched/BareWindow.conf").read_text(encoding="utf-8")
        # strace prints an interrupted call in two pieces; the first has the arguments.
        self.calls = re.findall(r"^\d+ +(\w+)\((.*)$", calls, re.MULTILINE)
        if not any(call == "openat" for call, _ in self.calls):
            sys.exit(f"strace saw nothing of {command}")

    def of(self, *names):
        return [arguments for call, arguments in self.calls if call in names]

    def threads(self):
        return len([arguments for arguments in self.of("clone", "clone3") if "CLONE_THREAD" in arguments])

    def children(self):
        return len(self.of("clone", "clone3", "fork", "vfork")) - self.threads()

    def sockets(self):
        return sorted(re.sub(r" *=.*", "", arguments) for arguments in self.of("socket", "socketpair", "connect", "bind"))

    def opened(self):
        return [(match[1], match[2]) for arguments in self.of("open", "openat", "creat")
                if (match := re.search(r'"([^"]*)", (\S+)', arguments)) and not re.search(r"= -1 ENOENT", arguments)]

    def read(self):
        return {path for path, flags in self.opened() if "O_RDONLY" in flags}

    def written(self):
        changed = {path for path, flags in self.opened() if re.search("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC", flags)}
        for arguments in self.of("rename", "renameat", "renameat2", "unlink", "unlinkat", "mkdir", "mkdirat", "rmdir",
                                 "symlink", "symlinkat", "link", "linkat", "truncate", "chmod", "fchmodat"):
            changed.update(re.findall(r'"([^"]*)"', arguments))
        return {path for path in changed if not path.startswith(("/dev/", "/proc/"))}


def expect(holds, failure):
    if not holds:
        failures.append(failure)


def allow(paths, *patterns):
    return {path for path in paths if not any(re.fullmatch(pattern, path) for pattern in patterns)}


without, asking, finishing = Traced(bare), Traced(host), Traced(host, "--finish")
folder = re.escape(str(pathlib.Path(host).parent))
for name, run in (("asking", asking), ("finishing", finishing)):
    expect(not [call for call in run.sockets() if "AF_INET" in call], f"{name}: speaks to the network")
    expect(run.sockets() == without.sockets(), f"{name}: sockets {run.sockets()} instead of {without.sockets()}")
    expect(run.threads() <= without.threads(), f"{name}: {run.threads()} threads instead of {without.threads()}")
    expect(run.children() == without.children(), f"{name}: {run.children()} children instead of {without.children()}")
    settings = r"~/config/Watched/BareWindow\.conf"
    # Qt looks at the age of a settings file in local time.
    read = allow(run.read() - without.read(), r".*/libTQFoundation\.so\.1", rf"{folder}/Info\.plist", settings,
                 "/etc/localtime")
    if name == "finishing":
        # QSettings writes the machine and its boot into the lock on the settings.
        read = allow(read, "/var/lib/dbus/machine-id|/etc/machine-id", "/proc/sys/kernel/random/boot_id")
    expect(not read, f"{name}: reads {sorted(read)}")
    written = run.written() - without.written()
    if name == "finishing":
        written = allow(written, settings + r"(\..*)?", r"~/config/Watched")
    expect(not written, f"{name}: writes {sorted(written)}")
expect(asking.settings == "[General]\nkept=1\n", f"asking changes the settings: {asking.settings!r}")
expect(set(finishing.settings.split()) == {"[General]", "kept=1", "KeyOfDidShowGuide=true"},
       f"finishing leaves {finishing.settings!r}")

print("\n".join(failures) or f"{len(without.read())} files are read without the library, {len(asking.read())} with it; "
      f"{without.threads()} threads and {len(without.sockets())} socket calls in both")
sys.exit(bool(failures))
