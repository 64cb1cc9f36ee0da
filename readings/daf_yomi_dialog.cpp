#include "readings/daf_yomi_dialog.h"

#include <commdlg.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "companion/folio.h"
#include "engine/bound_entries.h"
#include "readings/core/daf_yomi_lines.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/save_dialog.h"
#include "win/scoped.h"

namespace {

constexpr char kCaption[] = "Times/Readings";
constexpr char kExplanation[] =
    "After copying the list into the clipboard by clicking on the button 'Copy to clipboard!', it can be pasted into a "
    "word processor by pressing Ctrl+V and, for example, printed out.\n\nBy clicking on 'Save as file...', the list is "
    "saved as a Windows ANSI text file which can be viewed with NotePad or imported into your word processor.";
constexpr char kLineEnd[] = "\r\n";
constexpr std::size_t kLineEndLength = sizeof kLineEnd - 1;
constexpr std::size_t kUsualLineLength = 64;

std::string MonthNameOf(const CalendarDate& jewish) {
  constexpr uint32_t kEnglish = 1;
  char name[kTextSize] = "";
  LunarCalendar.DatefilterGetMonthNameEx(jewish.uMonth, 0, name, sizeof name, jewish.uYear, kEnglish);
  return name;
}

std::string PageOf(const CalendarDate& date) {
  char page[kTextSize] = "";
  FolioGetWithCycle(date.uDay, date.uMonth, date.uYear, page);
  return page;
}

void FillList(HWND list, const DateRange& range) {
  const ScopedWaitCursor wait;
  const DafYomiSource source = {.absoluteDay = AbsoluteFromDate,
                                .jewishDate = JewishFromAbsolute,
                                .monthName = MonthNameOf,
                                .page = PageOf,
                                .lastDayOfMonth = CivilCalendar.DatefilterGetLastDayOfMonth};
  const int64_t days = 1 + std::abs(int64_t{AbsoluteFromDate(range.end)} - AbsoluteFromDate(range.start));
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  SendMessageA(list, LB_RESETCONTENT, 0, 0);
  SendMessageA(list, LB_INITSTORAGE, static_cast<WPARAM>(days), static_cast<LPARAM>(days * kUsualLineLength));
  ForEachDafYomiLine(range, source, [list](const std::string& line) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  });
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

INT_PTR OnInitDialog(HWND dialog, const DateRange* range) {
  if (!range) return TRUE;
  SetDlgItemTextA(dialog, IDC_DAF_YOMI_EXPLANATION, kExplanation);
  FillList(GetDlgItem(dialog, IDC_DAF_YOMI_LIST), *range);
  return TRUE;
}

// Every line of the list with its line end.
std::string TextOfList(HWND dialog) {
  const HWND list = GetDlgItem(dialog, IDC_DAF_YOMI_LIST);
  const auto count = static_cast<WPARAM>(SendMessageA(list, LB_GETCOUNT, 0, 0));
  std::size_t size = 0;
  for (WPARAM i = 0; i < count; ++i) {
    size += static_cast<std::size_t>(SendMessageA(list, LB_GETTEXTLEN, i, 0)) + kLineEndLength;
  }
  std::string text(size, '\0');
  char* at = text.data();
  for (WPARAM i = 0; i < count; ++i) {
    at += SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(at));
    at = std::copy_n(kLineEnd, kLineEndLength, at);
  }
  return text;
}

HGLOBAL BlockWith(const std::string& text) {
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
  const ScopedGlobalLock<char> bytes(block);
  if (bytes) std::memcpy(bytes.get(), text.c_str(), text.size() + 1);
  return block;
}

void PutIntoClipboard(HWND owner, const std::string& text) {
  const HGLOBAL block = BlockWith(text);
  if (!block) return;
  bool isTaken = false;
  if (OpenClipboard(owner)) {
    EmptyClipboard();
    isTaken = SetClipboardData(CF_TEXT, block) != nullptr;
    CloseClipboard();
  }
  if (!isTaken) GlobalFree(block);
}

void OnCopy(HWND dialog) {
  {
    const ScopedWaitCursor wait;
    PutIntoClipboard(dialog, TextOfList(dialog));
  }
  ShowInformation(dialog, "Data was placed into the clipboard", kCaption);
}

// The name that was chosen last in this run of the program is offered again.
struct ChosenFile {
  char path[kTextSize];
  char title[kTextSize];
};
ChosenFile lastFile{};

bool AskForFile(HWND dialog, ChosenFile& file) {
  OPENFILENAMEA question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = dialog;
  question.lpstrFilter = "Text files (*.txt)\0*.txt\0All files (*.*)\0*.*\0";
  question.lpstrFile = file.path;
  question.nMaxFile = sizeof file.path;
  question.lpstrFileTitle = file.title;
  question.nMaxFileTitle = sizeof file.title;
  question.lpstrDefExt = "txt";
  question.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  if (GetSaveFileNameA(&question)) return true;
  ShowIfNameTooLong(dialog);
  return false;
}

// Whether the file could be created.
bool WriteToFile(const char* path, const std::string& text) {
  const HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  DWORD written = 0;
  WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
  return true;
}

// Deliberate: whether the lines reached the disk is not checked, as it is not for the clipboard; the list can be made
// again at any time.
void OnSave(HWND dialog) {
  ChosenFile file = lastFile;
  if (!AskForFile(dialog, file)) return;
  lastFile = file;
  bool isCreated = false;
  {
    const ScopedWaitCursor wait;
    isCreated = WriteToFile(file.path, TextOfList(dialog));
  }
  const std::string name = file.path;
  if (isCreated) {
    ShowInformation(dialog, ("File " + name + " was written successfully").c_str(), kCaption);
  } else {
    ShowStop(dialog, ("File " + name + " could not be created").c_str(), kCaption);
  }
}

void OnCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK:
    case IDCANCEL: EndDialog(dialog, 0); break;
    case IDC_DAF_YOMI_COPY: OnCopy(dialog); break;
    case IDC_DAF_YOMI_SAVE: OnSave(dialog); break;
  }
}

// Not by the scheme of the other dialogs: a command counts as handled whatever it is, all else is the system's, which
// hands the help key on to the owner.
INT_PTR CALLBACK DafYomiDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, reinterpret_cast<const DateRange*>(lParam));
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam)); return TRUE;
  }
  return FALSE;
}

}  // namespace

void RunDafYomiDialog(HWND owner, const DateRange* range) {
  DialogBoxParamA(GetModuleHandleA(nullptr), "DAFYOMI", owner, DafYomiDialogProc, reinterpret_cast<LPARAM>(range));
}
