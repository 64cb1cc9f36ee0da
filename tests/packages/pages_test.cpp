// The pages of installer and uninstaller in both languages, walked through from the language dialog to the end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <filesystem>
#include <functional>

#include "tests/end_to_end/program_driver.h"
#include "tests/packages/installation.h"

namespace fs = std::filesystem;

namespace {

constexpr int kNext = 1;

std::wstring WideTextOf(HWND window) {
  wchar_t text[2048] = L"";
  SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
  return text;
}

bool IsHebrew(const std::wstring& text) {
  return std::ranges::any_of(text, [](wchar_t unit) { return unit >= 0x05D0 && unit <= 0x05EA; });
}

std::vector<HWND> ShownChildren(HWND dialog) {
  std::vector<HWND> children;
  EnumChildWindows(
      dialog,
      [](HWND child, LPARAM found) -> BOOL {
        if (IsWindowVisible(child)) reinterpret_cast<std::vector<HWND>*>(found)->push_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&children));
  return children;
}

std::vector<std::wstring> ShownTexts(HWND dialog) {
  std::vector<std::wstring> texts;
  for (const HWND child : ShownChildren(dialog)) texts.push_back(WideTextOf(child));
  return texts;
}

// How large a text is in the control that shows it, with lines broken at its width; a single line has no height, since
// what is cut off of it is the leading of the font at hand.
SIZE SizeOfText(HWND control, const std::wstring& text) {
  const HDC context = GetDC(control);
  const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
  const HGDIOBJ previous = font ? SelectObject(context, font) : nullptr;
  RECT size{};
  GetClientRect(control, &size);
  DrawTextW(context, text.c_str(), -1, &size, DT_CALCRECT | DT_WORDBREAK);
  TEXTMETRICW metrics{};
  GetTextMetricsW(context, &metrics);
  if (size.bottom == metrics.tmHeight) size.bottom = 0;
  if (previous) SelectObject(context, previous);
  ReleaseDC(control, context);
  return {size.right, size.bottom};
}

// One run of installer or uninstaller with its windows.
class Wizard {
 public:
  explicit Wizard(const std::wstring& commandLine) : program_(commandLine) {}

  HWND WaitFor(const std::function<bool(HWND)>& accepts, const char* what) const {
    const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
    while (GetTickCount64() < end) {
      if (const HWND found = Find(accepts)) return found;
      Sleep(10);
    }
    ADD_FAILURE() << "no " << what;
    return nullptr;
  }

  void ChooseLanguage(const wchar_t* name) const {
    const auto languages = [](HWND dialog) { return FindWindowExW(dialog, nullptr, L"ComboBox", nullptr); };
    const HWND dialog = WaitFor([&](HWND window) { return languages(window) != nullptr; }, "language dialog");
    const HWND list = languages(dialog);
    const LRESULT row = SendMessageW(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
    ASSERT_GE(row, 0);
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  }

  // The wizard once it shows a control of a text and its button can be used.
  HWND WaitForPage(const wchar_t* text) const {
    return WaitFor(
        [text](HWND window) {
          const auto texts = ShownTexts(window);
          return std::ranges::find(texts, text) != texts.end() && IsWindowEnabled(GetDlgItem(window, kNext));
        },
        fs::path(text).string().c_str());
  }

  void GoOn(HWND page) const { PostMessageW(page, WM_COMMAND, kNext, 0); }
  DWORD WaitForExit() const { return program_.WaitForExit(); }

 private:
  HWND Find(const std::function<bool(HWND)>& accepts) const {
    for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, L"#32770", nullptr)) != nullptr;) {
      DWORD process = 0;
      GetWindowThreadProcessId(window, &process);
      if (process == program_.processId() && IsWindowVisible(window) && accepts(window)) return window;
    }
    return nullptr;
  }

  StartedProgram program_;
};

// A letter for Alt presses one button, not several in turn.
void ExpectMnemonicsOfTheirOwn(HWND page) {
  std::wstring letters;
  for (const HWND control : ShownChildren(page)) {
    const std::wstring text = WideTextOf(control);
    const auto mark = text.find(L'&');
    if (ClassOf(control) != "Button" || mark == std::wstring::npos || mark + 1 == text.size()) continue;
    const wchar_t letter = static_cast<wchar_t>(std::towlower(text[mark + 1]));
    EXPECT_EQ(letters.find(letter), std::wstring::npos) << fs::path(text);
    letters += letter;
  }
}

// Every text fits its control; Hebrew is read from right to left.
void ExpectWellSet(HWND page) {
  ExpectMnemonicsOfTheirOwn(page);
  for (const HWND control : ShownChildren(page)) {
    const std::wstring text = WideTextOf(control);
    const std::string kind = ClassOf(control);
    if (text.empty() || (kind != "Static" && kind != "Button")) continue;
    RECT area{};
    GetClientRect(control, &area);
    const SIZE size = SizeOfText(control, text);
    EXPECT_LE(size.cx, area.right) << fs::path(text);
    EXPECT_LE(size.cy, area.bottom) << fs::path(text);
    if (IsHebrew(text)) {
      EXPECT_TRUE(GetWindowLongW(control, GWL_EXSTYLE) & WS_EX_RTLREADING) << fs::path(text);
    }
  }
}

