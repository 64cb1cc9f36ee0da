// Files that are written from start to end, on a disk that fails.
#include "win/file_sink.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/program/program_fixture.h"

namespace fs = std::filesystem;

namespace {

// More than is written at once.
constexpr std::size_t kLarge = 200'000;

class FileSinkTest : public testing::Test {
 protected:
  void SetUp() override { ResetSystem(); }
  void TearDown() override {
    ResetSystem();
    std::error_code ignored;
    fs::remove_all(file_, ignored);
  }

  std::string Bytes() const {
    std::ifstream file(file_, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  const std::string file_ =
      (fs::temp_directory_path() / ("file_sink_test_" + std::to_string(GetCurrentProcessId()))).string();
};

}  // namespace

TEST_F(FileSinkTest, WritesEveryByteInOrder) {
  std::string expected;
  FileSink sink(file_.c_str());
  while (expected.size() < kLarge) {
    const std::string text = std::to_string(expected.size()) + "\r\n";
    sink.Write(text);
    expected += text;
  }
  EXPECT_TRUE(sink.Close());
  EXPECT_TRUE(sink.Close()) << "closing again changes nothing";
  EXPECT_EQ(Bytes(), expected);
}

TEST_F(FileSinkTest, IsWrittenWithoutBeingClosed) {
  { FileSink(file_.c_str()).Write("text"); }
  EXPECT_EQ(Bytes(), "text");
}

TEST_F(FileSinkTest, OneFailingWriteIsToldAndNothingIsWrittenBehindTheGap) {
  FileSink sink(file_.c_str());
  System().failingWrites = 1;
  sink.Write(std::string(kLarge, 'a'));
  sink.Write(std::string(kLarge, 'b'));
  EXPECT_FALSE(sink.Close());
  EXPECT_FALSE(sink.Close());
  EXPECT_EQ(Bytes(), "");
}

TEST_F(FileSinkTest, AWriteThatEndsTooSoonIsTold) {
  FileSink sink(file_.c_str());
  System().diskIsFull = true;
  sink.Write("text");
  EXPECT_FALSE(sink.Close());
}

TEST_F(FileSinkTest, AFileThatCannotBeCreatedIsTold) {
  fs::create_directories(file_);
  FileSink sink(file_.c_str());
  sink.Write(std::string(kLarge, 'a'));
  EXPECT_FALSE(sink.Close());
}
