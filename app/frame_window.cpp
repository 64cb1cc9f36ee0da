#include "app/frame_window.h"

#include "app/default_location.h"
#include "app/frame_commands.h"
#include "app/help_key.h"
#include "app/menu_update.h"
#include "app/open_document.h"
#include "app/program.h"
#include "document/tooltip.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/local_date.h"

namespace {

constexpr int kWindowSubmenu = 1;  // takes the list of documents
constexpr int kMdiClientId = 1;
constexpr int32_t kDefaultRangeDays = 31;  // after today

HWND CreateMdiClient(HWND frame) {
  CLIENTCREATESTRUCT create{};
  create.hWindowMenu = GetSubMenu(GetMenu(frame), kWindowSubmenu);
  create.idFirstChild = IDM_FIRST_DOCUMENT;
  return CreateWindowExA(0, "MDICLIENT", "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0, frame,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(kMdiClientId)), Program.instance, &create);
}

LRESULT OnCreate(HWND frame) {
  Program.mdiClient = CreateMdiClient(frame);
  if (!Program.mdiClient) return -1;
  LoadDefaultLocation();
  ApplyCandleOverrideRule();
  CurrentRange.start = LocalDate();
  CurrentRange.end = DateFromAbsolute(AbsoluteFromDate(CurrentRange.start) + kDefaultRangeDays);
  OpenAndCompute(frame);
  return 0;
}

LRESULT OnDestroy() {
  DestroyWindow(Program.mdiClient);
  Program.mdiClient = nullptr;
  PostQuitMessage(0);
  return 0;
}

LRESULT OnSize(int clientWidth, int clientHeight) {
  MoveWindow(Program.mdiClient, 0, 0, clientWidth, clientHeight, TRUE);
  return 0;
}

}  // namespace

LRESULT CALLBACK FrameWindowProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(frame);
    case WM_DESTROY: return OnDestroy();
    case WM_SIZE:
      DefFrameProcA(frame, Program.mdiClient, message, wParam, lParam);
      return OnSize(LOWORD(lParam), HIWORD(lParam));
    case WM_ACTIVATEAPP: OnApplicationActivated(wParam != 0); break;
    case WM_COMMAND: {
      const LRESULT result = DefFrameProcA(frame, Program.mdiClient, message, wParam, lParam);
      RunFrameCommand(frame, LOWORD(wParam));
      return result;
    }
    case WM_INITMENU: UpdateMenus(frame); break;
    case WM_HELP: ShowHelpWhere(frame, *reinterpret_cast<const HELPINFO*>(lParam)); return TRUE;
  }
  return DefFrameProcA(frame, Program.mdiClient, message, wParam, lParam);
}

HWND CreateFrameWindow(int showState) {
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height =
      GetSystemMetrics(SM_CYSCREEN) - GetSystemMetrics(SM_CYCAPTION) - 2 * GetSystemMetrics(SM_CYSIZEFRAME);
  const HWND frame =
      CreateWindowExA(0, window_class::kFrame, TableString(IDS_TITLE), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0,
                      width, height, nullptr, nullptr, Program.instance, nullptr);
  if (frame) ShowWindow(frame, showState);
  return frame;
}
