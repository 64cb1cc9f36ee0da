"""What is in the packages, and that they are whole; that packing says what is wrong instead of packing less."""
import hashlib
import os
import shutil
import stat
import subprocess
import tempfile
import unittest
import zipfile

from surroundings import CONTENTS, NAME, PACKAGES, PACKAGING, ROOT, SYMBOLS, VERSION

TOP = "Times Readings/"
LICENCES = {
    "times-readings-MIT.txt": "Permission is hereby granted, free of charge",
    "display-hebrew-OFL.txt": "SIL OPEN FONT LICENSE Version 1.1",
    "geonames-CC-BY-4.0.txt": "https://creativecommons.org/licenses/by/4.0/",
    "zone-map-ODbL-1.0.txt": "https://opendatacommons.org/licenses/odbl/1-0/",
    "tz-database.txt": "public domain",
    "gcc-runtime.txt": "GCC RUNTIME LIBRARY EXCEPTION",
    "GPL-3.txt": "15. Disclaimer of Warranty",
    "mingw-w64.txt": "mingw-w64-libraries/winpthreads",
    "zlib.txt": "Jean-loup Gailly",
    "nsis.txt": "Special exception for LZMA compression module",
    "README.txt": "MIT licence",
}


def portable_zip():
    return zipfile.ZipFile(PACKAGES / f"{NAME}-portable.zip")


class Contents(unittest.TestCase):
    def test_the_programs_files_its_help_and_its_font_are_there(self):
        for name in ("shabbat.exe", "solar.dll", "LUNARCAL.DLL", "help/index.html", "fonts/DisplayHebrew1.ttf"):
            self.assertTrue((CONTENTS / name).is_file(), name)

    def test_nothing_is_there_that_belongs_to_building_or_to_a_user(self):
        for path in CONTENTS.rglob("*"):
            self.assertNotIn(path.suffix.lower(), (".a", ".debug", ".ini", ".o"), path)

    def test_every_part_has_its_licence_in_a_form_that_windows_editors_read(self):
        self.assertEqual({path.name for path in (CONTENTS / "licences").iterdir()}, set(LICENCES))
        for name, sentence in LICENCES.items():
            text = (CONTENTS / "licences" / name).read_bytes()
            self.assertIn(sentence, text.decode("utf-8"), name)
            self.assertEqual(text.count(b"\n"), text.count(b"\r\n"), name)

    def test_the_overview_names_every_licence(self):
        overview = (CONTENTS / "licences" / "README.txt").read_text(encoding="utf-8")
        for name in set(LICENCES) - {"README.txt", "times-readings-MIT.txt"}:
            self.assertIn(name, overview)

    def test_the_programs_own_licence_stands_beside_it(self):
        own = (ROOT / "LICENSE").read_text(encoding="utf-8")
        self.assertEqual((CONTENTS / "LICENSE.txt").read_bytes().decode("utf-8"), own.replace("\n", "\r\n"))


