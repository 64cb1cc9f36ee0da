// The window of the occasions of the year: its list.
#include <gmock/gmock.h>

#include <atomic>

#include "tests/contract/occasions_driver.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class OccasionsWindowTest : public OccasionsTest {};

// The rows of the list are those that the library enumerates.
void ExpectRows(const OccasionsRun& run, const std::vector<OccasionsRecord>& records) {
  ASSERT_EQ(run.Count(), static_cast<int>(records.size()));
  for (int row = 0; row < run.Count(); ++row) {
    const OccasionsRecord& record = records[static_cast<size_t>(row)];
    EXPECT_EQ(run.Cell(row, OccasionsRun::kDate), DateOf(record)) << row;
    EXPECT_EQ(run.Cell(row, OccasionsRun::kOccasion), WideOf(record.english)) << row;
    EXPECT_EQ(run.Cell(row, OccasionsRun::kTime), TimeOf(record)) << row;
    EXPECT_EQ(run.Cell(row, OccasionsRun::kRemark), WideOf(record.englishRemark)) << row;
  }
}

TEST_F(OccasionsWindowTest, TheDocumentsRangeIsListedFirst) {
  OccasionsRun run;
  const std::vector<OccasionsRecord> records = Enumerated(kApril2001);
  EXPECT_GT(records.size(), 20u) << "Pesach of 5761 is 8 April 2001";
  ExpectRows(run, records);
  EXPECT_EQ(run.Text(IDC_STATE), std::to_wstring(records.size()) + L" occasions");
  EXPECT_EQ(ChosenIn(run.Window(), IDC_SPAN), OccasionsRun::kRange);
  EXPECT_FALSE(run.IsEnabled(IDC_YEAR));
  EXPECT_EQ(run.Selected(), 0);
  EXPECT_EQ(run.Text(IDC_REMARK), run.Cell(0, OccasionsRun::kRemark));
  EXPECT_TRUE(run.WaitForFocus(run.List()));
  run.End();
  EXPECT_EQ(home_.Bytes("occasions.ini"), "") << "nothing was changed";
}

// Rosh Hashana of 5761 is 30 September 2000, that of 5787 is 12 September 2026.
TEST_F(OccasionsWindowTest, AYearOfEitherCalendarIsTurnedAndTyped) {
  OccasionsRun run;
  run.ChooseSpan(OccasionsRun::kJewishYear);
  EXPECT_EQ(run.Text(IDC_YEAR), L"5761");
  ExpectRows(run, Enumerated({29, 9, 2000, 17, 9, 2001}));
  EXPECT_THAT(run.Cell(run.Selected(), OccasionsRun::kDate), testing::EndsWith(L".04.2001")) << "what was selected";
  run.TypeYear(L"5787");
  ExpectRows(run, Enumerated({11, 9, 2026, 1, 10, 2027}));
  SendDlgItemMessageW(run.Window(), IDC_YEAR_SPIN, UDM_SETPOS32, 0, 5788);
  EXPECT_EQ(run.Cell(0, OccasionsRun::kDate), L"01.10.2027") << "candles of Rosh Hashana";
  SendMessageW(run.Window(), WM_COMMAND, IDC_YEAR_ON, 0);
  EXPECT_EQ(run.Text(IDC_YEAR), L"5789");
  SendMessageW(run.Window(), WM_COMMAND, IDC_YEAR_BACK, 0);
  EXPECT_EQ(run.Text(IDC_YEAR), L"5788");
  run.ChooseSpan(OccasionsRun::kCivilYear);
  EXPECT_EQ(run.Text(IDC_YEAR), L"2027");
  EXPECT_THAT(run.Cell(0, OccasionsRun::kDate), testing::EndsWith(L".01.2027"));
  run.ChooseSpan(OccasionsRun::kRange);
  ExpectRows(run, Enumerated(kApril2001));
  run.End();
}

