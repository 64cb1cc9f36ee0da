#include "tests/program/program_fixture.h"

#include "app/frame_window.h"
#include "app/program.h"
#include "app/window_classes.h"
#include "document/tooltip.h"
#include "engine/current.h"
#include "engine/library_binding.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "win/scoped.h"
#include "zmanim/zmanim_in_use.h"

void ProgramTest::SetUp() {
  ResetLibraries();
  ResetBoundLibraries();
  ResetSystem();
  OptionalEntries = {};
  Program = {};
  Program.instance = GetModuleHandleA(nullptr);
  Tooltip = {.window = nullptr, .enabled = true};
  CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  CurrentRange = {{5, 1, 2007}, {1, 2, 2007}};  // a Friday to a Thursday: four Fridays
  CandleOverride = {true, 0};
  static const bool ready = [] {
    LoadStringTable(Program.instance);
    return RegisterWindowClasses(Program.instance, CreateSolidBrush(RGB(255, 255, 0))) == nullptr;
  }();
  ASSERT_TRUE(ready);
  CallLog().clear();
}

void ProgramTest::TearDown() {
  if (frame_) DestroyWindow(frame_);
  UnloadCivilCalendar();
  UnloadLunarCalendar();
  UnloadSolar();
  DispatchPendingMessages();  // the frame's quit message must not reach the next test
}

HWND ProgramTest::OpenFrame() {
  frame_ = CreateFrameWindow(SW_SHOWNORMAL);
  EXPECT_NE(frame_, nullptr);
  return frame_;
}

void DispatchPendingMessages() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
}

std::string TextOf(HWND window) {
  char text[512] = "";
  GetWindowTextA(window, text, sizeof text);
  return text;
}

std::string ClassOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

int CountDocuments() {
  int count = 0;
  for (HWND child = GetWindow(Program.mdiClient, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) ++count;
  return count;
}

std::vector<std::string> CallsWith(const std::string& prefix) {
  std::vector<std::string> calls;
  for (const std::string& call : CallLog()) {
    if (call.starts_with(prefix)) calls.push_back(call);
  }
  return calls;
}

std::vector<ShabbatTimeEntry> ShabbatTimesOf(HWND document) {
  const ScopedGlobalLock<const ShabbatTimesList> list(GetBlockProperty(document, property::kShabbatTimes));
  if (!list) return {};
  return {list->entries, list->entries + list->count};
}

std::vector<Draw> DrawsOf(HWND pane) {
  Libraries().draws.clear();
  RedrawWindow(pane, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  return Libraries().draws;
}
