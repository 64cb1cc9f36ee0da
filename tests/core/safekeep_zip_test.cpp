// Zip archives: what is written is read again, and nothing that is not sound. Offsets of fields are those of PKWARE's
// APPNOTE.TXT 6.3, sections 4.3.7 (local record), 4.3.12 (central record) and 4.3.16 (end).
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "libraries/safekeep/zip_archive.h"
#include "libraries/safekeep/zip_packing.h"
#include "tests/core/safekeep_archives.h"

using namespace safekeep;
using namespace safekeep_test;

namespace {

std::string Archive() {
  return ZipOf(SomeFiles());
}

ZipFault FaultIn(const std::string& archive) {
  const ZipReading reading = ReadZip(archive);
  EXPECT_EQ(reading.fault != ZipFault::kNone, reading.entries.empty());
  return reading.fault;
}

void ExpectSame(const std::vector<ZipEntry>& entries, const std::vector<ZipEntry>& expected) {
  ASSERT_EQ(entries.size(), expected.size());
  for (size_t i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(entries[i].name, expected[i].name);
    EXPECT_EQ(entries[i].changed, expected[i].changed);
    EXPECT_EQ(entries[i].bytes, expected[i].bytes);
  }
}

// Made by Python 3.11's zipfile into a stream that cannot seek: sum and sizes of "stamp.ini" ("[Times]\r\nForm=12\r\n",
// deflated) stand behind its bytes; 1 January 1980.
constexpr unsigned char kWithDescriptor[] = {
    0x50, 0x4B, 0x03, 0x04, 0x14, 0x00, 0x08, 0x00, 0x08, 0x00, 0x00, 0x00, 0x21, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x09, 0x00, 0x00, 0x00, 0x73, 0x74, 0x61, 0x6D, 0x70, 0x2E, 0x69, 0x6E,
    0x69, 0x8B, 0x0E, 0xC9, 0xCC, 0x4D, 0x2D, 0x8E, 0xE5, 0xE5, 0x72, 0xCB, 0x2F, 0xCA, 0xB5, 0x35, 0x34, 0xE2, 0xE5,
    0x02, 0x00, 0x50, 0x4B, 0x07, 0x08, 0xCB, 0xD8, 0xB9, 0x14, 0x14, 0x00, 0x00, 0x00, 0x12, 0x00, 0x00, 0x00, 0x50,
    0x4B, 0x01, 0x02, 0x14, 0x03, 0x14, 0x00, 0x08, 0x00, 0x08, 0x00, 0x00, 0x00, 0x21, 0x00, 0xCB, 0xD8, 0xB9, 0x14,
    0x14, 0x00, 0x00, 0x00, 0x12, 0x00, 0x00, 0x00, 0x09, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x80, 0x01, 0x00, 0x00, 0x00, 0x00, 0x73, 0x74, 0x61, 0x6D, 0x70, 0x2E, 0x69, 0x6E, 0x69, 0x50, 0x4B, 0x05,
    0x06, 0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x37, 0x00, 0x00, 0x00, 0x4B, 0x00, 0x00, 0x00, 0x00, 0x00};

}  // namespace

TEST(ZipArchive, WhatIsWrittenIsReadAgain) {
  const ZipReading reading = ReadZip(Archive());
  EXPECT_EQ(reading.fault, ZipFault::kNone);
  ExpectSame(reading.entries, SomeFiles());
}

TEST(ZipArchive, AnyBytesAreKeptWhetherTheyShrinkOrNot) {
  std::mt19937 dice(1);
  std::string noise;
  for (int i = 0; i < 200000; ++i) noise += static_cast<char>(dice());
  const std::vector<ZipEntry> files = {
      {"noise", {}, noise}, {"zeroes", {}, std::string(3000000, '\0')}, {"nothing", {}, ""}, {"a", {}, "a"}};
  const std::string archive = ZipOf(files);
  EXPECT_LT(archive.size(), noise.size() + 10000);
  ExpectSame(ReadZip(archive).entries, files);
}

TEST(ZipArchive, AnEmptyArchiveHasNoEntries) {
  const ZipReading reading = ReadZip(ZipOf({}));
  EXPECT_EQ(reading.fault, ZipFault::kNone);
  EXPECT_TRUE(reading.entries.empty());
}

TEST(ZipArchive, TheSameEntriesMakeTheSameBytes) {
  EXPECT_EQ(Archive(), Archive());
}

