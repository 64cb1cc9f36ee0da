#include "libraries/occasions/settings_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "companion/profile.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/settings_store.h"
#include "libraries/occasions/occasion_texts.h"
#include "libraries/occasions/occasions_ids.h"
#include "libraries/occasions/occasions_question.h"
#include "libraries/occasions/window_settings.h"

namespace occasions {
namespace {

constexpr WPARAM kDigitsOfMinutes = 3;
constexpr int kSevenDays = 7;
constexpr int kThreeDays = 3;
constexpr char kUsualMinutes[] = "50";  // offered where minutes after sunset have not been chosen
constexpr char kTypedText[] = "Minutes after sunset:";

// A choice among nightfalls, the last of which is a number that the user types.
struct NightfallBox {
  int combo;
  int minutes;
  bool hasAsOthers;  // as its first row
};
constexpr NightfallBox kNightfall = {IDC_NIGHTFALL, IDC_NIGHTFALL_MINUTES, false};
constexpr NightfallBox kNightfallOfAv = {IDC_NIGHTFALL_OF_AV, IDC_NIGHTFALL_OF_AV_MINUTES, true};

class SettingsDialog {
 public:
  explicit SettingsDialog(const Customs& stored)
      : stored_(stored), dawns_(DawnChoices()), nightfalls_(NightfallChoices()), chametz_(ChametzChoices()) {}

  // Whether anything was stored.
  bool Run(HWND owner) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    dialogs::RunDialog(owner, IDD_SETTINGS, dialogs::ClassDialogProc<SettingsDialog>, this);
    return hasStored_;
  }

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnCommand(int control, int notification);
  void FillBoxes() const;
  void FillNightfalls(const NightfallBox& box) const;
  void FillKinds() const;
  void Show(const Customs& customs) const;
  void ShowNightfall(const NightfallBox& box, const std::string& id) const;
  void EnableMinutes() const;
  std::optional<Customs> Chosen() const;
  std::string NightfallIn(const NightfallBox& box) const;
  bool AreMinutesValid(int combo, int field) const;
  void Accept();

  void AddText(int combo, const std::string& text) const;
  void Choose(int combo, int row) const {
    SendDlgItemMessageW(dialog_, combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  }
  int ChosenIn(int combo) const { return static_cast<int>(SendDlgItemMessageW(dialog_, combo, CB_GETCURSEL, 0, 0)); }
  bool IsLastChosenIn(int combo) const {
    return ChosenIn(combo) + 1 == static_cast<int>(SendDlgItemMessageW(dialog_, combo, CB_GETCOUNT, 0, 0));
  }

  const Customs stored_;
  const std::vector<Choice> dawns_;
  const std::vector<Choice> nightfalls_;
  const std::vector<Choice> chametz_;
  bool hasStored_ = false;
  HWND dialog_ = nullptr;
};

int RowOf(const std::vector<Choice>& choices, const std::string& id) {
  const auto found = std::ranges::find(choices, id, &Choice::id);
  return found == choices.end() ? 0 : static_cast<int>(found - choices.begin());
}

INT_PTR SettingsDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR SettingsDialog::OnInitDialog() {
  FillBoxes();
  FillKinds();
  for (const int field : {IDC_NIGHTFALL_MINUTES, IDC_NIGHTFALL_OF_AV_MINUTES, IDC_CHANUKAH_MINUTES}) {
    SendDlgItemMessageW(dialog_, field, EM_LIMITTEXT, kDigitsOfMinutes, 0);
    SetDlgItemTextA(dialog_, field, kUsualMinutes);
  }
  Show(stored_);
  return TRUE;
}

INT_PTR SettingsDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_NIGHTFALL:
    case IDC_NIGHTFALL_OF_AV:
    case IDC_CHANUKAH:
      if (notification == CBN_SELCHANGE) EnableMinutes();
      return TRUE;
    case IDC_USUAL: Show(Customs()); return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: return EndDialog(dialog_, IDCANCEL);
  }
  return FALSE;
}

// The list of a combo box is as wide as its texts.
void SettingsDialog::AddText(int combo, const std::string& text) const {
  const std::wstring wide = dialogs::FromUtf8(text);
  SendDlgItemMessageW(dialog_, combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide.c_str()));
  const HDC dc = GetDC(dialog_);
  const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(dialog_, WM_GETFONT, 0, 0));
  const HGDIOBJ before = font ? SelectObject(dc, font) : nullptr;
  SIZE size = {};
  GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
  if (before) SelectObject(dc, before);
  ReleaseDC(dialog_, dc);
  const int needed = size.cx + GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
  if (needed > SendDlgItemMessageW(dialog_, combo, CB_GETDROPPEDWIDTH, 0, 0)) {
    SendDlgItemMessageW(dialog_, combo, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(needed), 0);
  }
}

