"""The files of a source tree and the findings of a check."""

import subprocess
from dataclasses import dataclass
from pathlib import Path

SKIPPED_FOLDERS = {".git", "build", "demo", "__pycache__", ".cache"}


@dataclass(frozen=True)
class Finding:
    """One fault: where it is and what to do about it."""

    path: str
    line: int
    advice: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.advice}"


class Tree:
    """A source tree. In a git checkout ignored files are left out; new files are not."""

    def __init__(self, root):
        self.root = Path(root)
        self.paths = sorted(self._from_git() or self._from_disk())

    def _from_git(self):
        if not (self.root / ".git").exists():
            return []
        command = ["git", "-c", "safe.directory=*", "-C", str(self.root), "ls-files", "-z",
                   "--cached", "--others", "--exclude-standard"]
        try:
            listed = subprocess.run(command, capture_output=True, check=True).stdout
        except (OSError, subprocess.CalledProcessError):
            return []
        names = {name for name in listed.decode().split("\0") if name}
        return [name for name in names if (self.root / name).is_file()]

    def _from_disk(self):
        for path in self.root.rglob("*"):
            relative = path.relative_to(self.root)
            if path.is_file() and not SKIPPED_FOLDERS.intersection(relative.parts):
                yield relative.as_posix()

    def text(self, path):
        """The text of a file, or None for a binary one."""
        content = (self.root / path).read_bytes()
        return None if b"\0" in content else content.decode("utf-8", errors="replace")

    def sources(self):
        """The C++ files as pairs of path and text."""
        for path in self.paths:
            if path.endswith((".h", ".cpp")):
                yield path, self.text(path) or ""
