#include <algorithm>
#include <cstring>
#include <string>

#include "companion/folio.h"
#include "libraries/folio/folio_core.h"

namespace {

constexpr std::size_t kBufferSize = 256;

}  // namespace

void FolioGetWithCycle(uint32_t day, uint32_t month, uint32_t year, char* text) {
  if (!text) return;
  text[0] = '\0';
  try {
    const std::string leaf = folio::LeafText(day, month, year);
    const std::size_t length = std::min(leaf.size(), kBufferSize - 1);
    std::memcpy(text, leaf.data(), length);
    text[length] = '\0';
  } catch (...) {  // without memory there is no text
  }
}