void SettingsDialog::FillBoxes() const {
  const bool isIsrael = lections::StoredSettings().land == calendar::Land::kIsrael;
  AddText(IDC_LAND, std::string("As for the readings (now: ") + (isIsrael ? "Israel)" : "diaspora)"));
  AddText(IDC_LAND, "As in the diaspora");
  AddText(IDC_LAND, "As in Israel");
  for (const Choice& dawn : dawns_) AddText(IDC_DAWN, dawn.text);
  FillNightfalls(kNightfall);
  FillNightfalls(kNightfallOfAv);
  for (const Choice& authority : chametz_) AddText(IDC_CHAMETZ, authority.text);
  for (const char* const rule :
       {"At sunset", "At nightfall", "13.5 minutes before the sun is 7.083\u00B0 down", kTypedText}) {
    AddText(IDC_CHANUKAH, rule);
  }
  AddText(IDC_LEVANA_FROM, "3 days after the molad");
  AddText(IDC_LEVANA_FROM, "7 days after the molad");
  AddText(IDC_LEVANA_UNTIL, "Half a month after the molad (14 days, 18 hours, 22 minutes)");
  AddText(IDC_LEVANA_UNTIL, "15 days after the molad");
  AddText(IDC_SELICHOT, "Ashkenazi: the week of Rosh Hashana or the one before it");
  AddText(IDC_SELICHOT, "Sephardi: all of Elul");
}

void SettingsDialog::FillNightfalls(const NightfallBox& box) const {
  if (box.hasAsOthers) AddText(box.combo, "As the other fasts");
  for (const Choice& nightfall : nightfalls_) AddText(box.combo, nightfall.text);
  AddText(box.combo, kTypedText);
}

