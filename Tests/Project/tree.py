"""The files of the tree, for the tests of this folder."""

import pathlib
import subprocess


def tracked(root):
    """Paths of the files under version control, relative to root; in an unpacked archive, all files outside build."""
    root = pathlib.Path(root)
    if (root / ".git").exists():
        listed = subprocess.run(["git", "-c", f"safe.directory={root.resolve()}", "-C", root, "ls-files", "-z"],
                                check=True, capture_output=True, text=True).stdout
        paths = (pathlib.PurePosixPath(name) for name in listed.split("\0") if name)
        # A file that was deleted and not yet committed is still listed.
        return [path for path in paths if (root / path).exists()]
    paths = (path.relative_to(root) for path in root.rglob("*") if path.is_file())
    return [pathlib.PurePosixPath(path) for path in sorted(paths) if path.parts[0] != "build"]
