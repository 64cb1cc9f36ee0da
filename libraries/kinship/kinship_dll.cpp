#include "companion/kinship.h"

#include "libraries/kinship/font_dialog.h"
#include "libraries/kinship/kinship_window.h"

// The windows make what they need and release it when they are closed, so there is nothing between them.
void KinshipInit(void) {}
void KinshipDone(void) {}

void KinshipInvoke(HWND owner, uint32_t calendar, uint32_t year) try {
  if (calendar == KINSHIP_GREGORIAN) kinship::RunKinshipWindow(owner, year);
} catch (...) {
  MessageBeep(MB_ICONSTOP);  // want of memory
}

void KinshipFontDialog(HWND owner) try { kinship::RunFontDialog(owner); } catch (...) {
  MessageBeep(MB_ICONSTOP);
}
