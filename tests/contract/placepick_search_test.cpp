// What the picker lists, in which order, and how what is typed finds it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "libraries/placepick/picker_ids.h"
#include "tests/contract/picker_driver.h"
#include "tests/contract/settings_home.h"

namespace {

using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;

class PlacePickSearch : public testing::Test {
 protected:
  SettingsHome home_;
};

// Coordinates of Aachen and Kathmandu: GeoNames, as the built-in table has them.
TEST_F(PlacePickSearch, ListShowsCoordinatesAndStandardZone) {
  PickerRun picker("Aachen");
  EXPECT_THAT(picker.Row(picker.SelectedRow()),
              ElementsAre(L"Aachen", L"Germany", L"50\u00B047' N", L"6\u00B005' E", L"GMT+1", _));
  picker.Type(L"kathm");
  ASSERT_EQ(picker.RowCount(), 1);
  EXPECT_THAT(picker.Row(0), ElementsAre(L"Kathmandu", L"Nepal", L"27\u00B042' N", L"85\u00B019' E", L"GMT+5:45", _));
  EXPECT_EQ(WindowText(picker.Control(IDC_COUNT)), L"1 place");
}

// Nepal keeps one clock all year, 5:45 ahead.
TEST_F(PlacePickSearch, ListShowsTheTimeThereNow) {
  home_.Put("stamp.ini", "[Times]\r\nForm=24\r\n");
  PickerRun picker("Kathmandu");
  const auto timeThere = [] {
    SYSTEMTIME utc;
    GetSystemTime(&utc);
    const int minutes = (utc.wHour * 60 + utc.wMinute + 345) % 1440;
    wchar_t text[16];
    swprintf(text, 16, L"%02d:%02d", minutes / 60, minutes % 60);
    return std::wstring(text);
  };
  EXPECT_TRUE(Eventually([&] { return picker.Row(picker.SelectedRow()).at(5) == timeThere(); }));
}

TEST_F(PlacePickSearch, OtherNamesFindAPlaceAndAreShown) {
  PickerRun picker("Jerusalem");
  picker.Type(L"kiev");
  EXPECT_EQ(picker.SelectedName(), L"Kyiv (Kiev)");
  picker.Type(L"\b\b\b\b\u05E6\u05E4\u05EA");
  EXPECT_EQ(picker.SelectedName(), L"Safed (\u05E6\u05E4\u05EA)");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "Safed");
}

TEST_F(PlacePickSearch, PlacesUsedLastStandOnTop) {
  for (const wchar_t* typed : {L"haifa", L"oslo", L"haifa"}) {
    PickerRun picker("Jerusalem");
    picker.Type(typed);
    picker.Press(VK_RETURN);
    ASSERT_TRUE(picker.Closes());
  }
  PickerRun picker("Jerusalem");
  EXPECT_EQ(picker.Row(0).front(), L"Haifa");
  EXPECT_EQ(picker.Row(1).front(), L"Oslo");
  EXPECT_EQ(picker.Row(2).front(), L"A Coruna");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
}

TEST_F(PlacePickSearch, TenPlacesUsedLastAreKept) {
  std::string names = "[LastUsed]\r\n";
  const char* const used[] = {"Oslo", "Rome", "Riga", "Lima", "Nice", "Fez", "Baku", "Praia", "Suva", "Quito"};
  for (int i = 0; i < 10; ++i) names += std::to_string(i + 1) + "=" + used[i] + "\r\n";
  home_.Put("placepick.ini", names);
  PickerRun picker("Jerusalem");
  EXPECT_EQ(picker.Row(9).front(), L"Quito");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  const std::string kept = home_.Bytes("placepick.ini");
  EXPECT_THAT(kept, HasSubstr("\r\n1=Jerusalem\r\n2=Oslo\r\n"));
  EXPECT_THAT(kept, HasSubstr("\r\n10=Suva\r\n"));
  EXPECT_THAT(kept, testing::Not(HasSubstr("Quito")));
}

TEST_F(PlacePickSearch, TypingFindsWordsInAnyOrderAndEnterPicks) {
  PickerRun picker("Jerusalem");
  picker.Type(L"YORK n\u00E9w");
  EXPECT_EQ(picker.SelectedName(), L"New York");
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "New York");
}

