"""The list of components: the rules of SPDX 2.3 for its JSON form, and that it tells what is really in the packages."""
import hashlib
import json
import pathlib
import re
import subprocess
import unittest

from surroundings import CONTENTS, NAME, PACKAGES, PACKAGING, ROOT, VERSION, binaries

PROGRAM = "SPDXRef-Package-times-readings"
FONT = "./fonts/DisplayHebrew1.ttf"
# SPDX 2.3, its JSON schema: what each must have.
OF_THE_DOCUMENT = ("spdxVersion", "SPDXID", "dataLicense", "name", "documentNamespace", "creationInfo")
OF_A_PACKAGE = ("SPDXID", "name", "downloadLocation")
OF_A_FILE = ("SPDXID", "fileName", "checksums")
OF_A_RELATIONSHIP = ("spdxElementId", "relationshipType", "relatedSpdxElement")
KINDS = {"DESCRIBES", "CONTAINS", "STATIC_LINK", "DATA_FILE_OF", "BUILD_TOOL_OF", "GENERATED_FROM"}
# From SPDX's lists of licences and of exceptions.
LICENCES = {"MIT", "OFL-1.1", "CC-BY-4.0", "ODbL-1.0", "GPL-3.0-or-later", "ZPL-2.1", "BSD-3-Clause", "Zlib", "CPL-1.0",
            "NOASSERTION"}
EXCEPTIONS = {"GCC-exception-3.1", "LZMA-exception"}


def read():
    return json.loads((PACKAGES / f"{NAME}.spdx.json").read_text(encoding="utf-8"))


