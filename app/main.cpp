#include <windows.h>

#include "app/start_up.h"
#include "win/own_folder.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previousInstance, LPSTR commandLine, int showState) {
  LoadFromOwnFolderAndSystemOnly();
  return RunProgram(instance, previousInstance, commandLine, showState);
}
