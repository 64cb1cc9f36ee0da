#include "tests/contract/candles_dialog_driver.h"

#include <algorithm>
#include <cwchar>

namespace {

// A day's number and weekday (0 = Sunday).
struct Day {
  uint64_t number;
  WORD weekday;
};

Day DayOf(SYSTEMTIME time) {
  constexpr uint64_t kHundredNanosecondsInDay = 864000000000;
  FILETIME fileTime = {};
  SystemTimeToFileTime(&time, &fileTime);
  FileTimeToSystemTime(&fileTime, &time);  // fills in the weekday
  const uint64_t ticks = uint64_t{fileTime.dwHighDateTime} << 32 | fileTime.dwLowDateTime;
  return {ticks / kHundredNanosecondsInDay, time.wDayOfWeek};
}

uint64_t Today() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return DayOf(now).number;
}

TEST_F(CandlesDialog, AddedEntryIsSelectedAndWrittenByOk) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Z\u00FCrich", L"8.3.2024", L"17:55", L"7:02 pm");
  ASSERT_TRUE(entry.Accept());
  ASSERT_TRUE(dialog.WaitForCount(3));
  EXPECT_EQ(dialog.Rows()[2], (Row{L"Z\u00FCrich", L"08.03.2024", L"17:55", L"19:02"}));
  EXPECT_TRUE(Eventually([&] { return dialog.SelectedRow() == 2; }));
  EXPECT_EQ(Stored(), kTwoEntries);
  dialog.Accept();
  EXPECT_EQ(Stored(), std::string(kTwoEntries) + "2024-03-08 17:55 19:02 Z\xFCrich\r\n");
  int32_t times[4] = {};
  EXPECT_NE(CandlesGetTime("Z\xFCrich", 8, 3, 2024, &times[0], &times[1], &times[2], &times[3]), 0);
  EXPECT_EQ(times[2] * 100 + times[3], 1902);
}

TEST_F(CandlesDialog, NewEntryStartsWithTheSelectedPlaceAndTheComingFriday) {
  home_.Put("candles.txt", kTwoEntries);
  const uint64_t before = Today();
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  const uint64_t after = Today();
  EXPECT_EQ(entry.Text(IDC_PLACE), L"Jerusalem");
  EXPECT_EQ(entry.Text(IDC_CANDLE_TIME), L"");
  EXPECT_EQ(entry.Text(IDC_END_TIME), L"");
  SYSTEMTIME shown = {};
  EXPECT_EQ(swscanf(entry.Text(IDC_FRIDAY).c_str(), L"%hu.%hu.%hu", &shown.wDay, &shown.wMonth, &shown.wYear), 3);
  const Day friday = DayOf(shown);
  EXPECT_EQ(friday.weekday, 5);
  EXPECT_GE(friday.number, before);
  EXPECT_LE(friday.number, after + 6);
  EXPECT_TRUE(entry.Cancel());
  dialog.Accept();
  EXPECT_EQ(Stored(), kTwoEntries);
}

int32_t CallAtHaifa(HWND owner) {
  CandlesDoDialogAt(owner, "Haifa");
  return 0;
}

int32_t CallAtNowhere(HWND owner) {
  CandlesDoDialogAt(owner, nullptr);
  return 0;
}

int32_t CallAtTooLongAName(HWND owner) {
  CandlesDoDialogAt(owner, std::string(256, 'x').c_str());
  return 0;
}

std::string DateOfFile(uint64_t dayNumber) {
  const uint64_t ticks = dayNumber * 864000000000;
  const FILETIME fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  SYSTEMTIME day = {};
  FileTimeToSystemTime(&fileTime, &day);
  char text[16];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u", day.wYear, day.wMonth, day.wDay);
  return text;
}

// The place has times for every day of the first two weeks but the second Friday's; the selected entry is another's.
TEST_F(CandlesDialog, NewEntryAtAPlaceStartsWithItAndItsFirstFridayWithoutTimes) {
  const uint64_t before = Today();
  std::string file = "2024-03-08 17:25 18:31 Aachen\r\n";
  for (uint64_t day = before; day < before + 7; ++day) file += DateOfFile(day) + " 17:25 18:31 Haifa\r\n";
  home_.Put("candles.txt", file);
  ListDialog dialog(CallAtHaifa);
  const EntryDialog entry(dialog, IDC_ADD);
  EXPECT_EQ(entry.Text(IDC_PLACE), L"Haifa");
  SYSTEMTIME shown = {};
  EXPECT_EQ(swscanf(entry.Text(IDC_FRIDAY).c_str(), L"%hu.%hu.%hu", &shown.wDay, &shown.wMonth, &shown.wYear), 3);
  const Day friday = DayOf(shown);
  EXPECT_EQ(friday.weekday, 5);
  EXPECT_GE(friday.number, before + 7);
  EXPECT_LE(friday.number, Today() + 13);
  EXPECT_TRUE(entry.Cancel());
  dialog.Accept();
}

