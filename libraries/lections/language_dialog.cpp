#include "libraries/lections/language_dialog.h"

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/today.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/accept_settings.h"
#include "libraries/lections/language.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/own_readings_file.h"
#include "libraries/lections/readings_font.h"
#include "libraries/lections/sample_week.h"
#include "libraries/lections/settings_store.h"
#include "libraries/lections/verse_numbers.h"

namespace lections {
namespace {

using dialogs::Anchor;
using dialogs::Follow;

constexpr int kPointsPerInch = 72;

constexpr Anchor kAnchors[] = {
    {IDC_LANGUAGES, Follow::kNo, Follow::kGrow},
    {IDC_WEEK, Follow::kGrow, Follow::kGrow},
    {IDC_WEEK_FROM_RIGHT, Follow::kGrow, Follow::kGrow},
    {IDC_OWN_NUMBERS, Follow::kNo, Follow::kMove},
    {IDC_WHOSE_NUMBERS, Follow::kGrow, Follow::kMove},
    {IDOK, Follow::kMove, Follow::kMove},
    {IDCANCEL, Follow::kMove, Follow::kMove},
};

// "German (Deutsch)"
std::wstring NameOf(const Language& language) {
  std::string name = language.name;
  const std::string own = language.ownName;
  if (!own.empty() && own != name) name += " (" + own + ")";
  return dialogs::FromUtf8(name);
}

struct FontDeleter {
  void operator()(HFONT font) const { DeleteObject(font); }
};

// Whether a window's font has all letters of a text.
bool CanDraw(HWND window, const std::wstring& text) {
  constexpr WORD kNoGlyph = 0xFFFF;
  const HDC context = GetDC(window);
  const HGDIOBJ before = SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
  std::vector<WORD> glyphs(text.size(), kNoGlyph);
  GetGlyphIndicesW(context, text.c_str(), static_cast<int>(text.size()), glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return std::ranges::find(glyphs, kNoGlyph) == glyphs.end();
}

class LanguageDialog {
 public:
  explicit LanguageDialog(int32_t today) : today_(today) {}

  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnOpen();
  INT_PTR OnAccept();
  INT_PTR OnCommand(int commandId, int notification);
  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  // What is stored, with what is chosen now.
  Settings Chosen() const;
  void Fill();
  void MakeReadingsFont();
  void FitListFont() const;
  void Show() const;
  void ShowNumbers(const Settings& settings) const;
  void ShowSample(const Settings& settings) const;

  HWND dialog_ = nullptr;
  int32_t today_;  // an absolute day
  Settings stored_;
  std::shared_ptr<const OwnReadings> own_;
  std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter> readingsFont_;
  dialogs::ResizableDialog size_;
};

INT_PTR LanguageDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnOpen();
    case WM_SIZE: size_.ArrangeControls(); return TRUE;
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
  }
  return FALSE;
}

INT_PTR LanguageDialog::OnOpen() {
  stored_ = StoredSettingsNow();
  own_ = StoredOwnReadings();
  size_.Start(dialog_, kAnchors, kSettingsFile);
  MakeReadingsFont();
  FitListFont();
  Fill();
  CheckDlgButton(dialog_, IDC_OWN_NUMBERS, stored_.ownNumbers ? BST_CHECKED : BST_UNCHECKED);
  Show();
  SetFocus(Control(IDC_LANGUAGES));
  return FALSE;
}

// The list stands in the order of Languages().
void LanguageDialog::Fill() {
  const HWND list = Control(IDC_LANGUAGES);
  for (const Language* language : Languages()) {
    const LRESULT index = SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(NameOf(*language).c_str()));
    if (language->code == stored_.language) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
  }
}

// Where the system's font for dialogs lacks the letters of a language, its name is in the font of readings.
void LanguageDialog::FitListFont() const {
  const HWND list = Control(IDC_LANGUAGES);
  const bool canDrawAll =
      std::ranges::all_of(Languages(), [list](const Language* language) { return CanDraw(list, NameOf(*language)); });
  if (!canDrawAll) SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(readingsFont_.get()), FALSE);
}

