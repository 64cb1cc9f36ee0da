#include "libraries/dialogs/clipboard.h"

#include <cstring>

namespace dialogs {

bool PutIntoClipboard(HWND owner, const std::wstring& text) {
  const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
  void* const memory = block ? GlobalLock(block) : nullptr;
  if (memory) {
    std::memcpy(memory, text.c_str(), bytes);
    GlobalUnlock(block);
  }
  bool isTaken = false;
  if (memory && OpenClipboard(owner)) {
    EmptyClipboard();
    isTaken = SetClipboardData(CF_UNICODETEXT, block) != nullptr;
    CloseClipboard();
  }
  if (block && !isTaken) GlobalFree(block);
  return isTaken;
}

}  // namespace dialogs
