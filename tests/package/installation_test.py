#!/usr/bin/python3
"""The Debian packages, installed into a clean system, started there, and removed again.

    installation_test.py FOLDER_OF_PACKAGES

Without root or without the network the test is skipped.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from clean_system import HOME, CleanSystem, NotHere

SKIPPED = 77

# what the program loads while it runs, so that no link names it
LOADED_LATER = ("usr/lib/*/qt6/plugins/platforms/libqxcb.so", "usr/lib/*/qt6/plugins/tls/libqopensslbackend.so",
                "usr/share/fonts/**/Inter-Regular.otf", "usr/share/fonts/**/LiberationSans-Regular.ttf",
                "etc/ssl/certs/ca-certificates.crt")


class Installation(unittest.TestCase):
    def install(self, name):
        package = next(PACKAGES.glob(f"{name}_*.deb"))
        shutil.copy(package, SYSTEM.root / "tmp")
        SYSTEM.apt("install", f"/tmp/{package.name}")

    def display(self):
        """The name of an X server that lives as long as the test."""
        out, told = os.pipe()
        server = subprocess.Popen(["Xvfb", "-displayfd", str(told), "-ac", "-screen", "0", "1440x900x24"],
                                  pass_fds=[told], stderr=subprocess.DEVNULL)
        os.close(told)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        with os.fdopen(out) as words:
            return ":" + words.readline().strip()

    def expect_success(self, *command, **options):
        answer = SYSTEM.run(*command, **options)
        self.assertEqual((answer.returncode, answer.stderr), (0, ""), command)

    def test_the_command_line_needs_none_of_the_windows_libraries(self):
        self.install("quillfern-cli")
        self.expect_success("quillfern-cli", "sample", "--out", f"{HOME}/A.quillfern")
        self.assertFalse(list(SYSTEM.root.glob("usr/lib/*/libQt6*")))

    def test_the_window_opens_with_what_was_installed_and_leaves_nothing_behind(self):
        self.install("quillfern")
        SYSTEM.apt("purge", "quillfern")  # what it depends on stays, so that the next time only its own files come
        before = SYSTEM.files()

        self.install("quillfern")
        for pattern in LOADED_LATER:
            self.assertTrue(any(SYSTEM.root.glob(pattern)), pattern)
        display = self.display()
        for arguments in (["--version"], ["--sample", "--exit-after-paint"], ["--exit-after-paint"],
                          [f"{HOME}/A.quillfern/Quillfern.json", "--exit-after-paint"]):
            self.expect_success("quillfern", *arguments, display=display)
        SYSTEM.apt("purge", "quillfern")
        self.assertEqual(SYSTEM.files() ^ before, set())


if __name__ == "__main__":
    PACKAGES = pathlib.Path(sys.argv.pop(1))
    with tempfile.TemporaryDirectory() as root:
        try:
            SYSTEM = CleanSystem(PACKAGES.parent / "clean-system.tar", root)
        except NotHere as reason:
            print(f"skipped: {reason}")
            sys.exit(SKIPPED)
        unittest.main()
