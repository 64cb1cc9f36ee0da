// The zmanim view of the finished program: what it shows is what the libraries answer, and times that the user sets by
// hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <optional>

#include "companion/hours.h"
#include "companion/solar.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/end_to_end/recorded_drawing.h"

using testing::HasSubstr;
using testing::SizeIs;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kTimesSetByHand = 1104;
constexpr unsigned kViewZmanim = 1112;
constexpr int kZmanimPane = 4;
constexpr int kTable = 2;

struct Row {
  int y;
  std::vector<int> x;  // of the times
  std::vector<std::string> times;
};

// "05.01.2007"
bool IsDate(const std::string& text) {
  return text.size() == 10 && text[2] == '.' && text[5] == '.';
}

// The rows of the table by their dates, as they were drawn last.
std::map<std::string, Row> ReadTable(const fs::path& settings) {
  std::map<std::string, Row> rows;
  Row* row = nullptr;
  for (const RecordedDraw& draw : ReadDraws(settings)) {
    if (draw.windowClass != "ShabbatZmanimTwo") continue;
    if (IsDate(draw.text)) {
      row = &rows[draw.text];
      *row = {draw.y, {}, {}};
    } else if (row) {
      row->x.push_back(draw.x);
      row->times.push_back(draw.text);
    }
  }
  return rows;
}

std::string TimeText(int minutes) {
  if (minutes < 0) return "----";
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", minutes / 60, minutes % 60);
  return text;
}

