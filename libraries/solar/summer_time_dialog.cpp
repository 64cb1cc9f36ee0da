#include "libraries/solar/summer_time_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <optional>
#include <string>

#include "companion/profile.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/solar/clock_texts.h"
#include "libraries/solar/solar_ids.h"
#include "libraries/solar/summer_time_choice.h"
#include "libraries/solar/zone_list.h"
#include "libraries/stamp/form_setting.h"
#include "libraries/sun/zone_of_place.h"

namespace solar {
namespace {

using dialogs::Anchor;
using dialogs::Follow;
using dialogs::Wide;

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockMilliseconds = 1000;
constexpr int64_t kSecondsPerMinute = 60;
constexpr WPARAM kMostTypedLetters = 100;

constexpr Anchor kAnchors[] = {
    {IDC_PLACE, Follow::kGrow, Follow::kNo},         {IDC_CLOCK, Follow::kGrow, Follow::kNo},
    {IDC_NOW, Follow::kGrow, Follow::kNo},           {IDC_NEXT_CHANGE, Follow::kGrow, Follow::kNo},
    {IDC_SECOND_CHANGE, Follow::kGrow, Follow::kNo}, {IDC_WARNING, Follow::kGrow, Follow::kNo},
    {IDC_COUNT, Follow::kMove, Follow::kNo},         {IDC_ZONES, Follow::kGrow, Follow::kGrow},
    {IDC_OFF_ANYWHERE, Follow::kNo, Follow::kMove},  {IDOK, Follow::kMove, Follow::kMove},
    {IDCANCEL, Follow::kMove, Follow::kMove},
};

int64_t Now() {
  return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count();
}

// The edit of the search gives the keys that move the list's selection, and the wheel, to the list.
LRESULT CALLBACK TypedProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR list) {
  const bool movesSelection = wParam == VK_UP || wParam == VK_DOWN || wParam == VK_PRIOR || wParam == VK_NEXT;
  if ((message == WM_KEYDOWN && movesSelection) || message == WM_MOUSEWHEEL) {
    return SendMessageW(reinterpret_cast<HWND>(list), message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(edit, TypedProc, id);
  return DefSubclassProc(edit, message, wParam, lParam);
}

class SummerTimeDialog {
 public:
  explicit SummerTimeDialog(const sun::PackedPlace& place);

  // Whether something was stored.
  bool Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnTimer();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnNotify(NMHDR& header);

  // What the controls say; nothing while another zone is chosen but none is listed.
  std::optional<SummerTimeChoice> Chosen() const;
  void Search();
  void ShowChoice();
  void SetText(int control, const std::string& text) const;
  bool Store(const SummerTimeChoice& chosen);
  void Accept();

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  const sun::PackedPlace place_;
  const stamp::Form form_;
  SummerTimeChoice stored_;
  std::string otherZone_;  // the one selected last in the list
  int64_t now_ = Now();    // seconds since 1970-01-01 00:00 UTC, as last shown
  bool hasStored_ = false;
  bool isFilling_ = false;  // the list; selections in it are not the user's then
  HWND dialog_ = nullptr;
  ZoneList list_;
  dialogs::ResizableDialog size_;
};

SummerTimeDialog::SummerTimeDialog(const sun::PackedPlace& place)
    : place_(place),
      form_(stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm())),
      stored_(StoredChoice({ProfileGetInt, ProfileGetString}, place)),
      otherZone_(stored_.zoneId) {
  if (!otherZone_.empty()) return;
  otherZone_ = ClockBy({}, place).clock.zoneId.data();
  const char* const there = otherZone_.empty() ? sun::ZoneThere(place.latitude, place.longitude) : nullptr;
  if (there) otherZone_ = there;
}

bool SummerTimeDialog::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  dialogs::RunDialog(owner, IDD_SUMMER_TIME, dialogs::ClassDialogProc<SummerTimeDialog>, this);
  return hasStored_;
}

INT_PTR SummerTimeDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_TIMER: return OnTimer();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR SummerTimeDialog::OnInitDialog() {
  list_.Start(Control(IDC_ZONES));
  size_.Start(dialog_, kAnchors, sun::kClockFile);
  OnSize();
  SendDlgItemMessageW(dialog_, IDC_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  SetWindowSubclass(Control(IDC_TYPED), TypedProc, IDC_TYPED, reinterpret_cast<DWORD_PTR>(Control(IDC_ZONES)));
  SetTimer(dialog_, kClockTimer, kClockMilliseconds, nullptr);
  constexpr int kButtons[] = {IDC_ZONE_FOUND, IDC_OTHER_ZONE, IDC_NO_SUMMER_TIME};  // in the order of Choice
  const int checked = kButtons[static_cast<int>(stored_.choice)];
  CheckRadioButton(dialog_, IDC_ZONE_FOUND, IDC_OTHER_ZONE, checked);
  CheckDlgButton(dialog_, IDC_OFF_ANYWHERE, stored_.isOffAnywhere ? BST_CHECKED : BST_UNCHECKED);
  SetText(IDC_PLACE, PlaceText(place_));
  SetText(IDC_ZONE_FOUND, FoundText(ClockBy({}, place_)));
  Search();
  SetFocus(Control(checked));
  return FALSE;
}

INT_PTR SummerTimeDialog::OnSize() {
  size_.ArrangeControls();
  list_.FitColumns();
  return TRUE;
}

INT_PTR SummerTimeDialog::OnTimer() {
  const int64_t before = now_;
  now_ = Now();
  if (now_ / kSecondsPerMinute == before / kSecondsPerMinute) return TRUE;
  ShowChoice();
  InvalidateRect(Control(IDC_ZONES), nullptr, FALSE);
  return TRUE;
}

INT_PTR SummerTimeDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_ZONE_FOUND:
    case IDC_NO_SUMMER_TIME:
    case IDC_OTHER_ZONE:
    case IDC_OFF_ANYWHERE: ShowChoice(); return TRUE;
    case IDC_TYPED:
      if (notification == EN_CHANGE) Search();
      return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); return TRUE;
  }
  return FALSE;
}

