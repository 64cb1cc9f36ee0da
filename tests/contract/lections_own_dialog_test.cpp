// How the dialog of the user's own texts of readings is worked.
#include <gmock/gmock.h>

#include "tests/contract/lections_own_driver.h"

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr char kOurs[] = "portion Lech Lecha | haftarah 1 | all | all | all | instead | Ours\r\n";

TEST_F(OwnReadingsDialogTest, OpensWithEveryReadingAndTheFieldForSearching) {
  OwnReadingsRun run;
  const int all = OwnReadingsRun::Count(run.Readings());
  EXPECT_GT(all, 61 + 385);  // the portions, alone and joined, the dates, and the occasions
  EXPECT_EQ(run.Text(IDC_OWN_COUNT), std::to_wstring(all) + L" readings");
  EXPECT_EQ(ListCell(run.Readings(), 0, 0), L"Bereshit");
  EXPECT_EQ(OwnReadingsRun::Selected(run.Readings()), 0);
  EXPECT_EQ(run.Text(IDC_OWN_TEXTS_LABEL), L"Your own texts of Bereshit:");
  EXPECT_THAT(run.Text(IDC_OWN_PREVIEW), HasSubstr(L"Bereshit: Genesis 1:1-6:8\r\n"));
  EXPECT_TRUE(run.WaitForFocus(run.Control(IDC_OWN_TYPED)));
  EXPECT_TRUE(run.IsEnabled(IDC_OWN_ADD));
  for (const int id : {IDC_OWN_CHANGE, IDC_OWN_RESTORE, IDC_OWN_UNDO, IDC_OWN_EXPORT, IDC_OWN_RESTORE_ALL}) {
    EXPECT_FALSE(run.IsEnabled(id)) << id;
  }
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_FALSE(IsFile());
}

TEST_F(OwnReadingsDialogTest, SearchAndKindNarrowTheReadings) {
  Put(kOurs);
  OwnReadingsRun run;
  const std::wstring all = std::to_wstring(OwnReadingsRun::Count(run.Readings())) + L" readings";
  run.ShowKind(kPortionsKind);
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 61);
  run.Type(L"MATOT-mas");
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 1);
  EXPECT_EQ(ListCell(run.Readings(), 0, 0), L"Matot-Masei");
  EXPECT_EQ(run.Text(IDC_OWN_COUNT), L"1 of " + all);
  run.Type(L"no such reading");
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 0);
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_ADD));
  EXPECT_EQ(run.Text(IDC_OWN_PREVIEW), L"");
  run.Type(L"");
  run.ShowKind(kDatesKind);
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 385);
  run.ShowKind(kWithOwnTextsKind);
  EXPECT_EQ(OwnReadingsRun::Count(run.Readings()), 1);
  EXPECT_EQ(ListCell(run.Readings(), 0, 4), L"1");
  run.ShowKind(kAllRow);
  EXPECT_EQ(run.Text(IDC_OWN_COUNT), all);
  EXPECT_EQ(ListCell(run.Readings(), OwnReadingsRun::Selected(run.Readings()), 0), L"Lech Lecha");
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(OwnReadingsDialogTest, AnEnglishNameIsFoundInEveryLanguage) {
  Set("4");
  OwnReadingsRun run;
  run.ShowKind(kPortionsKind);
  run.Type(L"lech lecha");
  EXPECT_EQ(ListCell(run.Readings(), 0, 0), L"\u05DC\u05DA \u05DC\u05DA");
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(OwnReadingsDialogTest, AnAddedTextIsReadOnceItIsAcceptedAndNotBefore) {
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"  Isaiah 54:1-10 ");
  ASSERT_EQ(OwnReadingsRun::Count(run.OwnTexts()), 1);
  EXPECT_THAT(run.OwnText(0), ElementsAre(L"Haftarah 1", L"all", L"instead", L"Isaiah 54:1-10"));
  EXPECT_EQ(ListCell(run.Readings(), 0, 3), L"Isaiah 54:1-10");
  EXPECT_EQ(ListCell(run.Readings(), 0, 4), L"1");
  EXPECT_THAT(run.Text(IDC_OWN_PREVIEW), HasSubstr(L"Haftarah: Isaiah 54:1-10\r\n"));
  EXPECT_FALSE(IsFile());
  EXPECT_EQ(LechLecha(), kLechLechasOwn);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(LechLecha(), "Isaiah 54:1-10");
  EXPECT_THAT(Stored(), EndsWith("portion Lech Lecha | haftarah 1 | all | all | all | instead | Isaiah 54:1-10\r\n"));
}

