"""What the tests of the packages share: where the packages are, and their Windows files read from their bytes."""
import os
import pathlib
import struct

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PACKAGING = ROOT / "packaging"
PACKAGES = pathlib.Path(os.environ["PACKAGES"])
SYMBOLS = pathlib.Path(os.environ["SYMBOLS"])
VERSION = os.environ["VERSION"]
NAME = f"times-readings-{VERSION}"
CONTENTS = PACKAGES / "contents"

BASE_RELOCATIONS, SECURITY = 5, 4  # data directories


def binaries():
    """The program and its libraries as installer and zip file have them."""
    found = sorted(path for path in CONTENTS.rglob("*") if path.suffix.lower() in (".exe", ".dll"))
    assert len(found) > 15, found
    return found


class Image:
    """A 64-bit Windows file: PE format, headers and section table."""

    def __init__(self, content):
        self.content = bytes(content)
        self.start = self.number("<I", 0x3C)
        assert self.content[self.start:self.start + 4] == b"PE\0\0"
        self.optional = self.start + 24
        self.is_64_bit = self.number("<H", self.optional) == 0x20B
        self.time_stamp = self.number("<I", self.start + 8)
        self.image_base = self.number("<Q", self.optional + 24)
        self.characteristics = self.number("<H", self.optional + 70)
        self.sections = [self.section(i) for i in range(self.number("<H", self.start + 6))]

    def number(self, form, offset):
        return struct.unpack_from(form, self.content, offset)[0]

    def directory(self, index):
        """Address (in the file, for SECURITY) and size."""
        return struct.unpack_from("<II", self.content, self.optional + 112 + 8 * index)

    def section(self, index):
        place = self.optional + self.number("<H", self.start + 20) + 40 * index
        name, memory, address, size, offset = struct.unpack_from("<8sIIII", self.content, place)
        return {"name": name.rstrip(b"\0").decode(), "memory": memory, "address": address, "size": size,
                "offset": offset, "flags": self.number("<I", place + 36)}

    def bytes_of(self, name):
        section = next(section for section in self.sections if section["name"] == name)
        return section["address"], self.content[section["offset"]:section["offset"] + section["size"]]
