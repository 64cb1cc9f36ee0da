// The dialog of customs and of the kinds of occasions that are shown.
#include <gmock/gmock.h>

#include "tests/contract/held_file.h"
#include "tests/contract/occasions_driver.h"

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr int kKinds = 13;
constexpr int kOmer = 6;

class SettingsRun : public DialogDriver {
 public:
  SettingsRun()
      : DialogDriver([](HWND owner) { return OccasionsDoSettingsDialog(owner); }),
        dialog_(WaitFor(kOccasionSettingsTitle)) {}

  HWND Dialog() const { return dialog_; }
  bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(dialog_, id)) != FALSE; }
  int LastOf(int combo) const { return static_cast<int>(SendDlgItemMessageW(dialog_, combo, CB_GETCOUNT, 0, 0)) - 1; }
  bool IsShown(int kind) const { return ListView_GetCheckState(Kinds(), static_cast<UINT>(kind)) != 0; }
  void ShowKind(int kind, bool isShown) const { ListView_SetCheckState(Kinds(), static_cast<UINT>(kind), isShown); }
  HWND Kinds() const { return GetDlgItem(dialog_, IDC_KINDS); }

  // Whether something was stored.
  bool End(int button) {
    Press(dialog_, button);
    return Result() != 0;
  }

 private:
  HWND dialog_;
};

class OccasionsSettingsTest : public OccasionsTest {
 protected:
  std::string Stored() const { return home_.Bytes("occasions.ini"); }
};

TEST_F(OccasionsSettingsTest, WithoutAFileTheUsualCustomsAreShownAndNothingIsStored) {
  SettingsRun run;
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LAND), 0);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_NIGHTFALL_OF_AV), 0);
  for (const int combo : {IDC_DAWN, IDC_NIGHTFALL, IDC_CHAMETZ, IDC_CHANUKAH, IDC_SELICHOT}) {
    EXPECT_GE(ChosenIn(run.Dialog(), combo), 0) << combo;
  }
  for (int kind = 0; kind < kKinds; ++kind) EXPECT_TRUE(run.IsShown(kind)) << kind;
  EXPECT_FALSE(run.IsEnabled(IDC_NIGHTFALL_MINUTES));
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(run.Dialog(), IDC_LAND)));
  EXPECT_FALSE(run.End(IDOK));
  EXPECT_EQ(Stored(), "");
}

TEST_F(OccasionsSettingsTest, EveryCustomComesBackAndOnlyWhatWasChangedIsWritten) {
  {
    SettingsRun run;
    Choose(run.Dialog(), IDC_LAND, 2);
    Choose(run.Dialog(), IDC_DAWN, 1);
    Choose(run.Dialog(), IDC_NIGHTFALL, run.LastOf(IDC_NIGHTFALL));
    EXPECT_TRUE(run.IsEnabled(IDC_NIGHTFALL_MINUTES));
    SetControlText(run.Dialog(), IDC_NIGHTFALL_MINUTES, L"27");
    Choose(run.Dialog(), IDC_NIGHTFALL_OF_AV, 2);
    Choose(run.Dialog(), IDC_CHAMETZ, 1);
    Choose(run.Dialog(), IDC_CHANUKAH, 3);
    SetControlText(run.Dialog(), IDC_CHANUKAH_MINUTES, L"20");
    Choose(run.Dialog(), IDC_LEVANA_FROM, 1);
    Choose(run.Dialog(), IDC_LEVANA_UNTIL, 1);
    run.ShowKind(kOmer, false);
    EXPECT_TRUE(run.End(IDOK));
  }
  for (const char* const line : {"Land=Israel", "Nightfall=minutes-27", "Chanukah=Minutes", "ChanukahMinutes=20",
                                 "KiddushLevanaFrom=7", "KiddushLevanaUntil=15", "Hidden=omer"}) {
    EXPECT_THAT(Stored(), HasSubstr(line));
  }
  EXPECT_THAT(Stored(), Not(HasSubstr("Selichot")));
  WaitUntilSeen();
  SettingsRun run;
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LAND), 2);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_DAWN), 1);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_NIGHTFALL), run.LastOf(IDC_NIGHTFALL));
  EXPECT_EQ(ControlText(run.Dialog(), IDC_NIGHTFALL_MINUTES), L"27");
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_NIGHTFALL_OF_AV), 2);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_CHAMETZ), 1);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_CHANUKAH), 3);
  EXPECT_EQ(ControlText(run.Dialog(), IDC_CHANUKAH_MINUTES), L"20");
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LEVANA_FROM), 1);
  EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LEVANA_UNTIL), 1);
  EXPECT_FALSE(run.IsShown(kOmer));
  EXPECT_FALSE(run.End(IDOK)) << "nothing was changed";
}

TEST_F(OccasionsSettingsTest, WhatAnotherCopyStoredMeanwhileStays) {
  SettingsRun run;
  home_.Put("occasions.ini", "[Occasions]\r\nLand=Israel\r\n");
  Choose(run.Dialog(), IDC_SELICHOT, 1);
  EXPECT_TRUE(run.End(IDOK));
  EXPECT_THAT(Stored(), HasSubstr("Land=Israel"));
  EXPECT_THAT(Stored(), HasSubstr("Selichot=Sephardi"));
}

TEST_F(OccasionsSettingsTest, CancelStoresNothing) {
  SettingsRun run;
  Choose(run.Dialog(), IDC_LAND, 2);
  EXPECT_FALSE(run.End(IDCANCEL));
  EXPECT_EQ(Stored(), "");
}

