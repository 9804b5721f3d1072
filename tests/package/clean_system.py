"""A clean Debian 12 in a folder, with what every Debian has and nothing else.

debootstrap fills it from Debian's mirror. An archive of it is kept for the next time; each use works on a copy.
"""
import os
import pathlib
import shutil
import subprocess
import tempfile

SUITE = "bookworm"
USER = 65534  # nobody
HOME = "/tmp/home"


class NotHere(Exception):
    """This machine cannot make a clean system; the words say why."""


def make_archive(archive):
    if os.geteuid() != 0:
        raise NotHere("only root can make a clean system and enter it")
    if not shutil.which("debootstrap"):
        raise NotHere("debootstrap is not installed")
    if archive.exists():
        return
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run(["debootstrap", "--variant=minbase", SUITE, f"{folder}/root"],
                             capture_output=True, text=True)
        if run.returncode != 0:
            raise NotHere(f"debootstrap made no clean system:\n{run.stdout[-1000:]}{run.stderr[-1000:]}")
        half = archive.with_suffix(".half")
        subprocess.run(["tar", "-C", f"{folder}/root", "-cf", half, "."], check=True)
        half.rename(archive)


class CleanSystem:
    def __init__(self, archive, root):
        make_archive(archive)
        self.root = pathlib.Path(root)
        subprocess.run(["tar", "-C", self.root, "-xf", archive], check=True)
        shutil.copy("/etc/resolv.conf", self.root / "etc/resolv.conf")
        (self.root / HOME[1:]).mkdir(mode=0o700)
        os.chown(self.root / HOME[1:], USER, USER)
        self.apt("update")

    def apt(self, *arguments):
        run = subprocess.run(["chroot", self.root, "env", "DEBIAN_FRONTEND=noninteractive", "LC_ALL=C.UTF-8", "apt-get",
                              "--yes", "--no-install-recommends", "-o", "Dpkg::Options::=--force-unsafe-io",
                              *arguments], capture_output=True, text=True)
        assert run.returncode == 0, run.stdout + run.stderr

    def run(self, *command, display=""):
        """Runs a program as somebody who may write to HOME alone."""
        return subprocess.run(["chroot", f"--userspec={USER}:{USER}", self.root, "env", "-i", "PATH=/usr/bin:/bin",
                               f"HOME={HOME}", f"XDG_RUNTIME_DIR={HOME}", "LANG=C.UTF-8", f"DISPLAY={display}",
                               *command], capture_output=True, text=True, timeout=60)

    def files(self):
        """Every path but those that the package tools keep for themselves."""
        own = ("var/lib/dpkg", "var/lib/apt", "var/cache", "var/log", "tmp", "dev", "proc", "sys")
        found = set()
        for folder, _, files in os.walk(self.root):
            inside = os.path.relpath(folder, self.root)
            if not inside.startswith(own):
                found |= {inside, *(os.path.join(inside, name) for name in files)}
        return found
