#include "tests/contract/picker_driver.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstring>

#include "companion/placepick.h"
#include "libraries/placepick/picker_ids.h"

namespace {

constexpr ULONGLONG kPatienceMilliseconds = 20000;
constexpr DWORD kPollMilliseconds = 5;

struct Search {
  std::wstring caption;
  HWND found;
};

BOOL CALLBACK FindDialog(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  wchar_t className[16] = L"";
  GetClassNameW(window, className, std::size(className));
  const bool isIt = processId == GetCurrentProcessId() && IsWindowVisible(window) &&
                    std::wstring(className) == L"#32770" && WindowText(window) == search.caption;
  if (isIt) search.found = window;
  return !isIt;
}

// Runs when the dialog's thread has taken in everything that was posted before.
UINT PostedMark() {
  static const UINT mark = RegisterWindowMessageW(L"TimesReadingsPickerDriver");
  return mark;
}

}  // namespace

bool Eventually(const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + kPatienceMilliseconds;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    Sleep(kPollMilliseconds);
  }
  return true;
}

HWND DialogWithCaption(const std::wstring& caption) {
  Search search = {caption, nullptr};
  EnumWindows(FindDialog, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND WaitForDialog(const std::wstring& caption) {
  HWND dialog = nullptr;
  EXPECT_TRUE(Eventually([&] { return (dialog = DialogWithCaption(caption)) != nullptr; }));
  return dialog;
}

std::wstring ListCell(HWND list, int row, int column) {
  wchar_t text[300] = L"";
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = static_cast<int>(std::size(text));
  SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return text;
}

std::wstring WindowText(HWND window) {
  wchar_t text[1024] = L"";
  SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
  return text;
}

PickerRun::PickerRun(const std::string& name, Owner owner) : name_(name) {
  thread_ = std::thread([this, owner] { Show(owner); });
  dialog_ = WaitForDialog(L"Select Location");
}

PickerRun::~PickerRun() {
  while (!done_) {
    if (const HWND box = DialogWithCaption(L"Times / Readings")) PostMessageW(box, WM_COMMAND, IDOK, 0);
    PostMessageW(dialog_, WM_COMMAND, IDCANCEL, 0);
    Sleep(kPollMilliseconds);
  }
  if (thread_.joinable()) thread_.join();
}

void PickerRun::Show(Owner owner) {
  if (owner == Owner::kWindow) {
    owner_ = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200, nullptr,
                             nullptr, nullptr, nullptr);
  }
  char buffer[256] = "";
  std::strncpy(buffer, name_.c_str(), sizeof buffer - 1);
  result_ = PlacePickSelectLocation(owner_, buffer);
  name_ = buffer;
  done_ = true;
}

// Messages are taken in their order, so the answer to the last one says that all have been.
void PickerRun::TakeIn(HWND window) const {
  static std::atomic<int> taken;
  const int before = taken;
  const HHOOK hook = SetWindowsHookExW(
      WH_GETMESSAGE,
      [](int code, WPARAM removed, LPARAM message) -> LRESULT {
        if (code == HC_ACTION && removed == PM_REMOVE && reinterpret_cast<MSG*>(message)->message == PostedMark()) {
          ++taken;
        }
        return CallNextHookEx(nullptr, code, removed, message);
      },
      nullptr, GetWindowThreadProcessId(window, nullptr));
  PostMessageW(window, PostedMark(), 0, 0);
  EXPECT_TRUE(Eventually([&] { return taken != before || done_ || !IsWindow(window); }));
  UnhookWindowsHookEx(hook);
}

void PickerRun::Type(const std::wstring& text) const {
  for (const wchar_t c : text) PostMessageW(Control(IDC_TYPED), WM_CHAR, c, 0);
  TakeIn(Control(IDC_TYPED));
}

void PickerRun::Press(WPARAM key) const {
  PostMessageW(Control(IDC_TYPED), WM_KEYDOWN, key, 0);
  TakeIn(dialog_);
}

void PickerRun::Click(int button) const {
  SendMessageW(Control(button), BM_CLICK, 0, 0);
}

void PickerRun::DoubleClick(int row) const {
  RECT cell = {LVIR_LABEL, 0, 0, 0};
  SendList(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
  DoubleClickAt({(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
}

void PickerRun::DoubleClickBelowTheRows() const {
  RECT client;
  GetClientRect(Control(IDC_PLACES), &client);
  DoubleClickAt({client.right / 2, client.bottom - 3});
}

void PickerRun::DoubleClickAt(POINT point) const {
  PostMessageW(Control(IDC_PLACES), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
  TakeIn(dialog_);
}

LRESULT PickerRun::SendList(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(Control(IDC_PLACES), message, wParam, lParam);
}

std::vector<std::wstring> PickerRun::Row(int row) const {
  const auto header = reinterpret_cast<HWND>(SendList(LVM_GETHEADER, 0, 0));
  const auto columns = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
  std::vector<std::wstring> cells;
  for (int column = 0; column < columns; ++column) cells.push_back(ListCell(Control(IDC_PLACES), row, column));
  return cells;
}

int PickerRun::RowCount() const {
  return static_cast<int>(SendList(LVM_GETITEMCOUNT, 0, 0));
}

int PickerRun::SelectedRow() const {
  return static_cast<int>(SendList(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

std::wstring PickerRun::SelectedName() const {
  const int row = SelectedRow();
  return row < 0 ? L"" : Row(row).front();
}

bool PickerRun::IsRowVisible(int row) const {
  const auto first = static_cast<int>(SendList(LVM_GETTOPINDEX, 0, 0));
  return row >= first && row < first + static_cast<int>(SendList(LVM_GETCOUNTPERPAGE, 0, 0));
}

bool PickerRun::IsChecked(int button) const {
  return SendMessageW(Control(button), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool PickerRun::Closes() {
  const bool closed = Eventually([this] { return done_.load(); });
  if (closed && thread_.joinable()) thread_.join();
  return closed;
}
