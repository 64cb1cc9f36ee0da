// The dialog in which the user writes a text of a reading: what it takes, refuses and tells. And both dialogs' keys.
#include <gmock/gmock.h>

#include <atomic>
#include <set>

#include "companion/dialog_help.h"
#include "tests/contract/lections_own_driver.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class OwnTextDialogTest : public OwnReadingsDialogTest {
 protected:
  // Accepts a text that is refused: what is told. The dialog and the text stay.
  static std::wstring Refusal(const OwnReadingsRun& run, HWND dialog, const std::wstring& text) {
    SetControlText(dialog, IDC_OWN_TEXT, text);
    Press(dialog, IDOK);
    const std::wstring told = run.Answer(L"Error", dialog, IDI_HAND, IDOK);
    EXPECT_TRUE(run.WaitForFocus(GetDlgItem(dialog, IDC_OWN_TEXT)));
    EXPECT_EQ(ControlText(dialog, IDC_OWN_TEXT), text);
    return told;
  }
  // The dialog of a new text for Lech Lecha's first haftarah, for all.
  static HWND OpenHaftarah(const OwnReadingsRun& run) {
    run.ShowPortion(L"Lech Lecha");
    const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Lech Lecha");
    ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
    return dialog;
  }
};

TEST_F(OwnTextDialogTest, MarksThatWouldDamageFilesAreRefused) {
  OwnReadingsRun run;
  const HWND dialog = OpenHaftarah(run);
  for (const wchar_t* text : {L"a{b", L"a}b", L"a\\b"}) {
    EXPECT_THAT(Refusal(run, dialog, text), HasSubstr(L"Please leave them out.")) << text;
  }
  run.CloseText(dialog, IDCANCEL);
  EXPECT_EQ(run.End(IDOK), 0);
  EXPECT_FALSE(IsFile());
}

TEST_F(OwnTextDialogTest, TextsOf300CharactersAreRefusedAndOf255Taken) {
  OwnReadingsRun run;
  const HWND dialog = OpenHaftarah(run);
  EXPECT_THAT(Refusal(run, dialog, std::wstring(300, L'a')), HasSubstr(L"300 characters"));
  SetControlText(dialog, IDC_OWN_TEXT, std::wstring(255, L'a'));
  EXPECT_EQ(ControlText(dialog, IDC_OWN_REMARK), L"255 of 255 characters. The export as text shows the first 95.");
  run.CloseText(dialog, IDOK);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(LechLecha(), std::string(255, 'a'));
}

TEST_F(OwnTextDialogTest, ALetterIsRefusedForALanguageWithoutItAndToldForAll) {
  OwnReadingsRun run;
  const HWND dialog = OpenHaftarah(run);
  ChooseRow(dialog, IDC_OWN_LANGUAGE, kEnglishRow);
  EXPECT_THAT(Refusal(run, dialog, L"\u05E0\u05D7"), HasSubstr(L"English readings cannot show \"\u05E0\""));
  ChooseRow(dialog, IDC_OWN_LANGUAGE, kAllRow);
  EXPECT_THAT(ControlText(dialog, IDC_OWN_REMARK), HasSubstr(L"cannot show all of its letters"));
  EXPECT_THAT(ControlText(dialog, IDC_OWN_NEXT_DATES), HasSubstr(L"Isaiah 40:27-41:16"));
  run.CloseText(dialog, IDOK);
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(LechLecha(), kLechLechasOwn);
  Set("4");
  EXPECT_EQ(LechLecha(), "\xF0\xE7");  // in windows-1255
}

TEST_F(OwnTextDialogTest, ADaysFirstTextCannotBeEmptied) {
  OwnReadingsRun run;
  run.ShowPortion(L"Lech Lecha");
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Lech Lecha");
  EXPECT_THAT(Refusal(run, dialog, L"  "), HasSubstr(L"Please enter a text"));
  ChooseRow(dialog, IDC_OWN_SLOT, kHaftarah1Row);
  EXPECT_EQ(ControlText(dialog, IDC_OWN_REMARK), L"Nothing will stand there.");
  run.CloseText(dialog, IDOK);
  EXPECT_THAT(run.OwnText(0), ElementsAre(L"Haftarah 1", L"all", L"instead", L""));
  EXPECT_NE(run.End(IDOK), 0);
  EXPECT_EQ(LechLecha(), "");
}