void SettingsDialog::FillKinds() const {
  const HWND list = GetDlgItem(dialog_, IDC_KINDS);
  ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
  RECT client;
  GetClientRect(list, &client);
  LVCOLUMNW column = {};
  column.mask = LVCF_WIDTH;
  column.cx = client.right - client.left;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  for (int kind = 0; kind < kKinds; ++kind) {
    std::wstring name = dialogs::FromUtf8(KindName(static_cast<Kind>(kind), Language::kEnglish));
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = kind;
    item.pszText = name.data();
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  ListView_SetItemState(list, 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
}

void SettingsDialog::Show(const Customs& customs) const {
  Choose(IDC_LAND, static_cast<int>(customs.land));
  Choose(IDC_DAWN, RowOf(dawns_, customs.dawn));
  ShowNightfall(kNightfall, customs.nightfall);
  ShowNightfall(kNightfallOfAv, customs.nightfallOfAv);
  Choose(IDC_CHAMETZ, RowOf(chametz_, customs.chametz));
  Choose(IDC_CHANUKAH, static_cast<int>(customs.chanukah));
  SetDlgItemInt(dialog_, IDC_CHANUKAH_MINUTES, static_cast<UINT>(customs.chanukahMinutes), FALSE);
  Choose(IDC_LEVANA_FROM, customs.kiddushLevanaFromDays == kSevenDays ? 1 : 0);
  Choose(IDC_LEVANA_UNTIL, customs.kiddushLevanaUntilHalfMonth ? 0 : 1);
  Choose(IDC_SELICHOT, static_cast<int>(customs.selichot));
  const HWND list = GetDlgItem(dialog_, IDC_KINDS);
  for (int kind = 0; kind < kKinds; ++kind) {
    ListView_SetCheckState(list, static_cast<UINT>(kind), IsShown(customs, static_cast<Kind>(kind)));
  }
  EnableMinutes();
}

void SettingsDialog::ShowNightfall(const NightfallBox& box, const std::string& id) const {
  const int first = box.hasAsOthers ? 1 : 0;
  if (id.starts_with(kMinutesId)) {
    Choose(box.combo, first + static_cast<int>(nightfalls_.size()));
    SetDlgItemTextA(dialog_, box.minutes, id.c_str() + kMinutesId.size());
  } else {
    Choose(box.combo, id.empty() ? 0 : first + RowOf(nightfalls_, id));
  }
}

void SettingsDialog::EnableMinutes() const {
  for (const auto& [combo, field] : {std::pair(IDC_NIGHTFALL, IDC_NIGHTFALL_MINUTES),
                                     {IDC_NIGHTFALL_OF_AV, IDC_NIGHTFALL_OF_AV_MINUTES},
                                     {IDC_CHANUKAH, IDC_CHANUKAH_MINUTES}}) {
    EnableWindow(GetDlgItem(dialog_, field), IsLastChosenIn(combo));
  }
}

std::string SettingsDialog::NightfallIn(const NightfallBox& box) const {
  const int row = ChosenIn(box.combo) - (box.hasAsOthers ? 1 : 0);
  if (row < 0) return {};
  if (row < static_cast<int>(nightfalls_.size())) return nightfalls_[static_cast<size_t>(row)].id;
  return std::string(kMinutesId) + std::to_string(GetDlgItemInt(dialog_, box.minutes, nullptr, FALSE));
}

// Whether the field, where it is used, has a number; else says so.
bool SettingsDialog::AreMinutesValid(int combo, int field) const {
  if (!IsLastChosenIn(combo)) return true;
  BOOL isNumber = FALSE;
  const UINT minutes = GetDlgItemInt(dialog_, field, &isNumber, FALSE);
  if (isNumber && minutes <= static_cast<UINT>(kMostMinutes)) return true;
  dialogs::ShowFieldError(
      dialog_, field, L"The minutes after sunset must be a number from 0 to " + std::to_wstring(kMostMinutes) + L".");
  return false;
}

// Nothing, and the user is told, when a field has no number.
std::optional<Customs> SettingsDialog::Chosen() const {
  if (!AreMinutesValid(kNightfall.combo, kNightfall.minutes) ||
      !AreMinutesValid(kNightfallOfAv.combo, kNightfallOfAv.minutes) ||
      !AreMinutesValid(IDC_CHANUKAH, IDC_CHANUKAH_MINUTES)) {
    return std::nullopt;
  }
  Customs customs;
  customs.land = static_cast<LandChoice>(ChosenIn(IDC_LAND));
  customs.dawn = dawns_[static_cast<size_t>(ChosenIn(IDC_DAWN))].id;
  customs.nightfall = NightfallIn(kNightfall);
  customs.nightfallOfAv = NightfallIn(kNightfallOfAv);
  customs.chametz = chametz_[static_cast<size_t>(ChosenIn(IDC_CHAMETZ))].id;
  customs.chanukah = static_cast<ChanukahRule>(ChosenIn(IDC_CHANUKAH));
  const bool usesMinutes = customs.chanukah == ChanukahRule::kMinutes;
  customs.chanukahMinutes = usesMinutes
                                ? static_cast<int32_t>(GetDlgItemInt(dialog_, IDC_CHANUKAH_MINUTES, nullptr, FALSE))
                                : stored_.chanukahMinutes;
  customs.kiddushLevanaFromDays = ChosenIn(IDC_LEVANA_FROM) == 1 ? kSevenDays : kThreeDays;
  customs.kiddushLevanaUntilHalfMonth = ChosenIn(IDC_LEVANA_UNTIL) == 0;
  customs.selichot = static_cast<SelichotCustom>(ChosenIn(IDC_SELICHOT));
  const HWND list = GetDlgItem(dialog_, IDC_KINDS);
  for (int kind = 0; kind < kKinds; ++kind) {
    if (!ListView_GetCheckState(list, static_cast<UINT>(kind))) customs.hiddenKinds |= 1u << kind;
  }
  return customs;
}

// What has not been changed here stays as another copy of the program may have stored it meanwhile.
void SettingsDialog::Accept() {
  const std::optional<Customs> chosen = Chosen();
  if (!chosen) return;
  const std::vector<KeyValue> before = ValuesOf(stored_);
  const std::vector<KeyValue> after = ValuesOf(*chosen);
  for (size_t i = 0; i < after.size(); ++i) {
    if (after[i].value == before[i].value) continue;
    if (!ProfileWriteString(kCustomsSection, after[i].key, after[i].value.c_str(), kCustomsFile)) {
      return dialogs::ShowError(dialog_, L"What is shown could not be saved in the file\n" + SettingsPath() +
                                             L"\n\nSee to it that it can be written (no other program holds it, it is "
                                             L"not read-only, the disk is not full), then choose OK again.");
    }
    hasStored_ = true;
  }
  EndDialog(dialog_, IDOK);
}

}  // namespace

bool RunSettingsDialog(HWND owner) {
  if (!dialogs::IsKnownIni(owner, kCustomsFile)) return false;
  return SettingsDialog(StoredCustoms()).Run(owner);
}

}  // namespace occasions