// The last page's box, checked when the program is to be started.
HWND StartBox(HWND last) {
  return FindWindowExW(FindWindowExW(last, nullptr, L"#32770", nullptr), nullptr, L"Button", nullptr);
}

// The folder page's field.
HWND FolderField(HWND page) {
  constexpr int kFolder = 1019;
  return GetDlgItem(FindWindowExW(page, nullptr, L"#32770", nullptr), kFolder);
}

struct Language {
  const wchar_t* name;
  const wchar_t* id;
  const wchar_t* welcome;
  const wchar_t* folder;
  const wchar_t* finish;
  const wchar_t* remove;
  const wchar_t* removed;
};

const Language kEnglish = {L"English",
                           L"1033",
                           L"Welcome to the setup of Times\u00A0/\u00A0Readings",
                           L"Choose the folder",
                           L"Times\u00A0/\u00A0Readings is installed",
                           L"Uninstall Times\u00A0/\u00A0Readings",
                           L"Removed"};
const Language kHebrew = {L"עברית",        L"1037",          L"ברוכים הבאים להתקנת Times\u00A0/\u00A0Readings",
                          L"בחירת תיקייה", L"ההתקנה הושלמה", L"הסרת התוכנה",
                          L"ההסרה הושלמה"};

class PagesTest : public testing::TestWithParam<const Language*> {};

}  // namespace

TEST_P(PagesTest, LeadFromTheLanguageToAnInstalledProgramAndBack) {
  const Language& language = *GetParam();
  {
    const Wizard wizard(L"\"" + SetupFile().wstring() + L"\"");
    wizard.ChooseLanguage(language.name);
    for (const wchar_t* title : {language.welcome, language.folder}) {
      const HWND page = wizard.WaitForPage(title);
      ExpectWellSet(page);
      wizard.GoOn(page);
    }
    const HWND last = wizard.WaitForPage(language.finish);
    ExpectWellSet(last);
    const HWND start = StartBox(last);
    EXPECT_EQ(SendMessageW(start, BM_GETCHECK, 0, 0), BST_CHECKED) << "the program is started unless one does not want";
    SendMessageW(start, BM_SETCHECK, BST_UNCHECKED, 0);
    wizard.GoOn(last);
    EXPECT_EQ(wizard.WaitForExit(), kDone);
  }
  EXPECT_EQ(UserValue(kSetupKey, L"Language"), language.id);
  EXPECT_TRUE(fs::exists(InstalledFolder() / "shabbat.exe"));
  fs::create_directories(SettingsFolder());
  WriteFileText(SettingsFolder() / "persons.txt", "the user's");

  const Wizard wizard(L"\"" + (InstalledFolder() / "uninstall.exe").wstring() + L"\" _?=" +
                      InstalledFolder().wstring());
  const HWND remove = wizard.WaitForPage(language.remove);
  ExpectWellSet(remove);
  wizard.GoOn(remove);
  const HWND removed = wizard.WaitForPage(language.removed);
  ExpectWellSet(removed);
  wizard.GoOn(removed);
  EXPECT_EQ(wizard.WaitForExit(), kDone);
  EXPECT_FALSE(fs::exists(InstalledFolder() / "shabbat.exe"));
  EXPECT_EQ(ReadFileText(SettingsFolder() / "persons.txt"), "the user's");
  fs::remove_all(InstalledFolder());
  fs::remove_all(SettingsFolder());
}

TEST_P(PagesTest, SayThatTheProgramGetsAFolderOfItsOwn) {
  const Language& language = *GetParam();
  const fs::path chosen = L"C:\\Tools";
  const fs::path own = chosen / "Times Readings";
  fs::create_directories(chosen);
  WriteFileText(chosen / "LICENSE.txt", "not ours");
  {
    const Wizard wizard(L"\"" + SetupFile().wstring() + L"\"");
    wizard.ChooseLanguage(language.name);
    wizard.GoOn(wizard.WaitForPage(language.welcome));
    const HWND page = wizard.WaitForPage(language.folder);
    const HWND field = FolderField(page);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(chosen.c_str()));
    for (const WPARAM answer : {IDCANCEL, IDOK}) {
      wizard.GoOn(page);
      const auto names = [&](const std::wstring& text) { return text.find(own.wstring()) != std::wstring::npos; };
      const HWND box = wizard.WaitFor(
          [&](HWND window) { return window != page && std::ranges::any_of(ShownTexts(window), names); }, "box");
      EXPECT_EQ(WideTextOf(field), chosen.wstring());
      PostMessageW(box, WM_COMMAND, answer, 0);
      wizard.WaitFor([&](HWND) { return !IsWindow(box); }, "end of the box");
    }
    const HWND last = wizard.WaitForPage(language.finish);
    SendMessageW(StartBox(last), BM_SETCHECK, BST_UNCHECKED, 0);
    wizard.GoOn(last);
    EXPECT_EQ(wizard.WaitForExit(), kDone);
  }
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), own.wstring());
  Uninstall(own);
  EXPECT_EQ(FilesOf(chosen).size(), 1u);
  EXPECT_EQ(ReadFileText(chosen / "LICENSE.txt"), "not ours");
  fs::remove_all(chosen);
}

INSTANTIATE_TEST_SUITE_P(Languages, PagesTest, testing::Values(&kEnglish, &kHebrew),
                         [](const auto& row) { return row.param == &kEnglish ? "English" : "Hebrew"; });