TEST_F(CandlesDialog, WithoutAUsableNameTheSelectedPlaceIsPreset) {
  home_.Put("candles.txt", kTwoEntries);
  for (int32_t (*const call)(HWND) : {CallAtNowhere, CallAtTooLongAName}) {
    ListDialog dialog(call);
    const EntryDialog entry(dialog, IDC_ADD);
    EXPECT_EQ(entry.Text(IDC_PLACE), L"Jerusalem");
    EXPECT_TRUE(entry.Cancel());
    dialog.Accept();
  }
}

TEST_F(CandlesDialog, OffersBuiltInPlacesTheUsersAndStoredOnesOnce) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 Elsewhere\n2024-03-08 17:25 18:31 Jerusalem\n");
  home_.Put("shabbat2.ini", "[Locations]\r\nCastle Z\xFC=1\r\nGone=\r\nJerusalem=1\r\n[Shabbat]\r\nEnd=45\r\n");
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  const std::vector<std::wstring> places = entry.Places();
  const auto countOf = [&places](const wchar_t* place) { return std::count(places.begin(), places.end(), place); };
  for (const wchar_t* place : {L"Aachen", L"Jerusalem", L"Castle Z\u00FC", L"Elsewhere"}) EXPECT_EQ(countOf(place), 1);
  for (const wchar_t* place : {L"Gone", L"End", L""}) EXPECT_EQ(countOf(place), 0);
  EXPECT_TRUE(entry.Cancel());
  dialog.Accept();
}

TEST_F(CandlesDialog, UsersPlacesAreOfferedHoweverMany) {
  std::string file = "[Locations]\r\n";
  for (int i = 1000; i < 2000; ++i) file += "A place of the user's own, number " + std::to_string(i) + "=1\r\n";
  home_.Put("shabbat2.ini", file);
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  EXPECT_GT(entry.Places().size(), 1000u);
  EXPECT_TRUE(entry.Cancel());
  dialog.Accept();
}

TEST_F(CandlesDialog, FieldsAreCheckedInTheirOrder) {
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L" ", L"x", L"x", L"x");
  EXPECT_EQ(entry.ErrorIn(IDC_PLACE), L"The place is missing. Choose one from the list or write its name.");
  entry.Set(IDC_PLACE, L"\u05D0");
  EXPECT_NE(entry.ErrorIn(IDC_PLACE).find(L"Western European letters"), std::wstring::npos);
  entry.Set(IDC_PLACE, L"Jerusalem");
  EXPECT_EQ(entry.ErrorIn(IDC_FRIDAY), L"The Friday must be a date written day.month.year, such as 08.03.2024.");
  entry.Set(IDC_FRIDAY, L"\u0668.3.2024");  // an Arabic digit
  EXPECT_EQ(entry.ErrorIn(IDC_FRIDAY), L"The Friday must be a date written day.month.year, such as 08.03.2024.");
  entry.Set(IDC_FRIDAY, L"8.3.1500");
  EXPECT_EQ(entry.ErrorIn(IDC_FRIDAY), L"The year of the Friday must be in the range 1583-3000.");
  entry.Set(IDC_FRIDAY, L"9.3.2024");
  EXPECT_EQ(entry.ErrorIn(IDC_FRIDAY),
            L"09.03.2024 is a Saturday. Times are kept by the Friday: the nearest are 08.03.2024 and 15.03.2024.");
  entry.Set(IDC_FRIDAY, L"8.3.2024");
  EXPECT_EQ(entry.ErrorIn(IDC_CANDLE_TIME),
            L"Candle lighting must be a time written hour:minute, such as 18:47 or 6:47 pm, from 0:00 to 23:59.");
  entry.Set(IDC_CANDLE_TIME, L"17:25");
  EXPECT_EQ(entry.ErrorIn(IDC_END_TIME),
            L"End of Shabbat must be a time written hour:minute, such as 18:47 or 6:47 pm, from 0:00 to 23:59.");
  entry.Set(IDC_END_TIME, L"18:31");
  EXPECT_TRUE(entry.Accept());
  EXPECT_TRUE(dialog.WaitForCount(1));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n");
}

