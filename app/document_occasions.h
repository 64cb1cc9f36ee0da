// What is kept on the days of a document at its place, as the occasions library tells it: what the document's own
// columns of candle lighting and of the end of Shabbat do not tell.
#pragma once

#include <cstdint>
#include <vector>

#include "app/core/document_source.h"
#include "companion/occasions.h"

// Days are asked for in turn, more than once: a stretch of them is fetched at a time and kept until a day beyond it is
// wanted, so that a long range takes no more memory than a short one.
class OccasionsOfDocument {
 public:
  static bool AreKnown();

  // absoluteDay: of the range. Without the library there are none.
  std::vector<DocumentOccasion> On(int32_t absoluteDay, const Location& place, const DateRange& range,
                                   uint32_t language);

 private:
  struct Stretch {
    int32_t firstDay = 0;
    int32_t lastDay = -1;
    bool inHebrew = false;
    bool operator==(const Stretch&) const = default;
  };
  struct OnDay {
    int32_t day;
    DocumentOccasion occasion;
  };
  static int32_t CALLBACK Take(const OccasionsRecord* record, void* self);
  void Fetch(const Location& place);

  Stretch stretch_;
  std::vector<OnDay> occasions_;  // of the stretch, in the order of days and times
};
