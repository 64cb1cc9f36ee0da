// Settings backed up and restored by the finished program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

using testing::HasSubstr;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kBackUp = 1132;
constexpr unsigned kRestore = 1133;
constexpr int kFileName = 0x47C;  // cmb13: of the system's dialogs for files
constexpr int kMessage = 0xFFFF;  // of a box

// "17:05" or "5:05 p.m."
bool IsTime(const std::string& text, bool twelveHours) {
  const bool begins = !text.empty() && text.front() >= '0' && text.front() <= '9' && text.size() <= 10;
  return begins && text.find(':') != std::string::npos && text.ends_with("m.") == twelveHours;
}

class SafekeepEndToEndTest : public testing::Test {
 protected:
  void SetUp() override {
    MakeRecordingProgram(program_.path());
    Set("stamp.ini", "[Times]\r\nForm=24\r\n");
    Set("almanac13.ini", "[Preferences]\r\nDefaultLocation=Jerusalem\r\n");
    Set("shab30.ini", "[Zmanim]\r\nHebrew=0\r\n");
    run_.emplace(program_.path(), settings_.path());
    ASSERT_EQ(run_->WaitForDocuments(1).size(), 1u);
  }
  void Set(const char* file, const std::string& text) const { WriteFileText(settings_.path() / file, text); }
  std::string Stored(const char* file) const { return ReadFileText(settings_.path() / file); }

  // Chooses a file in the system's dialog of a title, and waits until it is gone.
  void ChooseFile(const char* title, const fs::path& file) const {
    const HWND dialog = run_->WaitForDialog(title);
    SetText(dialog, kFileName, file.string());
    Answer(dialog, IDOK);
    EXPECT_TRUE(run_->Eventually([dialog] { return !IsWindow(dialog); }));
  }
  // The text of the box of a title, which is then closed.
  std::string Told(const char* title) const {
    HWND box = nullptr;
    EXPECT_TRUE(run_->Eventually([&] {
      box = run_->WaitForDialog(title);
      return GetDlgItem(box, kMessage) != nullptr;
    }));
    const std::string text = TextOf(GetDlgItem(box, kMessage));
    Answer(box, IDOK);
    EXPECT_TRUE(run_->Eventually([box] { return !IsWindow(box); }));
    return text;
  }
  std::string BackUp(const fs::path& file) const {
    run_->PostCommand(kBackUp);
    ChooseFile("Back Up Settings", file);
    return Told("Back Up Settings");
  }
  std::string Restore(const fs::path& file) const {
    run_->PostCommand(kRestore);
    ChooseFile("Choose Backup to Restore", file);
    const HWND dialog = run_->WaitForDialog("Restore Settings");
    Answer(dialog, IDOK);
    EXPECT_TRUE(run_->Eventually([dialog] { return !IsWindow(dialog); }));
    return Told("Restore Settings");
  }

  // Whether a document drew a time in the form since so many draws.
  bool DrewTime(std::size_t since, bool twelveHours) const {
    SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_NULL, 0, 0);
    const std::vector<RecordedDraw> draws = ReadDraws(settings_.path());
    return std::any_of(draws.begin() + static_cast<std::ptrdiff_t>(std::min(since, draws.size())), draws.end(),
                       [&](const RecordedDraw& draw) { return IsTime(draw.text, twelveHours); });
  }
  std::size_t DrawsSoFar() const { return ReadDraws(settings_.path()).size(); }

  TemporaryFolder program_;
  TemporaryFolder settings_;
  TemporaryFolder elsewhere_;
  std::optional<ProgramRun> run_;
};

}  // namespace

TEST_F(SafekeepEndToEndTest, RestoredSettingsAreTheOldOnesAndShownAtOnce) {
  const fs::path backup = elsewhere_.path() / "mine.zip";
  EXPECT_TRUE(run_->Eventually([&] { return DrewTime(0, false); }));
  EXPECT_THAT(BackUp(backup), HasSubstr("settings files are backed up in"));

  // Another form and another place, as a second copy of the program might leave them.
  Set("stamp.ini", "[Times]\r\nForm=12\r\n");
  Set("almanac13.ini", "[Preferences]\r\nDefaultLocation=London\r\n");
  run_.emplace(program_.path(), settings_.path());
  EXPECT_TRUE(run_->Eventually([&] { return DrewTime(0, true); }));
  EXPECT_THAT(TextOf(run_->WaitForDocuments(1).front()), StartsWith("London"));

  const std::size_t before = DrawsSoFar();
  EXPECT_THAT(Restore(backup), HasSubstr("\\backups\\Before restoring "));
  EXPECT_EQ(run_->WaitForDocuments(2).size(), 2u);
  EXPECT_TRUE(run_->Eventually([&] { return DrewTime(before, false); }));
  EXPECT_EQ(Stored("stamp.ini"), "[Times]\r\nForm=24\r\n");
  EXPECT_EQ(Stored("almanac13.ini"), "[Preferences]\r\nDefaultLocation=Jerusalem\r\n");

  run_.emplace(program_.path(), settings_.path());
  EXPECT_THAT(TextOf(run_->WaitForDocuments(1).front()), StartsWith("Jerusalem"));
}

TEST_F(SafekeepEndToEndTest, ADamagedBackupIsToldAndNoDocumentOpened) {
  const fs::path backup = elsewhere_.path() / "mine.zip";
  BackUp(backup);
  WriteFileText(backup, ReadFileText(backup).substr(0, 300));
  run_->PostCommand(kRestore);
  ChooseFile("Choose Backup to Restore", backup);
  EXPECT_THAT(Told("Error"), HasSubstr("damaged"));
  EXPECT_EQ(run_->WaitForDocuments(1).size(), 1u);
  EXPECT_FALSE(fs::exists(settings_.path() / "backups"));
}
