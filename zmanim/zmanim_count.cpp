#include "zmanim/zmanim_count.h"

#include <algorithm>

#include "companion/hours.h"
#include "engine/settings_flags.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/zmanim_block.h"

namespace {

uint32_t libraryCount = 0;

}  // namespace

ZmanimInUse GetZmanimInUse() {
  const bool fromLibrary = ZmanimEnabled();
  return {fromLibrary, fromLibrary ? libraryCount : kBuiltInZmanimCount};
}

uint32_t GetZmanimCount() {
  return GetZmanimInUse().count;
}

void RefreshZmanimCount() {
  libraryCount = std::min(HoursGetCount(), kMostZmanim);
}
