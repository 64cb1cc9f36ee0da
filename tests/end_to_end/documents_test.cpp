// Documents that the finished program saves and shows as pages, from the menu command to the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kExportText = 1005;
constexpr unsigned kSaveDocument = 1109;
constexpr unsigned kPrintCalendar = 1110;
constexpr unsigned kViewZmanim = 1112;

constexpr int kFirstKind = 101;
constexpr int kNone = 112;
constexpr int kLanguage = 113;
constexpr int kIsoDates = 122;
constexpr int kReminder = 123;
constexpr int kJewishYear = 130;
constexpr int kYear = 132;

enum Kind { kShabbatTimes, kWeeks, kDays, kZmanim, kReadings, kDoorPage };

constexpr const char* kTypes[] = {"html", "rtf", "csv", "ics", "txt"};

class DocumentsEndToEndTest : public testing::Test {
 protected:
  void SetUp() override {
    WriteFileText(settings_.path() / "stamp.ini", "[Times]\r\nForm=24\r\n");
    WriteFileText(settings_.path() / "shab30.ini", "[Settings]\r\nEnableZmanim=0\r\n");
    WriteFileText(settings_.path() / "lections.ini", "[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\n");
    Start();
  }

  // A Friday and the Shabbat of Vayechi in Aachen.
  void Start() {
    program_.reset();
    program_.emplace(ProgramFolder(), settings_.path());
    ASSERT_NE(OpenRange(*program_, "5.1.2007", "6.1.2007"), nullptr);
  }

  HWND OpenDialog(unsigned command, const char* title) const {
    program_->PostCommand(command);
    return program_->WaitForDialog(title);
  }
  HWND OpenSaving() const { return OpenDialog(kSaveDocument, "Save as document"); }

  static void Choose(HWND dialog, Kind kind, const char* language) {
    SendDlgItemMessageA(dialog, kFirstKind + kind, BM_CLICK, 0, 0);
    SendDlgItemMessageA(dialog, kLanguage, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(language));
  }

  void Close(HWND dialog) const {
    Answer(dialog, IDCANCEL);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(dialog); }));
  }

  std::string Saved(HWND dialog, const std::string& name) const {
    Answer(dialog, IDOK);
    SaveAs(*program_, folder_.path() / name);
    EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(dialog); })) << name;
    return ReadFileText(folder_.path() / name);
  }

  TemporaryFolder settings_;
  TemporaryFolder folder_;
  std::optional<ProgramRun> program_;
};

// The texts after the date in lines that begin with one, in order; a date's lines are joined.
std::vector<std::string> TimesIn(const std::string& text, const std::string& date) {
  std::vector<std::string> times;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(date)) continue;
    std::istringstream fields(line.substr(date.size()));
    for (std::string field; fields >> field;) times.push_back(field);
  }
  return times;
}

// The fields from the fourth on of the line of a date, which stands in the second.
std::vector<std::string> FieldsIn(const std::string& csv, const std::string& date) {
  std::istringstream lines(csv);
  for (std::string line; std::getline(lines, line);) {
    if (line.find("," + date + ",") == line.npos) continue;
    while (!line.empty() && line.back() == '\r') line.pop_back();
    std::vector<std::string> fields;
    std::istringstream parts(line);
    for (std::string field; std::getline(parts, field, ',');) fields.push_back(field);
    fields.erase(fields.begin(), fields.begin() + 3);
    return fields;
  }
  return {};
}

}  // namespace

// Candle lighting at 16:27 and the end at 17:31 stand in the export of the same document, of which another test knows.
TEST_F(DocumentsEndToEndTest, EveryKindIsSavedAsEveryTypeInEnglishAndHebrew) {
  const struct {
    const char* language;
    const char* friday;
  } languages[] = {{"English", "Friday"}, {"Hebrew", "יום שישי"}};
  for (const auto& [language, friday] : languages) {
    for (const Kind kind : {kShabbatTimes, kWeeks, kDays, kZmanim, kReadings}) {
      for (const char* const type : kTypes) {
        const std::string name = language + std::to_string(kind) + "." + type;
        const HWND dialog = OpenSaving();
        Choose(dialog, kind, language);
        const std::string text = Saved(dialog, name);
        const bool isCalendar = std::string(type) == "ics";
        const bool hasShabbat = kind == kShabbatTimes || kind == kWeeks || kind == kDays;
        if (isCalendar) {
          EXPECT_THAT(text, AllOf(StartsWith("BEGIN:VCALENDAR\r\n"), HasSubstr("END:VCALENDAR\r\n"))) << name;
        } else if (hasShabbat) {
          EXPECT_THAT(text, AllOf(HasSubstr("16:27"), HasSubstr("17:31"))) << name;
        } else {
          EXPECT_THAT(text, HasSubstr("06.01.2007")) << name;
        }
        const bool isUtf8 = std::string(type) != "rtf";
        if (isUtf8 && !isCalendar && kind == kShabbatTimes) {
          EXPECT_THAT(text, HasSubstr(friday)) << name;
        }
      }
    }
  }
}