// The check value of CRC-32 (catalogue of parametrised CRC algorithms): that of "123456789".
TEST(ZipArchive, SumsAreCrc32) {
  EXPECT_EQ(SumOf("123456789"), 0xCBF43926u);
  EXPECT_EQ(SumOf(""), 0u);
}

TEST(ZipArchive, SizesBehindTheBytesAreTaken) {
  const ZipReading reading =
      ReadZip(std::string(reinterpret_cast<const char*>(kWithDescriptor), sizeof kWithDescriptor));
  EXPECT_EQ(reading.fault, ZipFault::kNone);
  ExpectSame(reading.entries, {{"stamp.ini", {}, "[Times]\r\nForm=12\r\n"}});
}

TEST(ZipArchive, OtherFilesAreNoZip) {
  for (const char* text : {"", "PK", "[Times]\r\nForm=12\r\n", "\x1F\x8B\x08 and so on, for the length of a record"}) {
    EXPECT_EQ(FaultIn(text), ZipFault::kNotZip) << text;
  }
}

TEST(ZipArchive, NoTruncatedArchiveIsAccepted) {
  const std::string archive = Archive();
  for (size_t length = 0; length < archive.size(); ++length) {
    EXPECT_NE(FaultIn(archive.substr(0, length)), ZipFault::kNone) << length;
  }
}

TEST(ZipArchive, NoArchiveWithMoreBehindOrBeforeItIsAccepted) {
  EXPECT_NE(FaultIn(Archive() + '\0'), ZipFault::kNone);
  EXPECT_NE(FaultIn('\0' + Archive()), ZipFault::kNone);
}

// What may change unseen are versions and attributes, which mean nothing here.
TEST(ZipArchive, NoFlippedBitChangesWhatIsRead) {
  const std::string archive = Archive();
  for (size_t at = 0; at < archive.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string flipped = archive;
      flipped[at] = static_cast<char>(flipped[at] ^ 1 << bit);
      const ZipReading reading = ReadZip(flipped);
      if (reading.fault == ZipFault::kNone) ExpectSame(reading.entries, SomeFiles());
    }
  }
}

TEST(ZipArchive, ADamagedEntryIsNamed) {
  std::string archive = Archive();
  archive.at(archive.find("Form=12")) = 'f';  // stored, so short it is
  const ZipReading reading = ReadZip(archive);
  EXPECT_EQ(reading.fault, ZipFault::kDamaged);
  EXPECT_EQ(reading.entry, "stamp.ini");
}

TEST(ZipArchive, AnEncryptedEntryIsNamed) {
  std::string archive = Archive();
  Poke(archive, Local(archive, 1) + 6, 1, 2);
  Poke(archive, Central(archive, 1) + 8, 1, 2);
  const ZipReading reading = ReadZip(archive);
  EXPECT_EQ(reading.fault, ZipFault::kEncrypted);
  EXPECT_EQ(reading.entry, "stamp.ini");
}

// 14 is LZMA.
TEST(ZipArchive, AnotherMethodIsRefused) {
  std::string archive = Archive();
  Poke(archive, Local(archive) + 8, 14, 2);
  Poke(archive, Central(archive) + 10, 14, 2);
  EXPECT_EQ(FaultIn(archive), ZipFault::kPackedOtherwise);
}

TEST(ZipArchive, Zip64IsRefused) {
  for (const int field : {20, 24, 42}) {  // sizes and place of an entry
    std::string archive = Archive();
    Poke(archive, Central(archive) + static_cast<size_t>(field), 0xFFFFFFFF, 4);
    EXPECT_EQ(FaultIn(archive), ZipFault::kZip64) << field;
  }
  std::string archive = Archive();
  Poke(archive, Local(archive) + 18, 0xFFFFFFFFFFFFFFFF, 8);  // both sizes, of the local record alone
  EXPECT_EQ(FaultIn(archive), ZipFault::kZip64);
  archive = Archive();
  Poke(archive, End(archive) + 16, 0xFFFFFFFF, 4);
  EXPECT_EQ(FaultIn(archive), ZipFault::kZip64);
  archive = Archive();
  archive.insert(End(archive), std::string("PK\x06\x07") + std::string(16, '\0'));
  EXPECT_EQ(FaultIn(archive), ZipFault::kZip64);
}

TEST(ZipArchive, APartOfAnArchiveIsRefused) {
  std::string archive = Archive();
  Poke(archive, End(archive) + 4, 1, 2);
  EXPECT_EQ(FaultIn(archive), ZipFault::kInParts);
  archive = Archive();
  Poke(archive, Central(archive) + 34, 1, 2);
  EXPECT_EQ(FaultIn(archive), ZipFault::kInParts);
}

