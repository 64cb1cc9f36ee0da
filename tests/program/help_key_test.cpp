// Which page of the help the help key opens, and which window it is for.
#include "app/active_document.h"
#include "companion/dialog_help.h"
#include "publishing/progress_box.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"
#include "win/dialog.h"

using testing::ElementsAre;

namespace {

// What the system sends to the window with the focus when the key is pressed.
void PressHelpKeyIn(HWND window) {
  HELPINFO key{};
  key.cbSize = sizeof key;
  key.iContextType = HELPINFO_WINDOW;
  key.hItemHandle = window;
  SendMessageA(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&key));
}

class HelpKeyTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    OpenFrame();
    document_ = ActiveDocument();
    CallLog().clear();
  }

  // The one topic that a key press in the window asks for, on behalf of owner.
  static void ExpectTopic(HWND window, HWND owner, const std::string& topic) {
    CallLog().clear();
    PressHelpKeyIn(window);
    EXPECT_THAT(CallsWith("help"), ElementsAre("help '" + topic + "' owner yes"));
    EXPECT_EQ(Libraries().helpOwner, owner) << topic;
  }
  void ExpectTopicOfDialog(const std::function<void()>& open, const std::string& topic) {
    WithDialog(open, [&](HWND dialog) {
      ExpectTopic(GetWindow(dialog, GW_CHILD), dialog, topic);
      EXPECT_TRUE(IsWindowEnabled(dialog));
      EndDialog(dialog, 0);
    });
  }

  HWND document_ = nullptr;
};

LRESULT HandleAny(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

TEST_F(HelpKeyTest, EachViewHasItsPage) {
  ExpectTopic(GetDlgItem(document_, IDC_LIST_PANE), frame_, "Shabbat times");
  SendMessageA(document_, WM_COMMAND, IDB_ZMANIM, 0);
  ExpectTopic(GetDlgItem(GetDlgItem(document_, IDC_ZMANIM_PANE), IDC_ZMANIM_TABLE), frame_, "Zmanim");
  SendMessageA(document_, WM_COMMAND, IDB_READINGS, 0);
  ExpectTopic(GetDlgItem(GetDlgItem(document_, IDC_READINGS_PANE), IDC_READINGS_LIST_PANE), frame_, "Readings");
  ExpectTopic(frame_, frame_, "Readings");
}

TEST_F(HelpKeyTest, WithoutADocumentTheGeneralPageOpens) {
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  ExpectTopic(frame_, frame_, "Start");
}

// A menu's handle is no window's.
TEST_F(HelpKeyTest, InAMenuItIsTheViewsPage) {
  HELPINFO key{};
  key.cbSize = sizeof key;
  key.iContextType = HELPINFO_MENUITEM;
  key.hItemHandle = GetMenu(frame_);
  SendMessageA(frame_, WM_HELP, 0, reinterpret_cast<LPARAM>(&key));
  EXPECT_THAT(CallsWith("help"), ElementsAre("help 'Shabbat times' owner yes"));
  EXPECT_EQ(Libraries().helpOwner, frame_);
}

TEST_F(HelpKeyTest, EachDialogOfTheProgramHasItsPage) {
  const std::pair<const char*, const char*> pages[] = {{"SHABTIMEDLG", "Shabbat times"},
                                                       {"SELECTRANGEDLG", "Start"},
                                                       {"SELECTDATE", "Shabbat times"},
                                                       {"ABOUTDLG", "Start"},
                                                       {"EXPORTRTFACTION", "Exports and printing"},
                                                       {"SELECTLOCDLG", "Places"},
                                                       {"EDITLOC", "Places"},
                                                       {"EXPNEWZMANIM", "Exports and printing"},
                                                       {"EXPNEWDATA", "Exports and printing"},
                                                       {"ABORTDLG", "Exports and printing"},
                                                       {"EDITZMANIMDLG", "Zmanim"},
                                                       {"SAVEDOCUMENT", "Documents"},
                                                       {"PRINTCALENDAR", "Documents"},
                                                       {"DAFYOMI", "Persons"}};
  for (const auto& [name, topic] : pages) {
    ExpectTopicOfDialog([&, name = name] { RunDialog<HandleAny>(frame_, name); }, topic);
  }
}

TEST_F(HelpKeyTest, ADialogOfADialogHasItsOwn) {
  WithDialog([&] { RunDialog<HandleAny>(frame_, "SHABTIMEDLG"); },
             [&](HWND dialog) {
               ExpectTopicOfDialog([&] { RunDialog<HandleAny>(dialog, "EDITLOC"); }, "Places");
               EndDialog(dialog, 0);
             });
}

TEST_F(HelpKeyTest, ABoxOfProgressHasThatOfItsOwner) {
  WithDialog([&] { RunDialog<HandleAny>(frame_, "SAVEDOCUMENT"); },
             [](HWND dialog) {
               {
                 const publishing::ProgressBox box(dialog, L"Saving");
                 const HWND window = GetLastActivePopup(dialog);
                 EXPECT_EQ(TextOf(window), "Saving");
                 ExpectTopic(GetDlgItem(window, IDCANCEL), window, "Documents");
               }
               EndDialog(dialog, 0);
             });
}

// The libraries' dialogs as the frame sees them: windows of its own with a number.
TEST_F(HelpKeyTest, EachDialogOfALibraryHasItsPage) {
  const std::pair<DWORD, const char*> pages[] = {{HELPID_CANDLES, "Shabbat times"},
                                                 {HELPID_CANDLES_ENTRY, "Shabbat times"},
                                                 {HELPID_HOURS_SELECTION, "Zmanim"},
                                                 {HELPID_HOURS_OWN, "Zmanim"},
                                                 {HELPID_LECTIONS_CONFIGURE, "Readings"},
                                                 {HELPID_LECTIONS_LANGUAGE, "Readings"},
                                                 {HELPID_OWNHOURS, "Zmanim"},
                                                 {HELPID_OWNHOURS_TIME, "Zmanim"},
                                                 {HELPID_STAMP_FORM, "Shabbat times"},
                                                 {HELPID_PLACEPICK, "Places"},
                                                 {HELPID_KINSHIP, "Persons"},
                                                 {HELPID_KINSHIP_ENTRY, "Persons"},
                                                 {HELPID_KINSHIP_EXPORT, "Persons"},
                                                 {HELPID_MAJORITY, "Persons"},
                                                 {HELPID_SOLAR_SUMMER_TIME, "Places"},
                                                 {HELPID_SAFEKEEP_RESTORE, "Settings"},
                                                 {HELPID_OCCASIONS, "Occasions"},
                                                 {HELPID_OCCASIONS_SETTINGS, "Occasions"},
                                                 {HELPID_OCCASIONS_SAVE, "Occasions"},
                                                 {4711, "Start"}};
  WithDialog([&] { RunDialog<HandleAny>(frame_, "ABOUTDLG"); },
             [&](HWND dialog) {
               for (const auto& [number, topic] : pages) {
                 SetWindowContextHelpId(dialog, number);
                 ExpectTopic(GetDlgItem(dialog, IDOK), dialog, topic);
               }
               EndDialog(dialog, 0);
             });
}
