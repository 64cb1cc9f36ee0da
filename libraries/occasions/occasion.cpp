#include "libraries/occasions/occasion.h"

#include <iterator>

namespace occasions {
namespace {

using enum Kind;

struct OccasionTraits {
  const char* id;
  Kind kind;
};

// In the order of Occasion.
constexpr OccasionTraits kTraits[] = {
    {"rosh-hashana", kYomTov},
    {"yom-kippur", kYomTov},
    {"sukkot", kYomTov},
    {"chol-hamoed-sukkot", kYomTov},
    {"hoshana-rabba", kYomTov},
    {"shemini-atzeret", kYomTov},
    {"simchat-torah", kYomTov},
    {"pesach", kYomTov},
    {"chol-hamoed-pesach", kYomTov},
    {"shavuot", kYomTov},
    {"shabbat", kShabbat},
    {"eruv-tavshilin", kYomTov},
    {"fast-of-gedaliah", kFast},
    {"10-tevet", kFast},
    {"fast-of-esther", kFast},
    {"fast-of-firstborn", kFast},
    {"17-tammuz", kFast},
    {"tisha-beav", kFast},
    {"fast-of-yom-kippur", kFast},
    {"search-for-chametz", kChametz},
    {"chametz", kChametz},
    {"chanukah", kChanukah},
    {"purim", kMinorDay},
    {"shushan-purim", kMinorDay},
    {"purim-meshulash", kMinorDay},
    {"purim-katan", kMinorDay},
    {"shushan-purim-katan", kMinorDay},
    {"tu-bishvat", kMinorDay},
    {"pesach-sheni", kMinorDay},
    {"lag-baomer", kMinorDay},
    {"tu-beav", kMinorDay},
    {"omer", kOmer},
    {"rosh-chodesh", kNewMonth},
    {"molad", kNewMonth},
    {"kiddush-levana", kKiddushLevana},
    {"shabbat-mevarchim", kNamedShabbat},
    {"shabbat-shekalim", kNamedShabbat},
    {"shabbat-zachor", kNamedShabbat},
    {"shabbat-parah", kNamedShabbat},
    {"shabbat-hachodesh", kNamedShabbat},
    {"shabbat-hagadol", kNamedShabbat},
    {"shabbat-chazon", kNamedShabbat},
    {"shabbat-nachamu", kNamedShabbat},
    {"shabbat-shuva", kNamedShabbat},
    {"shabbat-shira", kNamedShabbat},
    {"yom-hashoah", kModernDay},
    {"yom-hazikaron", kModernDay},
    {"yom-haatzmaut", kModernDay},
    {"yom-yerushalayim", kModernDay},
    {"tekufa", kSeason},
    {"tal-umatar", kSeason},
    {"blessing-of-the-sun", kSeason},
    {"selichot", kSupplication},
    {"behab", kSupplication},
};
static_assert(std::size(kTraits) == kOccasions);

// In the order of Moment.
constexpr const char* kMomentIds[] = {"day",          "candles", "end",   "fast-begins", "fast-ends", "eating-ends",
                                      "burning-ends", "lights",  "count", "instant",     "from",      "until"};
static_assert(std::size(kMomentIds) == kMoments);

// In the order of Kind.
constexpr const char* kKindIds[] = {"shabbat",    "yom-tov", "fast",        "chametz",        "chanukah",
                                    "minor-day",  "omer",    "new-month",   "kiddush-levana", "named-shabbat",
                                    "modern-day", "season",  "supplication"};
static_assert(std::size(kKindIds) == kKinds);

}  // namespace

Kind KindOf(Occasion occasion) {
  return kTraits[static_cast<size_t>(occasion)].kind;
}

bool IsOfKind(const Row& row, Kind kind) {
  if (KindOf(row.occasion) == kind) return true;
  const bool isOfShabbat = (row.moment == Moment::kCandles && (row.notes & kOnShabbat) != 0) ||
                           (row.moment == Moment::kEnd && (row.notes & kEndsShabbat) != 0);
  const bool isOfYomTov = row.moment == Moment::kEnd && (row.notes & kEndsYomTov) != 0;
  return (kind == kShabbat && isOfShabbat) || (kind == kYomTov && isOfYomTov);
}

const char* IdOf(Occasion occasion) {
  return kTraits[static_cast<size_t>(occasion)].id;
}

const char* IdOf(Moment moment) {
  return kMomentIds[static_cast<size_t>(moment)];
}

const char* IdOf(Kind kind) {
  return kKindIds[static_cast<size_t>(kind)];
}

}  // namespace occasions
