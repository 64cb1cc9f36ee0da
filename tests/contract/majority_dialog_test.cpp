// The dialog of bar and bat mitzvah, worked as a user would.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "companion/dialog_help.h"
#include "companion/majority.h"
#include "libraries/majority/majority_ids.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/held_file.h"
#include "tests/contract/settings_home.h"

using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

constexpr wchar_t kCaption[] = L"Bar and Bat Mitzvah";
constexpr wchar_t kSaveCaption[] = L"Save as iCalendar";
constexpr int kFileNameInSaveDialog = 0x47C;  // cmb13
constexpr MajorityDialogData kBoy = {2, 3, 2014, 0, 0};

// What a run of the dialog is given: there before its thread begins.
struct GivenData {
  MajorityDialogData data_ = {};
};

// A run of the dialog.
class MajorityRun : private GivenData, public DialogDriver {
 public:
  explicit MajorityRun(const MajorityDialogData& data, bool hasOwner = true)
      : GivenData{data},
        DialogDriver([this, hasOwner](HWND owner) {
          MajorityDoDialog(hasOwner ? owner : nullptr, &data_);
          return 0;
        }),
        window_(WaitFor(kCaption)) {}

  HWND Window() const { return window_; }
  HWND Field(int id) const { return GetDlgItem(window_, id); }
  std::wstring Text(int id) const { return ControlText(window_, id); }
  void Type(int id, const std::wstring& text) const { SetControlText(window_, id, text); }
  void Choose(int id, const wchar_t* month) const {
    SendMessageW(Field(id), CB_SELECTSTRING, ~WPARAM{0}, reinterpret_cast<LPARAM>(month));
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(Field(id)));
  }
  std::wstring Date(int day) const { return Text(day) + L" " + Text(day + 1) + L" " + Text(day + 2); }
  bool Shows(const std::wstring& text) const {
    return Eventually([&] { return Text(IDC_RESULT).find(text) != std::wstring::npos; });
  }
  bool IsEnabled(int id) const { return IsWindowEnabled(Field(id)) != FALSE; }
  std::wstring AnswerBox(const char* icon) const {
    return Answer(icon == IDI_HAND ? L"Error" : kCaption, window_, icon, IDOK);
  }

  // What the record holds after the dialog was closed.
  MajorityDialogData Close() {
    Press(window_, IDCANCEL);
    Result();
    return data_;
  }

 private:
  HWND window_;
};

class MajorityDialogTest : public testing::Test {
 protected:
  void SetUp() override { home_.Put("lections.ini", "[Readings]\r\nLand=Diaspora\r\nCustom=Ashkenazi\r\n"); }

  std::string Persons() const { return home_.Bytes("persons.txt"); }

  SettingsHome home_;
};

std::string BytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
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

bool operator==(const MajorityDialogData& a, const MajorityDialogData& b) {
  return a.day == b.day && a.month == b.month && a.year == b.year && a.afterSunset == b.afterSunset &&
         a.isGirl == b.isGirl;
}

}  // namespace

// The dates are Hebcal's (tests/core/majority_test.cpp), the portion that of printed calendars.
TEST_F(MajorityDialogTest, OpensWithTheRecordAndItsResult) {
  MajorityRun run(kBoy);
  EXPECT_EQ(run.Date(IDC_GREGORIAN_DAY), L"2 March 2014");
  EXPECT_EQ(run.Date(IDC_JEWISH_DAY), L"30 Adar I 5774");
  EXPECT_EQ(IsDlgButtonChecked(run.Window(), IDC_BOY), UINT{BST_CHECKED});
  EXPECT_TRUE(run.Shows(L"Bar mitzvah at 13: Tuesday, 9 March 2027 (30 Adar I 5787)"));
  EXPECT_TRUE(run.Shows(L"\r\nTorah: Pekudei: Exodus 38:21-40:38\r\n"));
  EXPECT_EQ(GetWindowContextHelpId(run.Window()), DWORD{HELPID_MAJORITY});
  EXPECT_EQ(GetWindow(run.Window(), GW_OWNER), run.Owner());
  EXPECT_FALSE(IsWindowEnabled(run.Owner()));
  EXPECT_TRUE(run.Close() == kBoy);
}