TEST_F(OccasionsWindowTest, AYearThatCannotBeListedLeavesTheListAndIsSaid) {
  OccasionsRun run;
  run.ChooseSpan(OccasionsRun::kCivilYear);
  const int count = run.Count();
  for (const wchar_t* const typed : {L"9999", L"12", L"", L"1582", L"3001"}) {
    run.TypeYear(typed);
    EXPECT_EQ(run.Count(), count) << typed;
    run.LeaveYear();
    EXPECT_EQ(run.Text(IDC_YEAR), L"2001");
    EXPECT_THAT(run.Text(IDC_STATE), HasSubstr(L"1583 to 3000")) << typed;
    EXPECT_THAT(run.Text(IDC_STATE), HasSubstr(std::wstring(L"\"") + typed + L"\""));
  }
  for (const wchar_t* const last : {L"1583", L"3000"}) {
    run.TypeYear(last);
    EXPECT_THAT(run.Cell(0, OccasionsRun::kDate), HasSubstr(last));
    EXPECT_THAT(run.Cell(run.Count() - 1, OccasionsRun::kDate), HasSubstr(last));
  }
  run.ChooseSpan(OccasionsRun::kJewishYear);
  run.TypeYear(L"5344");
  EXPECT_GT(run.Count(), 200);
  run.TypeYear(L"6760");
  EXPECT_GT(run.Count(), 200);
  run.End();
}

TEST_F(OccasionsWindowTest, OneKindIsShownAlone) {
  OccasionsRun run({1, 1, 2001, 31, 12, 2001});
  constexpr int kFasts = 3;  // behind "All that are shown", Shabbat and Yom Tov
  Choose(run.Window(), IDC_KIND, kFasts);
  int fasts = 0;
  const std::vector<OccasionsRecord> records = Enumerated({1, 1, 2001, 31, 12, 2001});
  for (const OccasionsRecord& record : records) {
    if (std::string(record.kind) != "fast") continue;
    EXPECT_EQ(run.Cell(fasts++, OccasionsRun::kOccasion), WideOf(record.english));
  }
  EXPECT_EQ(run.Count(), fasts);
  EXPECT_GE(fasts, 10);
  EXPECT_EQ(run.Text(IDC_STATE), std::to_wstring(fasts) + L" of " + std::to_wstring(records.size()) + L" occasions");
  Choose(run.Window(), IDC_KIND, 0);
  EXPECT_EQ(run.Count(), static_cast<int>(records.size()));
  run.End();
}

TEST_F(OccasionsWindowTest, SearchFindsTitlesInEitherLanguageWhateverCaseAccentsAndMarks) {
  OccasionsRun run({1, 1, 2001, 31, 12, 2001});
  run.Type(L"PESACH candle");
  const int candles = run.Count();
  EXPECT_GE(candles, 2);
  for (int row = 0; row < candles; ++row) EXPECT_THAT(run.Cell(row, 3), StartsWith(L"Pesach"));
  run.Type(L"p\u00E9sach c\u00E1ndle");
  EXPECT_EQ(run.Count(), candles);
  run.Type(L"\u05E4\u05E1\u05D7 \u05E0\u05E8\u05D5\u05EA");  // the same words in Hebrew
  EXPECT_EQ(run.Count(), candles);
  run.Type(L"\u05E4\u05B6\u05BC\u05E1\u05B7\u05D7 \u05E0\u05B5\u05E8\u05D5\u05B9\u05EA");  // with points
  EXPECT_EQ(run.Count(), candles);
  run.Type(L"tu bi'shvat");
  EXPECT_EQ(run.Count(), 1);
  run.Type(L"");
  EXPECT_GT(run.Count(), 200);
  run.End();
}

TEST_F(OccasionsWindowTest, AnEmptyListSaysWhyAndWhatToDo) {
  OccasionsRun run;
  run.Type(L"nowhere");
  EXPECT_EQ(run.Count(), 0);
  EXPECT_THAT(run.Text(IDC_STATE), HasSubstr(L"Clear it to see all"));
  EXPECT_FALSE(run.IsEnabled(IDC_COPY));
  EXPECT_TRUE(run.IsEnabled(IDC_SAVE)) << "candle lightings alone";
  run.Type(L"");
  constexpr int kChanukah = 5;
  Choose(run.Window(), IDC_KIND, kChanukah);
  EXPECT_THAT(run.Text(IDC_STATE), HasSubstr(L"is of this kind"));
  run.End();
  home_.Put("occasions.ini", "[Occasions]\r\nHidden=chanukah\r\n");
  WaitUntilSeen();
  OccasionsRun hidden;
  Choose(hidden.Window(), IDC_KIND, kChanukah);
  EXPECT_THAT(hidden.Text(IDC_STATE), HasSubstr(L"this kind is hidden"));
  hidden.End();
}

