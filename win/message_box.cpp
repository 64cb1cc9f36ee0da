#include "win/message_box.h"

#include <string>

void ShowStop(HWND owner, const char* text, const char* caption) {
  MessageBoxA(owner, text, caption, MB_OK | MB_ICONHAND);
}

void ShowInformation(HWND owner, const char* text, const char* caption) {
  MessageBoxA(owner, text, caption, MB_OK | MB_ICONINFORMATION);
}

bool Ask(HWND owner, const char* text, const char* caption) {
  return MessageBoxA(owner, text, caption, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool AskToRetry(HWND owner, const char* text, const char* caption) {
  return MessageBoxA(owner, text, caption, MB_RETRYCANCEL | MB_ICONWARNING) == IDRETRY;
}

Onward AskHowToGoOn(HWND owner, const char* text, const char* caption) {
  switch (MessageBoxA(owner, text, caption, MB_CANCELTRYCONTINUE | MB_ICONWARNING | MB_DEFBUTTON2)) {
    case IDTRYAGAIN: return Onward::kTryAgain;
    case IDCONTINUE: return Onward::kContinue;
  }
  return Onward::kCancel;
}

void ShowUnwritableSettings(HWND owner, const char* file) {
  const std::string text = "The settings could not be saved to the file " + std::string(file) +
                           ".\nPlease check that its folder can be written to and that the disk is not full, and try "
                           "again.";
  ShowStop(owner, text.c_str(), "Error");
}