TEST_F(MajorityDialogTest, TypingInEitherCalendarShowsTheOtherAndTheResultAtOnce) {
  MajorityRun run(kBoy);
  run.Type(IDC_GREGORIAN_YEAR, L"2008");
  run.Choose(IDC_GREGORIAN_MONTH, L"June");
  run.Type(IDC_GREGORIAN_DAY, L"9");
  EXPECT_EQ(run.Date(IDC_JEWISH_DAY), L"6 Sivan 5768");
  Press(run.Window(), IDC_GIRL);
  SendMessageW(run.Field(IDC_GIRL), BM_CLICK, 0, 0);
  EXPECT_TRUE(run.Shows(L"Bat mitzvah at 12: Friday, 29 May 2020 (6 Sivan 5780)"));
  EXPECT_TRUE(run.Shows(L"Torah: Shavuot"));
  EXPECT_TRUE(run.Shows(L"This Shabbat has passed."));
  run.Type(IDC_JEWISH_DAY, L"7");
  EXPECT_EQ(run.Date(IDC_GREGORIAN_DAY), L"10 June 2008");
  EXPECT_TRUE(run.Shows(L"Jewish birthday: 7 Sivan 5768"));
  SendMessageW(run.Field(IDC_AFTER_SUNSET), BM_CLICK, 0, 0);
  EXPECT_TRUE(Eventually([&] { return run.Date(IDC_GREGORIAN_DAY) == L"9 June 2008"; }));
  const MajorityDialogData closed = run.Close();
  EXPECT_TRUE(closed == (MajorityDialogData{9, 6, 2008, 1, 1}));
}

TEST_F(MajorityDialogTest, WhileThereIsNoDateThereIsNoResultAndItsButtonsAreGrey) {
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, L"Moshe");
  EXPECT_TRUE(run.IsEnabled(IDC_TAKE_OVER));
  run.Type(IDC_GREGORIAN_DAY, L"32");
  EXPECT_EQ(run.Text(IDC_RESULT), L"");
  EXPECT_NE(run.Text(IDC_DATE_FAULT), L"");
  for (const int button : {IDC_TAKE_OVER, IDC_COPY, IDC_SAVE}) EXPECT_FALSE(run.IsEnabled(button)) << button;
  EXPECT_TRUE(run.Close() == kBoy) << "the date that stood there before";
}

TEST_F(MajorityDialogTest, TheRecordThatItWasClosedWithIsTheNextOne) {
  MajorityRun run(kBoy);
  run.Type(IDC_GREGORIAN_YEAR, L"2013");
  const MajorityDialogData closed = run.Close();
  EXPECT_EQ(closed.year, 2013u);
  MajorityDialogData next = {};
  MajorityInitDialogData(&next);
  EXPECT_TRUE(next == closed);

  MajorityRun again({31, 2, 2014, 0, 1});
  EXPECT_EQ(again.Date(IDC_GREGORIAN_DAY), L"2 March 2013") << "a date that does not exist counts as the last one";
  again.Close();
}

TEST_F(MajorityDialogTest, TakeOverAddsTheBirthdayOnce) {
  MajorityRun run(kBoy);
  EXPECT_FALSE(run.IsEnabled(IDC_TAKE_OVER)) << "without a name";
  run.Type(IDC_NAME, L"  \t");
  EXPECT_FALSE(run.IsEnabled(IDC_TAKE_OVER));
  run.Type(IDC_NAME, L" \u05DE\u05E9\u05D4 ben Avraham ");
  ASSERT_TRUE(run.IsEnabled(IDC_TAKE_OVER));
  EXPECT_EQ(LOWORD(SendMessageW(run.Window(), DM_GETDEFID, 0, 0)), IDC_TAKE_OVER);
  Press(run.Window(), IDC_TAKE_OVER);
  EXPECT_EQ(
      run.AnswerBox(IDI_ASTERISK),
      L"\u05DE\u05E9\u05D4 ben Avraham, born on 30 Adar I 5774, was added to the list of birthdays and yahrzeit.");
  const std::string line = "birthday|2014-03-02||\xD7\x9E\xD7\xA9\xD7\x94 ben Avraham||";
  EXPECT_THAT(Persons(), HasSubstr(line));
  EXPECT_TRUE(Eventually([&] { return !run.IsEnabled(IDC_TAKE_OVER); })) << "not twice the same";
  EXPECT_EQ(LOWORD(SendMessageW(run.Window(), DM_GETDEFID, 0, 0)), IDCANCEL);
  run.Close();

  const std::string stored = Persons();
  MajorityRun again(kBoy);
  again.Type(IDC_NAME, L"\u05DE\u05E9\u05D4 ben Avraham");
  Press(again.Window(), IDC_TAKE_OVER);
  EXPECT_THAT(again.AnswerBox(IDI_ASTERISK), HasSubstr(L"is in the list of birthdays and yahrzeit already"));
  EXPECT_EQ(Persons(), stored);
  again.Close();
}