TEST_F(OwnReadingsDialogTest, CancelAsksBeforeChangesAreDiscarded) {
  Put(kOurs);
  OwnReadingsRun run;
  run.AddHaftarah(L"Vayera", L"Another");
  Press(run.Window(), IDCANCEL);
  EXPECT_EQ(run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDNO), L"Discard the changes?");
  EXPECT_EQ(OwnReadingsRun::Count(run.OwnTexts()), 1);
  EXPECT_EQ(run.Discard(), 0);
  EXPECT_EQ(Stored(), kOurs);
}

TEST_F(OwnReadingsDialogTest, OkWithoutAChangeAnswersNothingAndWritesNothing) {
  Put(kOurs);
  OwnReadingsRun run;
  run.AddHaftarah(L"Vayera", L"Another");
  run.Click(IDC_OWN_UNDO);
  run.ShowPortion(L"Lech Lecha");
  run.CloseText(run.OpenText(IDC_OWN_CHANGE, L"Lech Lecha"), IDOK);
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), kOurs);
}

TEST_F(OwnReadingsDialogTest, AChangedTextKeepsItsPlaceOrMovesToAnother) {
  Put(kOurs);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_CHANGE, L"Lech Lecha");
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"Ours");
  EXPECT_EQ(ControlText(dialog, IDC_OWN_PROGRAMS_TEXT), L"Isaiah 40:27-41:16");
  EXPECT_TRUE(run.WaitForFocus(GetDlgItem(dialog, IDC_OWN_TEXT)));
  ChooseRow(dialog, IDC_OWN_LISTING, kSephardiRow);
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"Ours") << "the text that is being changed is not lost on the way";
  SendDlgItemMessageW(dialog, IDC_OWN_AFTER, BM_CLICK, 0, 0);
  SetControlText(dialog, IDC_OWN_TEXT, L"(theirs)");
  run.CloseText(dialog, IDOK);
  ASSERT_EQ(OwnReadingsRun::Count(run.OwnTexts()), 1);
  EXPECT_THAT(run.OwnText(0), ElementsAre(L"Haftarah 1", L"Sephardi", L"after", L"(theirs)"));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "portion Lech Lecha | haftarah 1 | all | Sephardi | all | after | (theirs)\r\n");
}

TEST_F(OwnReadingsDialogTest, WhatIsAtAPlaceAlreadyIsReplacedOnlyAfterAQuestion) {
  Put(kOurs);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Lech Lecha");
  SetControlText(dialog, IDC_OWN_TEXT, L"Other");
  ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
  Press(dialog, IDOK);
  EXPECT_THAT(run.Answer(L"Own Text: Lech Lecha", dialog, IDI_QUESTION, IDNO), HasSubstr(L"\n\nOurs\n\n"));
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"Other");
  Press(dialog, IDOK);
  run.Answer(L"Own Text: Lech Lecha", dialog, IDI_QUESTION, IDYES);
  EXPECT_TRUE(run.WaitUntilGone(dialog));
  EXPECT_EQ(run.OwnText(0).back(), L"Other");
  EXPECT_EQ(run.Discard(), 0);
}

TEST_F(OwnReadingsDialogTest, ATextThatMovesToAnothersPlaceAsksToo) {
  constexpr char kSephardi[] = "portion Lech Lecha | haftarah 1 | all | Sephardi | all | instead | Theirs\r\n";
  Put(std::string(kOurs) + kSephardi);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_CHANGE, L"Lech Lecha");
  ChooseRow(dialog, IDC_OWN_LISTING, kSephardiRow);
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"Ours");
  Press(dialog, IDOK);
  EXPECT_THAT(run.Answer(L"Own Text: Lech Lecha", dialog, IDI_QUESTION, IDNO), HasSubstr(L"\n\nTheirs\n\n"));
  run.CloseText(dialog, IDCANCEL);
  EXPECT_EQ(OwnReadingsRun::Count(run.OwnTexts()), 2);
  EXPECT_EQ(run.End(IDOK), 0);
}

TEST_F(OwnReadingsDialogTest, ANewTextAtAPlaceThatHasOneBeginsWithIt) {
  Put(kOurs);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Lech Lecha");
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"");
  ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
  EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), L"Ours");
  run.CloseText(dialog, IDOK);
  EXPECT_EQ(run.End(IDOK), 0);
}

