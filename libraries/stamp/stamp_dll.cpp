#include "companion/stamp.h"

#include <string>

#include "libraries/stamp/form_dialog.h"
#include "libraries/stamp/form_setting.h"
#include "libraries/stamp/stamp_core.h"

namespace {

// Asked for every time shown: both settings are read from memory.
stamp::Form FormNow() {
  return stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm());
}

}  // namespace

void StampCheck(HINSTANCE, HINSTANCE, LPSTR, int) {
  FormNow();
}

int32_t StampIsAmPm(void) {
  return FormNow() == stamp::Form::kTwelveHours;
}

void StampConvert(int32_t hour, int32_t minute, char* text) try {
  if (!text) return;
  text[stamp::TimeText(hour, minute, FormNow()).copy(text, STAMP_TEXT_SIZE - 1)] = '\0';
} catch (...) {
  text[0] = '\0';
}

int32_t StampConfigure(HWND owner) try { return stamp::DoFormDialog(owner); } catch (...) {
  return 0;
}
