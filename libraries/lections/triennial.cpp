#include "libraries/lections/triennial.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "libraries/lections/reading_tables.h"

namespace lections {
namespace {

using namespace calendar;

constexpr int32_t kFirstYear = 5744;
constexpr int32_t kYears = 3;

using Thirds = std::array<Passage, kYears>;

struct PlainRow {
  Portion portion;
  Thirds thirds;
};

// A portion of a pair in a year in which it is read alone: the pair's pattern says for each year of the cycle whether
// the two are read together or separately.
struct SeparateRow {
  Portion portion;
  std::string_view pattern;
  Thirds thirds;
};

// R. Eisenberg, "A Complete Triennial System for Reading the Torah", Committee on Jewish Law and Standards of the
// Rabbinical Assembly, 1988, with its later additions for Israel, as @hebcal/triennial 6.0.2 lists it; but Behar in the
// second year of TSS, for which that program goes on into the next portion. Portions that are not here are read whole.
// clang-format off
constexpr PlainRow kPlain[] = {
    {kBereshit, {"Genesis 1:1-2:3", "Genesis 2:4-4:26", "Genesis 5:1-6:8"}},
    {kNoach, {"Genesis 6:9-8:14", "Genesis 8:15-10:32", "Genesis 11:1-32"}},
    {kLechLecha, {"Genesis 12:1-13:18", "Genesis 14:1-15:21", "Genesis 16:1-17:27"}},
    {kVayera, {"Genesis 18:1-33", "Genesis 19:1-20:18", "Genesis 21:1-22:24"}},
    {kChayeiSarah, {"Genesis 23:1-24:9", "Genesis 24:10-52", "Genesis 24:53-25:18"}},
    {kToldot, {"Genesis 25:19-26:22", "Genesis 26:23-27:27", "Genesis 27:28-28:9"}},
    {kVayetzei, {"Genesis 28:10-30:13", "Genesis 30:14-31:16", "Genesis 31:17-32:3"}},
    {kVayishlach, {"Genesis 32:4-33:20", "Genesis 34:1-35:15", "Genesis 35:16-36:43"}},
    {kVayeshev, {"Genesis 37:1-36", "Genesis 38:1-30", "Genesis 39:1-40:23"}},
    {kMiketz, {"Genesis 41:1-52", "Genesis 41:53-43:15", "Genesis 43:16-44:17"}},
    {kVayigash, {"Genesis 44:18-45:27", "Genesis 45:28-46:27", "Genesis 46:28-47:27"}},
    {kVayechi, {"Genesis 47:28-48:22", "Genesis 49:1-26", "Genesis 49:27-50:26"}},
    {kShemot, {"Exodus 1:1-2:25", "Exodus 3:1-4:17", "Exodus 4:18-6:1"}},
    {kVaera, {"Exodus 6:2-7:7", "Exodus 7:8-8:15", "Exodus 8:16-9:35"}},
    {kBo, {"Exodus 10:1-11:3", "Exodus 11:4-12:28", "Exodus 12:29-13:16"}},
    {kBeshalach, {"Exodus 13:17-15:26", "Exodus 14:15-16:10", "Exodus 14:26-17:16"}},
    {kYitro, {"Exodus 18:1-27", "Exodus 19:1-20:23", "Exodus 19:1-20:23"}},
    {kMishpatim, {"Exodus 21:1-22:3", "Exodus 22:4-23:19", "Exodus 23:20-24:18"}},
    {kTerumah, {"Exodus 25:1-40", "Exodus 26:1-30", "Exodus 26:31-27:19"}},
    {kTetzaveh, {"Exodus 27:20-28:30", "Exodus 28:31-29:18", "Exodus 29:19-30:10"}},
    {kKiTisa, {"Exodus 30:11-31:17", "Exodus 31:18-33:11", "Exodus 33:12-34:35"}},
    {kVayikra, {"Leviticus 1:1-2:16", "Leviticus 3:1-4:26", "Leviticus 4:27-5:26"}},
    {kTzav, {"Leviticus 6:1-7:10", "Leviticus 7:11-38", "Leviticus 8:1-36"}},
    {kShmini, {"Leviticus 9:1-10:11", "Leviticus 10:12-11:32", "Leviticus 11:1-47"}},
    {kEmor, {"Leviticus 21:1-22:16", "Leviticus 22:17-23:22", "Leviticus 23:23-24:23"}},
    {kBamidbar, {"Numbers 1:1-54", "Numbers 2:1-3:13", "Numbers 3:14-4:20"}},
    {kNasso, {"Numbers 4:21-5:10", "Numbers 5:11-6:27", "Numbers 7:1-89"}},
    {kBehaalotcha, {"Numbers 8:1-9:14", "Numbers 9:15-10:34", "Numbers 10:35-12:16"}},
    {kShlach, {"Numbers 13:1-14:7", "Numbers 14:8-15:7", "Numbers 15:8-41"}},
    {kKorach, {"Numbers 16:1-17:15", "Numbers 16:20-17:24", "Numbers 17:25-18:32"}},
    {kPinchas, {"Numbers 25:10-26:51", "Numbers 26:52-28:15", "Numbers 28:16-30:1"}},
    {kDevarim, {"Deuteronomy 1:1-2:1", "Deuteronomy 2:2-30", "Deuteronomy 2:31-3:22"}},
    {kVaetchanan, {"Deuteronomy 3:23-5:18", "Deuteronomy 5:1-6:25", "Deuteronomy 5:1-7:11"}},
    {kEikev, {"Deuteronomy 7:12-9:3", "Deuteronomy 9:4-10:11", "Deuteronomy 10:12-11:25"}},
    {kReeh, {"Deuteronomy 11:26-12:28", "Deuteronomy 12:29-14:29", "Deuteronomy 15:1-16:17"}},
    {kShoftim, {"Deuteronomy 16:18-18:5", "Deuteronomy 18:6-19:13", "Deuteronomy 19:14-21:9"}},
    {kKiTeitzei, {"Deuteronomy 21:10-23:7", "Deuteronomy 23:8-24:13", "Deuteronomy 24:14-25:19"}},
    {kKiTavo, {"Deuteronomy 26:1-27:10", "Deuteronomy 26:12-28:6", "Deuteronomy 27:11-29:8"}},
};

// The first of two that are read together.
constexpr PlainRow kTogether[] = {
    {kVayakhel, {"Exodus 35:1-37:16", "Exodus 37:17-39:21", "Exodus 39:22-40:38"}},
    {kTazria, {"Leviticus 12:1-13:39", "Leviticus 13:40-14:32", "Leviticus 14:33-15:33"}},
    {kAchareiMot, {"Leviticus 16:1-17:7", "Leviticus 17:8-19:14", "Leviticus 19:15-20:27"}},
    {kBehar, {"Leviticus 25:1-38", "Leviticus 25:39-26:46", "Leviticus 27:1-34"}},
    {kChukat, {"Numbers 19:1-21:20", "Numbers 21:21-22:38", "Numbers 22:39-25:9"}},
    {kMatot, {"Numbers 30:2-31:54", "Numbers 32:1-33:49", "Numbers 33:50-36:13"}},
    {kNitzavim, {"Deuteronomy 29:9-30:14", "Deuteronomy 30:1-31:6", "Deuteronomy 31:7-30"}},
};

constexpr SeparateRow kSeparate[] = {
    {kVayakhel, "TTS", {"", "", "Exodus 36:20-38:20"}},
    {kVayakhel, "TST", {"", "Exodus 37:17-38:20", ""}},
    {kVayakhel, "TSS", {"", "Exodus 35:1-36:19", "Exodus 36:20-38:20"}},
    {kVayakhel, "SST", {"Exodus 35:1-36:19", "Exodus 36:20-38:20", ""}},
    {kVayakhel, "STS", {"Exodus 35:1-36:19", "", "Exodus 36:20-38:20"}},
    {kVayakhel, "STT", {"Exodus 35:1-37:16", "", ""}},
    {kVayakhel, "SSS", {"Exodus 35:1-35", "Exodus 36:1-37:16", "Exodus 37:17-38:20"}},
    {kPekudei, "TTS", {"", "", "Exodus 39:22-40:38"}},
    {kPekudei, "TST", {"", "Exodus 38:21-39:21", ""}},
    {kPekudei, "TSS", {"", "Exodus 38:21-39:21", "Exodus 39:22-40:38"}},
    {kPekudei, "SST", {"Exodus 38:21-39:21", "Exodus 39:22-40:38", ""}},
    {kPekudei, "STS", {"Exodus 38:21-39:21", "", "Exodus 39:22-40:38"}},
    {kPekudei, "STT", {"Exodus 38:21-39:21", "", ""}},
    {kPekudei, "SSS", {"Exodus 38:21-39:21", "Exodus 39:22-40:9", "Exodus 40:10-38"}},
    {kTazria, "TTS", {"", "", "Leviticus 13:29-59"}},
    {kTazria, "TST", {"", "Leviticus 13:29-59", ""}},
    {kTazria, "STT", {"Leviticus 12:1-13:39", "", ""}},
    {kTazria, "STS", {"Leviticus 12:1-13:28", "", "Leviticus 13:29-59"}},
    {kMetzora, "TTS", {"", "", "Leviticus 14:33-15:33"}},
    {kMetzora, "TST", {"", "Leviticus 14:1-32", ""}},
    {kMetzora, "STT", {"Leviticus 14:1-32", "", ""}},
    {kMetzora, "STS", {"Leviticus 14:1-32", "", "Leviticus 14:33-15:33"}},
    {kAchareiMot, "TTS", {"", "", "Leviticus 17:1-18:30"}},
    {kAchareiMot, "TST", {"", "Leviticus 17:1-18:30", ""}},
    {kAchareiMot, "STT", {"Leviticus 16:1-17:7", "", ""}},
    {kAchareiMot, "STS", {"Leviticus 16:1-34", "", "Leviticus 17:1-18:30"}},
    {kKedoshim, "TTS", {"", "", "Leviticus 19:15-20:27"}},
    {kKedoshim, "TST", {"", "Leviticus 19:1-37", ""}},
    {kKedoshim, "STT", {"Leviticus 19:1-37", "", ""}},
    {kKedoshim, "STS", {"Leviticus 19:1-37", "", "Leviticus 19:23-20:27"}},
    {kBehar, "TTS", {"", "", "Leviticus 25:29-26:2"}},
    {kBehar, "TST", {"", "Leviticus 25:29-26:2", ""}},
    {kBehar, "STT", {"Leviticus 25:1-38", "", ""}},
    {kBehar, "STS", {"Leviticus 25:1-28", "", "Leviticus 25:29-26:2"}},
    {kBehar, "SSS", {"Leviticus 25:1-28", "Leviticus 25:1-28", "Leviticus 25:29-26:2"}},
    {kBehar, "SST", {"Leviticus 25:1-28", "Leviticus 25:29-26:2", ""}},
    {kBehar, "TSS", {"", "Leviticus 25:1-28", "Leviticus 25:29-26:2"}},
    {kBechukotai, "TTS", {"", "", "Leviticus 27:1-34"}},
    {kBechukotai, "TST", {"", "Leviticus 26:3-27:15", ""}},
    {kBechukotai, "STT", {"Leviticus 26:3-27:15", "", ""}},
    {kBechukotai, "STS", {"Leviticus 26:3-27:15", "", "Leviticus 27:1-34"}},
    {kBechukotai, "SSS", {"Leviticus 26:3-27:15", "Leviticus 27:1-34", "Leviticus 27:1-34"}},
    {kBechukotai, "SST", {"Leviticus 26:3-27:15", "Leviticus 27:1-34", ""}},
    {kBechukotai, "TSS", {"", "Leviticus 26:3-27:15", "Leviticus 27:1-34"}},
    {kChukat, "TTS", {"", "", "Numbers 20:22-22:1"}},
    {kChukat, "TST", {"", "Numbers 21:11-22:1", ""}},
    {kChukat, "TSS", {"", "Numbers 19:1-20:21", "Numbers 20:22-22:1"}},
    {kChukat, "SST", {"Numbers 19:1-20:21", "Numbers 20:22-22:1", ""}},
    {kChukat, "STS", {"Numbers 19:1-20:21", "", "Numbers 20:22-22:1"}},
    {kChukat, "STT", {"Numbers 19:1-21:20", "", ""}},
    {kChukat, "SSS", {"Numbers 19:1-20:13", "Numbers 20:1-21:10", "Numbers 21:11-22:1"}},
    {kBalak, "TTS", {"", "", "Numbers 22:39-25:9"}},
    {kBalak, "TST", {"", "Numbers 22:2-38", ""}},
    {kBalak, "TSS", {"", "Numbers 22:2-38", "Numbers 22:39-25:9"}},
    {kBalak, "SST", {"Numbers 22:2-38", "Numbers 22:39-25:9", ""}},
    {kBalak, "STS", {"Numbers 22:2-38", "", "Numbers 22:39-25:9"}},
    {kBalak, "STT", {"Numbers 22:2-38", "", ""}},
    {kBalak, "SSS", {"Numbers 22:2-38", "Numbers 22:39-23:26", "Numbers 23:27-25:9"}},
    {kMatot, "TTS", {"", "", "Numbers 31:1-32:42"}},
    {kMatot, "TST", {"", "Numbers 31:1-32:42", ""}},
    {kMatot, "STT", {"Numbers 30:2-31:54", "", ""}},
    {kMatot, "STS", {"Numbers 30:2-31:54", "", "Numbers 31:1-32:42"}},
    {kMasei, "TTS", {"", "", "Numbers 33:50-36:13"}},
    {kMasei, "TST", {"", "Numbers 33:1-49", ""}},
    {kMasei, "STT", {"Numbers 33:1-49", "", ""}},
    {kMasei, "STS", {"Numbers 33:1-49", "", "Numbers 33:50-36:13"}},
};
// clang-format on

bool IsJoined(Portion first, int32_t jewishYear, Land land) {
  return std::ranges::any_of(DaysOfPortion(first, jewishYear, land), [&](int32_t day) {
    const std::optional<WeeklyPortion> read = PortionOnShabbat(day, land);
    return read && read->portion == first && read->joinedWithNext;
  });
}

std::string PatternOf(Portion first, int32_t cycleStart, Land land) {
  std::string pattern;
  for (int32_t year = 0; year < kYears; ++year) pattern += IsJoined(first, cycleStart + year, land) ? 'T' : 'S';
  return pattern;
}

// The first portion of the pair that a portion may be joined in; the portion itself when it is in none.
Portion FirstOfPair(Portion portion) {
  const auto before = static_cast<Portion>(portion == 0 ? 0 : portion - 1);
  return std::ranges::find(kTogether, before, &PlainRow::portion) == std::end(kTogether) ? portion : before;
}

}  // namespace

int TriennialYear(int32_t jewishYear) {
  return static_cast<int>(((jewishYear - kFirstYear) % kYears + kYears) % kYears) + 1;
}

Passage TriennialOf(const WeeklyPortion& read, int32_t jewishYear, Land land) {
  const int year = TriennialYear(jewishYear) - 1;
  const auto third = static_cast<size_t>(year);
  const std::span<const PlainRow> rows = read.joinedWithNext ? std::span<const PlainRow>(kTogether) : kPlain;
  const auto plain = std::ranges::find(rows, read.portion, &PlainRow::portion);
  if (plain != rows.end()) return plain->thirds[third];

  const bool isInPair = std::ranges::find(kSeparate, read.portion, &SeparateRow::portion) != std::end(kSeparate);
  if (isInPair) {
    const std::string pattern = PatternOf(FirstOfPair(read.portion), jewishYear - year, land);
    const auto* separate = std::ranges::find_if(
        kSeparate, [&](const SeparateRow& row) { return row.portion == read.portion && row.pattern == pattern; });
    const bool isRead = separate != std::end(kSeparate) && !separate->thirds[third].empty();
    if (isRead) return separate->thirds[third];
  }
  return TorahOf(read);
}

}  // namespace lections
