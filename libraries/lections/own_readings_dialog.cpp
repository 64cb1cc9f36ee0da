#include "libraries/lections/own_readings_dialog.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/today.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/own_readings_file.h"
#include "libraries/lections/own_remark.h"
#include "libraries/lections/settings_store.h"

namespace lections {
namespace {

using dialogs::Anchor;
using dialogs::Follow;
using dialogs::FromUtf8;

constexpr char kSizeFile[] = "readings.ini";
constexpr WPARAM kMostTypedLetters = 100;
constexpr size_t kDatesShown = 3;

constexpr Anchor kAnchors[] = {
    {IDC_OWN_COUNT, Follow::kMove, Follow::kNo},
    {IDC_OWN_READINGS, Follow::kGrow, Follow::kGrow},
    {IDC_OWN_TEXTS_LABEL, Follow::kGrow, Follow::kMove},
    {IDC_OWN_TEXTS, Follow::kGrow, Follow::kMove},
    {IDC_OWN_ADD, Follow::kMove, Follow::kMove},
    {IDC_OWN_CHANGE, Follow::kMove, Follow::kMove},
    {IDC_OWN_RESTORE, Follow::kMove, Follow::kMove},
    {IDC_OWN_UNDO, Follow::kMove, Follow::kMove},
    {IDC_OWN_PREVIEW_LABEL, Follow::kNo, Follow::kMove},
    {IDC_OWN_PREVIEW, Follow::kGrow, Follow::kMove},
    {IDC_OWN_SINGLE_DATE, Follow::kMove, Follow::kMove},
    {IDC_OWN_IMPORT, Follow::kMove, Follow::kMove},
    {IDC_OWN_EXPORT, Follow::kMove, Follow::kMove},
    {IDC_OWN_RESTORE_ALL, Follow::kMove, Follow::kMove},
    {IDC_OWN_DAMAGED, Follow::kNo, Follow::kMove},
    {IDOK, Follow::kMove, Follow::kMove},
    {IDCANCEL, Follow::kMove, Follow::kMove},
};

constexpr dialogs::ListColumn kReadingLooks[kReadingColumns] = {{L"Reading", L"Mmmmmmmmmmm", 3},
                                                                {L"Next on", L"88.88.8888", 0},
                                                                {L"Torah", L"Mmmmmmmmmmm", 6},
                                                                {L"Haftarah", L"Mmmmmmmmmmm", 5},
                                                                {L"Own texts", L"888", 0}};

enum OwnTextColumn { kPlaceColumn, kScopeColumn, kHowColumn, kTextColumn };
constexpr int kOwnTextColumns = 4;
constexpr dialogs::ListColumn kOwnTextLooks[kOwnTextColumns] = {{L"Place", L"Haftarah 8", 0},
                                                                {L"Holds for", L"Mmmmmmmmm", 1},
                                                                {L"Stands", L"instead", 0},
                                                                {L"Text", L"Mmmmmmmmmmm", 3}};

// In the order of ShownKinds.
constexpr const wchar_t* kKinds[] = {L"All", L"Portions", L"Occasions", L"Dates", L"With own texts"};

void TellText(NMLVDISPINFOW& info, const std::wstring& text) {
  if (info.item.mask & LVIF_TEXT) lstrcpynW(info.item.pszText, text.c_str(), info.item.cchTextMax);
}

}  // namespace

std::wstring InWords(const OwnPlace& place) {
  return FromUtf8(NameOf(place.when, kEnglish) + ", " + NameOf(place.slot) + " (" + ScopeText(place) + ")");
}

OwnReadingsDialog::OwnReadingsDialog(const OwnFile& stored, const Settings& settings, int32_t today)
    : editing_(stored.texts),
      damagedLines_(stored.damagedLines),
      settings_(settings),
      today_(today),
      rows_(settings, today) {}

bool OwnReadingsDialog::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  return dialogs::RunDialog(owner, IDD_OWN_READINGS, dialogs::ClassDialogProc<OwnReadingsDialog>, this) == IDOK;
}

