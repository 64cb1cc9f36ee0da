// The user's own texts of readings in the finished program. 6 January 2007 is Vayechi's Shabbat (Hebcal).
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

using testing::EndsWith;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kOwnReadings = 1012;
constexpr unsigned kViewReadings = 1113;
// In the dialog of own texts, and in that of one text.
constexpr int kTyped = 301;
constexpr int kKinds = 302;
constexpr int kPortions = 1;
constexpr int kAdd = 308;
constexpr int kText = 408;

constexpr char kProgramsText[] = "Vayechi: Genesis 47:28-50:26";
constexpr char kStored[] = "portion Vayechi | torah 1 | all | all | all | instead | A; Morning: B\r\n";

class OwnReadingsEndToEndTest : public testing::Test {
 protected:
  void SetUp() override { MakeRecordingProgram(folder_.path()); }
  // Settings of the readings with a language, by its code.
  void Set(const std::string& language) {
    WriteFileText(settings_.path() / "lections.ini",
                  "[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\nLanguage=" + language + "\r\n");
  }

  // A run with a document of the Shabbat, its readings shown; what was drawn before is forgotten.
  void Start() {
    run_.reset();
    drawnBefore_ = ReadDraws(settings_.path()).size();
    run_.emplace(folder_.path(), settings_.path());
    ASSERT_NE(OpenRange(*run_, "5.1.2007", "6.1.2007"), nullptr);
    Send(kViewReadings);
  }
  void Send(unsigned command) const { SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_COMMAND, command, 0); }

  bool IsDrawn(const std::string& text) const {
    SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_NULL, 0, 0);
    const std::vector<RecordedDraw> draws = ReadDraws(settings_.path());
    return std::any_of(draws.begin() + static_cast<std::ptrdiff_t>(drawnBefore_), draws.end(),
                       [&](const auto& draw) { return draw.windowClass == "ShabbatParashaTwo" && draw.text == text; });
  }
  void ExpectDrawn(const std::string& text) const {
    EXPECT_TRUE(run_->Eventually([&] { return IsDrawn(text); })) << text;
  }

  // Writes a text for Vayechi in place of the program's first.
  void WriteOwnText(const std::string& text) const {
    run_->PostCommand(kOwnReadings);
    const HWND dialog = run_->WaitForDialog("Custom Readings");
    SendDlgItemMessageA(dialog, kKinds, CB_SETCURSEL, kPortions, 0);
    SetText(dialog, kTyped, "Vayechi");
    Answer(dialog, kAdd);
    const HWND entry = run_->WaitForDialog("Own Text: Vayechi");
    SetText(entry, kText, text);
    Answer(entry, IDOK);
    EXPECT_TRUE(run_->Eventually([&] { return !IsWindow(entry) && IsWindowEnabled(dialog); }));
    Answer(dialog, IDOK);
  }

  TemporaryFolder folder_;
  TemporaryFolder settings_;
  std::size_t drawnBefore_ = 0;
  std::optional<ProgramRun> run_;
};

}  // namespace

TEST_F(OwnReadingsEndToEndTest, AnOwnTextOpensADocumentThatShowsItSplitAndIsThereAfterARestart) {
  Set("1");
  Start();
  ExpectDrawn(kProgramsText);
  WriteOwnText("A; Morning: B");
  ASSERT_EQ(run_->WaitForDocuments(3).size(), 3u);
  EXPECT_THAT(ReadFileText(settings_.path() / "readings.txt"), EndsWith(kStored));
  Send(kViewReadings);
  ExpectDrawn("A");
  ExpectDrawn("Morning: B");

  Start();
  ExpectDrawn("A");
  ExpectDrawn("Morning: B");
  EXPECT_FALSE(IsDrawn(kProgramsText));
}

TEST_F(OwnReadingsEndToEndTest, InFinnishNothingIsSplit) {
  Set("7");
  WriteFileText(settings_.path() / "readings.txt", kStored);
  Start();
  ExpectDrawn("A; Morning: B");
  EXPECT_FALSE(IsDrawn("Morning: B"));
}

TEST_F(OwnReadingsEndToEndTest, CancelOpensNoDocument) {
  Set("1");
  Start();
  run_->PostCommand(kOwnReadings);
  const HWND dialog = run_->WaitForDialog("Custom Readings");
  Answer(dialog, IDCANCEL);
  EXPECT_TRUE(run_->Eventually([&] { return !IsWindow(dialog); }));
  SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_NULL, 0, 0);  // the command has returned by then
  EXPECT_EQ(run_->WaitForDocuments(2).size(), 2u);
  EXPECT_FALSE(fs::exists(settings_.path() / "readings.txt"));
}
