// Files that are written beside their place and take it when they are whole, on a disk that fails.
#include "win/file_sink.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/program/program_fixture.h"

namespace fs = std::filesystem;

namespace {

// More than is written at once.
constexpr std::size_t kLarge = 200'000;

class FileSinkTest : public testing::Test {
 protected:
  void SetUp() override {
    ResetSystem();
    fs::create_directories(folder_);
    std::ofstream(file_) << "an older file";
  }
  void TearDown() override {
    ResetSystem();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  std::string Bytes() const {
    std::ifstream file(file_, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }
  std::ptrdiff_t Files() const { return std::distance(fs::directory_iterator(folder_), {}); }
  void ExpectOnlyTheOlderFile() const {
    EXPECT_EQ(Bytes(), "an older file");
    EXPECT_EQ(Files(), 1);
  }

  const fs::path folder_ = fs::temp_directory_path() / ("file_sink_test_" + std::to_string(GetCurrentProcessId()));
  const std::string file_ = (folder_ / "file").string();
};

}  // namespace

TEST_F(FileSinkTest, WritesEveryByteInOrder) {
  std::string expected;
  {
    FileSink sink(file_.c_str());
    while (expected.size() < kLarge) {
      const std::string text = std::to_string(expected.size()) + "\r\n";
      sink.Write(text);
      expected += text;
    }
    EXPECT_EQ(Bytes(), "an older file") << "until all is written";
    EXPECT_TRUE(sink.Commit());
    EXPECT_TRUE(sink.Commit()) << "once more changes nothing";
    EXPECT_EQ(Bytes(), expected);
  }
  EXPECT_EQ(Bytes(), expected);
  EXPECT_EQ(Files(), 1);
}

TEST_F(FileSinkTest, AFileThatIsGivenUpLeavesTheOlderOne) {
  { FileSink(file_.c_str()).Write(std::string(kLarge, 'a')); }
  ExpectOnlyTheOlderFile();
}

TEST_F(FileSinkTest, TwoFilesGrowSideBySide) {
  const std::string other = (folder_ / "other").string();
  FileSink first(file_.c_str());
  FileSink second(other.c_str());
  first.Write("first");
  second.Write("second");
  EXPECT_TRUE(first.Commit());
  EXPECT_TRUE(second.Commit());
  EXPECT_EQ(Bytes(), "first");
  EXPECT_EQ(fs::file_size(other), 6u);
  EXPECT_EQ(Files(), 2);
}

TEST_F(FileSinkTest, OneFailingWriteIsToldThoughTheNextOnesWouldSucceed) {
  {
    FileSink sink(file_.c_str());
    System().failingWrites = 1;
    sink.Write(std::string(kLarge, 'a'));
    sink.Write(std::string(kLarge, 'b'));
    EXPECT_FALSE(sink.Commit());
    EXPECT_FALSE(sink.Commit());
  }
  ExpectOnlyTheOlderFile();
}

TEST_F(FileSinkTest, AWriteThatEndsTooSoonIsTold) {
  {
    FileSink sink(file_.c_str());
    System().diskIsFull = true;
    sink.Write("text");
    EXPECT_FALSE(sink.Commit());
  }
  ExpectOnlyTheOlderFile();
}

TEST_F(FileSinkTest, AFileThatCannotBeCreatedIsTold) {
  System().createError = ERROR_ACCESS_DENIED;
  FileSink sink(file_.c_str());
  sink.Write(std::string(kLarge, 'a'));
  EXPECT_FALSE(sink.Commit());
  ExpectOnlyTheOlderFile();
}

TEST_F(FileSinkTest, ANameThatIsTakenBesideIsPassedOver) {
  for (int i = 0; i < 2; ++i) {
    FileSink sink(file_.c_str());
    FileSink again(file_.c_str());
    EXPECT_EQ(Files(), 3);
    again.Write("again");
    EXPECT_TRUE(again.Commit());
  }
  EXPECT_EQ(Bytes(), "again");
  EXPECT_EQ(Files(), 1);
}

// The longest folder that the system makes has room for a name of eight letters and three.
TEST_F(FileSinkTest, AFileInTheLongestFolderIsWritten) {
  constexpr std::size_t kLongestFolder = MAX_PATH - 13;
  const std::string start = folder_.string() + "\\";
  const std::string folder = start + std::string(kLongestFolder - start.size(), 'd');
  ASSERT_TRUE(CreateDirectoryA(folder.c_str(), nullptr)) << GetLastError();
  const std::string file = folder + "\\f";
  FileSink sink(file.c_str());
  EXPECT_TRUE(sink.Commit());
  EXPECT_NE(GetFileAttributesA(file.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileSinkTest, ANameWithoutAFolderIsThatOfTheCurrentFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  FileSink sink("file");
  sink.Write("text");
  EXPECT_TRUE(sink.Commit());
  fs::current_path(before);
  EXPECT_EQ(Bytes(), "text");
}

// A document of any script has its name in it.
TEST_F(FileSinkTest, ANameMayBeOfAnyScript) {
  const fs::path file = folder_ / L"\x05E9\x05D1\x05EA \x0428\x0430\x0431\x0431\x0430\x0442 \x00C9.html";
  {
    FileSink sink(file.c_str());
    sink.Write("text");
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(sink.Commit());
  }
  EXPECT_EQ(fs::file_size(file), 4u);
  EXPECT_EQ(Files(), 2);
}

TEST_F(FileSinkTest, APathMayBeLongerThanThoseOf8Bits) {
  std::wstring folder = folder_.wstring();
  std::vector<std::wstring> folders;
  for (const wchar_t letter : {L'\x05D0', L'\x05D1', L'\x05D2'}) {
    folder += L'\\' + std::wstring(100, letter);
    folders.push_back(L"\\\\?\\" + folder);
    ASSERT_TRUE(CreateDirectoryW(folders.back().c_str(), nullptr)) << GetLastError();
  }
  {
    FileSink sink((folder + L"\\file").c_str());
    sink.Write("text");
    EXPECT_TRUE(sink.Commit());
  }
  EXPECT_TRUE(DeleteFileW((L"\\\\?\\" + folder + L"\\file").c_str())) << GetLastError();
  for (auto of = folders.rbegin(); of != folders.rend(); ++of) EXPECT_TRUE(RemoveDirectoryW(of->c_str()));
}

TEST_F(FileSinkTest, WideNamesOfDevicesAndFoldersAreNotTaken) {
  for (const std::wstring& name :
       {std::wstring(L"nul"), std::wstring(L"con"), std::wstring(), (folder_ / L"").wstring(), folder_.wstring()}) {
    FileSink sink(name.c_str());
    EXPECT_FALSE(sink.Commit()) << fs::path(name).string();
  }
  ExpectOnlyTheOlderFile();
}

TEST_F(FileSinkTest, OfAWideNameTooNothingIsLeftWhenTheDiskIsFull) {
  {
    FileSink sink(fs::path(file_).c_str());
    System().diskIsFull = true;
    sink.Write("text");
    EXPECT_FALSE(sink.Commit());
  }
  ExpectOnlyTheOlderFile();
}
