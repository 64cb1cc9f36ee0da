#include "app/start_up.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "app/core/notice_line.h"
#include "app/frame_window.h"
#include "app/program.h"
#include "app/unread_at_start.h"
#include "app/version.h"
#include "app/window_classes.h"
#include "companion/kinship.h"
#include "companion/stamp.h"
#include "document/tooltip.h"
#include "engine/library_binding.h"
#include "engine/optional_entries.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/crash_report.h"
#include "win/message_box.h"

ProgramState Program;

namespace {

// The system's tooltips, which the zmanim view uses. Without them it has none.
void RegisterSystemTooltips() {
  const INITCOMMONCONTROLSEX tooltips{sizeof tooltips, ICC_TAB_CLASSES};
  InitCommonControlsEx(&tooltips);
}

// Reports of crashes go where the settings are; without a folder there are none.
void WatchForCrashesInSettingsFolder() {
  constexpr uint32_t kMostBytes = 4096;
  char folder[kMostBytes];
  wchar_t wide[kMostBytes];
  if (!OptionalEntries.ProfileGetFolder || OptionalEntries.ProfileGetFolder(folder, sizeof folder) == 0) return;
  if (MultiByteToWideChar(CP_UTF8, 0, folder, -1, wide, kMostBytes) == 0) return;
  WatchForCrashes(wide, "Times / Readings " FILE_VERSION_TEXT);
}

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

// A failure of the system's, not of what the program needs beside it. Answers the exit code.
int EndWithFailure(const std::string& reason) {
  constexpr int kFailureExitCode = 1;
  const std::string text = "The program cannot start, because " + reason +
                           ".\nPlease close other programs or restart Windows, and start the program again.";
  ShowStop(nullptr, text.c_str(), TableString(IDS_TITLE));
  return kFailureExitCode;
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

// The last bound goes first; it needs none of the others, and none needs it.
void ShutDown() {
  UnloadOccasions();
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
  WatchForCrashesInSettingsFolder();
  Program.instance = instance;
  KinshipInit();
  Program.tooltipBrush = CreateSolidBrush(kTooltipYellow);
  Tooltip = {.window = nullptr, .enabled = true};
  Program.mouseHook = SetWindowsHookExA(WH_MOUSE, TooltipMouseHook, nullptr, GetCurrentThreadId());
  RegisterSystemTooltips();
  ProduceNoticeLine(Program.notice);
  LoadStringTable(instance);
  if (!BindLibraries()) return 0;
  LookUpSolarEntries();
  BindOccasions();
  if (!previousInstance) {
    const char* const refused = RegisterWindowClasses(instance, Program.tooltipBrush);
    if (refused) return EndWithFailure("the window class " + std::string(refused) + " could not be registered");
  }
  if (!GoOnWithUnreadSettings()) return 0;
  if (!CreateFrameWindow(showState)) return EndWithFailure("its main window could not be created");
  const int exitCode = RunMessageLoop();
  ShutDown();
  return exitCode;
}