class Document(unittest.TestCase):
    def setUp(self):
        self.document = read()
        self.packages = {package["SPDXID"]: package for package in self.document["packages"]}
        self.files = {file["SPDXID"]: file for file in self.document["files"]}

    def has(self, record, fields):
        for field in fields:
            self.assertTrue(record.get(field), (field, record))

    def test_everything_has_the_fields_that_it_must_have(self):
        self.has(self.document, OF_THE_DOCUMENT)
        self.has(self.document["creationInfo"], ("created", "creators"))
        for records, fields in ((self.document["packages"], OF_A_PACKAGE), (self.document["files"], OF_A_FILE),
                                (self.document["relationships"], OF_A_RELATIONSHIP)):
            self.assertTrue(records)
            for record in records:
                self.has(record, fields)

    def test_the_document_says_what_it_is(self):
        self.assertEqual(self.document["spdxVersion"], "SPDX-2.3")
        self.assertEqual(self.document["SPDXID"], "SPDXRef-DOCUMENT")
        self.assertEqual(self.document["dataLicense"], "CC0-1.0")
        self.assertRegex(self.document["documentNamespace"], r"^https://[^#\s]+$")
        self.assertRegex(self.document["creationInfo"]["created"], r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$")
        for creator in self.document["creationInfo"]["creators"]:
            self.assertRegex(creator, r"^(Person|Organization|Tool): \S")

    def test_its_date_is_that_of_the_release_not_of_the_packing(self):
        moment = subprocess.run([PACKAGING / "release_time"], check=True, capture_output=True, text=True).stdout
        told = subprocess.run(["date", "-u", "-d", self.document["creationInfo"]["created"], "+%s"], check=True,
                              capture_output=True, text=True).stdout
        self.assertEqual(told, moment)

    def test_every_id_is_well_formed_and_its_own(self):
        ids = [record["SPDXID"] for record in self.document["packages"] + self.document["files"]] + ["SPDXRef-DOCUMENT"]
        self.assertEqual(len(ids), len(set(ids)))
        for spdx_id in ids:
            self.assertRegex(spdx_id, r"^SPDXRef-[A-Za-z0-9.-]+$")

    def test_relationships_are_of_known_kinds_and_between_things_that_are_listed(self):
        known = {"SPDXRef-DOCUMENT", *self.packages, *self.files}
        for one in self.document["relationships"]:
            self.assertIn(one["relationshipType"], KINDS)
            self.assertLessEqual({one["spdxElementId"], one["relatedSpdxElement"]}, known)

    def test_everything_listed_is_related_to_something(self):
        related = {one[end] for one in self.document["relationships"] for end in ("spdxElementId", "relatedSpdxElement")}
        self.assertEqual(related, {"SPDXRef-DOCUMENT", *self.packages, *self.files})

    def test_licences_are_those_of_the_lists_or_explained(self):
        explained = set()
        for licence in self.document["hasExtractedLicensingInfos"]:
            self.assertRegex(licence["licenseId"], r"^LicenseRef-[A-Za-z0-9.-]+$")
            self.assertTrue(licence["extractedText"])
            explained.add(licence["licenseId"])
        for package in self.packages.values():
            for part in re.split(r" AND ", package["licenseDeclared"]):
                licence, _, exception = part.partition(" WITH ")
                self.assertIn(licence, LICENCES | explained)
                self.assertIn(exception, EXCEPTIONS | {""})

    def test_every_file_of_the_contents_is_listed_with_its_checksums(self):
        listed = {file["fileName"]: {sum_["algorithm"]: sum_["checksumValue"] for sum_ in file["checksums"]}
                  for file in self.files.values()}
        expected = {}
        for path in CONTENTS.rglob("*"):
            if path.is_file():
                content = path.read_bytes()
                expected["./" + path.relative_to(CONTENTS).as_posix()] = {
                    "SHA1": hashlib.sha1(content).hexdigest(), "SHA256": hashlib.sha256(content).hexdigest()}
        self.assertEqual(listed, expected)
        for path in binaries():
            self.assertIn("./" + path.name, listed)

    def test_the_program_has_its_version_and_a_code_of_all_its_files(self):
        program = self.packages[PROGRAM]
        self.assertEqual(program["versionInfo"], VERSION)
        # SPDX 2.3, 7.9.
        sums = sorted(hashlib.sha1(path.read_bytes()).hexdigest() for path in CONTENTS.rglob("*") if path.is_file())
        self.assertEqual(program["packageVerificationCode"]["packageVerificationCodeValue"],
                         hashlib.sha1("".join(sums).encode()).hexdigest())
        self.assertIn({"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES",
                       "relatedSpdxElement": PROGRAM}, self.document["relationships"])

    def test_what_is_not_ours_has_the_version_that_was_used(self):
        versions = {package["name"]: package["versionInfo"] for package in self.packages.values()}
        rules = (ROOT / "libraries/sun/clock_rules_table.cpp").read_text(encoding="utf-8")
        self.assertIn(f"release {versions['tz-database']} ", rules.splitlines()[0])
        for name, debian in (("gcc-runtime", "gcc-mingw-w64-x86-64-posix-runtime"), ("nsis", "nsis-common"),
                             ("mingw-w64-runtime", "mingw-w64-x86-64-dev"), ("zlib", "libz-mingw-w64-dev"),
                             ("winpthreads", "mingw-w64-x86-64-dev"), ("liberation-fonts", "fonts-liberation2")):
            listed = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", debian], check=True, capture_output=True,
                                    text=True).stdout
            self.assertEqual(versions.pop(name), listed, name)
        self.assertEqual(set(versions), {"Times / Readings", "geonames", "timezone-boundary-builder", "tz-database"})

    def test_the_hebrew_font_says_what_it_is_made_of(self):
        font = next(file for file in self.files.values() if file["fileName"] == FONT)
        self.assertIn({"spdxElementId": font["SPDXID"], "relationshipType": "GENERATED_FROM",
                       "relatedSpdxElement": "SPDXRef-Package-liberation-fonts"}, self.document["relationships"])

    def test_every_licence_that_applies_goes_with_the_program(self):
        texts = {path.name for path in pathlib.Path(CONTENTS / "licences").iterdir()}
        self.assertGreaterEqual(len(texts), len(self.packages))


if __name__ == "__main__":
    unittest.main()
