#include "companion/kinship.h"

// The library has no window yet, so there is nothing to prepare and nothing to release.
void KinshipInit(void) {}
void KinshipDone(void) {}
void KinshipInvoke(HWND, uint32_t, uint32_t) {}
void KinshipFontDialog(HWND) {}