INT_PTR OwnReadingsDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR OwnReadingsDialog::OnInitDialog() {
  readings_.Start(Control(IDC_OWN_READINGS), kReadingLooks);
  ownTexts_.Start(Control(IDC_OWN_TEXTS), kOwnTextLooks);
  size_.Start(dialog_, kAnchors, kSizeFile);
  OnSize();
  SendDlgItemMessageW(dialog_, IDC_OWN_TYPED, EM_LIMITTEXT, kMostTypedLetters, 0);
  for (const wchar_t* kind : kKinds) {
    SendDlgItemMessageW(dialog_, IDC_OWN_KINDS, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(kind));
  }
  SendDlgItemMessageW(dialog_, IDC_OWN_KINDS, CB_SETCURSEL, 0, 0);
  if (!damagedLines_.empty()) {
    const wchar_t* fate = damagedLines_.size() == 1 ? L". It stays as it is, and counts for nothing."
                                                    : L". They stay as they are, and count for nothing.";
    const std::wstring told = L"Not understood in the file: " + FromUtf8(LinesText(damagedLines_));
    SetDlgItemTextW(dialog_, IDC_OWN_DAMAGED, (told + fate).c_str());
  }
  rows_.Renew(editing_.Now());
  Refill(std::nullopt);
  SetFocus(Control(IDC_OWN_TYPED));
  return FALSE;
}

INT_PTR OwnReadingsDialog::OnSize() {
  size_.ArrangeControls();
  readings_.FitColumns();
  ownTexts_.FitColumns();
  return TRUE;
}

INT_PTR OwnReadingsDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDC_OWN_ADD: Add(); return TRUE;
    case IDC_OWN_CHANGE: Change(); return TRUE;
    case IDC_OWN_RESTORE: Restore(); return TRUE;
    case IDC_OWN_RESTORE_ALL: RestoreAll(); return TRUE;
    case IDC_OWN_UNDO: Undo(); return TRUE;
    case IDC_OWN_SINGLE_DATE: OfferSingleDate(); return TRUE;
    case IDC_OWN_IMPORT: Import(); return TRUE;
    case IDC_OWN_EXPORT: Export(); return TRUE;
    case IDOK: Accept(); return TRUE;
    case IDCANCEL: Cancel(); return TRUE;
    case IDC_OWN_TYPED:
      if (notification == EN_CHANGE) Refill(SelectedWhen());
      return TRUE;
    case IDC_OWN_KINDS:
      if (notification == CBN_SELCHANGE) Refill(SelectedWhen());
      return TRUE;
  }
  return FALSE;
}

INT_PTR OwnReadingsDialog::OnNotify(NMHDR& header) {
  if (header.code == LVN_KEYDOWN) {
    OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey, header.idFrom == IDC_OWN_TEXTS);
    return TRUE;
  }
  if (header.idFrom == IDC_OWN_READINGS) return OnReadingsNotify(header);
  return header.idFrom == IDC_OWN_TEXTS ? OnOwnTextsNotify(header) : FALSE;
}

INT_PTR OwnReadingsDialog::OnReadingsNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      auto& info = reinterpret_cast<NMLVDISPINFOW&>(header);
      if (info.item.iItem >= 0 && info.item.iItem < rows_.Count()) {
        TellText(info, rows_.Text(info.item.iItem, info.item.iSubItem));
      }
      return TRUE;
    }
    case LVN_ODFINDITEMW: {
      const auto& find = reinterpret_cast<const NMLVFINDITEMW&>(header);
      const bool byText = (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) && find.lvfi.psz && rows_.Count() > 0;
      SetWindowLongPtrW(dialog_, DWLP_MSGRESULT, byText ? rows_.Beginning(find.lvfi.psz, find.iStart) : -1);
      return TRUE;
    }
    case LVN_ITEMCHANGED:
      if (!isFilling_) ShowReading();
      return TRUE;
    case NM_DBLCLK: Add(); return TRUE;
  }
  return FALSE;
}

INT_PTR OwnReadingsDialog::OnOwnTextsNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      auto& info = reinterpret_cast<NMLVDISPINFOW&>(header);
      if (info.item.iItem >= 0 && static_cast<size_t>(info.item.iItem) < places_.size()) {
        TellText(info, OwnTextOf(info.item.iItem, info.item.iSubItem));
      }
      return TRUE;
    }
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED:
      if (isFilling_) return TRUE;
      ShowPreview();
      UpdateButtons();
      return TRUE;
    case NM_DBLCLK: Change(); return TRUE;
  }
  return FALSE;
}

void OwnReadingsDialog::OnListKey(WORD key, bool isOwnTexts) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (key == 'Z' && control) Undo();
  if (!isOwnTexts) return;
  if (key == VK_DELETE) Restore();
  if (key == 'A' && control) ownTexts_.SelectAll();
}

std::wstring OwnReadingsDialog::OwnTextOf(int row, int column) const {
  const OwnPlace& place = places_[static_cast<size_t>(row)];
  const OwnText& text = editing_.Now().at(place);
  switch (column) {
    case kPlaceColumn: return FromUtf8(NameOf(place.slot));
    case kScopeColumn: return FromUtf8(ScopeText(place));
    case kHowColumn: return text.how == How::kInstead ? L"instead" : L"after";
    case kTextColumn: return FromUtf8(text.text);
  }
  return {};
}