TEST_F(DocumentsEndToEndTest, ZmanimAreThoseOfTheTextExport) {
  SendMessageA(program_->WaitForTopLevel("ShabbatMain"), WM_COMMAND, kViewZmanim, 0);
  program_->PostCommand(kExportText);
  SaveAs(*program_, folder_.path() / "export.txt");
  const auto exported = [&] { return ReadFileText(folder_.path() / "export.txt"); };
  ASSERT_TRUE(program_->Eventually([&] { return TimesIn(exported(), "06.01.2007").size() == 19; }));
  const HWND dialog = OpenSaving();
  Choose(dialog, kZmanim, "English");
  const std::string csv = Saved(dialog, "zmanim.csv");
  for (const char* const date : {"05.01.2007", "06.01.2007"}) {
    EXPECT_EQ(FieldsIn(csv, date), TimesIn(exported(), date)) << date;
  }
}

// In winter Aachen's clock is an hour ahead of UTC.
TEST_F(DocumentsEndToEndTest, ShabbatTimesAreMomentsInACalendar) {
  const HWND dialog = OpenSaving();
  Choose(dialog, kShabbatTimes, "English");
  SetText(dialog, kReminder, "20");
  EXPECT_THAT(Saved(dialog, "times.ics"),
              AllOf(HasSubstr("DTSTART:20070105T152700Z\r\n"), HasSubstr("DTSTART:20070106T163100Z\r\n"),
                    HasSubstr("SUMMARY:Candle lighting\r\n"), HasSubstr("TRIGGER:-PT20M\r\n"), HasSubstr("Vayechi")));
}

TEST_F(DocumentsEndToEndTest, ChoicesAreThereAgainAfterARestart) {
  HWND dialog = OpenSaving();
  Choose(dialog, kDays, "Hebrew");
  SendDlgItemMessageA(dialog, kNone, BM_CLICK, 0, 0);
  SendDlgItemMessageA(dialog, kIsoDates, BM_CLICK, 0, 0);
  SetText(dialog, kReminder, "15");
  EXPECT_THAT(Saved(dialog, "days.csv"), HasSubstr("2007-01-06"));
  Start();
  dialog = OpenSaving();
  EXPECT_EQ(SendDlgItemMessageA(dialog, kFirstKind + kDays, BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(SendDlgItemMessageA(dialog, kIsoDates, BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(TextOf(GetDlgItem(dialog, kReminder)), "15");
  EXPECT_THAT(TextOf(GetDlgItem(dialog, kLanguage)), StartsWith("Hebrew"));
  Answer(dialog, IDOK);
  EXPECT_EQ(TypeToSave(*program_), 2);
  CancelSaving(*program_);
  Close(dialog);
}

TEST_F(DocumentsEndToEndTest, AFileThatCannotBeWrittenIsNamedAndTheDialogStays) {
  WriteFileText(folder_.path() / "held.html", "an older file");
  const std::string file = (folder_.path() / "held.html").string();
  const HANDLE held = CreateFileA(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  const HWND dialog = OpenSaving();
  Answer(dialog, IDOK);
  SaveAs(*program_, folder_.path() / "held.html");
  Answer(program_->WaitForQuestion(), IDYES);
  const HWND box = program_->WaitForDialog("Error");
  EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), AllOf(HasSubstr("held.html"), HasSubstr(" could not be written.\n")));
  Answer(box, IDOK);
  EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(box) && IsWindowEnabled(dialog); }));
  CloseHandle(held);
  EXPECT_EQ(ReadFileText(folder_.path() / "held.html"), "an older file");
  Close(dialog);
}

TEST_F(DocumentsEndToEndTest, TheCalendarIsShownAsPages) {
  for (const Kind kind : {kShabbatTimes, kDays, kReadings, kDoorPage}) {
    const HWND dialog = OpenDialog(kPrintCalendar, "Print calendar");
    Choose(dialog, kind, "English");
    Answer(dialog, IDOK);
    const char* const title = kind == kReadings ? "Readings: Aachen - Print Preview"
                              : kind == kDays   ? "Calendar: Aachen - Print Preview"
                                                : "Shabbat times: Aachen - Print Preview";
    Close(program_->WaitForDialog(title));
    EXPECT_TRUE(program_->Eventually([&] { return IsWindowEnabled(dialog); }));
    Close(dialog);
  }
}

TEST_F(DocumentsEndToEndTest, AYearThatTheDoorPageCannotHaveIsToldOf) {
  const HWND dialog = OpenDialog(kPrintCalendar, "Print calendar");
  Choose(dialog, kDoorPage, "English");
  SendDlgItemMessageA(dialog, kJewishYear, BM_CLICK, 0, 0);
  EXPECT_EQ(TextOf(GetDlgItem(dialog, kYear)), "5767");
  SetText(dialog, kYear, "2007");
  Answer(dialog, IDOK);
  const HWND box = program_->WaitForDialog("Error");
  EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), "The Jewish year must be a number from 5344 to 6760.");
  Answer(box, IDOK);
  EXPECT_TRUE(program_->Eventually([&] { return !IsWindow(box) && IsWindowEnabled(dialog); }));
  Close(dialog);
}
