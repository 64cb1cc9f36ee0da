// What the user takes away of the window of occasions: copied, printed, saved.
#include <gmock/gmock.h>

#include "tests/contract/occasions_driver.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr int kFileName = 0x47C;  // cmb13 of dlgs.h: the field of the system's dialogs for files
constexpr wchar_t kFileTitle[] = L"Save Occasions to File";

enum Format { kCalendar, kCsv, kHtml, kRtf, kText };

class OccasionsFilesTest : public OccasionsTest {
 protected:
  static HWND OpenSave(const OccasionsRun& run, Format format, int what = IDC_TAKE_LIST) {
    Press(run.Window(), IDC_SAVE);
    const HWND dialog = run.WaitFor(L"Save Occasions");
    CheckRadioButton(dialog, IDC_TAKE_LIST, IDC_TAKE_CANDLES, what);
    Choose(dialog, IDC_FORMAT, format);
    return dialog;
  }
  std::string Saved(const OccasionsRun& run, Format format, const char* name, int what = IDC_TAKE_LIST) const {
    Press(OpenSave(run, format, what), IDOK);
    const HWND dialog = run.WaitFor(kFileTitle);
    SetControlText(dialog, kFileName, home_.Path(name).wstring());
    Press(dialog, IDOK);
    EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(run.Window()) && !home_.Bytes(name).empty(); }));
    return home_.Bytes(name);
  }
};

size_t CountOf(const std::string& text, const std::string& part) {
  size_t count = 0;
  for (size_t at = 0; (at = text.find(part, at)) != text.npos; at += part.size()) ++count;
  return count;
}

std::wstring Clipboard() {
  EXPECT_TRUE(Eventually([] { return OpenClipboard(nullptr) != FALSE; }));
  std::wstring text;
  if (const HANDLE block = GetClipboardData(CF_UNICODETEXT)) {
    text = static_cast<const wchar_t*>(GlobalLock(block));
    GlobalUnlock(block);
  }
  CloseClipboard();
  return text;
}

TEST_F(OccasionsFilesTest, SelectedRowsAreCopiedWithTheirHeadingsAndAllWhenNoneIs) {
  OccasionsRun run;
  run.Select(-1, false);
  run.Select(1, true);
  run.Select(3, true);
  run.Click(IDC_COPY);
  std::wstring text = Clipboard();
  EXPECT_THAT(text, StartsWith(L"Date\tDay\tJewish date\tOccasion\tTime\tRemark\r\n" + run.Cell(1, 0) + L"\t"));
  EXPECT_THAT(text, EndsWith(L"\t" + run.Cell(3, 5) + L"\r\n"));
  EXPECT_EQ(std::ranges::count(text, L'\n'), 3);
  EXPECT_EQ(run.Text(IDC_STATE), L"2 occasions are copied.");
  run.Select(-1, false);
  run.Click(IDC_COPY);
  text = Clipboard();
  EXPECT_EQ(std::ranges::count(text, L'\n'), run.Count() + 1);
  run.ChooseHebrew(true);
  run.Click(IDC_COPY);
  EXPECT_THAT(Clipboard(), HasSubstr(L"\u05E4\u05E1\u05D7"));
  run.End();
}

TEST_F(OccasionsFilesTest, AHeldClipboardIsSaid) {
  OccasionsRun run;
  ASSERT_TRUE(OpenClipboard(nullptr));
  Press(run.Window(), IDC_COPY);
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"clipboard"));
  CloseClipboard();
  run.End();
}

TEST_F(OccasionsFilesTest, ACalendarHasAnEventForEachMomentByUtc) {
  OccasionsRun run;
  run.Type(L"pesach first candle");
  ASSERT_EQ(run.Count(), 1);
  EXPECT_EQ(run.Cell(0, OccasionsRun::kDate), L"07.04.2001");
  const std::string text = Saved(run, kCalendar, "a.ics");
  EXPECT_EQ(CountOf(text, "BEGIN:VEVENT"), 1u);
  // Israel's clock of that year was put forward on 9 April: it is two hours ahead of UTC.
  const std::wstring time = run.Cell(0, OccasionsRun::kTime);
  char utc[40];
  std::snprintf(utc, sizeof utc, "DTSTART:20010407T%02d%ls00Z", std::stoi(time) - 2, time.substr(3).c_str());
  EXPECT_THAT(text, HasSubstr(utc));
  EXPECT_THAT(text, HasSubstr("LOCATION:Jerusalem"));
  run.End();
}

