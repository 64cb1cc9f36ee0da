// The readings view of the finished program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kReadingsLanguage = 1015;
constexpr unsigned kExportRtf = 1007;
constexpr unsigned kViewReadings = 1113;
constexpr int kReadingsPane = 5;
constexpr int kReadingsList = 2;
constexpr int kLanguages = 201;

// In windows-1255.
constexpr char kVayechiInHebrew[] = "\xe5\xe9\xe7\xe9";

class ReadingsEndToEndTest : public testing::Test {
 protected:
  void SetUp() override {
    MakeRecordingProgram(folder_.path());
    Set("[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\n");
  }
  void Set(const std::string& lections) { WriteFileText(settings_.path() / "lections.ini", lections); }

  // A run with a document of the range, its readings shown; the document.
  HWND Start(const std::string& start, const std::string& end) {
    run_.emplace(folder_.path(), settings_.path());
    const HWND document = OpenRange(*run_, start, end);
    Send(kViewReadings);
    return document;
  }
  void Send(unsigned command) { SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_COMMAND, command, 0); }

  // What the list pane has drawn so far.
  std::vector<RecordedDraw> Drawn() const {
    SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_NULL, 0, 0);
    std::vector<RecordedDraw> draws = ReadDraws(settings_.path());
    std::erase_if(draws, [](const RecordedDraw& draw) { return draw.windowClass != "ShabbatParashaTwo"; });
    return draws;
  }
  bool IsDrawn(const std::string& text) const {
    const auto draws = Drawn();
    return std::any_of(draws.begin(), draws.end(), [&](const RecordedDraw& draw) { return draw.text == text; });
  }
  bool IsDrawnOnTop(const std::string& text) const {
    const auto draws = Drawn();
    return std::any_of(draws.begin(), draws.end(),
                       [&](const RecordedDraw& draw) { return draw.text == text && draw.y == 0; });
  }
  // The texts drawn on the line of a date, left to right, as they were drawn last.
  std::vector<std::string> Line(const std::string& date) const {
    const auto draws = Drawn();
    const auto last = std::find_if(draws.rbegin(), draws.rend(), [&](const auto& draw) { return draw.text == date; });
    std::vector<std::string> texts;
    if (last == draws.rend()) return texts;
    for (auto draw = last.base() - 1; draw != draws.end() && draw->y == last->y; ++draw) texts.push_back(draw->text);
    return texts;
  }
  void ExpectLine(const std::string& date, const std::vector<std::string>& texts) const {
    std::vector<std::string> expected{date};
    expected.insert(expected.end(), texts.begin(), texts.end());
    EXPECT_TRUE(run_->Eventually([&] { return Line(date) == expected; })) << testing::PrintToString(Line(date));
  }

  TemporaryFolder folder_;
  TemporaryFolder settings_;
  TemporaryFolder exports_;
  std::optional<ProgramRun> run_;
};

}  // namespace

// Weekly portions of January 2007 by Hebcal.
TEST_F(ReadingsEndToEndTest, ShabbatotShowTheirPortions) {
  ASSERT_NE(Start("5.1.2007", "13.1.2007"), nullptr);
  ExpectLine("06.01.2007", {"Vayechi: Genesis 47:28-50:26", "I Kings 2:1-12"});
  ExpectLine("13.01.2007", {"Shemot: Exodus 1:1-6:1", "Isaiah 27:6-28:13, 29:22-23"});
}

// Vayechi in Greek, Russian and Polish, in windows-1253, 1251 and 1250; dates and numbers stay in the program's font.
TEST_F(ReadingsEndToEndTest, EveryLanguageIsDrawnInAFontOfItsCharset) {
  struct Row {
    const char* language;
    std::string vayechi;
    int charset;
  };
  const Row rows[] = {{"16", "\xc2\xe1\xe3\xe5\xf7\xdf: \xc3\xdd\xed\xe5\xf3\xe7 47:28-50:26", GREEK_CHARSET},
                      {"17", "\xc2\xe0\xe5\xf5\xe8: \xc1\xfb\xf2\xe8\xe5 47:28-50:26", RUSSIAN_CHARSET},
                      {"21", "Wajechi: Rodzaju 47,28-50,26", EASTEUROPE_CHARSET}};
  for (const Row& row : rows) {
    Set(std::string("[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\nLanguage=") + row.language + "\r\n");
    ASSERT_NE(Start("5.1.2007", "6.1.2007"), nullptr) << row.language;
    const auto isDrawn = [this](const std::string& text, auto isCharset) {
      const auto draws = Drawn();
      return std::any_of(draws.begin(), draws.end(),
                         [&](const RecordedDraw& draw) { return draw.text == text && isCharset(draw.charset); });
    };
    EXPECT_TRUE(run_->Eventually([&] {
      return isDrawn(row.vayechi, [&row](int charset) { return charset == row.charset; });
    })) << testing::PrintToString(Line("06.01.2007"));
    EXPECT_TRUE(isDrawn("06.01.2007", [&row](int charset) { return charset != row.charset; })) << row.language;
    run_.reset();
    fs::remove(settings_.path() / "drawn.txt");
  }
}

