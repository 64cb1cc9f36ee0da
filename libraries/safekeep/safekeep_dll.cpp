#include "companion/safekeep.h"
#include "libraries/safekeep/back_up.h"
#include "libraries/safekeep/restore.h"

// An exception can only be want of memory.

int32_t SafekeepBackUp(HWND owner) try { return safekeep::BackUp(owner) ? 1 : 0; } catch (...) {
  MessageBeep(MB_ICONSTOP);
  return 0;
}

int32_t SafekeepRestore(HWND owner) try { return safekeep::Restore(owner) ? 1 : 0; } catch (...) {
  MessageBeep(MB_ICONSTOP);
  return 0;
}
