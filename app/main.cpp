#include <windows.h>

#include "app/start_up.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previousInstance, LPSTR commandLine, int showState) {
  return RunProgram(instance, previousInstance, commandLine, showState);
}