TEST_F(OccasionsSettingsTest, UsualBringsTheDefaultsBack) {
  home_.Put("occasions.ini",
            "[Occasions]\r\nLand=Israel\r\nNightfallOfAv=minutes-30\r\nHidden=omer,fast\r\nChanukah=Sunset\r\n");
  {
    SettingsRun run;
    EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LAND), 2);
    EXPECT_EQ(ControlText(run.Dialog(), IDC_NIGHTFALL_OF_AV_MINUTES), L"30");
    EXPECT_FALSE(run.IsShown(kOmer));
    SendMessageW(run.Dialog(), WM_COMMAND, IDC_USUAL, 0);
    EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LAND), 0);
    EXPECT_TRUE(run.IsShown(kOmer));
    EXPECT_FALSE(run.IsEnabled(IDC_NIGHTFALL_OF_AV_MINUTES));
    EXPECT_TRUE(run.End(IDOK));
  }
  EXPECT_THAT(Stored(), HasSubstr("Land=AsReadings"));
  EXPECT_THAT(Stored(), HasSubstr("NightfallOfAv=AsOthers"));
  EXPECT_THAT(Stored(), HasSubstr("Hidden=\r\n"));
}

TEST_F(OccasionsSettingsTest, MinutesThatAreNoneAreToldAndTheFieldHasTheFocus) {
  SettingsRun run;
  for (const auto& [combo, field] : {std::pair(IDC_NIGHTFALL, IDC_NIGHTFALL_MINUTES),
                                     {IDC_NIGHTFALL_OF_AV, IDC_NIGHTFALL_OF_AV_MINUTES},
                                     {IDC_CHANUKAH, IDC_CHANUKAH_MINUTES}}) {
    Choose(run.Dialog(), combo, run.LastOf(combo));
    for (const wchar_t* const typed : {L"", L"181"}) {
      SetControlText(run.Dialog(), field, typed);
      Press(run.Dialog(), IDOK);
      EXPECT_THAT(run.Answer(L"Error", run.Dialog(), IDI_HAND, IDOK), HasSubstr(L"from 0 to 180"));
      EXPECT_TRUE(run.WaitForFocus(GetDlgItem(run.Dialog(), field)));
    }
    Choose(run.Dialog(), combo, 0);
  }
  run.End(IDCANCEL);
  EXPECT_EQ(Stored(), "");
}

TEST_F(OccasionsSettingsTest, AFileThatCannotBeWrittenIsNamedAndTheDialogStays) {
  home_.Put("occasions.ini", "[Occasions]\r\nLand=Israel\r\n");
  const std::wstring file = home_.Path("occasions.ini").wstring();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  SettingsRun run;
  Choose(run.Dialog(), IDC_LAND, 1);
  Press(run.Dialog(), IDOK);
  EXPECT_THAT(run.Answer(L"Error", run.Dialog(), IDI_HAND, IDOK), HasSubstr(L"occasions.ini"));
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_TRUE(run.End(IDOK));
  EXPECT_THAT(Stored(), HasSubstr("Land=Diaspora"));
}

TEST_F(OccasionsSettingsTest, AFileThatCannotBeReadIsNamedAndTheDialogDoesNotOpen) {
  home_.Put("occasions.ini", "[Occasions]\r\nLand=Israel\r\n");
  HeldFile held(home_.Path("occasions.ini"));
  DialogDriver driver([](HWND owner) { return OccasionsDoSettingsDialog(owner); });
  EXPECT_THAT(driver.Answer(L"Times / Readings", driver.Owner(), IDI_WARNING, IDCANCEL), HasSubstr(L"occasions.ini"));
  EXPECT_EQ(driver.Result(), 0);
}

TEST_F(OccasionsSettingsTest, TheLandOfTheReadingsIsSaid) {
  home_.Put("lections.ini", "[Readings]\r\nLand=Israel\r\n");
  SettingsRun run;
  EXPECT_EQ(ControlText(run.Dialog(), IDC_LAND), L"As for the readings (now: Israel)");
  run.End(IDCANCEL);
}

TEST_F(OccasionsSettingsTest, TheLandOfTheReadingsIsSaidWhateverLandIsChosenForOccasions) {
  struct Case {
    const char* ofOccasions;
    const char* ofReadings;
    const wchar_t* said;
  };
  for (const Case& one : {Case{"Israel", "Diaspora", L"As for the readings (now: diaspora)"},
                          Case{"Diaspora", "Israel", L"As for the readings (now: Israel)"}}) {
    home_.Put("occasions.ini", "[Occasions]\r\nLand=" + std::string(one.ofOccasions) + "\r\n");
    home_.Put("lections.ini", "[Readings]\r\nLand=" + std::string(one.ofReadings) + "\r\n");
    WaitUntilSeen();
    SettingsRun run;
    EXPECT_EQ(ChosenIn(run.Dialog(), IDC_LAND), one.ofOccasions == std::string("Israel") ? 2 : 1);
    SendDlgItemMessageW(run.Dialog(), IDC_LAND, CB_SETCURSEL, 0, 0);
    EXPECT_EQ(ControlText(run.Dialog(), IDC_LAND), one.said);
    run.End(IDCANCEL);
  }
}

TEST_F(OccasionsSettingsTest, SpaceTurnsTheKindThatHasTheFocus) {
  SettingsRun run;
  SendMessageW(run.Dialog(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(run.Kinds()), TRUE);
  ASSERT_TRUE(run.WaitForFocus(run.Kinds()));
  PressKey(run.Kinds(), VK_DOWN);
  PressKey(run.Kinds(), VK_SPACE);
  EXPECT_TRUE(Eventually([&] { return !run.IsShown(1); }));
  EXPECT_TRUE(run.IsShown(0));
  EXPECT_TRUE(run.End(IDOK));
  EXPECT_THAT(Stored(), HasSubstr("Hidden=yom-tov"));
}

}  // namespace