TEST_F(OccasionsFilesTest, TheSameOccasionHasTheSameUidFromWhateverRange) {
  OccasionsRun run;
  run.Type(L"pesach first candle");
  const auto uidOf = [](const std::string& text) { return text.substr(text.find("UID:"), 60); };
  const std::string uid = uidOf(Saved(run, kCalendar, "a.ics"));
  run.ChooseSpan(OccasionsRun::kJewishYear);
  run.ChooseHebrew(true);
  ASSERT_EQ(run.Count(), 1);
  EXPECT_EQ(uidOf(Saved(run, kCalendar, "b.ics")), uid);
  run.End();
}

TEST_F(OccasionsFilesTest, TheListIsSavedAsItIsShownInEveryForm) {
  OccasionsRun run;
  run.Type(L"pesach");
  const std::wstring wide = run.Cell(0, OccasionsRun::kOccasion);
  const std::string first(wide.begin(), wide.end());
  const std::string csv = Saved(run, kCsv, "a.csv");
  EXPECT_THAT(csv, HasSubstr("Date,Day,Jewish date,Occasion,Time,Remark\r\n2001-04-05,"));
  EXPECT_THAT(csv, HasSubstr("\r\n2001-04-07,Shabbat,14 Nisan 5761,\"Pesach, first day: candle lighting\","));
  EXPECT_EQ(CountOf(csv, "\r\n"), static_cast<size_t>(run.Count()) + 1);
  const std::string html = Saved(run, kHtml, "a.html");
  EXPECT_THAT(html, HasSubstr(first));
  EXPECT_THAT(html, HasSubstr("Only what has: pesach"));
  EXPECT_THAT(html, HasSubstr("Occasions from 01.04.2001 to 30.04.2001"));
  EXPECT_THAT(Saved(run, kRtf, "a.rtf"), StartsWith("{\\rtf1"));
  const std::string text = Saved(run, kText, "a.txt");
  EXPECT_THAT(text, HasSubstr(first));
  EXPECT_THAT(text, HasSubstr("Candle lighting 40 minutes before sunset"));
  EXPECT_THAT(text, HasSubstr("Days as kept in the diaspora"));
  run.End();
}

TEST_F(OccasionsFilesTest, CandleLightingsAreSavedWhateverTheListShows) {
  home_.Put("occasions.ini", "[Occasions]\r\nHidden=shabbat,yom-tov\r\n");
  WaitUntilSeen();
  OccasionsRun run;
  run.Type(L"omer");
  const std::string text = Saved(run, kText, "a.txt", IDC_TAKE_CANDLES);
  EXPECT_THAT(text, HasSubstr("Candle lighting and end from 01.04.2001 to 30.04.2001"));
  EXPECT_THAT(text, HasSubstr("Sat 7 "));  // Pesach, with the end of Shabbat
  EXPECT_THAT(text, Not(HasSubstr("Omer")));
  run.End();
}

// Rosh Hashana of 5761 is 30 September 2000, that of 5762 is 18 September 2001.
TEST_F(OccasionsFilesTest, TheCandlesOfAYearAreThoseOfItsOwnEvenings) {
  OccasionsRun run;
  run.ChooseSpan(OccasionsRun::kJewishYear);
  const std::string jewish = Saved(run, kCsv, "a.csv", IDC_TAKE_CANDLES);
  EXPECT_THAT(jewish, HasSubstr("Evening,Occasion,Lighting,End\r\n2000-09-29,\"Rosh Hashana, first day\","));
  EXPECT_THAT(jewish, HasSubstr("\r\n2001-09-14,Shabbat,"));
  EXPECT_THAT(jewish, Not(HasSubstr("2001-09-17")));
  run.ChooseSpan(OccasionsRun::kCivilYear);
  const std::string civil = Saved(run, kCsv, "b.csv", IDC_TAKE_CANDLES);
  EXPECT_THAT(civil, HasSubstr("Evening,Occasion,Lighting,End\r\n2001-01-05,Shabbat,"));
  EXPECT_THAT(civil, HasSubstr("\r\n2001-09-17,\"Rosh Hashana, first day\","));
  run.End();
}

