// Readings belong to their font: after a change of the language whatever is painted or exported of an older document is
// asked for anew, and land and customs of the document stay.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "readings/readings_list.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

using testing::Contains;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
namespace fs = std::filesystem;

namespace {

constexpr char kEnglish[] = "Vayechi";
constexpr char kHebrew[] = "\xe5\xe9\xe7\xe9";  // the same in windows-1255

// The library's own choice of land and customs: in the first land Yizkor is said, in the second not.
uint32_t choice = 1;
std::vector<uint32_t> askedChoices;

uint32_t GetChoice() {
  return choice;
}

void GetReadingsBy(uint32_t by, uint32_t day, uint32_t month, uint32_t year, LectionsReadings* readings) {
  askedChoices.push_back(by);
  LectionsGetReadings(day, month, year, readings);
}

int32_t IsYizkorBy(uint32_t by, uint32_t, uint32_t, uint32_t) {
  return by == 1;
}

class ReadingsFormTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choice = 1;
    askedChoices.clear();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    Libraries().readings = {{"6.1.5767", {kEnglish, "", "", "Haftarah"}}};
    Libraries().yizkorDays = {"6.1.5767"};
    OpenFrame();
    document_ = ActiveDocument();
    Compute();
    const HWND container = GetDlgItem(document_, IDC_READINGS_PANE);
    list_ = GetDlgItem(container, IDC_READINGS_LIST_PANE);
    SendMessageA(document_, WM_COMMAND, IDB_READINGS, 0);
    folder_ = fs::temp_directory_path() / ("readings_form_test_" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(folder_);
    CallLog().clear();
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    ProgramTest::TearDown();
  }

  void Compute() { CalculateShabbatTimes(document_, 5, 1, 2007, 6, 1, 2007); }

  // As another program, or the dialog, leaves the settings behind; nothing else is told of it.
  static void ChooseHebrew() {
    Libraries().readings = {{"6.1.5767", {kHebrew, "", "", "\xe0"}}};
    Libraries().readingsLanguage = 4;
    Libraries().readingsFont = {"David", 12, 177};
    Libraries().yizkorText = "Jiskor";
  }

  std::string Exported(unsigned command) {
    System().savedFile = (folder_ / "export").string();
    SendMessageA(frame_, WM_COMMAND, command, 0);
    DispatchPendingMessages();
    return Bytes(System().savedFile);
  }
  static std::string Bytes(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
  }

  HWND document_ = nullptr;
  HWND list_ = nullptr;
  fs::path folder_;
};

auto Drawn(const std::string& text, const std::string& font) {
  return Contains(testing::AllOf(Field(&Draw::text, text), Field(&Draw::font, font)));
}

}  // namespace

TEST_F(ReadingsFormTest, AnotherLanguageIsPaintedInItsOwnFont) {
  EXPECT_THAT(DrawsOf(list_), Drawn(kEnglish, "Times New Roman 0"));
  ChooseHebrew();
  const std::vector<Draw> draws = DrawsOf(list_);
  EXPECT_THAT(draws, Drawn(kHebrew, "David 0"));
  EXPECT_THAT(draws, Drawn("Jiskor", "Times New Roman 0"));
  EXPECT_THAT(draws, Not(Contains(Field(&Draw::text, kEnglish))));
}

TEST_F(ReadingsFormTest, OtherNumbersOfVersesAloneAreAskedForToo) {
  static int32_t hasOwnNumbers;
  hasOwnNumbers = 0;
  OptionalEntries.LectionsHasOwnNumbers = [] { return hasOwnNumbers; };
  Compute();
  EXPECT_THAT(DrawsOf(list_), Drawn(kEnglish, "Times New Roman 0"));
  Libraries().readings = {{"6.1.5767", {"Vayechi 2", "", "", "Haftarah"}}};
  EXPECT_THAT(DrawsOf(list_), Drawn(kEnglish, "Times New Roman 0"));
  hasOwnNumbers = 1;
  EXPECT_THAT(DrawsOf(list_), Drawn("Vayechi 2", "Times New Roman 0"));
}

TEST_F(ReadingsFormTest, AnotherFontAloneIsAskedForToo) {
  Libraries().readingsFont = {"Courier New", 20, 0};
  EXPECT_THAT(DrawsOf(list_), Drawn(kEnglish, "Courier New 0"));
}

TEST_F(ReadingsFormTest, EveryExportHasTheLanguageAndItsFont) {
  ChooseHebrew();
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT), HasSubstr(kHebrew));
  Compute();
  Libraries().readings = {{"6.1.5767", {kEnglish}}};
  Libraries().readingsLanguage = 1;
  Libraries().readingsFont = {};
  EXPECT_THAT(Exported(IDM_EXPORT_RTF), testing::AllOf(HasSubstr(kEnglish), Not(HasSubstr("David"))));
  ChooseHebrew();
  EXPECT_THAT(Exported(IDM_EXPORT_RTF), testing::AllOf(HasSubstr(kHebrew), HasSubstr("\\fcharset177 David")));
  Libraries().readings = {{"6.1.5767", {kEnglish}}};
  Libraries().readingsLanguage = 1;
  Libraries().readingsFont = {};
  EXPECT_THAT(Exported(IDM_EXPORT_RTF_NARROW), testing::AllOf(HasSubstr(kEnglish), Not(HasSubstr("David"))));
}

