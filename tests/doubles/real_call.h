// The system's own functions, past the replaced imports: REAL("kernel32.dll", GlobalLock).
#pragma once

#include <windows.h>

#include <cstring>

template <typename Function>
Function RealCall(const char* module, const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleA(module), name);
  Function function;
  std::memcpy(&function, &found, sizeof function);
  return function;
}

#define REAL(module, name) (RealCall<decltype(&name)>(module, #name))