TEST_F(CandlesDialog, HourOfTheMorningIsAskedAbout) {
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Jerusalem", L"8.3.2024", L"5:25", L"6:31 pm");
  Press(entry.Window(), IDOK);
  EXPECT_EQ(dialog.Answer(L"Add Times", entry.Window(), IDI_QUESTION, IDNO),
            L"Candle lighting at 05:25 is in the morning. Is that meant?");
  EXPECT_TRUE(dialog.WaitForFocus(entry.Edit(IDC_CANDLE_TIME)));
  EXPECT_TRUE(Eventually([&] { return IsAllSelected(entry.Edit(IDC_CANDLE_TIME)); }));
  Press(entry.Window(), IDOK);
  dialog.Answer(L"Add Times", entry.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(dialog.WaitUntilGone(entry.Window()));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 05:25 18:31 Jerusalem\r\n");
}

TEST_F(CandlesDialog, PlaceKeepsItsExactSpelling) {
  ListDialog dialog;
  for (const wchar_t* place : {L"cottage", L" My  place ", L"50%", L"Caf\u00E9 \u201CX\u201D \u20AC"}) {
    const EntryDialog entry(dialog, IDC_ADD);
    entry.Fill(place, L"8.3.2024", L"17:25", L"18:31");
    ASSERT_TRUE(entry.Accept());
  }
  ASSERT_TRUE(dialog.WaitForCount(4));
  dialog.Accept();
  int32_t time;
  for (const char* place : {"cottage", " My  place ", "50%", "Caf\xE9 \x93X\x94 \x80"}) {
    EXPECT_NE(CandlesGetTime(place, 8, 3, 2024, &time, &time, &time, &time), 0) << place;
  }
  EXPECT_EQ(CandlesGetTime("Cottage", 8, 3, 2024, &time, &time, &time, &time), 0);
}

TEST_F(CandlesDialog, PlaceInOtherLettersIsTheKnownOneThatDiffersInTheirCaseAlone) {
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"jerusalem", L"8.3.2024", L"17:25", L"18:31");
  ASSERT_TRUE(entry.Accept());
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n");
}

TEST_F(CandlesDialog, BlanksAroundAKnownPlaceAreDropped) {
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Jerusalem ", L"8.3.2024", L"17:25", L"18:31");
  ASSERT_TRUE(entry.Accept());
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n");
}

TEST_F(CandlesDialog, ChangedEntryKeepsThePlacesBytes) {
  home_.Put("candles.txt", "2024-03-08 17:25 18:31 a%0D%0Ab\x81\n");
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_CHANGE);
  entry.Set(IDC_END_TIME, L"18:32");
  ASSERT_TRUE(entry.Accept());
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:32 a%0D%0Ab\x81\n");
}

TEST_F(CandlesDialog, ChangeStartsFromTheEntryAndMovesIt) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  dialog.Select(0, false);
  dialog.Select(1, true);
  const EntryDialog entry(dialog, IDC_CHANGE);
  EXPECT_EQ(entry.Text(IDC_PLACE), L"Jerusalem");
  EXPECT_EQ(entry.Text(IDC_FRIDAY), L"15.03.2024");
  EXPECT_EQ(entry.Text(IDC_CANDLE_TIME), L"17:30");
  EXPECT_EQ(entry.Text(IDC_END_TIME), L"18:36");
  entry.Fill(L"Aachen", L"1.3.2024", L"17:31", L"18:37");
  ASSERT_TRUE(entry.Accept());
  EXPECT_TRUE(Eventually([&] { return dialog.SelectedRow() == 0; }));
  EXPECT_EQ(dialog.Rows(), (std::vector<Row>{{L"Aachen", L"01.03.2024", L"17:31", L"18:37"},
                                             {L"Jerusalem", L"08.03.2024", L"17:25", L"18:31"}}));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n2024-03-01 17:31 18:37 Aachen\r\n");
}

TEST_F(CandlesDialog, ReplacingAnEntryIsAskedAbout) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_ADD);
  entry.Fill(L"Jerusalem", L"15.3.2024", L"17:00", L"18:00");
  Press(entry.Window(), IDOK);
  EXPECT_EQ(dialog.Answer(L"Add Times", entry.Window(), IDI_QUESTION, IDNO),
            L"Jerusalem has times for 15.03.2024 already: candle lighting 17:30, end of Shabbat 18:36. Replace them?");
  EXPECT_TRUE(IsWindow(entry.Window()));
  Press(entry.Window(), IDOK);
  dialog.Answer(L"Add Times", entry.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(dialog.WaitUntilGone(entry.Window()));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-08 17:25 18:31 Jerusalem\r\n2024-03-15 17:00 18:00 Jerusalem\r\n");
}

TEST_F(CandlesDialog, ChangeOntoAnotherEntryIsAskedAboutAndTakesItsPlace) {
  home_.Put("candles.txt", kTwoEntries);
  ListDialog dialog;
  const EntryDialog entry(dialog, IDC_CHANGE);
  entry.Set(IDC_FRIDAY, L"15.3.2024");
  Press(entry.Window(), IDOK);
  dialog.Answer(L"Change Times", entry.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(dialog.WaitForCount(1));
  dialog.Accept();
  EXPECT_EQ(Stored(), "2024-03-15 17:25 18:31 Jerusalem\r\n");
}

}  // namespace