TEST_F(ReadingsFormTest, TheDelimitedExportHasTheLanguage) {
  ChooseHebrew();
  const std::string file = (folder_ / "dates").string();
  WithDialog([this] { SendMessageA(frame_, WM_COMMAND, IDM_EXPORT_DATES, 0); },
             [&](HWND dialog) {
               SetField(dialog, IDC_DELIMITED_FILE, file.c_str());
               Click(dialog, IDOK);
             });
  EXPECT_THAT(Bytes(file), HasSubstr(kHebrew));
}

TEST_F(ReadingsFormTest, AChangeUnderTheSaveDialogCountsToo) {
  System().whileSaving = ChooseHebrew;
  EXPECT_THAT(Exported(IDM_EXPORT_RTF), testing::AllOf(HasSubstr(kHebrew), HasSubstr("David")));
}

// Two documents of two lands stay what they are beside each other.
TEST_F(ReadingsFormTest, LandAndCustomsStayThoughTheLanguageChanges) {
  OptionalEntries.LectionsGetChoice = GetChoice;
  OptionalEntries.LectionsGetReadingsBy = GetReadingsBy;
  OptionalEntries.LectionsIsYizkorBy = IsYizkorBy;
  Compute();
  choice = 2;
  askedChoices.clear();
  EXPECT_THAT(DrawsOf(list_), Drawn("Yizkor", "Times New Roman 0"));
  EXPECT_THAT(askedChoices, IsEmpty()) << "another land is no reason to ask again";
  ChooseHebrew();
  EXPECT_THAT(DrawsOf(list_), Drawn("Jiskor", "Times New Roman 0"));
  EXPECT_THAT(askedChoices, testing::Each(1u));
  Compute();
  EXPECT_THAT(DrawsOf(list_), Not(Contains(Field(&Draw::text, "Jiskor"))));
}

TEST_F(ReadingsFormTest, ADocumentThatNobodySeesCostsNothing) {
  OptionalEntries.LectionsGetChoice = GetChoice;
  OptionalEntries.LectionsGetReadingsBy = GetReadingsBy;
  OptionalEntries.LectionsIsYizkorBy = IsYizkorBy;
  Compute();
  SendMessageA(document_, WM_COMMAND, IDB_SHABBAT_TIMES, 0);
  DispatchPendingMessages();
  askedChoices.clear();
  ChooseHebrew();
  RedrawWindow(frame_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  EXPECT_THAT(askedChoices, IsEmpty());
}

TEST_F(ReadingsFormTest, TheReadingsAreAskedForOfTheDocumentsRangeAndWithoutAWord) {
  for (int day = 1; day <= 29; ++day) Libraries().readings[std::to_string(day) + ".1.5767"] = {kEnglish};
  CurrentRange = {{1, 1, 2000}, {31, 12, 2099}};
  ChooseHebrew();
  EXPECT_TRUE(RenewReadings(document_));
  EXPECT_FALSE(RenewReadings(document_));
  EXPECT_THAT(DrawsOf(list_), Drawn("06.01.2007", "Times New Roman 0"));
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(ReadingsFormTest, WithoutMemoryADocumentKeepsReadingsAndFontUntilThereIsSome) {
  for (int failing = 1; failing <= 2; ++failing) {
    Libraries().readings = {{"6.1.5767", {kEnglish}}};
    Libraries().readingsLanguage = 1;
    Libraries().readingsFont = {};
    Compute();
    ChooseHebrew();
    System().failingBlock = failing;
    EXPECT_THAT(DrawsOf(list_), Drawn(kEnglish, "Times New Roman 0")) << failing;
    EXPECT_EQ(System().failingBlock, 0) << failing;
    EXPECT_EQ(System().locks, 0) << failing;
    EXPECT_THAT(CallsWith("freed"), IsEmpty()) << failing;
    EXPECT_THAT(DrawsOf(list_), Drawn(kHebrew, "David 0")) << failing;
  }
}

TEST_F(ReadingsFormTest, WithoutTheirFontReadingsAreNotDrawn) {
  ChooseHebrew();
  Compute();
  System().failingFont = 1;
  EXPECT_THAT(DrawsOf(list_), Not(Contains(Field(&Draw::text, kHebrew))));
  EXPECT_EQ(System().failingFont, 0);
  EXPECT_THAT(DrawsOf(list_), Drawn(kHebrew, "David 0"));
}

TEST_F(ReadingsFormTest, ALanguageWithoutReadingsInTheRangeLeavesNoneOfTheOther) {
  Libraries().readings.clear();
  Libraries().readingsLanguage = 4;
  EXPECT_THAT(DrawsOf(list_), Not(Contains(Field(&Draw::text, kEnglish))));
  EXPECT_FALSE(RenewReadings(document_));
}
