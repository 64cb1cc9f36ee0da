"""How the program's files are built, read from every file that is published: the packed ones, installer, uninstaller."""
import os
import pathlib
import re
import struct
import subprocess
import tempfile
import unittest

from surroundings import BASE_RELOCATIONS, CONTENTS, NAME, PACKAGES, PACKAGING, SYMBOLS, VERSION, Image, binaries

# Microsoft's PE format: DllCharacteristics and section flags.
HIGH_ENTROPY_VA, DYNAMIC_BASE, NX_COMPAT = 0x20, 0x40, 0x100
EXECUTABLE, WRITABLE = 0x20000000, 0x80000000
TOOLS = "x86_64-w64-mingw32-"


def installer_and_uninstaller():
    """The uninstaller stands in the installer; the hook by which both are signed hands it out."""
    with tempfile.TemporaryDirectory() as folder:
        hook = os.path.join(folder, "hand_out")
        with open(hook, "w", encoding="ascii") as script:
            script.write(f'#!/bin/sh\nexec cp "$1" "$(mktemp {folder}/XXXXXX.made)"\n')
        os.chmod(hook, 0o755)
        icon = os.path.join(folder, "program.ico")
        subprocess.run(["wrestool", "-x", "--type=group_icon", "--name=1", "-o", icon, CONTENTS / "shabbat.exe"],
                       check=True)
        subprocess.run(["makensis", "-V2", "-NOCD", f"-DVERSION={VERSION}", f"-DCONTENTS={CONTENTS}", f"-DICON={icon}",
                        f"-DOUTPUT={folder}/setup.exe", f"-DSIGN={hook}", PACKAGING / "installer.nsi"], check=True,
                       capture_output=True)
        made = [path.read_bytes() for path in pathlib.Path(folder).glob("*.made")]
        assert len(made) == 2
        return made


def symbol(path, name):
    """A symbol's address, from the file of symbols."""
    listed = subprocess.run([TOOLS + "nm", SYMBOLS / (path.name + ".debug")], check=True, capture_output=True, text=True)
    found = re.search(rf"^([0-9a-f]+) \w {name}$", listed.stdout, re.MULTILINE)
    return int(found[1], 16) if found else None


def calls(image, target):
    """How many call instructions (E8 and a distance) of the code lead to an address."""
    address, code = image.bytes_of(".text")
    start = image.image_base + address
    return sum(start + match.end() + 4 + struct.unpack_from("<i", code, match.end())[0] == target
               for match in re.finditer(rb"\xE8(?=.{4})", code, re.DOTALL))


class OurBinaries(unittest.TestCase):
    def for_each(self, check):
        for path in binaries():
            with self.subTest(path.name):
                check(path, Image(path.read_bytes()))

    def test_each_is_a_64_bit_file_that_is_loaded_anywhere_with_data_that_are_no_code(self):
        def check(_, image):
            needed = HIGH_ENTROPY_VA | DYNAMIC_BASE | NX_COMPAT
            self.assertTrue(image.is_64_bit)
            self.assertEqual(image.characteristics & needed, needed, hex(image.characteristics))
        self.for_each(check)

    def test_each_can_be_moved(self):
        def check(_, image):
            address, size = image.directory(BASE_RELOCATIONS)
            section, content = image.bytes_of(".reloc")
            self.assertEqual(address, section)
            # A block begins with the page that it is for and its own size, two bytes a place.
            page, block = struct.unpack_from("<II", content)
            self.assertTrue(page and 8 < block <= size, (page, block, size))
        self.for_each(check)

    def test_no_section_can_be_both_written_and_run(self):
        def check(_, image):
            for section in image.sections:
                self.assertNotEqual(section["flags"] & (EXECUTABLE | WRITABLE), EXECUTABLE | WRITABLE, section)
        self.for_each(check)

    def test_no_file_says_when_it_was_linked(self):
        self.for_each(lambda _, image: self.assertEqual(image.time_stamp, 0))

    def test_functions_with_arrays_are_guarded(self):
        # A guarded function has a call of __stack_chk_fail at its end, which stays in the code when symbols go.
        found = []

        def check(path, image):
            target = symbol(path, "__stack_chk_fail")
            self.assertIsNotNone(target)
            found.append(calls(image, target))
            self.assertGreater(found[-1], 0)
        self.for_each(check)
        self.assertGreater(sum(found), 1000)

    def test_the_guard_is_the_programs_own_not_that_which_loads_further_libraries(self):
        def check(path, image):
            self.assertNotIn(b"stack smashing detected", image.content)
            self.assertNotIn(b"CryptAcquireContext", image.content)
            self.assertIsNotNone(symbol(path, "ChooseStackGuard"))
        self.for_each(check)

    def test_no_file_has_symbols_or_the_folder_in_which_it_was_built(self):
        def check(path, image):
            symbols, count = struct.unpack_from("<II", image.content, image.start + 12)
            self.assertEqual((symbols, count), (0, 0))
            for content in (image.content, (SYMBOLS / (path.name + ".debug")).read_bytes()):
                self.assertNotIn(os.fsencode(PACKAGING.parent), content)
        self.for_each(check)


