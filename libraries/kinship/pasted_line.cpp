#include "libraries/kinship/pasted_line.h"

#include <commctrl.h>

#include <optional>
#include <string>

#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/person_texts.h"

namespace kinship {
namespace {

constexpr UINT_PTR kSubclassId = 0x9A;  // of this one among those that a control may have

std::optional<std::wstring> ClipboardText(HWND window) {
  if (!OpenClipboard(window)) return std::nullopt;
  std::optional<std::wstring> text;
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (const auto* const characters = memory ? static_cast<const wchar_t*>(GlobalLock(memory)) : nullptr) {
    text = characters;
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

LRESULT CALLBACK EditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(edit, EditProc, id);
  if (message != WM_PASTE) return DefSubclassProc(edit, message, wParam, lParam);
  try {
    const std::optional<std::wstring> text = ClipboardText(edit);
    if (!text) return 0;
    const std::wstring line = dialogs::FromUtf8(OneLine(dialogs::ToUtf8(*text)));
    return SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(line.c_str()));
  } catch (...) {
    return 0;
  }
}

}  // namespace

void TakePastedLines(HWND edit) {
  SetWindowSubclass(edit, EditProc, kSubclassId, 0);
}

}  // namespace kinship