TEST_F(MajorityDialogTest, AListThatCannotBeReadOrWrittenIsNamedAndKept) {
  home_.Put("persons.txt", "birthday|1990-01-01||Sara||\r\n");
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, L"Moshe");
  {
    const HeldFile held(home_.Path("persons.txt"));
    Press(run.Window(), IDC_TAKE_OVER);
    const std::wstring text = run.AnswerBox(IDI_HAND);
    EXPECT_THAT(text, HasSubstr(L"persons.txt"));
    EXPECT_THAT(text, HasSubstr(L"nothing was added"));
  }
  EXPECT_EQ(Persons(), "birthday|1990-01-01||Sara||\r\n");
  EXPECT_TRUE(run.IsEnabled(IDC_TAKE_OVER)) << "it can be tried again";
  SetFileAttributesW(home_.Path("persons.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  fs::create_directory(home_.Path("persons.txt.new"));
  Press(run.Window(), IDC_TAKE_OVER);
  EXPECT_THAT(run.AnswerBox(IDI_HAND), HasSubstr(L"could not be written, so nothing was added"));
  SetFileAttributesW(home_.Path("persons.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
  fs::remove(home_.Path("persons.txt.new"));
  EXPECT_EQ(Persons(), "birthday|1990-01-01||Sara||\r\n");
  Press(run.Window(), IDC_TAKE_OVER);
  EXPECT_THAT(run.AnswerBox(IDI_ASTERISK), HasSubstr(L"was added"));
  EXPECT_THAT(Persons(), testing::StartsWith("birthday|1990-01-01||Sara||\r\n"));
  run.Close();
}

TEST_F(MajorityDialogTest, ANameThatIsTooLongIsSaidToBe) {
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, std::wstring(150, L'\u05D0'));  // of two bytes each in the file
  Press(run.Window(), IDC_TAKE_OVER);
  EXPECT_THAT(run.AnswerBox(IDI_HAND), HasSubstr(L"too long"));
  EXPECT_TRUE(run.WaitForFocus(run.Field(IDC_NAME)));
  EXPECT_EQ(Persons(), "");
  run.Close();
}

TEST_F(MajorityDialogTest, CopyPutsTheResultIntoTheClipboard) {
  home_.Put("lections.ini", "[Readings]\r\nLand=Israel\r\nCustom=Ashkenazi\r\nLanguage=4\r\n");
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, L"Moshe");
  Press(run.Window(), IDC_COPY);
  EXPECT_EQ(run.AnswerBox(IDI_ASTERISK), L"The result was put into the clipboard.");
  const std::wstring text = Clipboard();
  EXPECT_EQ(text, L"Bar mitzvah of Moshe\r\n" + run.Text(IDC_RESULT));
  EXPECT_THAT(text, HasSubstr(L"\r\nTorah: \u200F\u05E4\u05E7\u05D5\u05D3\u05D9"));
  run.Close();
}

TEST_F(MajorityDialogTest, AClipboardThatIsHeldIsSaidToBe) {
  MajorityRun run(kBoy);
  const HWND holder = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(OpenClipboard(holder));
  Press(run.Window(), IDC_COPY);
  EXPECT_THAT(run.AnswerBox(IDI_HAND), HasSubstr(L"another program may hold it"));
  CloseClipboard();
  DestroyWindow(holder);
  run.Close();
}

TEST_F(MajorityDialogTest, SaveWritesACalendarFile) {
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, L"Moshe");
  const fs::path file = home_.Path("moshe.ics");
  const auto saveAs = [&](const fs::path& path) {
    Press(run.Window(), IDC_SAVE);
    const HWND dialog = run.WaitFor(kSaveCaption);
    SetControlText(dialog, kFileNameInSaveDialog, path.wstring());
    Press(dialog, IDOK);
    EXPECT_TRUE(run.WaitUntilGone(dialog));
  };
  saveAs(file);
  EXPECT_TRUE(Eventually([&] { return BytesOf(file).ends_with("END:VCALENDAR\r\n"); }));
  for (const char* text : {"SUMMARY:Bar mitzvah of Moshe\r\n", "DTSTART;VALUE=DATE:20270309\r\n",
                           "SUMMARY:Bar mitzvah of Moshe\\, Shabbat\r\n", "DTSTART;VALUE=DATE:20270313\r\n"}) {
    EXPECT_THAT(BytesOf(file), HasSubstr(text));
  }
  const fs::path blocked = home_.Path("blocked.ics");
  fs::create_directory(home_.Path("blocked.ics.new"));
  saveAs(blocked);
  EXPECT_THAT(run.AnswerBox(IDI_HAND), HasSubstr(blocked.wstring()));
  EXPECT_FALSE(fs::exists(blocked));
  run.Close();
}

