// When a child comes of age, and what is said of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/language.h"
#include "libraries/majority/majority_core.h"
#include "libraries/majority/majority_texts.h"

namespace majority {
namespace {

using calendar::Date;
using calendar::Land;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// year * 10000 + month * 100 + day
Date DateOf(int32_t number) {
  return {number % 100, number / 100 % 100, number / 10000};
}
int32_t DayOf(int32_t number) {
  return calendar::AbsoluteFromGregorian(DateOf(number));
}
Child BornOn(int32_t number, bool isGirl = false, bool afterSunset = false) {
  return {{persons::Calendar::kGregorian, DateOf(number), afterSunset}, isGirl};
}

lections::Settings In(Land land) {
  lections::Settings settings;
  settings.land = land;
  settings.customs = lections::Customs::kAshkenazi;
  return settings;
}

TEST(Majority, DaysAreThoseOfAnIndependentProgram) {
  struct Row {
    int32_t born;  // by day
    bool isGirl;
    Date birthday;
    int32_t day;
    int32_t shabbat;
    bool hasPortion;  // that Shabbat, in the diaspora
    bool hasPortionInIsrael;
  };
  // From @hebcal/core 6.9.3: getBirthdayOrAnniversary, onOrAfter, Sedra. The last ones are births on the 30th of a
  // month that not every year has, in each Adar, and on festivals.
  // clang-format off
  constexpr Row kRows[] = {
      {19060925, false, {6, 7, 5680}, 19190930, 19191004, false, false},
      {19060925, true, {6, 7, 5679}, 19180912, 19180914, true, true},
      {20360117, false, {17, 10, 5809}, 20481222, 20481226, true, true},
      {20360117, true, {17, 10, 5808}, 20480103, 20480104, true, true},
      {20760517, false, {14, 2, 5849}, 20890424, 20890430, true, true},
      {20760517, true, {14, 2, 5848}, 20880505, 20880508, true, true},
      {20280513, false, {17, 2, 5801}, 20410518, 20410518, true, true},
      {20280513, true, {17, 2, 5800}, 20400430, 20400505, true, true},
      {19480513, false, {4, 2, 5721}, 19610420, 19610422, true, true},
      {19480513, true, {4, 2, 5720}, 19600501, 19600507, true, true},
      {20280501, false, {5, 2, 5801}, 20410506, 20410511, true, true},
      {20280501, true, {5, 2, 5800}, 20400418, 20400421, true, true},
      {19880105, false, {15, 10, 5761}, 20010110, 20010113, true, true},
      {19880105, true, {15, 10, 5760}, 19991224, 19991225, true, true},
      {19400913, false, {10, 6, 5713}, 19530821, 19530822, true, true},
      {19400913, true, {10, 6, 5712}, 19520831, 19520906, true, true},
      {19480105, false, {23, 10, 5721}, 19610111, 19610114, true, true},
      {19480105, true, {23, 10, 5720}, 19600123, 19600123, true, true},
      {20680101, false, {26, 10, 5841}, 20810107, 20810111, true, true},
      {20680101, true, {26, 10, 5840}, 20800118, 20800120, true, true},
      {19160505, false, {2, 2, 5689}, 19290512, 19290518, true, true},
      {19160505, true, {2, 2, 5688}, 19280422, 19280428, true, true},
      {20680109, false, {5, 11, 5841}, 20810115, 20810118, true, true},
      {20680109, true, {5, 11, 5840}, 20800126, 20800127, true, true},
      {19000509, false, {10, 2, 5673}, 19130517, 19130517, true, true},
      {19000509, true, {10, 2, 5672}, 19120427, 19120427, true, true},
      {20840921, false, {21, 6, 5857}, 20970829, 20970831, true, true},
      {20840921, true, {21, 6, 5856}, 20960908, 20960908, true, true},
      {20840901, false, {1, 6, 5857}, 20970809, 20970810, true, true},
      {20840901, true, {1, 6, 5856}, 20960819, 20960825, true, true},
      {20040109, false, {15, 10, 5777}, 20170113, 20170114, true, true},
      {20040109, true, {15, 10, 5776}, 20151227, 20160102, true, true},
      {20920909, false, {7, 6, 5865}, 21050818, 21050822, true, true},
      {20920909, true, {7, 6, 5864}, 21040828, 21040830, true, true},
      {20280505, false, {9, 2, 5801}, 20410510, 20410511, true, true},
      {20280505, true, {9, 2, 5800}, 20400422, 20400428, true, true},
      {20760921, false, {23, 6, 5849}, 20890829, 20890903, true, true},
      {20760921, true, {23, 6, 5848}, 20880909, 20880911, true, true},
      {20600905, false, {10, 6, 5833}, 20730912, 20730916, true, true},
      {20600905, true, {10, 6, 5832}, 20720824, 20720827, true, true},
      {19640925, false, {19, 7, 5738}, 19771001, 19771001, false, false},
      {19640925, true, {19, 7, 5737}, 19761013, 19761016, false, false},
      {19800521, false, {6, 3, 5753}, 19930526, 19930529, true, true},
      {19800521, true, {6, 3, 5752}, 19920607, 19920613, true, true},
      {20680121, false, {17, 11, 5841}, 20810127, 20810201, true, true},
      {20680121, true, {17, 11, 5840}, 20800207, 20800210, true, true},
      {19480921, false, {17, 6, 5721}, 19610829, 19610902, true, true},
      {19480921, true, {17, 6, 5720}, 19600909, 19600910, true, true},
      {20191228, false, {1, 10, 5793}, 20321203, 20321204, true, true},
      {20191228, true, {30, 9, 5792}, 20311215, 20311220, true, true},
      {20221124, false, {1, 9, 5796}, 20351202, 20351208, true, true},
      {20221124, true, {30, 8, 5795}, 20341112, 20341118, true, true},
      {20241201, false, {30, 8, 5798}, 20371108, 20371114, true, true},
      {20241201, true, {1, 9, 5797}, 20361120, 20361122, true, true},
      {20151112, false, {1, 9, 5789}, 20281119, 20281125, true, true},
      {20151112, true, {30, 8, 5788}, 20271130, 20271204, true, true},
      {20211204, false, {30, 9, 5795}, 20341212, 20341216, true, true},
      {20211204, true, {30, 9, 5794}, 20331222, 20331224, true, true},
      {20221224, false, {30, 9, 5796}, 20351231, 20360105, true, true},
      {20221224, true, {30, 9, 5795}, 20341212, 20341216, true, true},
      {20140302, false, {30, 12, 5787}, 20270309, 20270313, true, true},
      {20140302, true, {1, 1, 5786}, 20260319, 20260321, true, true},
      {20300305, false, {30, 12, 5803}, 20430312, 20430314, true, true},
      {20300305, true, {1, 1, 5802}, 20420322, 20420322, true, true},
      {20060314, false, {14, 13, 5779}, 20190321, 20190323, true, true},
      {20060314, true, {14, 12, 5778}, 20180301, 20180303, true, true},
      {20120308, false, {14, 12, 5785}, 20250314, 20250315, true, true},
      {20120308, true, {14, 13, 5784}, 20240324, 20240330, true, true},
      {20230322, false, {29, 12, 5796}, 20360328, 20360329, true, true},
      {20230322, true, {29, 13, 5795}, 20350409, 20350414, true, true},
      {20140316, false, {14, 13, 5787}, 20270323, 20270327, true, true},
      {20140316, true, {14, 12, 5786}, 20260303, 20260307, true, true},
      {20240311, false, {1, 12, 5797}, 20370216, 20370221, true, true},
      {20240311, true, {1, 12, 5796}, 20360229, 20360301, true, true},
      {20240309, false, {29, 12, 5797}, 20370316, 20370321, true, true},
      {20240309, true, {29, 12, 5796}, 20360328, 20360329, true, true},
      {20140415, false, {15, 1, 5787}, 20270422, 20270424, false, false},
      {20140415, true, {15, 1, 5786}, 20260402, 20260404, false, false},
      {20130905, false, {1, 7, 5787}, 20260912, 20260912, false, false},
      {20130905, true, {1, 7, 5786}, 20250923, 20250927, true, true},
      {20090928, false, {10, 7, 5783}, 20221005, 20221008, true, true},
      {20090928, true, {10, 7, 5782}, 20210916, 20210918, true, true},
      {20061007, false, {15, 7, 5780}, 20191014, 20191019, false, false},
      {20061007, true, {15, 7, 5779}, 20180924, 20180929, false, false},
      {20041007, false, {22, 7, 5778}, 20171012, 20171014, true, true},
      {20041007, true, {22, 7, 5777}, 20161024, 20161029, true, true},
      {20080609, false, {6, 3, 5781}, 20210517, 20210522, true, true},
      {20080609, true, {6, 3, 5780}, 20200529, 20200530, false, true},
  };
  // clang-format on
  for (const Row& row : kRows) {
    const Child child = BornOn(row.born, row.isGirl);
    const auto age = ComingOfAgeOf(child);
    ASSERT_TRUE(age) << row.born;
    EXPECT_EQ(age->birthday, row.birthday) << row.born << (row.isGirl ? " girl" : " boy");
    EXPECT_EQ(age->day, DayOf(row.day)) << row.born << (row.isGirl ? " girl" : " boy");
    EXPECT_EQ(age->shabbat, DayOf(row.shabbat)) << row.born << (row.isGirl ? " girl" : " boy");
    const auto isFestival = HasSubstr("This Shabbat is a day of a festival");
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
      const bool hasPortion = land == Land::kIsrael ? row.hasPortionInIsrael : row.hasPortion;
      const std::string facts = FactsOf(child, In(land));
      EXPECT_EQ(testing::Value(facts, isFestival), !hasPortion) << row.born;
      EXPECT_THAT(facts, HasSubstr("\nTorah: ")) << row.born;
      EXPECT_THAT(facts, HasSubstr("\nHaftarah: ")) << row.born;
    }
  }
}

TEST(Majority, ABirthAfterSunsetIsTheNextJewishDays) {
  const auto evening = ComingOfAgeOf(BornOn(20140301, false, true));
  const auto day = ComingOfAgeOf(BornOn(20140302));
  ASSERT_TRUE(evening && day);
  EXPECT_EQ(evening->birth, day->birth);
  EXPECT_EQ(evening->day, day->day);
}

// The day by hand from the table above; portion and haftarah as printed calendars for 5787 have them.
TEST(Majority, FactsAreTheDayTheShabbatAndItsReadings) {
  EXPECT_EQ(FactsOf(BornOn(20140302), In(Land::kDiaspora)),
            "Jewish birthday: 30 Adar I 5774\n"
            "Bar mitzvah at 13: Tuesday, 9 March 2027 (30 Adar I 5787), from the evening before\n"
            "Shabbat on or after it: 13 March 2027 (4 Adar II 5787)\n"
            "Torah: Pekudei: Exodus 38:21-40:38\n"
            "Haftarah: I Kings 7:51-8:21\n");
}

TEST(Majority, ADayThatTheYearDoesNotHaveIsExplained) {
  EXPECT_THAT(
      FactsOf(BornOn(20191228), In(Land::kDiaspora)),
      HasSubstr("(1 Tevet 5793), from the evening before\n5793 has no 30 Kislev; the day that follows takes its "
                "place.\n"));
  EXPECT_THAT(FactsOf(BornOn(20140302, true), In(Land::kDiaspora)),
              HasSubstr("5786 has no 30 Adar I; the day that follows takes its place.\n"));
  EXPECT_THAT(FactsOf(BornOn(20191228, true), In(Land::kDiaspora)), Not(HasSubstr("takes its place")));
}

TEST(Majority, AdarOfACommonYearInALeapYearIsExplained) {
  const char* const reason = "Born in Adar of a year that had one: in a leap year such as 5779 it is Adar II.\n";
  EXPECT_THAT(FactsOf(BornOn(20060314), In(Land::kDiaspora)), HasSubstr(reason));
  EXPECT_THAT(FactsOf(BornOn(20060314, true), In(Land::kDiaspora)), Not(HasSubstr("Born in Adar")));
  EXPECT_THAT(FactsOf(BornOn(20140302), In(Land::kDiaspora)), Not(HasSubstr("Born in Adar")));
}

// 30 May 2020: the second day of Shavuot in the diaspora, a common Shabbat in Israel.
TEST(Majority, AFestivalOfOneLandIsAShabbatOfTheOther) {
  const Child girl = BornOn(20080609, true);
  EXPECT_THAT(
      FactsOf(girl, In(Land::kDiaspora)),
      HasSubstr("This Shabbat is a day of a festival; in place of a weekly portion this is read:\nTorah: Shavuot"));
  EXPECT_THAT(FactsOf(girl, In(Land::kIsrael)), HasSubstr("\nTorah: Nasso: Numbers 4:21-7:89\n"));
}

TEST(Majority, ReadingsAreInTheCustomsAndTheLanguageOfTheSettings) {
  lections::Settings settings = In(Land::kDiaspora);
  settings.customs = lections::Customs::kBoth;
  const std::string both = FactsOf(BornOn(20140302), settings);
  EXPECT_THAT(both, HasSubstr("Haftarah: Ashkenazi"));
  EXPECT_THAT(both, HasSubstr("Haftarah: Sephardi"));
  settings.language = lections::kHebrew.code;
  EXPECT_THAT(FactsOf(BornOn(20140302), settings), HasSubstr("\nTorah: \u200F\u05E4\u05E7\u05D5\u05D3\u05D9"));
}

TEST(Majority, TimeLeftCountsTheDaysToTheShabbat) {
  const Child child = BornOn(20140302);
  EXPECT_EQ(TimeLeft(child, DayOf(20270101)), "71 days are left to learn until this Shabbat.\n");
  EXPECT_EQ(TimeLeft(child, DayOf(20270312)), "1 day is left to learn until this Shabbat.\n");
  EXPECT_EQ(TimeLeft(child, DayOf(20270313)), "This Shabbat is today.\n");
  EXPECT_EQ(TimeLeft(child, DayOf(20270314)), "This Shabbat has passed.\n");
}

TEST(Majority, AJewishDateBeforeTheGregorianCalendarHasNoOtherDate) {
  const Child child = {{persons::Calendar::kJewish, {1, calendar::kNisan, 5000}, false}, false};
  EXPECT_THAT(FactsOf(child, In(Land::kDiaspora)), HasSubstr(", 1 Nisan 5013, from the evening before\n"));
  EXPECT_TRUE(EventsOf(child, "", In(Land::kDiaspora)).empty());
}

TEST(Majority, ADayBeyondTheYearsIsSaidToBe) {
  const Child child = {{persons::Calendar::kJewish, {1, calendar::kNisan, 6750}, false}, false};
  EXPECT_EQ(ComingOfAgeOf(child), std::nullopt);
  EXPECT_EQ(FactsOf(child, In(Land::kDiaspora)),
            "Jewish birthday: 1 Nisan 6750\nBar mitzvah: after the Jewish year 6761, the last one that is reckoned "
            "here.\n");
  EXPECT_EQ(TimeLeft(child, DayOf(20270101)), "");
  EXPECT_TRUE(EventsOf(child, "", In(Land::kDiaspora)).empty());
}

TEST(Majority, EveryDayOfBirthHasAnAnswer) {
  const int32_t end = DayOf(30001231);
  for (int32_t day = DayOf(15830101); day <= end; day += 7 * 13 + 1) {
    const Date born = calendar::GregorianFromAbsolute(day);
    const Child child = {{persons::Calendar::kGregorian, born, day % 2 == 0}, day % 4 < 2};
    EXPECT_THAT(FactsOf(child, In(day % 3 == 0 ? Land::kIsrael : Land::kDiaspora)), StartsWith("Jewish birthday: "));
  }
}

TEST(MajorityEvents, AreTheDayAndTheShabbatWithTheName) {
  const auto events = EventsOf(BornOn(20140302), " Moshe ", In(Land::kDiaspora));
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].summary, "Bar mitzvah of Moshe");
  EXPECT_EQ(events[0].date.year * 10000 + events[0].date.month * 100 + events[0].date.day, 20270309);
  EXPECT_EQ(events[1].summary, "Bar mitzvah of Moshe, Shabbat");
  EXPECT_EQ(events[1].date.year * 10000 + events[1].date.month * 100 + events[1].date.day, 20270313);
  EXPECT_THAT(events[1].description, HasSubstr("Torah: Pekudei"));
  EXPECT_NE(events[0].uid, events[1].uid);
  EXPECT_EQ(events[0].uid, EventsOf(BornOn(20140302), "Moshe", In(Land::kIsrael))[0].uid);
  EXPECT_NE(events[0].uid, EventsOf(BornOn(20140302), "Aharon", In(Land::kDiaspora))[0].uid);
  EXPECT_NE(events[0].uid, EventsOf(BornOn(20140303), "Moshe", In(Land::kDiaspora))[0].uid);
}

