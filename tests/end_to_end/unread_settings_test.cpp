// The finished program while another program holds its settings: it says so, and what the files hold stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned kPreferences = 1003;
constexpr int kTextControl = 0xFFFF;  // the static text of a message box
constexpr int kCandles = 101;
constexpr int kEnd = 102;
constexpr char kTitle[] = "Times / Readings";
constexpr char kStored[] = "[Shabbat]\r\nCandleLighting=40\r\nEnd=72\r\n";

class UnreadSettingsTest : public testing::Test {
 protected:
  void SetUp() override {
    WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n");
    WriteFileText(File(), kStored);
    held_ = CreateFileA(File().string().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held_, INVALID_HANDLE_VALUE);
  }
  void TearDown() override { Release(); }

  fs::path File() const { return settings_.path() / "shabbat2.ini"; }
  void Release() {
    if (held_) CloseHandle(held_);
    held_ = nullptr;
  }

  // The text of the box, which is answered.
  static std::string Answer(const ProgramRun& program, int button) {
    const HWND box = program.WaitForDialog(kTitle);
    const std::string text = TextOf(GetDlgItem(box, kTextControl));
    Click(box, button);
    EXPECT_TRUE(program.Eventually([box] { return !IsWindow(box); }));
    return text;
  }

  static void ExpectStoredPreferences(const ProgramRun& program) {
    const HWND dialog = program.WaitForDialog("Shabbat Time Preferences");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kCandles)), "40");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEnd)), "72");
    Click(dialog, IDOK);
    EXPECT_TRUE(program.Eventually([dialog] { return !IsWindow(dialog); }));
  }

  TemporaryFolder settings_;
  HANDLE held_ = nullptr;
};

}  // namespace

TEST_F(UnreadSettingsTest, TryAgainAtTheStartGoesOnWithTheSettings) {
  ProgramRun program(ProgramFolder(), settings_.path());
  EXPECT_THAT(Answer(program, IDTRYAGAIN), testing::HasSubstr("cannot be read:\n\nshabbat2.ini\n\n"));
  program.WaitForDialog(kTitle);
  Release();
  Answer(program, IDTRYAGAIN);
  EXPECT_EQ(program.WaitForDocuments(1).size(), 1u);
  program.PostCommand(kPreferences);
  ExpectStoredPreferences(program);
  EXPECT_EQ(program.WaitForDocuments(2).size(), 2u);
  EXPECT_THAT(ReadFileText(File()), testing::StartsWith(kStored));
}

TEST_F(UnreadSettingsTest, ContinueWritesNothingOverTheSettings) {
  ProgramRun program(ProgramFolder(), settings_.path());
  Answer(program, IDCONTINUE);
  EXPECT_EQ(program.WaitForDocuments(1).size(), 1u);
  program.PostCommand(kPreferences);
  EXPECT_THAT(Answer(program, IDCANCEL), testing::HasSubstr("shabbat2.ini"));
  EXPECT_FALSE(program.HasDialog("Shabbat Time Preferences"));
  program.PostCommand(kPreferences);
  program.WaitForDialog(kTitle);
  Release();
  Answer(program, IDRETRY);
  ExpectStoredPreferences(program);
  EXPECT_EQ(program.WaitForDocuments(2).size(), 2u);
  EXPECT_THAT(ReadFileText(File()), testing::StartsWith(kStored));
}

TEST_F(UnreadSettingsTest, CancelAtTheStartEndsTheProgram) {
  ProgramRun program(ProgramFolder(), settings_.path());
  Answer(program, IDCANCEL);
  EXPECT_EQ(program.WaitForExit(), 0u);
  Release();
  EXPECT_EQ(ReadFileText(File()), kStored);
}