TEST_F(OccasionsFilesTest, WhatWasChosenLastIsOfferedAgain) {
  {
    OccasionsRun run;
    Saved(run, kHtml, "a.html", IDC_TAKE_CANDLES);
    run.End();
  }
  WaitUntilSeen();
  OccasionsRun run;
  Press(run.Window(), IDC_SAVE);
  const HWND dialog = run.WaitFor(L"Save Occasions");
  EXPECT_EQ(ChosenIn(dialog, IDC_FORMAT), kHtml);
  EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_TAKE_CANDLES), UINT{BST_CHECKED});
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(run.WaitUntilGone(dialog));
  run.End();
}

TEST_F(OccasionsFilesTest, AFileThatCannotBeWrittenIsNamedAndTheOldOneStays) {
  home_.Put("a.txt", "old");
  OccasionsRun run;
  const std::wstring file = home_.Path("a.txt").wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  Press(OpenSave(run, kText), IDOK);
  const HWND dialog = run.WaitFor(kFileTitle);
  SetControlText(dialog, kFileName, file);
  Press(dialog, IDOK);
  run.Answer(kFileTitle, dialog, IDI_WARNING, IDYES);  // that it is there already
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"a.txt"));
  EXPECT_EQ(home_.Bytes("a.txt"), "old");
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  run.End();
}

TEST_F(OccasionsFilesTest, AnEmptyListOffersOnlyTheCandles) {
  OccasionsRun run;
  run.Type(L"nowhere");
  Press(run.Window(), IDC_SAVE);
  const HWND dialog = run.WaitFor(L"Save Occasions");
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDC_TAKE_LIST)));
  EXPECT_EQ(IsDlgButtonChecked(dialog, IDC_TAKE_CANDLES), UINT{BST_CHECKED});
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(run.WaitUntilGone(dialog));
  run.End();
}

HWND Previewed(const OccasionsRun& run, int what, const std::wstring& title) {
  Press(run.Window(), IDC_PRINT);
  const HWND dialog = run.WaitFor(L"Print Occasions");
  EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialog, IDC_FORMAT)));
  CheckRadioButton(dialog, IDC_TAKE_LIST, IDC_TAKE_CANDLES, what);
  Press(dialog, IDOK);
  HWND preview = nullptr;
  EXPECT_TRUE(Eventually([&] {
    return (preview = FindWindowW(nullptr, (title + L" - Print Preview").c_str())) && IsWindowVisible(preview);
  }));
  return preview;
}

TEST_F(OccasionsFilesTest, ListAndSheetOfCandlesArePreviewed) {
  OccasionsRun run;
  run.ChooseSpan(OccasionsRun::kJewishYear);
  for (const auto& [what, title] : {std::pair(IDC_TAKE_LIST, L"Occasions of the Jewish year 5761"),
                                    {IDC_TAKE_CANDLES, L"Candle lighting and end in the Jewish year 5761"}}) {
    const HWND preview = Previewed(run, what, title);
    PostMessageW(preview, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(run.Window()) != FALSE; }));
  }
  run.End();
}

TEST_F(OccasionsFilesTest, MoreThanAYearOfCandlesIsRefusedWithTheRemedy) {
  OccasionsRun run({1, 1, 2001, 31, 12, 2002});
  Press(run.Window(), IDC_PRINT);
  const HWND dialog = run.WaitFor(L"Print Occasions");
  CheckRadioButton(dialog, IDC_TAKE_LIST, IDC_TAKE_CANDLES, IDC_TAKE_CANDLES);
  Press(dialog, IDOK);
  EXPECT_THAT(run.Answer(L"Error", dialog, IDI_HAND, IDOK), HasSubstr(L"at most 400 days"));
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(run.WaitUntilGone(dialog));
  run.End();
}

}  // namespace
