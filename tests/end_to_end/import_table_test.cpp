// What the built files import, read from the files themselves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>

#include "tests/end_to_end/program_driver.h"

using testing::AnyOfArray;
using testing::Each;

namespace {

std::string LowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// A 64-bit executable or DLL in memory as it lies on disk.
class ImageFile {
 public:
  explicit ImageFile(const std::filesystem::path& file) : bytes_(ReadFileText(file)) {}

  std::set<std::string> ImportedLibraries() const {
    std::set<std::string> names;
    uint32_t address = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto entry = At<IMAGE_IMPORT_DESCRIPTOR>(Offset(address)); entry.Name != 0;
         entry = At<IMAGE_IMPORT_DESCRIPTOR>(Offset(address += sizeof entry))) {
      names.insert(LowerCase(bytes_.data() + Offset(entry.Name)));
    }
    return names;
  }

  IMAGE_NT_HEADERS64 Headers() const { return At<IMAGE_NT_HEADERS64>(HeaderOffset()); }

 private:
  template <typename Record>
  Record At(std::size_t offset) const {
    Record record{};
    EXPECT_LE(offset + sizeof record, bytes_.size());
    if (offset + sizeof record <= bytes_.size()) std::memcpy(&record, bytes_.data() + offset, sizeof record);
    return record;
  }

  std::size_t HeaderOffset() const { return static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(0).e_lfanew); }

  std::size_t Offset(uint32_t address) const {
    const std::size_t sections = HeaderOffset() + sizeof(IMAGE_NT_HEADERS64);
    for (std::size_t i = 0; i < Headers().FileHeader.NumberOfSections; ++i) {
      const auto section = At<IMAGE_SECTION_HEADER>(sections + i * sizeof(IMAGE_SECTION_HEADER));
      if (address >= section.VirtualAddress && address < section.VirtualAddress + section.SizeOfRawData) {
        return address - section.VirtualAddress + section.PointerToRawData;
      }
    }
    ADD_FAILURE() << "no section holds address " << address;
    return 0;
  }

  std::string bytes_;
};

const std::set<std::string> kSystemLibraries = {"kernel32.dll", "msvcrt.dll",   "user32.dll",   "gdi32.dll",
                                                "shell32.dll",  "advapi32.dll", "comctl32.dll", "comdlg32.dll",
                                                "winspool.drv", "ole32.dll"};

}  // namespace

TEST(ImportTable, TheProgramImportsItsLibrariesButNotThoseThatItBindsByName) {
  const auto imports = ImageFile(ProgramFolder() / "shabbat.exe").ImportedLibraries();
  for (const char* bound : {"solar.dll", "civilcal.dll", "lunarcal.dll", "occasions.dll"}) {
    EXPECT_EQ(imports.count(bound), 0u) << bound;
  }
  for (const char* linked :
       {"profile.dll", "twilight.dll", "stamp.dll", "glyphs.dll", "candles.dll", "hours.dll", "kinship.dll",
        "folio.dll", "majority.dll", "safekeep.dll", "user32.dll", "gdi32.dll", "comctl32.dll"}) {
    EXPECT_EQ(imports.count(linked), 1u) << linked;
  }
}

TEST(ImportTable, TheProgramIsAWindowedOne) {
  EXPECT_EQ(ImageFile(ProgramFolder() / "shabbat.exe").Headers().OptionalHeader.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
}

TEST(ImportTable, ALibraryImportsTheSystemAndTheProfileLibraryOnly) {
  std::set<std::string> allowed = kSystemLibraries;
  allowed.insert("profile.dll");
  int libraries = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ProgramFolder())) {
    if (LowerCase(entry.path().extension().string()) != ".dll") continue;
    ++libraries;
    EXPECT_THAT(ImageFile(entry.path()).ImportedLibraries(), Each(AnyOfArray(allowed))) << entry.path();
  }
  EXPECT_GE(libraries, 10);
}