TEST_F(MajorityDialogTest, NeedsNoOwner) {
  MajorityRun run(kBoy, false);
  EXPECT_EQ(GetWindow(run.Window(), GW_OWNER), nullptr);
  run.Close();
}

TEST_F(MajorityDialogTest, TabGoesThroughTheFieldsInTheirOrder) {
  MajorityRun run(kBoy);
  run.Type(IDC_NAME, L"Moshe");
  int before = IDC_GREGORIAN_DAY;
  EXPECT_TRUE(run.WaitForFocus(run.Field(before)));
  for (const int next :
       {IDC_GREGORIAN_MONTH, IDC_GREGORIAN_YEAR, IDC_JEWISH_DAY, IDC_JEWISH_MONTH, IDC_JEWISH_YEAR, IDC_AFTER_SUNSET,
        IDC_BOY, IDC_RESULT, IDC_NAME, IDC_TAKE_OVER, IDC_COPY, IDC_SAVE, IDCANCEL, IDC_GREGORIAN_DAY}) {
    EXPECT_EQ(GetNextDlgTabItem(run.Window(), run.Field(before), FALSE), run.Field(next)) << "after " << before;
    before = next;
  }
  run.Close();
}

// One thread opens and closes it, as the program does.
TEST_F(MajorityDialogTest, OpeningAndClosingItKeepsNothing) {
  const auto openAndClose = [](int times) {
    DialogDriver driver([times](HWND owner) {
      for (int i = 0; i < times; ++i) {
        MajorityDialogData data = kBoy;
        MajorityDoDialog(owner, &data);
      }
      return times;
    });
    for (int i = 0; i < times; ++i) {
      const HWND dialog = driver.WaitFor(kCaption);
      Press(dialog, IDCANCEL);
      if (!driver.WaitUntilGone(dialog)) return;
    }
    EXPECT_EQ(driver.Result(), times);
  };
  openAndClose(10);
  const Resources before = ResourcesNow();
  openAndClose(200);
  const Resources after = ResourcesNow();
  EXPECT_LE(after.handles, before.handles + 5);
  EXPECT_LE(after.heapBytes, before.heapBytes + 20000);
}

// A copy of the library, in which nothing was closed yet.
TEST(MajorityContract, TheFirstRecordIsABoyOfTwelveToday) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(GetModuleHandleW(L"majority.dll"), path, MAX_PATH);
  const fs::path copy = fs::temp_directory_path() / (L"majority" + std::to_wstring(GetCurrentProcessId()) + L".dll");
  fs::copy_file(path, copy, fs::copy_options::overwrite_existing);
  const HMODULE library = LoadLibraryW(copy.c_str());
  ASSERT_NE(library, nullptr);
  const auto init = reinterpret_cast<decltype(&MajorityInitDialogData)>(
      reinterpret_cast<void*>(GetProcAddress(library, "MajorityInitDialogData")));
  init(nullptr);
  MajorityDialogData data = {99, 99, 99, 99, 99};
  SYSTEMTIME today;
  do {  // until midnight did not pass meanwhile
    GetLocalTime(&today);
    init(&data);
    SYSTEMTIME after;
    GetLocalTime(&after);
    if (after.wDay == today.wDay) break;
  } while (true);
  EXPECT_EQ(data.year, today.wYear - 12u);
  EXPECT_EQ(data.month, today.wMonth);
  EXPECT_TRUE(data.day == today.wDay || (today.wMonth == 2 && today.wDay == 29 && data.day == 28));
  EXPECT_EQ(data.afterSunset + data.isGirl, 0u);
  FreeLibrary(library);
  fs::remove(copy);
}

TEST(MajorityContract, NullsAreLeftAlone) {
  MajorityInitDialogData(nullptr);
  SettingsHome home;
  DialogDriver run([](HWND) {
    MajorityDoDialog(nullptr, nullptr);
    return 0;
  });
  Press(run.WaitFor(kCaption), IDCANCEL);
  run.Result();
}