INT_PTR SummerTimeDialog::OnNotify(NMHDR& header) {
  if (header.idFrom != IDC_ZONES) return FALSE;
  switch (header.code) {
    case LVN_GETDISPINFOW: list_.OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header), now_); return TRUE;
    case LVN_ODFINDITEMW:
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT,
                        list_.RowBeginningWith(reinterpret_cast<const NMLVFINDITEMW&>(header)));
      return TRUE;
    case NM_CUSTOMDRAW:
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, list_.OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header)));
      return TRUE;
    case LVN_ITEMCHANGED:
      if (isFilling_) return TRUE;
      if (const std::string_view selected = list_.Selected(); !selected.empty()) otherZone_ = selected;
      ShowChoice();
      return TRUE;
    case NM_DBLCLK:
      if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Accept();
      return TRUE;
  }
  return FALSE;
}

std::optional<SummerTimeChoice> SummerTimeDialog::Chosen() const {
  SummerTimeChoice chosen;
  chosen.isOffAnywhere = IsDlgButtonChecked(dialog_, IDC_OFF_ANYWHERE) == BST_CHECKED;
  if (IsDlgButtonChecked(dialog_, IDC_NO_SUMMER_TIME) == BST_CHECKED) chosen.choice = Choice::kNoSummerTime;
  if (IsDlgButtonChecked(dialog_, IDC_OTHER_ZONE) != BST_CHECKED) return chosen;
  chosen.choice = Choice::kOtherZone;
  chosen.zoneId = list_.Selected();
  return chosen.zoneId.empty() ? std::nullopt : std::optional(chosen);
}

// Lists what matches the typed text. The zone that was selected stays so while it is listed.
void SummerTimeDialog::Search() {
  const std::wstring typed = dialogs::TextOf(Control(IDC_TYPED));
  isFilling_ = true;
  list_.Show(ZonesMatching(dialogs::Narrow(typed).value_or("?")));  // no zone has a question mark
  list_.Select(otherZone_);
  isFilling_ = false;
  const std::size_t count = list_.Count();
  SetText(IDC_COUNT, count == 0 ? "No zone matches" : count == 1 ? "1 zone" : std::to_string(count) + " zones");
  ShowChoice();
}

void SummerTimeDialog::ShowChoice() {
  const bool isOther = IsDlgButtonChecked(dialog_, IDC_OTHER_ZONE) == BST_CHECKED;
  for (const int control : {IDC_TYPED, IDC_ZONES, IDC_COUNT}) EnableWindow(Control(control), isOther);
  const std::optional<SummerTimeChoice> chosen = Chosen();
  EnableWindow(Control(IDOK), chosen.has_value());
  if (!chosen) {
    SetText(IDC_CLOCK, "no zone is chosen in the list");
    for (const int control : {IDC_NOW, IDC_NEXT_CHANGE, IDC_SECOND_CHANGE, IDC_WARNING}) SetText(control, "");
    return;
  }
  const ExplainedClock clock = ClockBy(*chosen, place_);
  const ChangeTexts changes = NextChangesText(clock.clock, now_, form_);
  SetText(IDC_CLOCK, ClockText(clock));
  SetText(IDC_NOW, NowText(clock.clock, now_, form_));
  SetText(IDC_NEXT_CHANGE, changes.next);
  SetText(IDC_SECOND_CHANGE, changes.second);
  SetText(IDC_WARNING, WarningText(clock, place_));
}

// A text that stays is not painted anew.
void SummerTimeDialog::SetText(int control, const std::string& text) const {
  const std::wstring wide = Wide(text);
  if (dialogs::TextOf(Control(control)) != wide) SetDlgItemTextW(dialog_, control, wide.c_str());
}

// Whether all of it is stored; what is stored before a failure stays.
bool SummerTimeDialog::Store(const SummerTimeChoice& chosen) {
  for (const KeyChange& change : ChangesFor(stored_, chosen, place_)) {
    const char* const value = change.value ? change.value->c_str() : nullptr;
    if (!ProfileWriteString(sun::kClockSection, change.key.c_str(), value, sun::kClockFile)) return false;
    hasStored_ = true;
  }
  return true;
}

void SummerTimeDialog::Accept() {
  const std::optional<SummerTimeChoice> chosen = Chosen();
  if (!chosen) return;
  if (Store(*chosen)) return void(EndDialog(dialog_, IDOK));
  dialogs::ShowError(dialog_, L"Your choice could not be saved in the file\n" +
                                  settings_folder::PathNow(settings_folder::Wide(sun::kClockFile)) +
                                  L"\n\nSee to it that it can be written (no other program holds it, it is not "
                                  L"read-only, the disk is not full), then choose OK again.");
}

}  // namespace

bool RunSummerTimeDialog(HWND owner, const sun::PackedPlace& place) {
  if (!dialogs::IsKnownIni(owner, sun::kClockFile)) return false;
  return SummerTimeDialog(place).Run(owner);
}

}  // namespace solar
