// Zmanim of the finished program on paper: the command, the system's print dialog, and the pages as the printer got
// them, read back as text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <regex>
#include <sstream>

#include "tests/end_to_end/program_driver.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
namespace fs = std::filesystem;

namespace {

constexpr unsigned kSelectRange = 1002;
constexpr unsigned kPrint = 1008;
constexpr unsigned kPrinterSetup = 1009;
constexpr unsigned kViewZmanim = 1112;

constexpr char k24Hours[] = "[Times]\r\nForm=24\r\n";
constexpr char k12Hours[] = "[Times]\r\nForm=12\r\n";
constexpr char kBuiltIn[] = "[Settings]\r\nEnableZmanim=0\r\n";

constexpr char k24HourTime[] = R"(\d{2}:\d{2})";
constexpr char k12HourTime[] = R"(\d{2}:\d{2} [ap]\.m\.)";

// One row of a table, or the line of its numbers.
using Cells = std::vector<std::string>;

struct ReadPage {
  std::string text;
  Cells numbers;
  std::vector<Cells> days;
};

// The dates, times and numbers of a line.
Cells CellsOf(const std::string& line) {
  static const std::regex cell(R"(Date|\d{2}\.\d{2}\.\d{4}|\d{2}:\d{2}( [ap]\.m\.)?|----|\d+)");
  Cells cells;
  for (std::sregex_iterator found(line.begin(), line.end(), cell), end; found != end; ++found) {
    cells.push_back(found->str());
  }
  return cells;
}

ReadPage ReadPageOf(const std::string& text) {
  ReadPage page{text, {}, {}};
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const Cells cells = CellsOf(line);
    if (cells.empty()) continue;
    if (cells[0] == "Date") page.numbers = {cells.begin() + 1, cells.end()};
    if (cells[0].size() == 10) page.days.push_back(cells);
  }
  return page;
}

class PrintingTest : public testing::Test {
 protected:
  void SetUp() override {
    const char* const printed = std::getenv("TIMES_READINGS_PRINTED");
    ASSERT_NE(printed, nullptr) << "this test needs the printer of tools/with_printer";
    printed_ = std::string("Z:") + printed;
    for (const auto& entry : fs::directory_iterator(printed_)) fs::remove(entry.path());
  }

  void Set(const char* file, const std::string& text) { WriteFileText(settings_.path() / file, text); }

  // Starts the program with a document of zmanim from 5 January 2007 on.
  void ShowZmanim(const char* lastDay) {
    run_.emplace(ProgramFolder(), settings_.path());
    run_->WaitForDocuments(1);
    run_->PostCommand(kSelectRange);
    const HWND dialog = run_->WaitForDialog("Select Range");
    SetText(dialog, 101, "5.1.2007");
    SetText(dialog, 102, lastDay);
    Click(dialog, IDOK);
    run_->WaitForDocuments(2);
    run_->PostCommand(kViewZmanim);
  }

  // The files of the jobs that the printer has finished, by their number.
  fs::path Job(const char* suffix) const {
    fs::path last;
    int lastNumber = 0;
    for (const auto& entry : fs::directory_iterator(printed_)) {
      const int number = std::atoi(entry.path().stem().string().c_str());
      if (entry.path().extension() != suffix || number <= lastNumber) continue;
      lastNumber = number;
      last = entry.path();
    }
    return last;
  }

  // The command reaches the view that is shown when it is carried out: that of the zmanim.
  void ConfirmPrintDialog() {
    run_->PostCommand(kPrint);
    Click(run_->WaitForDialog("Print"), IDOK);
  }

  // Prints what the program shows, and reads the pages.
  std::vector<ReadPage> Print() {
    ConfirmPrintDialog();
    EXPECT_TRUE(run_->Eventually([this] { return !Job(".txt").empty(); })) << "nothing reached the printer";
    std::vector<ReadPage> pages;
    std::istringstream text(Job(".txt").empty() ? "" : ReadFileText(Job(".txt")));
    for (std::string page; std::getline(text, page, '\f');) pages.push_back(ReadPageOf(page));
    Keep();
    return pages;
  }

  // What the PDF file of the last job has embedded.
  std::string FontsOfLastJob() const { return ReadFileText(Job(".fonts")); }

  // Leaves the last job where people can look at it.
  void Keep() const {
    const char* const folder = std::getenv("TIMES_READINGS_KEEP_PRINTED");
    if (!folder || Job(".pdf").empty()) return;
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    fs::copy_file(Job(".pdf"), fs::path(std::string("Z:") + folder) / (name + ".pdf"),
                  fs::copy_options::overwrite_existing);
  }

  TemporaryFolder settings_;
  fs::path printed_;
  std::optional<ProgramRun> run_;
};

Cells Numbers(int first, int last) {
  Cells numbers;
  for (int number = first; number <= last; ++number) numbers.push_back(std::to_string(number));
  return numbers;
}

Cells DatesOf(const ReadPage& page) {
  Cells dates;
  for (const Cells& day : page.days) dates.push_back(day[0]);
  return dates;
}

// "20070105"
std::string SortKey(const std::string& date) {
  return date.substr(6) + date.substr(3, 2) + date.substr(0, 2);
}

// A title, the numbers, and as many times beside every date.
void ExpectTable(const ReadPage& page, const Cells& numbers, const char* timePattern) {
  EXPECT_THAT(page.text, HasSubstr("Zmanim of Aachen\n"));
  EXPECT_EQ(page.numbers, numbers);
  ASSERT_FALSE(page.days.empty());
  for (const Cells& day : page.days) {
    EXPECT_EQ(day.size(), numbers.size() + 1) << day[0];
    for (std::size_t cell = 1; cell < day.size(); ++cell) {
      EXPECT_TRUE(std::regex_match(day[cell], std::regex(timePattern))) << day[0] << ": " << day[cell];
    }
  }
}

}  // namespace

