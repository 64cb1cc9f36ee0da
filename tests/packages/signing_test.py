"""Signing, with a certificate made for the occasion: what is signed verifies, and what cannot be is not published."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile

from surroundings import CONTENTS, NAME, PACKAGING, SYMBOLS, VERSION, binaries

PASSWORD = "correct horse, battery staple"
CERTIFICATE, PASSWORD_FILE = "TIMES_READINGS_CERTIFICATE", "TIMES_READINGS_CERTIFICATE_PASSWORD_FILE"


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


class WithCertificate(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        (cls.folder / "password").write_text(PASSWORD + "\n", encoding="ascii")
        (cls.folder / "other_password").write_text("another\n", encoding="ascii")
        made = [
            ("openssl", "req", "-x509", "-newkey", "rsa:2048", "-noenc", "-keyout", cls.folder / "key", "-out",
             cls.folder / "certificate", "-days", "3650", "-subj", "/CN=A developer of Times Readings",
             "-addext", "extendedKeyUsage=codeSigning"),
            ("openssl", "pkcs12", "-export", "-inkey", cls.folder / "key", "-in", cls.folder / "certificate", "-out",
             cls.folder / "with_password.p12", "-passout", f"file:{cls.folder / 'password'}"),
            ("openssl", "pkcs12", "-export", "-inkey", cls.folder / "key", "-in", cls.folder / "certificate", "-out",
             cls.folder / "without_password.p12", "-passout", "pass:"),
        ]
        for command in made:
            subprocess.run(command, check=True, capture_output=True)

    def setUp(self):
        self.file = self.folder / "solar.dll"
        shutil.copyfile(CONTENTS / "solar.dll", self.file)
        self.unsigned = self.file.read_bytes()
        self.environment = {**os.environ, CERTIFICATE: str(self.folder / "with_password.p12"),
                            PASSWORD_FILE: str(self.folder / "password")}

    def sign(self, file=None):
        return run(PACKAGING / "sign", file or self.file, env=self.environment)

    def verify(self, file):
        return run("osslsigncode", "verify", "-CAfile", self.folder / "certificate", "-in", file)

    def assert_signed(self, file):
        told = self.verify(file)
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)


class Signing(WithCertificate):
    def refused(self):
        done = self.sign()
        self.assertEqual(done.returncode, 1, done.stdout)
        self.assertEqual(self.file.read_bytes(), self.unsigned)
        self.assertEqual([path.name for path in self.folder.glob("solar*")], ["solar.dll"])
        return done.stderr

    def test_without_a_certificate_nothing_is_signed(self):
        self.environment[CERTIFICATE] = ""
        self.assertEqual(self.sign().returncode, 0)
        self.environment.pop(CERTIFICATE)
        self.assertEqual(self.sign().returncode, 0)
        self.assertEqual(self.file.read_bytes(), self.unsigned)

    def test_a_signed_file_verifies_with_sha_256_and_says_whose_program_it_is(self):
        self.assertNotEqual(self.verify(self.file).returncode, 0)
        done = self.sign()
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))
        told = self.verify(self.file)
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)
        self.assertIn("SHA256", told.stdout)
        self.assertIn("Times / Readings", told.stdout)

    def test_a_changed_byte_is_found(self):
        self.sign()
        changed = bytearray(self.file.read_bytes())
        changed[0x2000] ^= 1
        self.file.write_bytes(changed)
        self.assertNotEqual(self.verify(self.file).returncode, 0)

    def test_the_same_file_has_the_same_bytes_each_time_also_when_it_is_signed_already(self):
        self.sign()
        once = self.file.read_bytes()
        self.sign()
        self.assertEqual(self.file.read_bytes(), once)
        self.file.write_bytes(self.unsigned)
        self.sign()
        self.assertEqual(self.file.read_bytes(), once)

    def test_a_certificate_without_a_password_needs_no_password_file(self):
        self.environment[CERTIFICATE] = str(self.folder / "without_password.p12")
        self.environment.pop(PASSWORD_FILE)
        self.assertEqual(self.sign().stderr, "")
        self.assert_signed(self.file)

    def test_a_file_keeps_its_mode_and_may_have_a_space_in_its_name(self):
        file = self.folder / "Times Readings setup.exe"
        shutil.copyfile(CONTENTS / "shabbat.exe", file)
        file.chmod(0o751)
        self.assertEqual(self.sign(file).stderr, "")
        self.assert_signed(file)
        self.assertEqual(file.stat().st_mode & 0o777, 0o751)

    def test_a_wrong_password_is_an_error_that_says_so(self):
        self.environment[PASSWORD_FILE] = str(self.folder / "other_password")
        self.assertIn("is the password of", self.refused())

    def test_a_missing_certificate_is_named(self):
        self.environment[CERTIFICATE] = "/nowhere.p12"
        self.assertIn("/nowhere.p12", self.refused())

    def test_a_certificate_that_is_none_is_named(self):
        self.environment[CERTIFICATE] = str(self.folder / "password")
        self.assertIn(str(self.folder / "password"), self.refused())

    def test_a_missing_password_file_is_named(self):
        self.environment[PASSWORD_FILE] = "/nowhere.txt"
        self.assertIn("/nowhere.txt", self.refused())

    def test_an_empty_password_file_is_named(self):
        empty = self.folder / "empty"
        empty.touch()
        self.environment[PASSWORD_FILE] = str(empty)
        self.assertIn(f"{empty} is empty", self.refused())

    def test_a_missing_file_is_named(self):
        done = self.sign("/nowhere.dll")
        self.assertEqual(done.returncode, 1)
        self.assertIn("/nowhere.dll", done.stderr)

    def test_what_is_no_program_is_not_signed(self):
        self.unsigned = b"no program"
        self.file.write_bytes(self.unsigned)
        self.assertIn("is not signed", self.refused())


class SignedPackages(WithCertificate):
    """The whole of packing with a certificate; osslsigncode's arguments are written down on the way."""

    def setUp(self):
        super().setUp()
        self.output = self.folder / "packages"
        tools = self.folder / "tools"
        tools.mkdir(exist_ok=True)
        self.calls = self.folder / "calls"
        self.calls.write_text("")
        recorder = tools / "osslsigncode"
        recorder.write_text(f'#!/bin/sh\necho "$@" >>"{self.calls}"\nexec {shutil.which("osslsigncode")} "$@"\n')
        recorder.chmod(0o755)
        self.environment["PATH"] = f"{tools}:{os.environ['PATH']}"

    def pack(self):
        return run(PACKAGING / "make_packages", CONTENTS, SYMBOLS, VERSION, self.output, env=self.environment)

    def test_program_libraries_uninstaller_and_installer_are_signed_and_the_same_everywhere(self):
        done = self.pack()
        self.assertEqual(done.returncode, 0, done.stderr)
        ours = [path.name for path in binaries()]
        for name in ours:
            self.assert_signed(self.output / "contents" / name)
        self.assert_signed(self.output / f"{NAME}-setup.exe")
        with zipfile.ZipFile(self.output / f"{NAME}-portable.zip") as archive:
            for name in ours:
                self.assertEqual(archive.read(f"Times Readings/{name}"), (self.output / "contents" / name).read_bytes())
        # The uninstaller is inside the installer, so that only the call tells.
        calls = [call for call in self.calls.read_text().splitlines() if call.startswith("sign ")]
        self.assertEqual(len(calls), len(ours) + 2)
        self.assertFalse([call for call in calls if PASSWORD in call], "other users of the machine see this")
        listed = subprocess.run(["sha256sum", "--check", "--quiet", "SHA256SUMS"], cwd=self.output, check=False)
        self.assertEqual(listed.returncode, 0)

    def test_with_a_wrong_password_nothing_is_published(self):
        self.environment[PASSWORD_FILE] = str(self.folder / "other_password")
        done = self.pack()
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("is the password of", done.stderr)
        self.assertEqual(os.listdir(self.output), [])

    def test_where_only_the_installer_cannot_be_signed_nothing_is_published(self):
        recorder = self.folder / "tools" / "osslsigncode"
        recorder.write_text(recorder.read_text().replace("exec ", f'[ "$(grep -c "^sign " "{self.calls}")" -gt '
                                                                  f"{len(binaries())} ] && exit 1\nexec "))
        done = self.pack()
        self.assertNotEqual(done.returncode, 0)
        self.assertEqual(os.listdir(self.output), [])


if __name__ == "__main__":
    unittest.main()