TEST_F(OwnReadingsDialogTest, DeleteAndRestoreGiveTheProgramsTextBackAndUndoTheOwn) {
  Put(kOurs);
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  SendMessageW(run.OwnTexts(), WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(OwnReadingsRun::Count(run.OwnTexts()), 0);
  EXPECT_EQ(ListCell(run.Readings(), 0, 3), L"Isaiah 40:27-41:16");
  SendMessageW(run.Readings(), WM_KEYDOWN, VK_DELETE, 1);  // in the list of readings it means nothing
  run.Type(L"no such reading");
  run.Click(IDC_OWN_UNDO);
  EXPECT_EQ(run.Text(IDC_OWN_TYPED), L"") << "what comes back is shown";
  EXPECT_THAT(run.OwnText(0), ElementsAre(L"Haftarah 1", L"all", L"instead", L"Ours"));
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_UNDO));
  run.Click(IDC_OWN_RESTORE);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "");
  EXPECT_EQ(LechLecha(), kLechLechasOwn);
}

TEST_F(OwnReadingsDialogTest, AllAreGivenUpAfterAQuestionAndUndoBringsThemBack) {
  Put(std::string("# mine\r\n") + kOurs + "date 7 Adar | torah 1 | all | all | all | instead | Siyum\r\n");
  OwnReadingsRun run;
  Press(run.Window(), IDC_OWN_RESTORE_ALL);
  EXPECT_THAT(run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDNO), HasSubstr(L"(2 texts)"));
  EXPECT_FALSE(run.IsEnabled(IDC_OWN_UNDO));
  Press(run.Window(), IDC_OWN_RESTORE_ALL);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(Eventually([&] { return !run.IsEnabled(IDC_OWN_RESTORE_ALL); }));
  run.Click(IDC_OWN_UNDO);
  EXPECT_TRUE(run.IsEnabled(IDC_OWN_RESTORE_ALL));
  Press(run.Window(), IDC_OWN_RESTORE_ALL);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDYES);
  EXPECT_TRUE(Eventually([&] { return !run.IsEnabled(IDC_OWN_RESTORE_ALL); }));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(Stored(), "# mine\r\n");
}

// 28 November 2026 is 18 Kislev 5787 (any luach).
TEST_F(OwnReadingsDialogTest, ASingleDateHasTextsOfItsOwn) {
  OwnReadingsRun run;
  Press(run.Window(), IDC_OWN_SINGLE_DATE);
  const HWND date = run.WaitFor(L"Single Date");
  SetControlText(date, IDC_OWN_GREGORIAN_DAY, L"31");
  ChooseRow(date, IDC_OWN_GREGORIAN_MONTH, 10);
  SetControlText(date, IDC_OWN_GREGORIAN_YEAR, L"2026");
  Press(date, IDOK);
  EXPECT_THAT(run.Answer(L"Error", date, IDI_HAND, IDOK), HasSubstr(L"31 November"));
  SetControlText(date, IDC_OWN_GREGORIAN_DAY, L"28");
  EXPECT_EQ(ControlText(date, IDC_OWN_JEWISH_DAY), L"18");
  EXPECT_EQ(ControlText(date, IDC_OWN_JEWISH_YEAR), L"5787");
  run.CloseText(date, IDOK);
  EXPECT_EQ(ListCell(run.Readings(), OwnReadingsRun::Selected(run.Readings()), 0), L"18 Kislev 5787");
  EXPECT_TRUE(run.WaitForFocus(run.Readings()));
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"18 Kislev 5787");
  ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
  ChooseRow(dialog, IDC_OWN_LISTING, kAllRow);
  SetControlText(dialog, IDC_OWN_TEXT, L"Once");
  run.CloseText(dialog, IDOK);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_THAT(Stored(), EndsWith("date 18 Kislev 5787 | haftarah 1 | all | all | all | instead | Once\r\n"));
  EXPECT_EQ(Haftarah(18, 9, 5787), "Once");
  EXPECT_NE(Haftarah(18, 9, 5788), "Once");
}

TEST_F(OwnReadingsDialogTest, ASingleDateThatIsCancelledIsNone) {
  OwnReadingsRun run;
  const std::wstring count = run.Text(IDC_OWN_COUNT);
  Press(run.Window(), IDC_OWN_SINGLE_DATE);
  run.CloseText(run.WaitFor(L"Single Date"), IDCANCEL);
  EXPECT_EQ(run.Text(IDC_OWN_COUNT), count);
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

}  // namespace
