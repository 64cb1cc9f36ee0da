#include "companion/hours.h"

// The catalogue that the user chooses from is still empty, and so is the selection.
uint32_t HoursGetCount(void) {
  return 0;
}