class Installer(unittest.TestCase):
    """NSIS's own code, as Debian has built it. It has no relocations, so that the system loads it where it was linked;
    its time stamp is of the day of that build."""

    def test_installer_and_uninstaller_are_64_bit_files_with_data_that_are_no_code(self):
        published = (PACKAGES / f"{NAME}-setup.exe").read_bytes()
        for content in [published] + installer_and_uninstaller():
            image = Image(content)
            self.assertTrue(image.is_64_bit)
            needed = HIGH_ENTROPY_VA | DYNAMIC_BASE | NX_COMPAT
            self.assertEqual(image.characteristics & needed, needed, hex(image.characteristics))
            for section in image.sections:
                self.assertNotEqual(section["flags"] & (EXECUTABLE | WRITABLE), EXECUTABLE | WRITABLE, section)


class Symbols(unittest.TestCase):
    def test_an_address_of_a_stripped_file_has_a_function_and_a_line(self):
        # The exported entry as the stripped file itself has it: its export table is all that it still tells.
        exports = subprocess.run([TOOLS + "objdump", "-p", CONTENTS / "solar.dll"], check=True, capture_output=True,
                                 text=True).stdout
        ordinal = re.search(r"\[ *(\d+)\] (?:\+base\[ *\d+\] +\w+ )?SolarGetSunsetSunrise", exports)[1]
        entry = re.search(rf"\[ *{ordinal}\] \+base\[ *\d+\] ([0-9a-f]+) Export RVA", exports)
        address = int(entry[1], 16) + Image((CONTENTS / "solar.dll").read_bytes()).image_base
        told = subprocess.run([TOOLS + "addr2line", "-f", "-C", "-e", SYMBOLS / "solar.dll.debug", hex(address)],
                              check=True, capture_output=True, text=True).stdout.split()
        self.assertEqual(told[0], "SolarGetSunsetSunrise")
        source, line = told[1].rsplit(":", 1)
        self.assertEqual(os.path.normpath(source), "libraries/solar/solar_dll.cpp")
        with open(PACKAGING.parent / os.path.normpath(source), encoding="utf-8") as file:
            head = file.read().splitlines()[int(line) - 4:int(line)]  # one of the lines of the function's head
        self.assertIn("SolarGetSunsetSunrise(", "".join(head))

    def test_every_file_has_symbols_of_its_own_build(self):
        for path in binaries():
            with self.subTest(path.name):
                image, symbols = (Image(file.read_bytes()) for file in (path, SYMBOLS / (path.name + ".debug")))
                layout = {(section["name"], section["address"], section["memory"]) for section in image.sections}
                self.assertLessEqual(layout, {(section["name"], section["address"], section["memory"])
                                              for section in symbols.sections})
                self.assertEqual(image.image_base, symbols.image_base)


if __name__ == "__main__":
    unittest.main()