template <typename Function>
Function Entry(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// The zmanim of a document's place, asked of the libraries themselves.
class Libraries {
 public:
  explicit Libraries(HWND document)
      : hours_(Load("hours.dll")),
        solar_(Load("solar.dll")),
        latitude_(Number(document, "Latitude")),
        longitude_(Number(document, "Longitude")),
        zoneHours_(Number(document, "TimeZone")),
        zoneMinutes_(Number(document, "TimeZoneMin")) {}
  ~Libraries() {
    FreeLibrary(hours_);
    FreeLibrary(solar_);
  }
  Libraries(const Libraries&) = delete;
  Libraries& operator=(const Libraries&) = delete;

  uint32_t Count() const { return Entry<decltype(&HoursGetCount)>(hours_, "HoursGetCount")(); }

  std::string Sun(const std::string& date, uint32_t event) const { return TimeText(SunMinutes(date, event)); }

  std::string Zman(const std::string& date, uint32_t index) const {
    const int sunrise = SunMinutes(date, SOLAR_SUNRISE);
    const int sunset = SunMinutes(date, SOLAR_SUNSET);
    return TimeText(Entry<decltype(&HoursCalculate2)>(hours_, "HoursCalculate2")(
        nullptr, latitude_, longitude_, zoneHours_, zoneMinutes_, Part(date, 0, 2), Part(date, 3, 2), Part(date, 6, 4),
        index, sunrise / 60, sunrise % 60, sunset / 60, sunset % 60));
  }

 private:
  static HMODULE Load(const char* name) {
    const HMODULE library =
        LoadLibraryExA((ProgramFolder() / name).string().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    EXPECT_NE(library, nullptr) << name;
    return library;
  }
  static int32_t Number(HWND document, const char* property) {
    return static_cast<int32_t>(reinterpret_cast<INT_PTR>(GetPropA(document, property)));
  }
  static uint32_t Part(const std::string& date, std::size_t from, std::size_t count) {
    return static_cast<uint32_t>(std::stoul(date.substr(from, count)));
  }
  int SunMinutes(const std::string& date, uint32_t event) const {
    int32_t hour = 0;
    int32_t minute = 0;
    Entry<decltype(&SolarGetSunsetSunrise)>(solar_, "SolarGetSunsetSunrise")(
        Part(date, 0, 2), Part(date, 3, 2), Part(date, 6, 4), event, latitude_, longitude_, zoneHours_, zoneMinutes_,
        &hour, &minute);
    return hour * 60 + minute;
  }

  HMODULE hours_;
  HMODULE solar_;
  int32_t latitude_;
  int32_t longitude_;
  int32_t zoneHours_;
  int32_t zoneMinutes_;
};

class ZmanimTest : public testing::Test {
 protected:
  void SetUp() override {
    MakeRecordingProgram(program_.path());
    Set("stamp.ini", "[Times]\r\nForm=24\r\n");
  }
  void Set(const char* file, const std::string& text) { WriteFileText(settings_.path() / file, text); }

  // A fresh run that shows the zmanim; its document.
  HWND Start() {
    run_.reset();
    fs::remove(settings_.path() / "drawn.txt");
    run_.emplace(program_.path(), settings_.path());
    const auto documents = run_->WaitForDocuments(1);
    if (documents.size() != 1) return nullptr;
    run_->PostCommand(kViewZmanim);
    EXPECT_TRUE(run_->Eventually([this] { return Table().size() >= kRowsAtLeast; }));
    return documents[0];
  }
  // What the program answers next, it answers after it has finished the painting that it is at.
  std::map<std::string, Row> Table() {
    SendMessageA(run_->WaitForTopLevel("ShabbatMain"), WM_NULL, 0, 0);
    return ReadTable(settings_.path());
  }

  static void ClickTime(HWND document, const Row& row, std::size_t zman) {
    const HWND table = GetDlgItem(GetDlgItem(document, kZmanimPane), kTable);
    PostMessageA(table, WM_LBUTTONUP, 0, MAKELPARAM(row.x.at(zman) + 1, row.y + 1));
  }

  static constexpr std::size_t kRowsAtLeast = 20;  // of the 32 days; a screen has room for them

  TemporaryFolder program_;
  TemporaryFolder settings_;
  std::optional<ProgramRun> run_;
};

}  // namespace

TEST_F(ZmanimTest, EveryDayShowsTheTimesOfTheLibrary) {
  const HWND document = Start();
  ASSERT_NE(document, nullptr);
  const Libraries libraries(document);
  ASSERT_GT(libraries.Count(), 0u);
  for (const auto& [date, row] : Table()) {
    ASSERT_THAT(row.times, testing::Not(testing::IsEmpty())) << date;
    for (uint32_t zman = 0; zman < row.times.size(); ++zman) {
      EXPECT_EQ(row.times[zman], libraries.Zman(date, zman)) << date << " zman " << zman;
    }
  }
}

TEST_F(ZmanimTest, ATimeSetByHandSurvivesARestartAndNoOtherTimeChanges) {
  HWND document = Start();
  ASSERT_NE(document, nullptr);
  const auto before = Table();
  const auto& [date, row] = *std::next(before.begin(), 2);
  ClickTime(document, row, 3);
  const HWND dialog = run_->WaitForDialog("Edit Zmanim");
  SetText(dialog, 103, "3");
  SetText(dialog, 104, "33");
  Click(dialog, IDOK);
  auto expected = before;
  expected[date].times[3] = "03:33";
  const auto showsIt = [&] {
    const auto table = Table();
    return table.count(date) && table.at(date).times.size() == row.times.size() && table.at(date).times[3] == "03:33";
  };
  EXPECT_TRUE(run_->Eventually(showsIt));

  document = Start();
  EXPECT_TRUE(run_->Eventually(showsIt));
  for (const auto& [day, shown] : Table()) EXPECT_EQ(shown.times, expected[day].times) << day;
}

TEST_F(ZmanimTest, ATimeSetByHandHoldsForItsPlaceOnly) {
  HWND document = Start();
  ASSERT_NE(document, nullptr);
  const auto before = Table();
  const std::string date = before.begin()->first;
  ClickTime(document, before.begin()->second, 0);
  const HWND dialog = run_->WaitForDialog("Edit Zmanim");
  SetText(dialog, 103, "3");
  SetText(dialog, 104, "33");
  Click(dialog, IDOK);
  EXPECT_TRUE(run_->Eventually([&] {
    const auto table = Table();
    return table.count(date) && !table.at(date).times.empty() && table.at(date).times[0] == "03:33";
  }));

  Set("almanac13.ini", "[Preferences]\r\nDefaultLocation=Jerusalem\r\n");
  document = Start();
  ASSERT_NE(document, nullptr);
  const Libraries libraries(document);
  EXPECT_TRUE(run_->Eventually([&] {
    const auto table = Table();
    return table.count(date) && !table.at(date).times.empty() && table.at(date).times[0] == libraries.Zman(date, 0);
  }));
}

TEST_F(ZmanimTest, ATimeSetByHandIsListedAndTakenBackInTheOpenDocument) {
  const HWND document = Start();
  ASSERT_NE(document, nullptr);
  const auto before = Table();
  const auto& [date, row] = *before.begin();
  const auto shows = [&, day = date](const std::string& time) {
    return run_->Eventually([&] {
      const auto table = Table();
      return table.count(day) && table.at(day).times.size() > 2 && table.at(day).times[2] == time;
    });
  };
  ClickTime(document, row, 2);
  const HWND editor = run_->WaitForDialog("Edit Zmanim");
  SetText(editor, 103, "3");
  SetText(editor, 104, "33");
  Click(editor, IDOK);
  EXPECT_TRUE(shows("03:33"));

  run_->PostCommand(kTimesSetByHand);
  const HWND list = run_->WaitForDialog("Times Set by Hand");
  EXPECT_TRUE(run_->Eventually([&] { return TextOf(GetDlgItem(list, 102)) == "1 time"; }));
  Click(list, 105);  // Remove
  EXPECT_TRUE(run_->Eventually([&] { return TextOf(GetDlgItem(list, 102)) == "No times are set by hand"; }));
  Click(list, IDOK);
  EXPECT_TRUE(shows(row.times[2]));
  EXPECT_EQ(run_->WaitForDocuments(1).size(), 1u);
}

TEST_F(ZmanimTest, ATimeThatCannotBeStoredIsReportedAndNotShown) {
  const HWND document = Start();
  ASSERT_NE(document, nullptr);
  const auto before = Table();
  ClickTime(document, before.begin()->second, 0);
  const HWND dialog = run_->WaitForDialog("Edit Zmanim");
  // A file that is a folder cannot be written.
  fs::create_directories(settings_.path() / "ownhours.txt");
  SetText(dialog, 103, "3");
  SetText(dialog, 104, "33");
  Click(dialog, IDOK);
  const HWND box = run_->WaitForDialog("Error");
  EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr("could not be stored"));
  Click(box, IDOK);
  EXPECT_TRUE(
      run_->Eventually([&] { return !IsWindow(box) && IsWindowEnabled(run_->WaitForTopLevel("ShabbatMain")); }));
  for (const auto& [day, shown] : Table()) EXPECT_EQ(shown.times, before.at(day).times) << day;
}