void OwnReadingsDialog::Refill(std::optional<When> when) {
  const auto kinds = static_cast<ShownKinds>(SendDlgItemMessageW(dialog_, IDC_OWN_KINDS, CB_GETCURSEL, 0, 0));
  isFilling_ = true;
  rows_.Narrow(kinds, dialogs::TextOf(Control(IDC_OWN_TYPED)));
  readings_.SetCount(rows_.Count());
  const int row = when ? rows_.Find(*when) : -1;
  if (rows_.Count() > 0) readings_.SelectOnly({row < 0 ? 0 : row});
  isFilling_ = false;
  const std::wstring all = std::to_wstring(rows_.CountOfAll()) + L" readings";
  const bool areAll = static_cast<size_t>(rows_.Count()) == rows_.CountOfAll();
  SetDlgItemTextW(dialog_, IDC_OWN_COUNT, (areAll ? all : std::to_wstring(rows_.Count()) + L" of " + all).c_str());
  ShowReading();
}

// The own texts of the selected reading, the first of them selected.
void OwnReadingsDialog::ShowReading() {
  const std::optional<When> when = SelectedWhen();
  places_.clear();
  for (const auto& [place, text] : editing_.Now()) {
    if (when && place.when == *when) places_.push_back(place);
  }
  isFilling_ = true;
  ownTexts_.SetCount(static_cast<int>(places_.size()));
  if (!places_.empty()) ownTexts_.SelectOnly({0});
  isFilling_ = false;
  const std::wstring name = when ? FromUtf8(NameOf(*when, LanguageOf(settings_.language))) : L"the reading";
  SetDlgItemTextW(dialog_, IDC_OWN_TEXTS_LABEL, (L"Your own texts of " + name + L":").c_str());
  ShowPreview();
  UpdateButtons();
}

// Seen as the selected own text is, or else as the user has it.
void OwnReadingsDialog::ShowPreview() const {
  const std::optional<When> when = SelectedWhen();
  std::string preview;
  if (when) {
    const std::vector<OwnPlace> selected = SelectedPlaces();
    const Settings settings = SettingsFor(selected.empty() ? OwnPlace{.when = *when} : selected.front(), settings_);
    const std::vector<int32_t> days = NextDaysOf(*when, settings.land, today_, kDatesShown);
    preview = days.empty() ? NoDaysText(settings.land) : PreviewOf(days, settings, OwnReadings(editing_.Now()));
  }
  SetDlgItemTextW(dialog_, IDC_OWN_PREVIEW, dialogs::WithLineEnds(FromUtf8(preview)).c_str());
}

std::optional<When> OwnReadingsDialog::SelectedWhen() const {
  const int row = readings_.FirstSelected();
  if (row < 0 || row >= rows_.Count()) return std::nullopt;
  return rows_.RowAt(row).when;
}

std::vector<OwnPlace> OwnReadingsDialog::SelectedPlaces() const {
  std::vector<OwnPlace> places;
  for (const int row : ownTexts_.Selected()) places.push_back(places_[static_cast<size_t>(row)]);
  return places;
}

// A button that is disabled must not keep the focus.
void OwnReadingsDialog::UpdateButtons() const {
  const int count = ownTexts_.SelectedCount();
  const struct {
    int control;
    bool isUsable;
  } buttons[] = {{IDC_OWN_ADD, SelectedWhen().has_value()},
                 {IDC_OWN_CHANGE, count == 1},
                 {IDC_OWN_RESTORE, count > 0},
                 {IDC_OWN_UNDO, editing_.CanUndo()},
                 {IDC_OWN_EXPORT, !editing_.Now().empty()},
                 {IDC_OWN_RESTORE_ALL, !editing_.Now().empty()}};
  for (const auto& [control, isUsable] : buttons) {
    if (!isUsable && GetFocus() == Control(control)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(readings_.Window()), TRUE);
    }
    EnableWindow(Control(control), isUsable);
  }
}

bool DoOwnReadingsDialog(HWND owner) {
  std::optional<OwnFile> stored;
  const auto read = [&stored] { return (stored = OwnFileNow()).has_value(); };
  if (!dialogs::IsKnownIni(owner, kSettingsFile) || !dialogs::IsKnown(owner, OwnReadingsPath(), read)) return false;
  return OwnReadingsDialog(*stored, StoredSettingsNow(), dialogs::Today()).Run(owner);
}

}  // namespace lections
