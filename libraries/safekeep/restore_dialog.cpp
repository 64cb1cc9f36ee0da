#include "libraries/safekeep/restore_dialog.h"

#include <commctrl.h>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/row_list.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/safekeep/restore_plan.h"
#include "libraries/safekeep/safekeep_ids.h"
#include "libraries/safekeep/settings_files.h"

namespace safekeep {
namespace {

using dialogs::Anchor;
using dialogs::Follow;

constexpr char kSizeFile[] = "safekeep.ini";

constexpr Anchor kAnchors[] = {
    {IDC_BACKUP, Follow::kGrow, Follow::kNo},  {IDC_FILES_LABEL, Follow::kNo, Follow::kNo},
    {IDC_FILES, Follow::kGrow, Follow::kGrow}, {IDC_AFTERWARDS, Follow::kGrow, Follow::kMove},
    {IDOK, Follow::kMove, Follow::kMove},      {IDCANCEL, Follow::kMove, Follow::kMove},
};

enum Column { kWhatColumn, kFateColumn, kFileColumn, kBackupColumn, kNowColumn, kColumns };
constexpr dialogs::ListColumn kListColumns[kColumns] = {{L"Settings", L"Mmmmmmmmmmmm", 3},
                                                        {L"On restoring", L"stays: not in the backup", 0},
                                                        {L"File", L"almanacelevation.ini", 0},
                                                        {L"In the backup of", L"2026-12-28 08:08", 0},
                                                        {L"Now of", L"2026-12-28 08:08", 0}};

std::wstring CellText(const PlannedFile& file, int column) {
  switch (column) {
    case kWhatColumn: return dialogs::FromUtf8(file.what);
    case kFateColumn: return dialogs::FromUtf8(InWords(file.fate));
    case kFileColumn: return dialogs::FromUtf8(file.name);
    case kBackupColumn: return dialogs::FromUtf8(file.inBackup);
    case kNowColumn: return dialogs::FromUtf8(file.now);
  }
  return {};
}

class RestoreDialog {
 public:
  RestoreDialog(const std::wstring& path, const Backup& backup, const std::vector<ZipEntry>& present)
      : plan_(PlanOf(backup.files, present)),
        backup_(L"This backup was made on " + dialogs::FromUtf8(MinuteText(backup.made)) + L" by version " +
                dialogs::FromUtf8(backup.version) + L" of the program:\n" + path),
        afterwards_(present.empty() ? L"There are no settings now."
                                    : L"The present settings are first backed up in the folder\n" + BackupsFolder()) {}

  // Whether the user agrees.
  bool Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control);
  INT_PTR OnNotify(NMHDR& header) const;
  void ShowText(int control, const std::wstring& text) const;

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  const std::vector<PlannedFile> plan_;
  const std::wstring backup_;
  const std::wstring afterwards_;
  HWND dialog_ = nullptr;
  dialogs::RowList list_;
  dialogs::ResizableDialog size_;
};

bool RestoreDialog::Run(HWND owner) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  return dialogs::RunDialog(owner, IDD_RESTORE, dialogs::ClassDialogProc<RestoreDialog>, this) == IDOK;
}

INT_PTR RestoreDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_SIZE: return OnSize();
    case WM_GETMINMAXINFO: size_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return TRUE;
    case WM_EXITSIZEMOVE: size_.KeepSize(); return TRUE;
    case WM_COMMAND: return OnCommand(LOWORD(wParam));
    case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR RestoreDialog::OnInitDialog() {
  list_.Start(Control(IDC_FILES), kListColumns);
  size_.Start(dialog_, kAnchors, kSizeFile);
  OnSize();
  ShowText(IDC_BACKUP, backup_);
  ShowText(IDC_AFTERWARDS, afterwards_);
  list_.SetCount(static_cast<int>(plan_.size()));
  list_.SelectOnly({0});
  SetFocus(list_.Window());
  return FALSE;
}

INT_PTR RestoreDialog::OnSize() {
  size_.ArrangeControls();
  list_.FitColumns();
  return TRUE;
}

INT_PTR RestoreDialog::OnCommand(int control) {
  if (control != IDOK && control != IDCANCEL) return FALSE;
  EndDialog(dialog_, control);
  return TRUE;
}

INT_PTR RestoreDialog::OnNotify(NMHDR& header) const {
  if (header.idFrom != IDC_FILES || header.code != LVN_GETDISPINFOW) return FALSE;
  const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
  const size_t row = static_cast<size_t>(item.iItem);
  if (!(item.mask & LVIF_TEXT) || row >= plan_.size()) return FALSE;
  lstrcpynW(item.pszText, CellText(plan_[row], item.iSubItem).c_str(), item.cchTextMax);
  return TRUE;
}

void RestoreDialog::ShowText(int control, const std::wstring& text) const {
  SetDlgItemTextW(dialog_, control, dialogs::WithLineEnds(text).c_str());
}

}  // namespace

bool AskWhetherToRestore(HWND owner, const std::wstring& path, const Backup& backup,
                         const std::vector<ZipEntry>& present) {
  return RestoreDialog(path, backup, present).Run(owner);
}

}  // namespace safekeep