TEST_F(OccasionsWindowTest, ARangeThatEndsBeforeItBeginsIsEmpty) {
  OccasionsRun run({2, 4, 2001, 1, 4, 2001});
  EXPECT_EQ(run.Count(), 0);
  EXPECT_THAT(run.Text(IDC_STATE), StartsWith(L"No occasions from 02.04.2001 to 01.04.2001. Choose a year"));
  EXPECT_FALSE(run.IsEnabled(IDC_SAVE));
  run.End();
}

// On the clock of Jerusalem.
SYSTEMTIME NowInJerusalem() {
  SYSTEMTIME utc;
  GetSystemTime(&utc);
  FILETIME file;
  SystemTimeToFileTime(&utc, &file);
  ULARGE_INTEGER ticks = {{file.dwLowDateTime, file.dwHighDateTime}};
  ticks.QuadPart += 2ull * 3600 * 10'000'000;  // standard time, for which "solar.ini" is set
  file = {ticks.LowPart, ticks.HighPart};
  SYSTEMTIME shown;
  FileTimeToSystemTime(&file, &shown);
  return shown;
}

OccasionsRecord FirstFrom(const SYSTEMTIME& now) {
  const OccasionsRange year = {now.wDay, now.wMonth, now.wYear, now.wDay, now.wMonth, now.wYear + 1u};
  for (const OccasionsRecord& record : Enumerated(year)) {
    const bool isToday = record.day == now.wDay && record.month == now.wMonth && record.year == now.wYear;
    if (record.hour == OCCASIONS_NONE) continue;
    if (isToday && record.hour >= 0 && record.hour * 60 + record.minute < now.wHour * 60 + now.wMinute) continue;
    return record;
  }
  return {};
}

TEST_F(OccasionsWindowTest, TheNextOccasionIsSaidAndFoundInItsYear) {
  home_.Put("solar.ini", "[SummerTime]\r\nMode=Off\r\n");
  const OccasionsRecord before = FirstFrom(NowInJerusalem());
  OccasionsRun run;
  const std::wstring said = run.Text(IDC_NEXT_TEXT);
  run.Click(IDC_NEXT);
  const OccasionsRecord after = FirstFrom(NowInJerusalem());
  const auto isSaid = [&](const OccasionsRecord& record) {
    return said.starts_with(L"Next: " + WideOf(record.english) + L", ") && said.find(DateOf(record)) != said.npos;
  };
  EXPECT_TRUE(isSaid(before) || isSaid(after)) << "the minute may change meanwhile";
  EXPECT_EQ(ChosenIn(run.Window(), IDC_SPAN), OccasionsRun::kJewishYear);
  const std::wstring date = run.Cell(run.Selected(), OccasionsRun::kDate);
  EXPECT_TRUE(date == DateOf(before) || date == DateOf(after));
  EXPECT_THAT(said, HasSubstr(run.Cell(run.Selected(), OccasionsRun::kDate)));
  run.End();
}

TEST_F(OccasionsWindowTest, TheNextOneOfAKindIsFoundThoughItIsInTheNextYear) {
  OccasionsRun run;
  run.Type(L"rosh hashana first candle");
  run.Click(IDC_NEXT);
  ASSERT_GE(run.Selected(), 0);
  EXPECT_THAT(run.Cell(run.Selected(), OccasionsRun::kOccasion), StartsWith(L"Rosh Hashana"));
  const std::wstring date = run.Cell(run.Selected(), OccasionsRun::kDate);
  const SYSTEMTIME now = NowInJerusalem();
  const int year = std::stoi(date.substr(6));
  EXPECT_TRUE(year == now.wYear || year == now.wYear + 1) << year;
  run.End();
}