// From 5 January to 31 July 2007 are 208 days; a page has room for fewer than a hundred.
TEST_F(PrintingTest, NineteenZmanimTakeTwoPagesForEachGroupOfDays) {
  Set("stamp.ini", k24Hours);
  Set("shab30.ini", kBuiltIn);
  ShowZmanim("31.7.2007");
  const auto pages = Print();
  ASSERT_GE(pages.size(), 6u);
  ASSERT_EQ(pages.size() % 2, 0u);
  Cells dates;
  for (std::size_t page = 0; page < pages.size(); page += 2) {
    ExpectTable(pages[page], Numbers(1, 10), k24HourTime);
    ExpectTable(pages[page + 1], Numbers(11, 19), k24HourTime);
    EXPECT_EQ(DatesOf(pages[page]), DatesOf(pages[page + 1])) << "pages " << page + 1 << " and " << page + 2;
    for (const std::string& date : DatesOf(pages[page])) dates.push_back(date);
  }
  ASSERT_THAT(dates, SizeIs(208));
  EXPECT_EQ(dates.front(), "05.01.2007");
  EXPECT_EQ(dates.back(), "31.07.2007");
  for (std::size_t day = 1; day < dates.size(); ++day) EXPECT_LT(SortKey(dates[day - 1]), SortKey(dates[day]));
  EXPECT_EQ(pages[0].days.size(), pages[2].days.size() + 1) << "the first group of days is one longer";
  EXPECT_THAT(pages[0].text, AllOf(HasSubstr("1 = Alot HaShachar (Rabbi Moshe Feinstein), "), HasSubstr("GR\"O")));
  EXPECT_THAT(pages[0].text, Not(HasSubstr("11 = ")));
  EXPECT_THAT(pages[1].text, HasSubstr("11 = Mincha Gedola"));
  EXPECT_THAT(FontsOfLastJob(), Not(HasSubstr("DisplayHebrew1")));
}

// Sunset in Aachen on 5 January 2007 is at 16:45.
TEST_F(PrintingTest, TwelveHourTimesStandFiveByFive) {
  Set("stamp.ini", k12Hours);
  Set("shab30.ini", kBuiltIn);
  ShowZmanim("9.1.2007");
  const auto pages = Print();
  ASSERT_THAT(pages, SizeIs(4));
  const Cells numbers[] = {Numbers(1, 5), Numbers(6, 10), Numbers(11, 15), Numbers(16, 19)};
  for (std::size_t page = 0; page < 4; ++page) {
    ExpectTable(pages[page], numbers[page], k12HourTime);
    EXPECT_THAT(DatesOf(pages[page]),
                ElementsAre("05.01.2007", "06.01.2007", "07.01.2007", "08.01.2007", "09.01.2007"));
  }
  EXPECT_EQ(pages[2].days.at(0).back(), "04:45 p.m.");
}

TEST_F(PrintingTest, TheHebrewLegendIsPrintedInTheDisplayFont) {
  Set("stamp.ini", k24Hours);
  Set("shab30.ini", "[Zmanim]\r\nHebrew=1\r\n");
  ShowZmanim("9.1.2007");
  const auto pages = Print();
  ASSERT_THAT(pages, Not(testing::IsEmpty()));
  ExpectTable(pages[0], Numbers(1, 10), k24HourTime);
  for (const ReadPage& page : pages) EXPECT_THAT(page.text, Not(HasSubstr("GR\"O")));
  EXPECT_THAT(FontsOfLastJob(), HasSubstr("DisplayHebrew1"));
}

// Twenty years are some three hundred pages.
TEST_F(PrintingTest, AJobIsCancelledInItsDialog) {
  Set("stamp.ini", k24Hours);
  Set("shab30.ini", kBuiltIn);
  ShowZmanim("31.12.2026");
  ConfirmPrintDialog();
  const HWND progress = run_->WaitForDialog("Printing...");
  EXPECT_TRUE(run_->Eventually([&] { return TextOf(GetDlgItem(progress, 101)).starts_with("Page "); }));
  EXPECT_FALSE(IsWindowEnabled(run_->WaitForTopLevel("ShabbatMain")));
  Click(progress, IDCANCEL);
  const HWND box = run_->WaitForDialog("Times / Readings");
  EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), "Printing job cancelled successfully");
  EXPECT_FALSE(IsWindow(progress));
  Click(box, IDOK);
  EXPECT_TRUE(
      run_->Eventually([&] { return !IsWindow(box) && IsWindowEnabled(run_->WaitForTopLevel("ShabbatMain")); }));
}

TEST_F(PrintingTest, TheDialogsOfPrintingAndSetUpCanBeCancelled) {
  ShowZmanim("9.1.2007");
  const std::pair<unsigned, const char*> dialogs[] = {{kPrint, "Print"}, {kPrinterSetup, "Print Setup"}};
  for (const auto& [command, title] : dialogs) {
    run_->PostCommand(command);
    const HWND dialog = run_->WaitForDialog(title);
    ASSERT_NE(dialog, nullptr);
    Click(dialog, IDCANCEL);
    EXPECT_TRUE(
        run_->Eventually([&] { return !IsWindow(dialog) && IsWindowEnabled(run_->WaitForTopLevel("ShabbatMain")); }));
  }
  EXPECT_TRUE(fs::is_empty(printed_));
}
