#include "tests/contract/dialog_driver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <tuple>
#include <utility>

namespace {

constexpr int kMessageTextId = 0xFFFF;  // of a message box, as the system numbers it

BOOL CALLBACK CollectDialog(HWND window, LPARAM wanted) {
  wchar_t name[16];
  GetClassNameW(window, name, 16);
  if (std::wstring(name) == L"#32770") reinterpret_cast<std::vector<HWND>*>(wanted)->push_back(window);
  return TRUE;
}

bool IsMessageBox(HWND dialog) {
  return GetDlgItem(dialog, kMessageTextId) != nullptr;
}

HWND MakeOwner() {
  return CreateWindowW(L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr, nullptr,
                       nullptr);
}

}  // namespace

DialogDriver::DialogDriver(std::function<int32_t(HWND owner)> call) {
  std::promise<std::pair<DWORD, HWND>> started;
  std::future<std::pair<DWORD, HWND>> start = started.get_future();
  thread_ = std::thread([this, started = std::move(started), call = std::move(call)]() mutable {
    const HWND owner = MakeOwner();
    started.set_value({GetCurrentThreadId(), owner});
    result_ = call(owner);
    DestroyWindow(owner);
  });
  std::tie(threadId_, owner_) = start.get();
}

DialogDriver::~DialogDriver() {
  if (!thread_.joinable()) return;
  ADD_FAILURE() << "a dialog was left open";
  EndDialogs();
  thread_.join();
}

std::vector<HWND> DialogDriver::Dialogs() const {
  std::vector<HWND> dialogs;
  EnumThreadWindows(threadId_, CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
  return dialogs;
}

// Answers whatever is asked until the thread has no dialog any more.
void DialogDriver::EndDialogs() const {
  while (IsWindow(owner_)) {
    for (const HWND dialog : Dialogs()) {
      for (const int button : {IDCANCEL, IDYES, IDOK}) Press(dialog, button);
    }
    Sleep(10);
  }
}

HWND DialogDriver::WaitFor(const std::wstring& caption) const {
  return WaitForDialog(caption, [](HWND dialog) { return !IsMessageBox(dialog); });
}

HWND DialogDriver::WaitForDialog(const std::wstring& caption, const std::function<bool(HWND)>& isKind) const {
  HWND found = nullptr;
  const auto isThere = [&] {
    for (const HWND dialog : Dialogs()) {
      const bool isInUse = IsWindowVisible(dialog) && IsWindowEnabled(dialog);
      if (isInUse && isKind(dialog) && WindowText(dialog) == caption) found = dialog;
    }
    return found != nullptr;
  };
  EXPECT_TRUE(Eventually(isThere)) << "no dialog of that caption";
  return found;
}

bool DialogDriver::WaitUntilGone(HWND window) const {
  return Eventually([window] { return !IsWindow(window); });
}

int32_t DialogDriver::Result() {
  if (Eventually([this] { return !IsWindow(owner_); })) {
    thread_.join();
  } else {
    ADD_FAILURE() << "the dialog does not end";
    EndDialogs();
    thread_.join();
  }
  return result_;
}

std::wstring DialogDriver::Answer(const std::wstring& caption, HWND owner, const char* icon, int buttonId) const {
  const HWND box = WaitForDialog(caption, IsMessageBox);
  if (!box) return {};
  EXPECT_EQ(GetWindow(box, GW_OWNER), owner);
  // The box's picture is its only static with an icon.
  HWND picture = nullptr;
  while ((picture = FindWindowExW(box, picture, L"Static", nullptr))) {
    if (GetWindowLongPtrW(picture, GWL_STYLE) & SS_ICON) break;
  }
  EXPECT_EQ(reinterpret_cast<HICON>(SendMessageW(picture, STM_GETICON, 0, 0)), LoadIconA(nullptr, icon));
  const std::wstring text = ControlText(box, kMessageTextId);
  Press(box, buttonId);
  EXPECT_TRUE(WaitUntilGone(box));
  return text;
}

HWND DialogDriver::Focus() const {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(threadId_, &info) ? info.hwndFocus : nullptr;
}

bool DialogDriver::WaitForFocus(HWND window) const {
  return Eventually([this, window] { return Focus() == window; });
}

void Press(HWND dialog, int buttonId) {
  const HWND button = GetDlgItem(dialog, buttonId);
  PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(buttonId), reinterpret_cast<LPARAM>(button));
}

void PressKey(HWND control, WPARAM key) {
  PostMessageW(control, WM_KEYDOWN, key, 1);
}

std::wstring ControlText(HWND dialog, int controlId) {
  return WindowText(GetDlgItem(dialog, controlId));
}

void SetControlText(HWND dialog, int controlId, const std::wstring& text) {
  SendDlgItemMessageW(dialog, controlId, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

bool IsAllSelected(HWND edit) {
  DWORD start = 1;
  DWORD end = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return start == 0 && end == static_cast<DWORD>(SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0));
}

Resources ResourcesNow() {
  Resources resources;
  GetProcessHandleCount(GetCurrentProcess(), &resources.handles);
  HANDLE heaps[64];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  for (DWORD i = 0; i < count; ++i) {
    HeapLock(heaps[i]);
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heaps[i], &entry)) {
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) resources.heapBytes += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  return resources;
}