TEST_F(OccasionsWindowTest, WhatDoesNotComeIsSaidAndTheListStays) {
  OccasionsRun run;
  run.Type(L"nowhere");
  Press(run.Window(), IDC_NEXT);
  EXPECT_THAT(run.Answer(L"Error", run.Window(), IDI_HAND, IDOK), HasSubstr(L"this year and the next two"));
  run.Type(L"");
  ExpectRows(run, Enumerated(kApril2001));
  run.End();
}

TEST_F(OccasionsWindowTest, EnterInTheYearGoesToTheListOfThatYear) {
  OccasionsRun run;
  run.ChooseSpan(OccasionsRun::kCivilYear);
  SendMessageW(run.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(run.Window(), IDC_YEAR)), TRUE);
  ASSERT_TRUE(run.WaitForFocus(GetDlgItem(run.Window(), IDC_YEAR)));
  run.TypeYear(L"1999");
  run.Click(IDC_NEXT);
  EXPECT_TRUE(run.WaitForFocus(run.List()));
  EXPECT_THAT(run.Cell(0, OccasionsRun::kDate), HasSubstr(L"1999"));
  run.End();
}

TEST_F(OccasionsWindowTest, HebrewNamesAreShownAndKept) {
  {
    OccasionsRun run;
    run.ChooseHebrew(true);
    const std::vector<OccasionsRecord> records = Enumerated(kApril2001);
    for (size_t row = 0; row < records.size(); ++row) {
      EXPECT_EQ(run.Cell(static_cast<int>(row), OccasionsRun::kOccasion), WideOf(records[row].hebrew));
      EXPECT_EQ(run.Cell(static_cast<int>(row), OccasionsRun::kRemark), WideOf(records[row].hebrewRemark));
    }
    EXPECT_THAT(run.Cell(0, OccasionsRun::kJewishDate), HasSubstr(L"\u05E0\u05D9\u05E1\u05DF"));  // Nisan
    EXPECT_EQ(run.Text(IDC_REMARK), WideOf(records[0].hebrewRemark)) << "of the row that is selected";
    EXPECT_STRNE(records[0].hebrewRemark, "");
    run.ChooseSpan(OccasionsRun::kJewishYear);
    run.End();
  }
  WaitUntilSeen();
  OccasionsRun run;
  EXPECT_EQ(IsDlgButtonChecked(run.Window(), IDC_HEBREW), BST_CHECKED);
  EXPECT_EQ(ChosenIn(run.Window(), IDC_SPAN), OccasionsRun::kJewishYear);
  EXPECT_EQ(run.Text(IDC_YEAR), L"5761") << "the year of the range's first day";
  run.End();
}

TEST_F(OccasionsWindowTest, TimesAreInTheFormOfTheUser) {
  home_.Put("stamp.ini", "[Times]\r\nForm=12\r\n");
  WaitUntilSeen();
  OccasionsRun run;
  run.Type(L"shabbat candle");
  EXPECT_THAT(run.Cell(0, OccasionsRun::kTime), HasSubstr(L"p.m."));
  run.End();
}

TEST_F(OccasionsWindowTest, ChangedSettingsMakeTheListAnew) {
  OccasionsRun run;
  run.Type(L"omer");
  EXPECT_GT(run.Count(), 10);
  Press(run.Window(), IDC_SETTINGS);
  const HWND settings = run.WaitFor(kOccasionSettingsTitle);
  constexpr int kOmer = 6;
  ListView_SetCheckState(GetDlgItem(settings, IDC_KINDS), kOmer, FALSE);
  Press(settings, IDOK);
  EXPECT_TRUE(run.WaitUntilGone(settings));
  EXPECT_TRUE(Eventually([&] { return run.Count() < 10; }));
  run.End();
}

