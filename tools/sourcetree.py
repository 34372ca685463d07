"""The files that the project's own checks look at."""

import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent
SKIPPED = ("build", "out", "__pycache__")


def _walk(directory):
    for entry in sorted(directory.iterdir()):
        if entry.name.startswith((".", *SKIPPED)):
            continue
        if entry.is_dir():
            yield from _walk(entry)
        else:
            yield entry


def files(*suffixes):
    """Files of the project with one of `suffixes`: what git knows or would add, or all of an export without git."""
    command = ["git", "-C", str(ROOT), "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    try:
        if not (ROOT / ".git").exists():
            raise FileNotFoundError
        listed = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        found = (ROOT / name for name in sorted(set(listed.split("\0"))) if name)
    except (OSError, subprocess.CalledProcessError):
        found = _walk(ROOT)
    return [path for path in found if path.suffix in suffixes and path.is_file()]


def name(path):
    """`path` as it stands in messages and tables."""
    return path.relative_to(ROOT).as_posix()
