#include "libraries/folio/folio_core.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "libraries/calendar/gregorian.h"

namespace folio {
namespace {

struct Tractate {
  const char* name;
  int32_t firstLeaf;
  int32_t lastLeaf;
};

// In the order of the cycle, the leaves as the Vilna edition counts them: a tractate opens with leaf 2, but three small
// ones go on from the leaf on which Meilah ends. Shekalim, which is from the Jerusalem Talmud, has 22 leaves since the
// eighth cycle took another edition of it; the earlier cycles counted 13.
constexpr Tractate kTractates[] = {
    {"Berachot", 2, 64},     {"Shabbat", 2, 157},     {"Eruvin", 2, 105},      {"Pesachim", 2, 121},
    {"Shekalim", 2, 22},     {"Yoma", 2, 88},         {"Sukkah", 2, 56},       {"Beitzah", 2, 40},
    {"Rosh Hashana", 2, 35}, {"Taanit", 2, 31},       {"Megillah", 2, 32},     {"Moed Katan", 2, 29},
    {"Chagigah", 2, 27},     {"Yevamot", 2, 122},     {"Ketubot", 2, 112},     {"Nedarim", 2, 91},
    {"Nazir", 2, 66},        {"Sotah", 2, 49},        {"Gittin", 2, 90},       {"Kiddushin", 2, 82},
    {"Bava Kamma", 2, 119},  {"Bava Metzia", 2, 119}, {"Bava Batra", 2, 176},  {"Sanhedrin", 2, 113},
    {"Makkot", 2, 24},       {"Shevuot", 2, 49},      {"Avodah Zarah", 2, 76}, {"Horayot", 2, 14},
    {"Zevachim", 2, 120},    {"Menachot", 2, 110},    {"Chullin", 2, 142},     {"Bechorot", 2, 61},
    {"Arachin", 2, 34},      {"Temurah", 2, 34},      {"Keritot", 2, 28},      {"Meilah", 2, 22},
    {"Kinnim", 23, 25},      {"Tamid", 26, 33},       {"Midot", 34, 37},       {"Niddah", 2, 73},
};
constexpr std::size_t kTractateCount = std::size(kTractates);
constexpr std::size_t kShekalim = 4;
constexpr int32_t kEarlierLastLeafOfShekalim = 13;

// The day of the cycle, from 0, on which each tractate begins; the last number is the days of the cycle.
using Starts = std::array<int32_t, kTractateCount + 1>;

constexpr Starts StartsWhenShekalimEndsOn(int32_t lastLeafOfShekalim) {
  Starts starts{};
  int32_t day = 0;
  for (std::size_t i = 0; i < kTractateCount; ++i) {
    starts[i] = day;
    const int32_t lastLeaf = i == kShekalim ? lastLeafOfShekalim : kTractates[i].lastLeaf;
    day += lastLeaf - kTractates[i].firstLeaf + 1;
  }
  starts.back() = day;
  return starts;
}

constexpr Starts kEarlierStarts = StartsWhenShekalimEndsOn(kEarlierLastLeafOfShekalim);
constexpr Starts kStarts = StartsWhenShekalimEndsOn(kTractates[kShekalim].lastLeaf);
static_assert(kEarlierStarts.back() == 2702);
static_assert(kStarts.back() == 2711);

constexpr int32_t kFirstDay = 702249;  // Rata Die of 11 September 1923, 1 Tishri 5684
constexpr int32_t kEarlierCycles = 7;
constexpr int32_t kEarlierDays = kEarlierCycles * kEarlierStarts.back();  // to 23 June 1975

Leaf LeafInCycle(const Starts& starts, int32_t dayOfCycle, int32_t cycle) {
  const auto next = std::ranges::upper_bound(starts, dayOfCycle);
  const auto index = static_cast<std::size_t>(next - starts.begin() - 1);
  const Tractate& tractate = kTractates[index];
  return {tractate.name, tractate.firstLeaf + dayOfCycle - starts[index], cycle};
}

}  // namespace

std::optional<Leaf> LeafOf(int32_t absoluteDay) {
  if (absoluteDay < kFirstDay) return std::nullopt;
  const int32_t day = absoluteDay - kFirstDay;
  if (day < kEarlierDays) {
    return LeafInCycle(kEarlierStarts, day % kEarlierStarts.back(), 1 + day / kEarlierStarts.back());
  }
  const int32_t later = day - kEarlierDays;
  return LeafInCycle(kStarts, later % kStarts.back(), 1 + kEarlierCycles + later / kStarts.back());
}

std::string LeafText(uint32_t day, uint32_t month, uint32_t year) {
  if (!calendar::IsGregorianDate(day, month, year)) return "no such date";
  const std::optional<Leaf> leaf = LeafOf(calendar::AbsoluteFromGregorian(
      {static_cast<int32_t>(day), static_cast<int32_t>(month), static_cast<int32_t>(year)}));
  if (!leaf) return "no Daf Yomi before 11 September 1923";
  return std::string(leaf->tractate) + ' ' + std::to_string(leaf->number) + " (cycle " + std::to_string(leaf->cycle) +
         ')';
}

}  // namespace folio