void LanguageDialog::MakeReadingsFont() {
  const HDC screen = GetDC(dialog_);
  LOGFONTW font = {};
  font.lfHeight = -MulDiv(kReadingsPoints, GetDeviceCaps(screen, LOGPIXELSY), kPointsPerInch);
  font.lfCharSet = DEFAULT_CHARSET;
  dialogs::FromUtf8(kReadingsFace).copy(font.lfFaceName, LF_FACESIZE - 1);
  ReleaseDC(dialog_, screen);
  readingsFont_.reset(CreateFontIndirectW(&font));
  for (const int week : {IDC_WEEK, IDC_WEEK_FROM_RIGHT}) {
    SendMessageW(Control(week), WM_SETFONT, reinterpret_cast<WPARAM>(readingsFont_.get()), FALSE);
  }
}

Settings LanguageDialog::Chosen() const {
  Settings settings = stored_;
  const LRESULT selected = SendMessageW(Control(IDC_LANGUAGES), LB_GETCURSEL, 0, 0);
  if (selected != LB_ERR) settings.language = Languages()[static_cast<size_t>(selected)]->code;
  settings.ownNumbers = IsDlgButtonChecked(dialog_, IDC_OWN_NUMBERS) == BST_CHECKED;
  return settings;
}

void LanguageDialog::Show() const {
  const Settings settings = Chosen();
  ShowNumbers(settings);
  ShowSample(settings);
}

void LanguageDialog::ShowNumbers(const Settings& settings) const {
  const OwnBible* const bible = OwnBibleOf(settings.language);
  const std::string whose = bible ? "As in " + std::string(bible->name) : "Its Bibles number as the Hebrew one";
  SetDlgItemTextW(dialog_, IDC_WHOSE_NUMBERS, dialogs::FromUtf8(whose + ".").c_str());
  EnableWindow(Control(IDC_OWN_NUMBERS), bible != nullptr);
}

void LanguageDialog::ShowSample(const Settings& settings) const {
  const bool isFromRight = LanguageOf(settings.language).codePage == CodePage::kHebrew;
  const HWND shown = Control(isFromRight ? IDC_WEEK_FROM_RIGHT : IDC_WEEK);
  const HWND hidden = Control(isFromRight ? IDC_WEEK : IDC_WEEK_FROM_RIGHT);
  const std::string week = SampleWeek(today_, settings, own_.get());
  SetWindowTextW(shown, dialogs::WithLineEnds(dialogs::FromUtf8(week)).c_str());
  ShowWindow(hidden, SW_HIDE);
  ShowWindow(shown, SW_SHOWNA);
}

INT_PTR LanguageDialog::OnAccept() {
  Settings settings = StoredSettingsNow();
  const Settings chosen = Chosen();
  settings.language = chosen.language;
  settings.ownNumbers = chosen.ownNumbers;
  return AcceptSettings(dialog_, settings);
}

INT_PTR LanguageDialog::OnCommand(int commandId, int notification) {
  switch (commandId) {
    case IDC_LANGUAGES:
      if (notification == LBN_DBLCLK) return OnAccept();
      if (notification == LBN_SELCHANGE) Show();
      return TRUE;
    case IDC_OWN_NUMBERS: Show(); return TRUE;
    case IDOK: return OnAccept();
    case IDCANCEL: return EndDialog(dialog_, IDCANCEL);
  }
  return FALSE;
}

}  // namespace

bool DoLanguageDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kSettingsFile)) return false;
  LanguageDialog dialog(dialogs::Today());
  return dialogs::RunDialog(owner, IDD_LANGUAGE, dialogs::ClassDialogProc<LanguageDialog>, &dialog) == IDOK;
}

}  // namespace lections
