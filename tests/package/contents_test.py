#!/usr/bin/python3
"""What is in the Debian packages: judged by Debian's own linters, and by what the programs say of themselves.

    contents_test.py FOLDER_OF_PACKAGES
"""
import configparser
import gzip
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

IDENTIFIER = "com.harrowgate.quillfern"
PROGRAMS = ("quillfern", "quillfern-cli")


def output(*command):
    run = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return run.returncode, run.stdout


def long_options(text):
    """--alert-days and its like, as --help and a manual page spell them."""
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))


class Contents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = pathlib.Path(folder.name)
        cls.share = cls.root / "usr/share"
        cls.packages = sorted(PACKAGES.glob("*.deb"))
        for package in cls.packages:
            subprocess.run(["dpkg-deb", "--extract", package, cls.root], check=True)

    def help_of(self, *command):
        """--help of a program and of every verb below it."""
        text = output(self.root / "usr/bin" / command[0], *command[1:], "--help")[1]
        verbs = re.findall(r"^  (\w+) ", text.partition("Subcommands:")[2], re.MULTILINE)
        return text + "".join(self.help_of(*command, verb) for verb in verbs)

    def metainfo(self):
        return ElementTree.parse(self.share / f"metainfo/{IDENTIFIER}.metainfo.xml")

    def test_debian_finds_nothing_to_complain_about(self):
        self.assertEqual(sorted(package.name.partition("_")[0] for package in self.packages), sorted(PROGRAMS))
        self.assertEqual(output("lintian", "--allow-root", "--fail-on", "error,warning", *self.packages), (0, ""))
        self.assertEqual(output("desktop-file-validate", self.share / f"applications/{IDENTIFIER}.desktop"), (0, ""))
        status, words = output("appstreamcli", "validate", "--no-net",
                               self.share / f"metainfo/{IDENTIFIER}.metainfo.xml")
        self.assertEqual(status, 0, words)

    def test_manual_pages_name_exactly_the_options_that_the_programs_take(self):
        for program in PROGRAMS:
            page = self.share / f"man/man1/{program}.1.gz"
            self.assertNotIn("warning", output("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page)[1])
            text = re.sub(r"\\f.", "", gzip.decompress(page.read_bytes()).decode().replace("\\-", "-"))
            self.assertEqual(long_options(text), long_options(self.help_of(program)), program)

    def test_the_records_inside_a_document_are_ours_to_open_and_folders_are_not(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.share / f"applications/{IDENTIFIER}.desktop")
        claimed = set(entry["Desktop Entry"]["MimeType"].strip(";").split(";"))
        subprocess.run(["update-mime-database", self.share / "mime"], check=True, capture_output=True)
        globs = (self.share / "mime/globs2").read_text().splitlines()
        ours = sorted({tuple(line.split(":")[1:3]) for line in globs if not line.startswith("#")})
        self.assertEqual(ours, [("application/x-quillfern", "*.quillfern"),
                                ("application/x-quillfern-records", "Quillfern.json")])
        self.assertEqual(claimed, {kind for kind, _ in ours})
        self.assertEqual({element.text for element in self.metainfo().iter("mediatype")}, claimed)

    def test_every_icon_has_the_size_of_its_folder(self):
        pictures = sorted(self.share.glob(f"icons/hicolor/*/apps/{IDENTIFIER}.png"))
        self.assertEqual(len(pictures), 9)
        for picture in pictures:
            width, height = struct.unpack(">II", picture.read_bytes()[16:24])
            self.assertEqual(f"{width}x{height}", picture.parent.parent.name)
        self.assertTrue((self.share / f"icons/hicolor/scalable/apps/{IDENTIFIER}.svg").is_file())

    def test_versions_agree(self):
        versions = {package.name.split("_")[1] for package in self.packages}
        for program in PROGRAMS:
            versions.add(output(self.root / "usr/bin" / program, "--version")[1].split()[-1])
            changelog = gzip.decompress((self.share / f"doc/{program}/changelog.gz").read_bytes()).decode()
            versions.add(re.match(r"quillfern \((.*?)\)", changelog).group(1))
        versions.add(next(self.metainfo().iter("release")).get("version"))
        self.assertEqual(len(versions), 1, versions)


if __name__ == "__main__":
    PACKAGES = pathlib.Path(sys.argv.pop(1))
    unittest.main()
