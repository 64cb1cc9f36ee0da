// Exports that cannot be written: each says so and names the file, an older file stays whole, and nothing else is left.
#include <fstream>
#include <functional>

#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/exports_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
namespace fs = std::filesystem;

namespace {

constexpr char kOlder[] = "an older file";
constexpr unsigned kFile = IDC_DELIMITED_FILE;

struct Export {
  unsigned view;
  unsigned command;
};

// In the Shabbat view, the RTF command asks for a layout first.
constexpr Export kBySaveDialog[] = {
    {IDM_VIEW_SHABBAT_TIMES, IDM_EXPORT_TEXT},
    {IDM_VIEW_SHABBAT_TIMES, IDM_EXPORT_RTF_THREE_COLUMNS},
    {IDM_VIEW_SHABBAT_TIMES, IDM_EXPORT_RTF_TWO_COLUMNS},
    {IDM_VIEW_ZMANIM, IDM_EXPORT_TEXT},
    {IDM_VIEW_ZMANIM, IDM_EXPORT_RTF},
    {IDM_VIEW_ZMANIM, IDM_EXPORT_RTF_BY_DAY},
    {IDM_VIEW_READINGS, IDM_EXPORT_TEXT},
    {IDM_VIEW_READINGS, IDM_EXPORT_RTF},
    {IDM_VIEW_READINGS, IDM_EXPORT_RTF_NARROW},
};
constexpr unsigned kByOwnDialog[] = {IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES};

class UnwritableExportsTest : public ExportsFixture {
 protected:
  void TearDown() override {
    SetFileAttributesA(PathOf("file.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
    ExportsFixture::TearDown();
  }

  // Has every export write a file that cannot be written, after prepare has seen to that.
  void ExpectEveryExportToName(const std::string& file, const std::function<void()>& prepare) {
    for (const Export& row : kBySaveDialog) {
      SCOPED_TRACE(row.command);
      Command(row.view);
      System().savedFile = file;
      Fail(prepare);
      Command(row.command);
      ExpectWord(file);
    }
    for (const unsigned command : kByOwnDialog) {
      SCOPED_TRACE(command);
      WithDialog([&] { Command(command); },
                 [&](HWND dialog) {
                   SetField(dialog, kFile, file.c_str());
                   Fail(prepare);
                   Click(dialog, IDOK);
                   ExpectWord(file);
                   EXPECT_TRUE(IsWindow(dialog));
                   EXPECT_EQ(GetFocus(), GetDlgItem(dialog, kFile));
                   Click(dialog, IDCANCEL);
                 });
    }
    EXPECT_EQ(System().locks, 0);
  }
  static void Fail(const std::function<void()>& prepare) {
    CallLog().clear();
    prepare();
  }
  static void ExpectWord(const std::string& file) {
    EXPECT_THAT(
        CallsWith("message box"),
        ElementsAre(
            "message box 'File " + file +
            " could not be written.\nPlease choose another name or folder, close the file in other programs, or "
            "make room on the disk. An older file of this name is as it was.' caption 'Error' type 0x10 owner "
            "yes"));
  }
  void ExpectOnlyTheOlderFile() const {
    EXPECT_EQ(Bytes(PathOf("file.txt")), kOlder);
    EXPECT_EQ(Names(), std::vector<std::string>{"file.txt"});
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename().string());
    return names;
  }
  std::string WriteOlderFile() const {
    std::ofstream(PathOf("file.txt")) << kOlder;
    return PathOf("file.txt");
  }
};

}  // namespace

TEST_F(UnwritableExportsTest, ADiskThatFailsAtAnyStepIsToldAndTheOlderFileStaysWhole) {
  const std::string file = WriteOlderFile();
  ExpectEveryExportToName(file, [] { System().createError = ERROR_DISK_FULL; });
  System().createError = 0;
  ExpectEveryExportToName(file, [] { System().failingWrites = 1; });
  ExpectEveryExportToName(file, [] { System().diskIsFull = true; });
  System().diskIsFull = false;
  ExpectEveryExportToName(file, [] { System().flushFails = true; });
  System().flushFails = false;
  System().renameError = ERROR_DISK_FULL;
  ExpectEveryExportToName(file, [] { System().failingRenames = 1; });
  ExpectOnlyTheOlderFile();
}

TEST_F(UnwritableExportsTest, TheSameRowRtfFileIsToldOfToo) {
  System().savedFile = WriteOlderFile();
  System().flushFails = true;
  WithDialog([&] { Command(IDM_EXPORT_RTF); }, [](HWND dialog) { Click(dialog, IDOK); });
  ExpectWord(PathOf("file.txt"));
  ExpectOnlyTheOlderFile();
}

TEST_F(UnwritableExportsTest, AReadOnlyFileIsToldOfAndStays) {
  const std::string file = WriteOlderFile();
  SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY);
  ExpectEveryExportToName(file, [] {});
  ExpectOnlyTheOlderFile();
}

TEST_F(UnwritableExportsTest, AFileThatAnotherProgramHoldsIsToldOfAndStays) {
  const std::string file = WriteOlderFile();
  const HANDLE held = CreateFileA(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  ExpectEveryExportToName(file, [] {});
  CloseHandle(held);
  ExpectOnlyTheOlderFile();
}

TEST_F(UnwritableExportsTest, AFileThatAnotherProgramSoonLetsGoIsReplaced) {
  const std::string file = WriteOlderFile();
  for (const DWORD error : {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}) {
    System().failingRenames = 3;
    System().renameError = error;
    EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "file.txt"), HasSubstr("Times / Readings of Aachen"));
    WriteOlderFile();
  }
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(UnwritableExportsTest, AFolderADeviceAndAnImpossibleNameAreToldOf) {
  WriteOlderFile();
  fs::create_directories(folder_ / "folder.txt");
  for (const std::string& name :
       {PathOf("folder.txt"), PathOf("folder.txt\\"), PathOf("a|b.txt"), PathOf("a:b.txt"), PathOf("nowhere\\a.txt"),
        PathOf("nul"), std::string("nul"), std::string("\\\\.\\nul")}) {
    ExpectEveryExportToName(name, [] {});
  }
  EXPECT_TRUE(fs::is_empty(folder_ / "folder.txt"));
  fs::remove(folder_ / "folder.txt");
  ExpectOnlyTheOlderFile();
}

TEST_F(UnwritableExportsTest, AnExportThatFailedSucceedsOnceThereIsRoom) {
  Command(IDM_VIEW_ZMANIM);
  System().failingWrites = 1;
  EXPECT_EQ(Exported(IDM_EXPORT_TEXT, "file.txt"), "");
  EXPECT_THAT(Names(), IsEmpty());
  CallLog().clear();
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT, "file.txt"), HasSubstr("Zmanim of Aachen"));
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}