TEST_F(OwnTextDialogTest, WhatWillStandOnTheNextDatesIsShownAsItIsTyped) {
  OwnReadingsRun run;
  const HWND dialog = OpenHaftarah(run);
  SetControlText(dialog, IDC_OWN_TEXT, L"Typed");
  EXPECT_THAT(ControlText(dialog, IDC_OWN_NEXT_DATES), HasSubstr(L"Haftarah: Typed\r\n"));
  SendDlgItemMessageW(dialog, IDC_OWN_AFTER, BM_CLICK, 0, 0);
  EXPECT_THAT(ControlText(dialog, IDC_OWN_NEXT_DATES), HasSubstr(L"Haftarah: Isaiah 40:27-41:16 Typed\r\n"));
  run.CloseText(dialog, IDCANCEL);
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

std::vector<int> TabOrder(HWND dialog) {
  std::vector<int> order;
  const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
  HWND control = first;
  do {
    order.push_back(GetDlgCtrlID(control));
    control = GetNextDlgTabItem(dialog, control, FALSE);
  } while (control != first && order.size() < 30);
  return order;
}

// The number of letters that are keys with Alt; each is of one control.
size_t AccessKeys(HWND dialog) {
  std::set<wchar_t> letters;
  for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    const std::wstring text = WindowText(child);
    const size_t mark = text.find(L'&');
    if (mark == std::wstring::npos || mark + 1 == text.size()) continue;
    EXPECT_TRUE(letters.insert(static_cast<wchar_t>(towlower(text[mark + 1]))).second) << GetDlgCtrlID(child);
  }
  return letters.size();
}

