"""Copies of the tree and their builds, below build/mutate. The work tree itself is never changed."""

import os
import pathlib
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FOLDER = ROOT / "build/mutate"
SETTINGS = pathlib.Path(__file__).with_name("settings.cmake")


def tracked_files():
    """The files of the work tree that git knows or could know."""
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            capture_output=True, text=True, check=True)
    return sorted({name for name in listed.stdout.split("\0") if name and (ROOT / name).is_file()})


def write_if_changed(path, content):
    """An unchanged file keeps its time, so that it is not built again."""
    if path.exists() and path.read_bytes() == content:
        return False
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)
    return True


class Scratch:
    """A copy of the tree with a build of its own, and a copy of that build to return to."""

    def __init__(self, name, *options):
        self.folder = FOLDER / name
        self.tree, self.build, self.clean = (self.folder / each for each in ("tree", "build", "clean"))
        self.options = options

    def run(self, command, log="build.log", **options):
        with open(self.folder / log, "ab") as output:
            return subprocess.run(command, stdout=output, stderr=output, cwd=self.folder, **options).returncode == 0

    def update(self, edit=lambda name, content: content):
        """Copies the tree and builds it. \a edit may change the copy of a file."""
        self.folder.mkdir(parents=True, exist_ok=True)
        self.restore()
        names = tracked_files()
        changed = [name for name in names
                   if write_if_changed(self.tree / name, edit(name, (ROOT / name).read_bytes()))]
        for name in names:
            (self.tree / name).chmod((ROOT / name).stat().st_mode)
        wanted = set(names)
        for path in [path for path in self.tree.rglob("*") if path.is_file()]:
            if str(path.relative_to(self.tree)) not in wanted and "__pycache__" not in path.parts:
                changed.append(path.name)
                path.unlink()
        if not changed and self.clean.exists():
            return
        linker = next((f"-fuse-ld={name}" for name in ("lld", "gold") if shutil.which(f"ld.{name}")), "")
        environment = dict(os.environ, CCACHE_DIR=str(FOLDER / "ccache"), CCACHE_BASEDIR=str(FOLDER),
                           CCACHE_SLOPPINESS="pch_defines,time_macros,include_file_mtime,include_file_ctime")
        # Files that did not change come from the cache.
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        built = self.run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                          "-DCMAKE_CXX_FLAGS=-w", "-DCMAKE_CXX_FLAGS_RELEASE=-O0", "-DTQFOUNDATION_TESTS=ON",
                          f"-DCMAKE_EXE_LINKER_FLAGS={linker}", f"-DCMAKE_SHARED_LINKER_FLAGS={linker}",
                          f"-DCMAKE_PROJECT_TQFoundation_INCLUDE={SETTINGS}", *launcher, *self.options], env=environment) \
            and self.run(["cmake", "--build", self.build, "-j2"], env=environment)
        if not built:
            raise SystemExit(f"The tree does not build; see {self.folder.relative_to(ROOT)}/build.log.")
        mirror(self.build, self.clean)

    def restore(self):
        """Makes the build what it was before any mutant."""
        if self.clean.exists():
            mirror(self.clean, self.build)

    def compile(self, targets):
        return self.run(["ninja", "-C", self.build, "-j1", *targets], log="mutant.log",
                        env=dict(os.environ, CCACHE_DISABLE="1"))


def entries(folder):
    """The files below a folder: path to size and time."""
    found, waiting = {}, [str(folder)]
    while waiting:
        for entry in os.scandir(waiting.pop()):
            if entry.is_dir(follow_symlinks=False):
                waiting.append(entry.path)
            else:
                status = entry.stat(follow_symlinks=False)
                found[entry.path[len(str(folder)) + 1:]] = (status.st_size, status.st_mtime_ns)
    return found


def mirror(source, target):
    """Makes \a target equal to \a source, times included."""
    target.mkdir(parents=True, exist_ok=True)
    new, old = entries(source), entries(target)
    for name in old.keys() - new.keys():
        os.unlink(target / name)
    for name, status in new.items():
        if old.get(name) != status:
            (target / name).parent.mkdir(parents=True, exist_ok=True)
            if name in old:
                os.unlink(target / name)
            shutil.copy2(source / name, target / name, follow_symlinks=False)