// Yizkor on the eighth day of Pesach in the diaspora: 10 April 2007 (Hebcal).
TEST_F(ReadingsEndToEndTest, YizkorStandsUnderItsDate) {
  ASSERT_NE(Start("10.4.2007", "10.4.2007"), nullptr);
  EXPECT_TRUE(run_->Eventually([&] { return IsDrawn("10.04.2007") && IsDrawn("Yizkor"); }));
}

TEST_F(ReadingsEndToEndTest, AnotherLanguageOpensAnotherDocument) {
  ASSERT_NE(Start("5.1.2007", "6.1.2007"), nullptr);
  ExpectLine("06.01.2007", {"Vayechi: Genesis 47:28-50:26", "I Kings 2:1-12"});

  run_->PostCommand(kReadingsLanguage);
  const HWND dialog = run_->WaitForDialog("Language of Readings");
  SendDlgItemMessageA(dialog, kLanguages, LB_SETCURSEL, 2, 0);  // English, English in Ashkenazi spelling, Hebrew
  Answer(dialog, IDOK);
  ASSERT_EQ(run_->WaitForDocuments(3).size(), 3u);
  EXPECT_THAT(ReadFileText(settings_.path() / "lections.ini"), HasSubstr("Language=4"));
  Send(kViewReadings);
  EXPECT_TRUE(run_->Eventually([&] {
    const auto draws = Drawn();
    return std::any_of(draws.begin(), draws.end(),
                       [](const RecordedDraw& draw) { return draw.text.starts_with(kVayechiInHebrew); });
  }));

  const fs::path file = exports_.path() / "readings.rtf";
  run_->PostCommand(kExportRtf);
  SaveAs(*run_, file);
  EXPECT_TRUE(run_->Eventually([&] { return ReadFileText(file).ends_with("}\r\n"); }));
  EXPECT_THAT(ReadFileText(file), HasSubstr("{\\f1\\fnil\\fcharset177 Times New Roman;}}\r\n"));
  EXPECT_THAT(ReadFileText(file), HasSubstr(std::string("{\\f1\\fs24\r\n") + kVayechiInHebrew));
}

// 10 April 2007 is the eighth day of Pesach in the diaspora, with Yizkor, and an ordinary day in Israel (Hebcal). The
// settings change as a second running copy changes them.
TEST_F(ReadingsEndToEndTest, AnOlderDocumentFollowsTheLanguageAndKeepsItsLand) {
  const HWND document = Start("10.4.2007", "10.4.2007");
  ASSERT_NE(document, nullptr);
  EXPECT_TRUE(run_->Eventually([&] { return IsDrawn("10.04.2007") && IsDrawn("Yizkor"); }));
  Set("[Readings]\r\nLand=Israel\r\nCustom=Ashkenazi\r\nLanguage=4\r\n");
  const auto isHebrew = [](const RecordedDraw& draw) {
    constexpr unsigned char kAlef = 0xe0;  // in windows-1255
    return !draw.text.empty() && static_cast<unsigned char>(draw.text[0]) >= kAlef;
  };
  EXPECT_TRUE(run_->Eventually([&] {
    const std::size_t before = Drawn().size();
    RedrawWindow(document, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    const auto draws = Drawn();
    const std::vector<RecordedDraw> anew(draws.begin() + static_cast<std::ptrdiff_t>(before), draws.end());
    return std::any_of(anew.begin(), anew.end(), isHebrew) &&
           std::any_of(anew.begin(), anew.end(), [](const RecordedDraw& draw) { return draw.text == "Yizkor"; });
  }));
}

TEST_F(ReadingsEndToEndTest, TheListScrollsByWholeDays) {
  const HWND document = Start("1.1.2007", "31.12.2007");
  ASSERT_NE(document, nullptr);
  ExpectLine("06.01.2007", {"Vayechi: Genesis 47:28-50:26", "I Kings 2:1-12"});
  const HWND list = GetDlgItem(GetDlgItem(document, kReadingsPane), kReadingsList);
  PostMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
  EXPECT_TRUE(run_->Eventually([&] { return IsDrawnOnTop("13.01.2007"); }));
  PostMessageA(list, WM_KEYDOWN, VK_END, 0);
  EXPECT_TRUE(run_->Eventually([&] { return IsDrawn("29.12.2007"); }));  // the year's last Shabbat
}