TEST_F(PlacePickSearch, NameThatBeginsWithWhatIsTypedIsSelectedBeforeOthers) {
  home_.Put("shabbat2.ini", "[Locations]\r\nYork=Available\r\n");
  PickerRun picker("Jerusalem");
  picker.Type(L"york");
  EXPECT_EQ(picker.Row(0).front(), L"York");
  EXPECT_EQ(picker.Row(0).at(1), L"your own");
  EXPECT_EQ(picker.SelectedName(), L"York");
  EXPECT_GT(picker.RowCount(), 1);
}

TEST_F(PlacePickSearch, ClearingWhatWasTypedGoesBackToTheCurrentPlace) {
  PickerRun picker("Jerusalem");
  picker.Type(L"v");
  EXPECT_NE(picker.SelectedName(), L"Jerusalem");
  picker.Type(L"\b");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
  EXPECT_TRUE(picker.IsRowVisible(picker.SelectedRow()));
  picker.Type(L" .");  // no word yet
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
}

TEST_F(PlacePickSearch, KeysInTheEditMoveTheSelection) {
  PickerRun picker("Aachen");
  const int last = picker.RowCount() - 1;
  const int first = picker.SelectedRow();
  picker.Press(VK_DOWN);
  EXPECT_EQ(picker.SelectedRow(), first + 1);
  picker.Press(VK_END);
  EXPECT_EQ(picker.SelectedRow(), last);
  picker.Press(VK_UP);
  EXPECT_EQ(picker.SelectedRow(), last - 1);
  picker.Press(VK_PRIOR);
  EXPECT_LT(picker.SelectedRow(), last - 2);
  picker.Press(VK_HOME);
  EXPECT_EQ(picker.SelectedRow(), 0);
  picker.Press(VK_NEXT);
  EXPECT_GT(picker.SelectedRow(), 1);
  EXPECT_TRUE(picker.IsRowVisible(picker.SelectedRow()));
  const std::wstring name = picker.SelectedName();
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(std::wstring(picker.Name().begin(), picker.Name().end()), name);
}

TEST_F(PlacePickSearch, WhenNothingMatchesNothingCanBeSelected) {
  PickerRun picker("Jerusalem");
  picker.Type(L"jerusx");
  EXPECT_EQ(picker.RowCount(), 0);
  EXPECT_EQ(WindowText(picker.Control(IDC_COUNT)), L"No place matches");
  EXPECT_FALSE(picker.IsEnabled(IDOK));
  EXPECT_FALSE(picker.IsEnabled(IDC_START));
  picker.Press(VK_RETURN);
  EXPECT_TRUE(IsWindow(picker.Dialog()));
  picker.Type(L"\b");
  EXPECT_EQ(picker.SelectedName(), L"Jerusalem");
  EXPECT_TRUE(picker.IsEnabled(IDOK));
  EXPECT_TRUE(picker.IsEnabled(IDC_START));
}

TEST_F(PlacePickSearch, PlacesOfTheUsersOwnAreMarkedAndOverrideBuiltInOnes) {
  home_.Put("shabbat2.ini", kUsersPlaces);
  home_.Put("shabloc2.ini", kTheirNumbers);
  PickerRun picker("London");
  EXPECT_THAT(picker.Row(picker.SelectedRow()),
              ElementsAre(L"London", L"your own", L"51\u00B034' N", L"0\u00B000' E", L"GMT", _));
  picker.Type(L"london");
  EXPECT_EQ(picker.Row(0).front(), L"London");
  EXPECT_NE(picker.Row(1).front(), L"London") << "the built-in one gives way";
  picker.Type(L"\b\b\b\b\b\bsummer house");
  ASSERT_EQ(picker.RowCount(), 1);
  EXPECT_THAT(picker.Row(0),
              ElementsAre(L"Summer house", L"your own", L"33\u00B052' S", L"52\u00B043' W", L"GMT-3:30", _));
  picker.Type(L"\b\b\b\b\b\b\b\b\b\b\b\bnowhere");
  EXPECT_EQ(picker.RowCount(), 0);
}

TEST_F(PlacePickSearch, NamesAreWindows1252WhateverTheSystemsCodePage) {
  home_.Put("shabbat2.ini", kUsersPlaces);
  PickerRun picker("Z\xFCrich-Nord");
  EXPECT_EQ(picker.SelectedName(), L"Z\u00FCrich-Nord");
  picker.Type(L"nord zuri");
  ASSERT_EQ(picker.RowCount(), 1);
  picker.Press(VK_RETURN);
  ASSERT_TRUE(picker.Closes());
  EXPECT_EQ(picker.Name(), "Z\xFCrich-Nord");
}

}  // namespace