class PortableZip(unittest.TestCase):
    def test_it_unpacks_to_one_folder_with_the_contents_and_an_empty_folder_for_settings(self):
        with portable_zip() as archive:
            names = archive.namelist()
            content = {name: archive.read(name) for name in names if not name.endswith("/")}
        expected = {TOP + path.relative_to(CONTENTS).as_posix(): path.read_bytes()
                    for path in CONTENTS.rglob("*") if path.is_file()}
        self.assertEqual(content, expected)
        self.assertIn(TOP + "settings/", names)
        self.assertEqual([name for name in names if name.startswith(TOP + "settings")], [TOP + "settings/"])

    def test_names_are_as_windows_takes_them_each_folder_before_what_is_in_it(self):
        with portable_zip() as archive:
            names = archive.namelist()
        self.assertEqual(names, sorted(names))
        self.assertEqual(len({name.lower() for name in names}), len(names))
        for name in names:
            self.assertTrue(name.isascii() and "\\" not in name, name)
            parent = name.rstrip("/").rpartition("/")[0]
            self.assertTrue(not parent or parent + "/" in names, name)

    def test_folders_are_marked_as_such_and_every_entry_has_the_same_date_and_a_usual_mode(self):
        with portable_zip() as archive:
            entries = archive.infolist()
        self.assertEqual(len({entry.date_time for entry in entries}), 1)
        for entry in entries:
            self.assertEqual(entry.external_attr >> 16,
                             stat.S_IFDIR | 0o755 if entry.is_dir() else stat.S_IFREG | 0o644, entry.filename)
            self.assertEqual(bool(entry.external_attr & 0x10), entry.is_dir(), entry.filename)

    def test_it_is_sound(self):
        with portable_zip() as archive:
            self.assertIsNone(archive.testzip())

    def test_the_symbols_are_those_of_every_binary(self):
        with zipfile.ZipFile(PACKAGES / f"{NAME}-symbols.zip") as archive:
            found = {name.rpartition("/")[2] for name in archive.namelist() if not name.endswith("/")}
        binaries = {path.name for path in CONTENTS.iterdir() if path.suffix.lower() in (".exe", ".dll")}
        self.assertEqual(found, {name + ".debug" for name in binaries})


class Checksums(unittest.TestCase):
    def test_every_published_file_has_its_own(self):
        listed = dict(reversed(line.split("  ")) for line in (PACKAGES / "SHA256SUMS").read_text().splitlines())
        published = {path.name for path in PACKAGES.iterdir() if path.is_file() and path.name != "SHA256SUMS"}
        self.assertEqual(published, {f"{NAME}{end}" for end in
                                     ("-portable.zip", "-setup.exe", "-symbols.zip", ".spdx.json")})
        self.assertEqual(listed, {name: hashlib.sha256((PACKAGES / name).read_bytes()).hexdigest()
                                  for name in published})

    def test_sha256sum_confirms_them(self):
        subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"], cwd=PACKAGES, check=True)


class Packing(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.output = os.path.join(folder.name, "packages")

    def refused(self, program=CONTENTS, symbols=SYMBOLS, version=VERSION, packaging=PACKAGING, **environment):
        """What make_packages says when it packs nothing."""
        done = subprocess.run([os.path.join(packaging, "make_packages"), program, symbols, version, self.output],
                              env={**os.environ, **environment}, capture_output=True, text=True, check=False)
        self.assertNotEqual(done.returncode, 0)
        left = os.listdir(self.output) if os.path.isdir(self.output) else []
        self.assertEqual([name for name in left if name != "other.txt"], [])
        return done.stderr

    def test_a_program_that_is_not_built_is_named(self):
        self.assertIn("no program in /nowhere", self.refused(program="/nowhere"))

    def test_missing_symbols_are_named(self):
        self.assertIn("no symbols in /nowhere", self.refused(symbols="/nowhere"))

    def test_a_version_that_is_none_is_refused(self):
        self.assertIn('"6.0 beta" is no version', self.refused(version="6.0 beta"))

    def test_a_missing_script_of_the_installer_is_named(self):
        copy = os.path.join(os.path.dirname(self.output), "packaging")
        shutil.copytree(PACKAGING, copy)
        for name in os.listdir(copy):
            if name.endswith(".nsi"):
                os.remove(os.path.join(copy, name))
        self.assertIn("installer.nsi", self.refused(packaging=copy))

    def test_where_packing_fails_no_earlier_packages_stay_that_would_pass_for_new_ones(self):
        os.mkdir(self.output)
        for name in (f"{NAME}-setup.exe", "SHA256SUMS", "other.txt"):
            with open(os.path.join(self.output, name), "w", encoding="ascii") as file:
                file.write("earlier")
        self.assertIn("/nowhere.p12", self.refused(TIMES_READINGS_CERTIFICATE="/nowhere.p12"))
        self.assertTrue(os.path.exists(os.path.join(self.output, "other.txt")))


if __name__ == "__main__":
    unittest.main()
