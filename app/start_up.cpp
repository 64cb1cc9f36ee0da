#include "app/start_up.h"

#include "app/core/notice_line.h"
#include "app/frame_window.h"
#include "app/program.h"
#include "app/window_classes.h"
#include "companion/kinship.h"
#include "companion/stamp.h"
#include "document/tooltip.h"
#include "engine/library_binding.h"
#include "engine/optional_entries.h"
#include "engine/string_table.h"

ProgramState Program;

namespace {

constexpr COLORREF kTooltipYellow = RGB(255, 255, 0);

// On a failure the libraries bound before are unloaded, the last bound first.
bool BindLibraries() {
  if (!BindCivilCalendar()) return false;
  if (!BindLunarCalendar()) {
    UnloadCivilCalendar();
    return false;
  }
  if (!BindSolar()) {
    UnloadLunarCalendar();
    UnloadCivilCalendar();
    return false;
  }
  return true;
}

int RunMessageLoop() {
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (TranslateMDISysAccel(Program.mdiClient, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return static_cast<int>(message.wParam);
}

void ShutDown() {
  UnloadCivilCalendar();
  UnloadLunarCalendar();
  UnloadSolar();
  KinshipDone();
  UnhookWindowsHookEx(Program.mouseHook);
  DeleteObject(Program.tooltipBrush);
}

}  // namespace

int RunProgram(HINSTANCE instance, HINSTANCE previousInstance, LPSTR commandLine, int showState) {
  StampCheck(instance, previousInstance, commandLine, showState);
  LookUpOptionalEntries();
  Program.instance = instance;
  KinshipInit();
  Program.tooltipBrush = CreateSolidBrush(kTooltipYellow);
  Tooltip = {.window = nullptr, .enabled = true};
  Program.mouseHook = SetWindowsHookExA(WH_MOUSE, TooltipMouseHook, nullptr, GetCurrentThreadId());
  ProduceNoticeLine(Program.notice);
  LoadStringTable(instance);
  if (!BindLibraries()) return 0;
  if (!previousInstance && !RegisterWindowClasses(instance, Program.tooltipBrush)) return 0;
  if (!CreateFrameWindow(showState)) return 0;
  const int exitCode = RunMessageLoop();
  ShutDown();
  return exitCode;
}
