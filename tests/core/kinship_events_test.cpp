#include "libraries/kinship/person_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "tests/core/kinship_people.h"

namespace kinship {
namespace {

using persons::AdarCustom;
using persons::Kind;
using persons::Person;
using testing::SizeIs;

const Person kMoshe = Jewish(Kind::kYahrzeit, "Moshe", {14, calendar::kAdar, 5710});

// Purim of 5786 is 3 March 2026 (published calendars).
TEST(PersonEvents, AYahrzeitSaysItsYearsAndThatItBeginsTheEveningBefore) {
  const auto events = EventsOf({kMoshe}, AdarCustom::kAdarI, 2026, 1);
  ASSERT_THAT(events, SizeIs(1));
  EXPECT_EQ(events[0].summary, "Yahrzeit of Moshe (76)");
  EXPECT_EQ(events[0].description, "14 Adar 5786\nIt begins the evening before, on Monday, 2 March 2026.");
  EXPECT_EQ(events[0].date.day, 3);
  EXPECT_EQ(events[0].date.month, 3);
  EXPECT_EQ(events[0].date.year, 2026);
}

TEST(PersonEvents, OtherDatesAreCalledByTheirTitle) {
  Person person = Jewish(Kind::kOther, "Dan", {14, calendar::kAdar, persons::kUnknownYear});
  EXPECT_EQ(EventsOf({person}, AdarCustom::kAdarI, 2026, 1)[0].summary, "Dan");
  person.title = "Aliyah";
  EXPECT_EQ(EventsOf({person}, AdarCustom::kAdarI, 2026, 1)[0].summary, "Aliyah of Dan");
  EXPECT_EQ(EventsOf({person}, AdarCustom::kAdarI, 2026, 1)[0].description, "14 Adar 5786");
}

TEST(PersonEvents, EveryEventHasAUidOfItsOwnThatStays) {
  Person dan = kMoshe;
  dan.name = "Dan";
  const std::vector<Person> people = {kMoshe, kMoshe, dan};
  const auto events = EventsOf(people, AdarCustom::kBoth, 2026, 10);
  std::set<std::string> uids;
  for (const auto& event : events) uids.insert(event.uid);
  EXPECT_EQ(uids.size(), events.size());
  Person noted = kMoshe;
  noted.notes = "x";
  EXPECT_EQ(EventsOf({noted}, AdarCustom::kAdarI, 2026, 1)[0].uid, events[0].uid);
}

TEST(PersonEvents, YearsPastTheLastOneHaveNone) {
  EXPECT_THAT(EventsOf({kMoshe}, AdarCustom::kAdarI, 3000, 100), SizeIs(1));
}

}  // namespace
}  // namespace kinship