TEST_F(ZmanimTest, TheBuiltInZmanimFollowTheSunAndTakeNoTimesByHand) {
  Set("shab30.ini", "[Settings]\r\nEnableZmanim=0\r\n");
  const HWND document = Start();
  ASSERT_NE(document, nullptr);
  const Libraries libraries(document);
  const auto table = Table();
  for (const auto& [date, row] : table) {
    ASSERT_GE(row.times.size(), 15u) << date;
    EXPECT_LE(row.times.size(), 19u) << date;
    EXPECT_EQ(row.times[3], libraries.Sun(date, SOLAR_SUNRISE)) << date;
    EXPECT_EQ(row.times[8], row.times[9]) << date;
    EXPECT_EQ(row.times[14], libraries.Sun(date, SOLAR_SUNSET)) << date;
  }
  ClickTime(document, table.begin()->second, 3);
  const HWND box = run_->WaitForDialog("Times / Readings");
  EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr("not for the built-in zmanim"));
  Click(box, IDOK);
  EXPECT_TRUE(run_->Eventually([&] { return !IsWindow(box); }));
  EXPECT_FALSE(fs::exists(settings_.path() / "ownhours.txt"));
}

TEST_F(ZmanimTest, TheLegendNamesTheZmanim) {
  Start();
  std::string legend;
  EXPECT_TRUE(run_->Eventually([&] {
    for (const RecordedDraw& draw : ReadDraws(settings_.path())) {
      if (draw.windowClass == "ShabbatZmanimThree") legend = draw.text;
    }
    return !legend.empty();
  }));
  EXPECT_THAT(legend, testing::StartsWith("1 = "));
  EXPECT_THAT(legend, testing::EndsWith("GR\"O = Vilna Gaon   M\"A = Magen Avraham"));
}