TEST(ZipArchive, RecordsThatPointBeyondTheArchiveAreDamage) {
  const struct {
    size_t (*record)(const std::string&);
    size_t field;
    uint64_t number;
    int bytes;
  } wrong[] = {
      {[](const std::string& archive) { return End(archive); }, 12, 0x7FFFFFFF, 4},      // the directory's size
      {[](const std::string& archive) { return End(archive); }, 16, 0x7FFFFFFF, 4},      // and place
      {[](const std::string& archive) { return Central(archive); }, 28, 0xFFFF, 2},      // lengths
      {[](const std::string& archive) { return Central(archive); }, 30, 0xFFFF, 2},      //
      {[](const std::string& archive) { return Central(archive); }, 32, 0xFFFF, 2},      //
      {[](const std::string& archive) { return Central(archive); }, 42, 0x7FFFFFFF, 4},  // an entry's place
      {[](const std::string& archive) { return Central(archive); }, 20, 0x7FFFFFFF, 4},  // packed size
      {[](const std::string& archive) { return Local(archive); }, 26, 0xFFFF, 2},        // lengths
      {[](const std::string& archive) { return Local(archive); }, 28, 0xFFFF, 2},        //
      {[](const std::string& archive) { return Local(archive); }, 10, 0, 2},             // another time
  };
  for (const auto& [record, field, number, bytes] : wrong) {
    std::string archive = Archive();
    Poke(archive, record(archive) + field, number, bytes);
    EXPECT_EQ(FaultIn(archive), ZipFault::kDamaged) << field;
  }
}

TEST(ZipArchive, APackedSizeBeyondTheArchiveIsDamageInBothRecords) {
  std::string archive = Archive();
  Poke(archive, Local(archive) + 18, 0x7FFFFFFF, 4);
  Poke(archive, Central(archive) + 20, 0x7FFFFFFF, 4);
  EXPECT_EQ(FaultIn(archive), ZipFault::kDamaged);
}

// Bombs: more than the limit is said, or less is said than comes out.
TEST(ZipArchive, MoreThanTheLimitsAreRefused) {
  const std::string large(kMostEntryBytes + 1, '\0');
  EXPECT_EQ(FaultIn(ZipOf(std::vector<ZipEntry>{{"large", {}, large}})), ZipFault::kTooLarge);
  const ZipEntry most = {"most", {}, large.substr(1)};
  EXPECT_EQ(FaultIn(ZipOf(std::vector<ZipEntry>{most, most})), ZipFault::kNone);
  EXPECT_EQ(FaultIn(ZipOf(std::vector<ZipEntry>{most, most, {"more", {}, "x"}})), ZipFault::kTooLarge);
  EXPECT_EQ(FaultIn(ZipOf(std::vector<ZipEntry>(kMostEntries, {"x", {}, "x"}))), ZipFault::kNone);
  EXPECT_EQ(FaultIn(ZipOf(std::vector<ZipEntry>(kMostEntries + 1, {"x", {}, "x"}))), ZipFault::kTooLarge);
  EXPECT_EQ(FaultIn(std::string(kMostArchiveBytes + 1, '\0')), ZipFault::kTooLarge);
}

TEST(ZipArchive, AnEntryOfAnotherSizeThanIsSaidIsDamage) {
  for (const int difference : {-1, 1}) {
    std::string archive = ZipOf(std::vector<ZipEntry>{{"zeroes", {}, std::string(100000, '\0')}});
    const auto size = static_cast<uint64_t>(100000 + difference);
    Poke(archive, Local(archive) + 22, size, 4);
    Poke(archive, Central(archive) + 24, size, 4);
    EXPECT_EQ(FaultIn(archive), ZipFault::kDamaged) << difference;
  }
}

TEST(ZipArchive, DeflatedBytesAreTakenToTheLast) {
  const std::string text(1000, 'x');
  const std::string deflated = Deflated(text);
  EXPECT_EQ(Inflated(deflated, text.size()), text);
  EXPECT_EQ(Inflated(deflated + 'x', text.size()), std::nullopt);
  EXPECT_EQ(Inflated(deflated.substr(0, deflated.size() - 1), text.size()), std::nullopt);
  EXPECT_EQ(Inflated(deflated, text.size() - 1), std::nullopt);
  EXPECT_EQ(Inflated(deflated, text.size() + 1), std::nullopt);
  EXPECT_EQ(Inflated("", 0), std::nullopt);
  EXPECT_EQ(Inflated(Deflated(""), 0), "");
}