TEST_F(OccasionsWindowTest, EveryAccessKeyIsOfOneControl) {
  OccasionsRun run;
  EXPECT_TRUE(AreAccessKeysDifferent(run.Window()));
  for (const auto& [button, caption] : {std::pair(IDC_PRINT, L"Print Occasions"),
                                        {IDC_SAVE, L"Save Occasions"},
                                        {IDC_SETTINGS, kOccasionSettingsTitle}}) {
    Press(run.Window(), button);
    const HWND dialog = run.WaitFor(caption);
    EXPECT_TRUE(AreAccessKeysDifferent(dialog)) << button;
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(run.WaitUntilGone(dialog));
  }
  run.End();
}

TEST_F(OccasionsWindowTest, F1IsTheOwners) {
  static std::atomic<int> helps;
  helps = 0;
  DialogDriver driver([](HWND owner) {
    const auto proc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
      if (message == WM_HELP) ++helps;
      return DefSubclassProc(window, message, wParam, lParam);
    };
    SetWindowSubclass(owner, proc, 0, 0);
    OccasionsDoDialog(owner, "Jerusalem", 3147, 3514, 2, 0, 1, 4, 2001, 30, 4, 2001);
    return 1;
  });
  const HWND window = driver.WaitFor(kOccasionsTitle);
  HELPINFO help = {};
  help.cbSize = sizeof help;
  SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(helps, 1);
  for (const auto& [button, caption] :
       {std::pair(IDC_SAVE, L"Save Occasions"), {IDC_SETTINGS, kOccasionSettingsTitle}}) {
    Press(window, button);
    const HWND dialog = driver.WaitFor(caption);
    SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(driver.WaitUntilGone(dialog));
  }
  EXPECT_EQ(helps, 3);
  Press(window, IDCANCEL);
  driver.Result();
}

TEST_F(OccasionsWindowTest, ACenturyIsListedAndSearched) {
  OccasionsRun run({1, 1, 1901, 31, 12, 2000});
  const int all = run.Count();
  EXPECT_GT(all, 30000);
  constexpr int kYomTov = 2;
  Choose(run.Window(), IDC_KIND, kYomTov);
  run.Type(L"yom kippur candle");
  EXPECT_EQ(run.Count(), 100);
  Choose(run.Window(), IDC_KIND, 0);
  run.Type(L"");
  EXPECT_EQ(run.Count(), all);
  EXPECT_THAT(run.Cell(all - 1, OccasionsRun::kDate), HasSubstr(L"2000"));
  run.End();
}

TEST_F(OccasionsWindowTest, ASettingsFileThatCannotBeReadIsNamedAndTheWindowDoesNotOpen) {
  home_.Put("occasions.ini", "[Occasions]\r\nLand=Israel\r\n");
  HANDLE held = CreateFileW(home_.Path("occasions.ini").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  DialogDriver driver([](HWND owner) {
    OccasionsDoDialog(owner, "Jerusalem", 3147, 3514, 2, 0, 1, 4, 2001, 30, 4, 2001);
    return 1;
  });
  EXPECT_THAT(driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDCANCEL), HasSubstr(L"occasions.ini"));
  driver.Result();
  CloseHandle(held);
  EXPECT_EQ(home_.Bytes("occasions.ini"), "[Occasions]\r\nLand=Israel\r\n");
}

TEST_F(OccasionsWindowTest, TwoHundredOpeningsLeaveNothingBehind) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) {
        OccasionsDoDialog(owner, "Jerusalem", 3147, 3514, 2, 0, 1, 4, 2001, 30, 4, 2001);
      }
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND window = driver.WaitFor(kOccasionsTitle);
      SetControlText(window, IDC_TYPED, L"pesach");
      Press(window, IDC_SETTINGS);
      const HWND settings = driver.WaitFor(kOccasionSettingsTitle);
      Press(settings, IDCANCEL);
      if (!driver.WaitUntilGone(settings)) break;
      Press(window, IDCANCEL);
      if (!driver.WaitUntilGone(window)) break;
    }
    EXPECT_EQ(driver.Result(), times);
  };
  openAndClose(20);
  const Resources before = ResourcesNow();
  openAndClose(200);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);  // 100 bytes a run would show
}

}  // namespace
