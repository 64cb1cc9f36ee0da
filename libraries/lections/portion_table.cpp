// The weekly portions and the special Shabbatot. Orach Chaim 282-284 and 428 (the cycle), 685 (the four special
// Shabbatot), 430 (HaGadol), 425 (Rosh Chodesh), 684 (Chanukah).
#include <algorithm>
#include <array>

#include "libraries/lections/reading_tables.h"

namespace lections {
namespace {

using enum Haftarot::ChabadAs;
using namespace calendar;

// In the order of the Torah. Where customs differ, the third column is Chabad's, as the readings on chabad.org give it.
// clang-format off
constexpr PortionRow kPortions[kPortionCount] = {
    {"Genesis 1:1-6:8", "Genesis 1:1-13", {"Isaiah 42:5-43:10", "Isaiah 42:5-21", kAsSephardi}},
    {"Genesis 6:9-11:32", "Genesis 6:9-22", {"Isaiah 54:1-55:5", "Isaiah 54:1-10", kAsSephardi}},
    {"Genesis 12:1-17:27", "Genesis 12:1-13", "Isaiah 40:27-41:16"},
    {"Genesis 18:1-22:24", "Genesis 18:1-14", {"II Kings 4:1-37", "II Kings 4:1-23", kAsAshkenazi}},
    {"Genesis 23:1-25:18", "Genesis 23:1-16", "I Kings 1:1-31"},
    {"Genesis 25:19-28:9", "Genesis 25:19-26:5", "Malachi 1:1-2:7"},
    {"Genesis 28:10-32:3", "Genesis 28:10-22", {"Hosea 12:13-14:10", "Hosea 11:7-12:12", "Hosea 11:7-12:14"}},
    {"Genesis 32:4-36:43", "Genesis 32:4-13", "Obadiah 1:1-21"},
    {"Genesis 37:1-40:23", "Genesis 37:1-11", "Amos 2:6-3:8"},
    {"Genesis 41:1-44:17", "Genesis 41:1-14", "I Kings 3:15-4:1"},
    {"Genesis 44:18-47:27", "Genesis 44:18-30", "Ezekiel 37:15-28"},
    {"Genesis 47:28-50:26", "Genesis 47:28-48:9", "I Kings 2:1-12"},

    {"Exodus 1:1-6:1", "Exodus 1:1-17", {"Isaiah 27:6-28:13, 29:22-23", "Jeremiah 1:1-2:3", kAsAshkenazi}},
    {"Exodus 6:2-9:35", "Exodus 6:2-13", "Ezekiel 28:25-29:21"},
    {"Exodus 10:1-13:16", "Exodus 10:1-11", "Jeremiah 46:13-28"},
    {"Exodus 13:17-17:16", "Exodus 13:17-14:8", {"Judges 4:4-5:31", "Judges 5:1-31", kAsAshkenazi}},
    {"Exodus 18:1-20:23", "Exodus 18:1-12", {"Isaiah 6:1-7:6, 9:5-6", "Isaiah 6:1-13", kAsSephardi}},
    {"Exodus 21:1-24:18", "Exodus 21:1-19", "Jeremiah 34:8-22, 33:25-26"},
    {"Exodus 25:1-27:19", "Exodus 25:1-16", "I Kings 5:26-6:13"},
    {"Exodus 27:20-30:10", "Exodus 27:20-28:12", "Ezekiel 43:10-27"},
    {"Exodus 30:11-34:35", "Exodus 30:11-21", {"I Kings 18:1-39", "I Kings 18:20-39", kAsSephardi}},
    {"Exodus 35:1-38:20", "Exodus 35:1-20", {"I Kings 7:40-50", "I Kings 7:13-26", kAsSephardi}},
    {"Exodus 38:21-40:38", "Exodus 38:21-39:1", {"I Kings 7:51-8:21", "I Kings 7:40-50", kAsAshkenazi}},

    {"Leviticus 1:1-5:26", "Leviticus 1:1-13", "Isaiah 43:21-44:23"},
    {"Leviticus 6:1-8:36", "Leviticus 6:1-11",
     {"Jeremiah 7:21-8:3, 9:22-23", "Jeremiah 7:21-8:3, 9:22-23", "Jeremiah 7:21-28, 9:22-23"}},
    {"Leviticus 9:1-11:47", "Leviticus 9:1-16", {"II Samuel 6:1-7:17", "II Samuel 6:1-19", kAsSephardi}},
    {"Leviticus 12:1-13:59", "Leviticus 12:1-13:5", "II Kings 4:42-5:19"},
    {"Leviticus 14:1-15:33", "Leviticus 14:1-12", "II Kings 7:3-20"},
    {"Leviticus 16:1-18:30", "Leviticus 16:1-17", {"Amos 9:7-15", "Ezekiel 22:1-16", kAsAshkenazi}},
    {"Leviticus 19:1-20:27", "Leviticus 19:1-14", {"Ezekiel 22:1-19", "Ezekiel 20:2-20", kAsSephardi}},
    {"Leviticus 21:1-24:23", "Leviticus 21:1-15", "Ezekiel 44:15-31"},
    {"Leviticus 25:1-26:2", "Leviticus 25:1-13", {"Jeremiah 32:6-27", "Jeremiah 32:6-27", "Jeremiah 32:6-22"}},
    {"Leviticus 26:3-27:34", "Leviticus 26:3-13", "Jeremiah 16:19-17:14"},

    {"Numbers 1:1-4:20", "Numbers 1:1-19", "Hosea 2:1-22"},
    {"Numbers 4:21-7:89", "Numbers 4:21-33", "Judges 13:2-25"},
    {"Numbers 8:1-12:16", "Numbers 8:1-14", "Zechariah 2:14-4:7"},
    {"Numbers 13:1-15:41", "Numbers 13:1-20", "Joshua 2:1-24"},
    {"Numbers 16:1-18:32", "Numbers 16:1-13", "I Samuel 11:14-12:22"},
    {"Numbers 19:1-22:1", "Numbers 19:1-17", "Judges 11:1-33"},
    {"Numbers 22:2-25:9", "Numbers 22:2-12", "Micah 5:6-6:8"},
    {"Numbers 25:10-30:1", "Numbers 25:10-26:4", "I Kings 18:46-19:21"},
    {"Numbers 30:2-32:42", "Numbers 30:2-17", "Jeremiah 1:1-2:3"},
    {"Numbers 33:1-36:13", "Numbers 33:1-10", {"Jeremiah 2:4-28, 3:4", "Jeremiah 2:4-28, 4:1-2", kAsSephardi}},

    {"Deuteronomy 1:1-3:22", "Deuteronomy 1:1-11", "Isaiah 1:1-27"},
    {"Deuteronomy 3:23-7:11", "Deuteronomy 3:23-4:8", "Isaiah 40:1-26"},
    {"Deuteronomy 7:12-11:25", "Deuteronomy 7:12-8:10", "Isaiah 49:14-51:3"},
    {"Deuteronomy 11:26-16:17", "Deuteronomy 11:26-12:10", "Isaiah 54:11-55:5"},
    {"Deuteronomy 16:18-21:9", "Deuteronomy 16:18-17:13", "Isaiah 51:12-52:12"},
    {"Deuteronomy 21:10-25:19", "Deuteronomy 21:10-21", "Isaiah 54:1-10"},
    {"Deuteronomy 26:1-29:8", "Deuteronomy 26:1-15", "Isaiah 60:1-22"},
    {"Deuteronomy 29:9-30:20", "Deuteronomy 29:9-28", "Isaiah 61:10-63:9"},
    {"Deuteronomy 31:1-30", "Deuteronomy 31:1-13", "Isaiah 55:6-56:8"},
    {"Deuteronomy 32:1-52", "Deuteronomy 32:1-12", "II Samuel 22:1-51"},
    {"Deuteronomy 33:1-34:12", "Deuteronomy 33:1-17", {"Joshua 1:1-18", "Joshua 1:1-9", kAsAshkenazi}},
};

// Joined portions take the second one's haftarah, but these.
constexpr Haftarot kAchareiKedoshim = {"Amos 9:7-15", "Ezekiel 20:2-20", kAsAshkenazi};  // Rema 428:8

constexpr Haftarot kKedoshimAfterSpecialShabbat = {"Amos 9:7-15", "Ezekiel 20:2-20", kAsSephardi};

// The three Shabbatot before 9 Av (127th day from 1 Nisan as the first) have the haftarot of Matot, Masei and Devarim;
// Pinchas may be the first of them. Rosh Chodesh Av does not displace them (Rema 425:1), Rosh Chodesh Elul displaces
// Re'eh's in Ashkenazi use, which then follows Ki Teitzei's, where it stands in the book (Mishnah Berurah 425:7);
// Sephardim add the first and last verses of what gave way (Beit Yosef 425).
struct WeekRow {
  Portion portion;
  int32_t firstDay;
  int32_t lastDay;
  Haftarot haftarot;
};
constexpr int32_t kFirstOfAv = 118;
constexpr int32_t kThirtiethOfAv = kFirstOfAv + 29;
constexpr int32_t kFourteenthOfElul = kThirtiethOfAv + 14;
constexpr WeekRow kWeeks[] = {
    {kPinchas, kFirstOfAv + 8 - 20, kFirstOfAv + 8 - 14, "Jeremiah 1:1-2:3"},
    {kMasei, kFirstOfAv, kFirstOfAv,
     {"Jeremiah 2:4-28, 3:4", "Jeremiah 2:4-28, 4:1-2, Isaiah 66:1, 66:23", kAsSephardi}},
    {kReeh, kThirtiethOfAv, kThirtiethOfAv,
     {"Isaiah 66:1-24", "Isaiah 54:11-55:5, 66:1, 66:23, I Samuel 20:18, 20:42", kAsAshkenazi}},
    {kKiTeitzei, kFourteenthOfElul, kFourteenthOfElul, {"Isaiah 54:1-55:5", "Isaiah 54:1-10", kAsAshkenazi}},
};

// On or before 1 Adar, before Purim, the Shabbat before HaChodesh, on or before 1 Nisan, before Pesach; Adar of a leap
// year is Adar II.
constexpr SpecialShabbat kSpecialShabbatot[] = {
    {Occasion::kShabbatShekalim, -35, -29, "Exodus 30:11-16",
     {"II Kings 12:1-17", "II Kings 11:17-12:17", kAsSephardi}},
    {Occasion::kShabbatZachor, -23, -17, "Deuteronomy 25:17-19",
     {"I Samuel 15:2-34", "I Samuel 15:1-34", kAsAshkenazi}},
    {Occasion::kShabbatParah, -13, -7, "Numbers 19:1-22", {"Ezekiel 36:16-38", "Ezekiel 36:16-36", kAsSephardi}},
    {Occasion::kShabbatHaChodesh, -6, 0, "Exodus 12:1-20",
     {"Ezekiel 45:16-46:18", "Ezekiel 45:18-46:15", kAsSephardi}},
    {Occasion::kShabbatHaGadol, 7, 13, "", "Malachi 3:4-24"},
};

constexpr Haftarot kShuvaWithVayeilech = "Hosea 14:2-10, Micah 7:18-20";
constexpr Haftarot kShuvaWithHaazinu = {"Hosea 14:2-10, Joel 2:15-27", "Hosea 14:2-10, Micah 7:18-20", kAsSephardi};

constexpr Haftarot kRoshChodesh = "Isaiah 66:1-24";
constexpr Haftarot kMacharChodesh = "I Samuel 20:18-42";
constexpr Passage kRoshChodeshOnShabbat = "Numbers 28:9-15";
constexpr Passage kRoshChodeshOnWeekday = "Numbers 28:1-15";

// Ashkenazim of the diaspora call up the third for the next day's offering; others repeat the day's own, and Sephardim
// begin with the priests' blessing (684:1 with Rema).
constexpr ChanukahRow kChanukah[] = {
    {"Numbers 7:1-17", "Numbers 7:1-17", "Numbers 6:22-7:17", "Numbers 7:1-17"},
    {"Numbers 7:18-23", "Numbers 7:18-29", "Numbers 7:18-23", "Numbers 7:18-23"},
    {"Numbers 7:24-29", "Numbers 7:24-35", "Numbers 7:24-29", "Numbers 7:24-29"},
    {"Numbers 7:30-35", "Numbers 7:30-41", "Numbers 7:30-35", "Numbers 7:30-35"},
    {"Numbers 7:36-41", "Numbers 7:36-47", "Numbers 7:36-41", "Numbers 7:36-41"},
    {"Numbers 7:42-47", "Numbers 7:42-53", "Numbers 7:42-47", "Numbers 7:42-47"},
    {"Numbers 7:48-53", "Numbers 7:48-59", "Numbers 7:48-53", "Numbers 7:48-53"},
    {"Numbers 7:54-8:4", "Numbers 7:54-8:4", "Numbers 7:54-8:4", "Numbers 7:54-8:4"},
};
constexpr Haftarot kChanukahShabbat[] = {"Zechariah 2:14-4:7", "I Kings 7:40-50"};

constexpr Passage kWalledCitiesMaftir = "Exodus 17:8-16";
// clang-format on

}  // namespace

const PortionRow& RowOf(Portion portion) {
  return kPortions[portion];
}

Passage TorahOf(const WeeklyPortion& read) {
  const Passage& first = RowOf(read.portion).torah;
  return read.joinedWithNext ? first.Until(RowOf(read.Last()).torah) : first;
}

const Haftarot& HaftarotOf(const WeeklyPortion& read) {
  if (read.joinedWithNext && read.portion == kAchareiMot) return kAchareiKedoshim;
  return RowOf(read.portion == kNitzavim ? kNitzavim : read.Last()).haftarot;
}

const Haftarot* HaftarotOfWeek(Portion last, int32_t daysFromNisan) {
  const auto* row = std::ranges::find_if(kWeeks, [&](const WeekRow& week) {
    return week.portion == last && week.firstDay <= daysFromNisan && daysFromNisan <= week.lastDay;
  });
  return row == std::end(kWeeks) ? nullptr : &row->haftarot;
}

const Haftarot& HaftarotOfKedoshimAfterSpecialShabbat() {
  return kKedoshimAfterSpecialShabbat;
}

const SpecialShabbat* SpecialShabbatOn(int32_t daysFromNisan) {
  const auto* row = std::ranges::find_if(kSpecialShabbatot, [&](const SpecialShabbat& shabbat) {
    return shabbat.firstDay <= daysFromNisan && daysFromNisan <= shabbat.lastDay;
  });
  return row == std::end(kSpecialShabbatot) ? nullptr : row;
}

const Haftarot& HaftarotOfShuva(Portion portion) {
  return portion == kHaazinu ? kShuvaWithHaazinu : kShuvaWithVayeilech;
}

const Haftarot& HaftarotOfRoshChodesh() {
  return kRoshChodesh;
}

const Haftarot& HaftarotOfMacharChodesh() {
  return kMacharChodesh;
}

const Passage& RoshChodeshOnShabbat() {
  return kRoshChodeshOnShabbat;
}

const Passage& RoshChodeshOnWeekday() {
  return kRoshChodeshOnWeekday;
}

const ChanukahRow& ChanukahDay(int day) {
  return kChanukah[day - 1];
}

const Haftarot& HaftarotOfChanukah(bool secondShabbat) {
  return kChanukahShabbat[secondShabbat ? 1 : 0];
}

const Passage& MaftirOfWalledCities() {
  return kWalledCitiesMaftir;
}

const Haftarot& HaftarotOfWalledCities() {
  return kSpecialShabbatot[1].haftarot;
}

}  // namespace lections