// 22 March 2042 is a Shabbat itself.
TEST(MajorityEvents, AreOneWhenTheDayIsTheShabbat) {
  const auto events = EventsOf(BornOn(20300305, true), "", In(Land::kDiaspora));
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].summary, "Bat mitzvah");
}

TEST(MajorityBirthday, IsKnownAgainByNameAndJewishDay) {
  const persons::Person birthday = BirthdayOf(BornOn(20140302), "\tMoshe ben Avraham ");
  EXPECT_EQ(birthday.name, "Moshe ben Avraham");
  EXPECT_EQ(birthday.kind, persons::Kind::kBirthday);
  persons::Persons stored;
  EXPECT_FALSE(HasBirthday(stored, birthday));
  stored.persons = {birthday};
  EXPECT_TRUE(HasBirthday(stored, birthday));
  stored.persons[0].notes = "grandson";
  stored.persons[0].event = {persons::Calendar::kJewish, {30, calendar::kAdar, 5774}, false};
  EXPECT_TRUE(HasBirthday(stored, birthday));
  stored.persons[0].name = "Moshe";
  EXPECT_FALSE(HasBirthday(stored, birthday));
  stored.persons[0] = birthday;
  stored.persons[0].kind = persons::Kind::kYahrzeit;
  EXPECT_FALSE(HasBirthday(stored, birthday));
  EXPECT_EQ(BirthdayOf(BornOn(20140302), " \r\n").name, "");
}

}  // namespace
}  // namespace majority
