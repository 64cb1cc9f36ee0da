// Is loaded by the system into the program that the monkey drives.
#include <windows.h>

#include "tests/monkey/marker/marker.h"

extern "C" __declspec(dllexport) LRESULT CALLBACK NoteMarker(int code, WPARAM removal, LPARAM parameter) {
  static const UINT marker = RegisterWindowMessageA(kMarkerMessage);
  const MSG& message = *reinterpret_cast<const MSG*>(parameter);
  if (code == HC_ACTION && removal == PM_REMOVE && message.message == marker) {
    SetPropA(message.hwnd, kMarkerProperty, reinterpret_cast<HANDLE>(message.wParam));
  }
  return CallNextHookEx(nullptr, code, removal, parameter);
}
