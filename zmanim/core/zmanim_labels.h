// The block behind the window property ZmanimLabels: which zmanim the times of a document's ZmanimTimes are those of.
// It is made with the times and replaced with them, so that no time ever stands under another zman's name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/core/records.h"

// Descriptions, empty where there is none. The Hebrew one is in the display font, in reading order.
struct ZmanLabel {
  char english[kTextSize];
  char hebrew[kTextSize];
};

struct ZmanimLabels {
  uint64_t selection;    // fingerprint of the user's selection; 0 for the built-in zmanim
  uint32_t fromLibrary;  // 1: the user's selection; 0: the built-in zmanim
  uint32_t amPm;         // 1: the view is laid out for times of 12 hours, whose columns are wider
  uint32_t legendLines;  // that the view is laid out for
  uint32_t renewedAt;    // the tick at which the document got these labels in place of others; 0: it had none before
  uint32_t setByHand;    // the edition of the times set by hand (custom_zmanim.h) that the document's times heed
  uint32_t count;
  ZmanLabel zmanim[1];
};
static_assert(offsetof(ZmanimLabels, zmanim) == 32);

// The size in bytes of a block of count zmanim.
constexpr std::size_t ZmanimLabelsSize(uint32_t count) {
  return offsetof(ZmanimLabels, zmanim) + count * sizeof(ZmanLabel);
}

// All descriptions of one language.
inline std::vector<std::string> NamesOf(const ZmanimLabels& labels, const char (ZmanLabel::*language)[kTextSize]) {
  std::vector<std::string> names;
  names.reserve(labels.count);
  for (uint32_t zman = 0; zman < labels.count; ++zman) names.emplace_back(labels.zmanim[zman].*language);
  return names;
}
