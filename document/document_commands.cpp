#include "document/document_commands.h"

#include "companion/kinship.h"
#include "companion/majority.h"
#include "document/document_window.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/local_date.h"
#include "win/message_box.h"
#include "win/own_folder.h"

namespace {

constexpr char kAlmanacClass[] = "AlmanacApp";
constexpr char kAlmanacProgram[] = "ALMANAC.EXE";
constexpr wchar_t kAlmanacFile[] = L"ALMANAC.EXE";

struct DocumentCommand {
  unsigned id;
  void (*run)(HWND document);
};

// A pane and the view that it belongs to. The first pane of a view gets the focus.
struct ViewPane {
  int pane;
  unsigned view;
};

constexpr ViewPane kPanes[] = {
    {IDC_LIST_PANE, IDB_SHABBAT_TIMES},
    {IDC_HEADER_PANE, IDB_SHABBAT_TIMES},
    {IDC_ZMANIM_PANE, IDB_ZMANIM},
    {IDC_READINGS_PANE, IDB_READINGS},
};

// Only zmanim can be printed, so the Print button is there with their view alone.
template <unsigned view>
void ShowView(HWND document) {
  HWND focus = nullptr;
  for (const ViewPane& row : kPanes) {
    if (row.view != view) ShowWindow(GetDlgItem(document, row.pane), SW_HIDE);
  }
  for (const ViewPane& row : kPanes) {
    if (row.view != view) continue;
    const HWND pane = GetDlgItem(document, row.pane);
    ShowWindow(pane, SW_SHOW);
    if (!focus) focus = pane;
  }
  SetFocus(focus);
  const HWND print = GetDlgItem(GetDlgItem(document, IDC_TOOLBAR), IDB_PRINT);
  ShowWindow(print, view == IDB_ZMANIM ? SW_SHOW : SW_HIDE);
  InvalidateRect(print, nullptr, TRUE);
}

bool BringUpAlmanac() {
  const HWND almanac = FindWindowA(kAlmanacClass, nullptr);
  if (almanac) SetForegroundWindow(almanac);
  return almanac != nullptr;
}

// Started by name, it is looked for in the program's own folder first, but then in others too: a program of that name
// elsewhere is not ours.
bool StartAlmanac() {
  constexpr UINT kFirstSuccess = 33;  // smaller answers of WinExec are error codes
  return IsInOwnFolder(kAlmanacFile) && WinExec(kAlmanacProgram, SW_SHOWNORMAL) >= kFirstSuccess;
}

void GoToAlmanac(HWND document) {
  if (BringUpAlmanac()) return;
  if (!StartAlmanac()) {
    ShowStop(document, "Could not launch ALMANAC.EXE", TableString(IDS_TITLE));
    return;
  }
  BringUpAlmanac();
}

void ShowBirthdays(HWND document) {
  KinshipInvoke(document, KINSHIP_GREGORIAN, LocalDate().uYear);
}

void ShowBarMitzvah(HWND document) {
  MajorityDialogData data;
  MajorityInitDialogData(&data);
  MajorityDoDialog(document, &data);
}

template <unsigned frameCommand>
void Forward(HWND document) {
  SendFrameCommand(document, frameCommand);
}

constexpr DocumentCommand kDocumentCommands[] = {
    {IDB_SHABBAT_TIMES, ShowView<IDB_SHABBAT_TIMES>},
    {IDB_ZMANIM, ShowView<IDB_ZMANIM>},
    {IDB_READINGS, ShowView<IDB_READINGS>},
    {IDB_ALMANAC, GoToAlmanac},
    {IDB_SELECT_LOCATION, Forward<IDM_SELECT_LOCATION>},
    {IDB_EXPORT_TEXT, Forward<IDM_EXPORT_TEXT>},
    {IDB_EXPORT_RTF, Forward<IDM_EXPORT_RTF>},
    {IDB_PRINT, Forward<IDM_PRINT>},
    {IDB_EXIT, Forward<IDM_EXIT>},
    {IDB_HELP, Forward<IDM_HELP>},
    {IDB_BIRTHDAYS, ShowBirthdays},
    {IDB_BAR_MITZVAH, ShowBarMitzvah},
    {IDB_DAF_YOMI, Forward<IDM_DAF_YOMI>},
};

}  // namespace

void RunDocumentCommand(HWND document, unsigned id) {
  for (const DocumentCommand& command : kDocumentCommands) {
    if (command.id == id) command.run(document);
  }
}