TEST_F(OwnTextDialogTest, TabGoesFromTopToBottomAndEveryAccessKeyIsOfOneControl) {
  Put("portion Bereshit | haftarah 1 | all | all | all | instead | Ours\r\n");
  OwnReadingsRun run;
  EXPECT_THAT(TabOrder(run.Window()),
              ElementsAre(IDC_OWN_TYPED, IDC_OWN_KINDS, IDC_OWN_READINGS, IDC_OWN_TEXTS, IDC_OWN_ADD, IDC_OWN_CHANGE,
                          IDC_OWN_RESTORE, IDC_OWN_PREVIEW, IDC_OWN_SINGLE_DATE, IDC_OWN_IMPORT, IDC_OWN_EXPORT,
                          IDC_OWN_RESTORE_ALL, IDOK, IDCANCEL));  // without Undo, which is disabled
  EXPECT_EQ(AccessKeys(run.Window()), 12u);
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Bereshit");
  EXPECT_THAT(TabOrder(dialog),
              ElementsAre(IDC_OWN_SLOT, IDC_OWN_LAND, IDC_OWN_LISTING, IDC_OWN_LANGUAGE, IDC_OWN_PROGRAMS_TEXT,
                          IDC_OWN_TEXT, IDC_OWN_INSTEAD, IDC_OWN_NEXT_DATES, IDOK, IDCANCEL));
  EXPECT_EQ(AccessKeys(dialog), 9u);
  run.CloseText(dialog, IDCANCEL);
  Press(run.Window(), IDC_OWN_SINGLE_DATE);
  const HWND date = run.WaitFor(L"Single Date");
  EXPECT_EQ(AccessKeys(date), 3u);
  run.CloseText(date, IDCANCEL);
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(OwnTextDialogTest, TabLeavesEveryControl) {
  OwnReadingsRun run;
  ASSERT_TRUE(run.WaitForFocus(run.Control(IDC_OWN_TYPED)));
  const std::vector<int> order = TabOrder(run.Window());
  for (size_t i = 0; i < order.size(); ++i) {
    PressKey(run.Focus(), VK_TAB);
    EXPECT_TRUE(run.WaitForFocus(run.Control(order[(i + 1) % order.size()]))) << order[i];
  }
  EXPECT_EQ(run.End(IDCANCEL), 0);
}

TEST_F(OwnTextDialogTest, EnterAcceptsAndEscapeCancels) {
  OwnReadingsRun run;
  run.AddHaftarah(L"Lech Lecha", L"Ours");
  const HWND dialog = run.OpenText(IDC_OWN_ADD, L"Lech Lecha");
  PressKey(GetDlgItem(dialog, IDC_OWN_TEXT), VK_ESCAPE);
  EXPECT_TRUE(run.WaitUntilGone(dialog));
  const HWND again = run.OpenText(IDC_OWN_CHANGE, L"Lech Lecha");
  SetControlText(again, IDC_OWN_TEXT, L"Changed");
  PressKey(GetDlgItem(again, IDC_OWN_TEXT), VK_RETURN);
  EXPECT_TRUE(run.WaitUntilGone(again));
  PressKey(run.Readings(), VK_ESCAPE);
  run.Answer(kOwnTitle, run.Window(), IDI_QUESTION, IDNO);
  PressKey(run.Control(IDC_OWN_TYPED), VK_RETURN);
  EXPECT_NE(run.Result(), 0);
  EXPECT_EQ(LechLecha(), "Changed");
}

TEST_F(OwnTextDialogTest, F1IsTheOwners) {
  static std::atomic<int> helps;
  helps = 0;
  DialogDriver driver([](HWND owner) {
    const auto proc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
      if (message == WM_HELP) ++helps;
      return DefSubclassProc(window, message, wParam, lParam);
    };
    SetWindowSubclass(owner, proc, 0, 0);
    return LectionsDoCustomReadingsDialog(owner);
  });
  HELPINFO help = {};
  help.cbSize = sizeof help;
  const HWND window = driver.WaitFor(kOwnTitle);
  EXPECT_EQ(GetWindowContextHelpId(window), static_cast<DWORD>(HELPID_LECTIONS_OWN));
  SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  EXPECT_EQ(helps, 1);
  for (const auto& [button, caption] :
       {std::pair(IDC_OWN_ADD, L"Own Text: Bereshit"), std::pair(IDC_OWN_SINGLE_DATE, L"Single Date")}) {
    Press(window, button);
    const HWND dialog = driver.WaitFor(caption);
    EXPECT_EQ(GetWindowContextHelpId(dialog), static_cast<DWORD>(HELPID_LECTIONS_OWN_TEXT));
    SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    Press(dialog, IDCANCEL);
    EXPECT_TRUE(driver.WaitUntilGone(dialog));
  }
  EXPECT_EQ(helps, 3);
  Press(window, IDCANCEL);
  EXPECT_EQ(driver.Result(), 0);
}

TEST_F(OwnTextDialogTest, TheDialogNeedsNoOwnerAndDisablesOne) {
  {
    OwnReadingsRun run;
    EXPECT_FALSE(IsWindowEnabled(run.Owner()));
    EXPECT_EQ(GetWindow(run.Window(), GW_OWNER), run.Owner());
    EXPECT_EQ(run.End(IDCANCEL), 0);
  }
  DialogDriver driver([](HWND) { return LectionsDoCustomReadingsDialog(nullptr); });
  Press(driver.WaitFor(kOwnTitle), IDCANCEL);
  EXPECT_EQ(driver.Result(), 0);
}

// One thread opens and closes them, as the program does.
TEST_F(OwnTextDialogTest, FiftyOpeningsLeaveNothingBehind) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) LectionsDoCustomReadingsDialog(owner);
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND window = driver.WaitFor(kOwnTitle);
      for (const auto& [button, caption] :
           {std::pair(IDC_OWN_ADD, L"Own Text: Bereshit"), std::pair(IDC_OWN_SINGLE_DATE, L"Single Date")}) {
        Press(window, button);
        const HWND dialog = driver.WaitFor(caption);
        Press(dialog, IDCANCEL);
        if (!driver.WaitUntilGone(dialog)) return;
      }
      Press(window, IDCANCEL);
      if (!driver.WaitUntilGone(window)) return;
    }
    EXPECT_EQ(driver.Result(), times);
  };
  Put("portion Bereshit | haftarah 1 | all | all | all | instead | Ours\r\n");
  openAndClose(5);
  const Resources before = ResourcesNow();
  openAndClose(50);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);
}

}  // namespace
