#include "zmanim/zmanim_in_use.h"

#include <algorithm>

#include "companion/hours.h"
#include "engine/core/library_count.h"
#include "engine/optional_entries.h"
#include "engine/settings_flags.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/scoped.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/builtin_zmanim_texts.h"
#include "zmanim/core/text_fingerprint.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/custom_zmanim.h"

namespace {

uint32_t CountInUse(bool fromLibrary) {
  return fromLibrary ? std::min(LibraryCount(HoursGetCount()), kMostZmanim) : kBuiltInZmanimCount;
}

std::string HebrewZmanName(uint32_t zman) {
  char text[HOURS_TEXT_SIZE] = "";
  return HoursGetDescriptionHebrew(zman, text) ? text : "";
}

uint64_t SelectionFingerprint() {
  if (OptionalEntries.HoursGetFingerprint) {
    uint32_t halves[2] = {};
    OptionalEntries.HoursGetFingerprint(halves);
    return uint64_t{halves[1]} << 32 | halves[0];
  }
  TextFingerprint fingerprint;
  const uint32_t count = CountInUse(true);
  for (uint32_t zman = 0; zman < count; ++zman) {
    fingerprint.Add(LibraryZmanName(zman));
    fingerprint.Add(HebrewZmanName(zman));
  }
  return fingerprint.value();
}

void Copy(const std::string& text, char (&label)[kTextSize]) {
  label[text.copy(label, kTextSize - 1)] = '\0';
}

}  // namespace

uint32_t GetZmanimCount() {
  return CountInUse(ZmanimEnabled());
}

// The fingerprint comes first: should the selection change while it is read, the labels are not those in use, and the
// next look at them tells.
HGLOBAL DescribeZmanimInUse() {
  const bool fromLibrary = ZmanimEnabled();
  const uint64_t selection = fromLibrary ? SelectionFingerprint() : 0;
  const uint32_t count = CountInUse(fromLibrary);
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, ZmanimLabelsSize(count));
  const ScopedGlobalLock<ZmanimLabels> labels(block);
  if (!labels) return nullptr;
  labels->selection = selection;
  labels->fromLibrary = fromLibrary ? 1 : 0;
  labels->amPm = 0;
  labels->legendLines = 0;
  labels->renewedAt = 0;
  labels->setByHand = CustomZmanimEdition();
  labels->count = count;
  ZmanLabel* const zmanim = labels->zmanim;
  for (uint32_t zman = 0; zman < count; ++zman) {
    Copy(fromLibrary ? LibraryZmanName(zman) : TableString(IDS_FIRST_BUILT_IN_ZMAN + zman), zmanim[zman].english);
    Copy(fromLibrary ? HebrewZmanName(zman) : DisplayHebrewName(kBuiltInZmanimTexts[zman].hebrew), zmanim[zman].hebrew);
  }
  return block;
}

bool AreInUse(const ZmanimLabels& labels) {
  const bool fromLibrary = ZmanimEnabled();
  if (fromLibrary != (labels.fromLibrary != 0)) return false;
  return !fromLibrary || (labels.setByHand == CustomZmanimEdition() && SelectionFingerprint() == labels.selection);
}

std::string LibraryZmanName(uint32_t zman) {
  char text[HOURS_TEXT_SIZE] = "";
  return HoursGetDescription(zman, text) ? text : "";
}

std::optional<uint32_t> LibraryZmanNamed(const std::string& description) {
  const uint32_t count = CountInUse(true);
  for (uint32_t zman = 0; zman < count; ++zman) {
    if (LibraryZmanName(zman) == description) return zman;
  }
  return std::nullopt;
}

bool IsSelected(const std::string& description) {
  return ZmanimEnabled() && LibraryZmanNamed(description);
}
