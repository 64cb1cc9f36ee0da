#include "libraries/kinship/person_events.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/persons/date_fields.h"
#include "publishing/core/stable_hash.h"

namespace kinship {
namespace {

using persons::Kind;
using persons::Observance;
using persons::Person;

constexpr uint64_t kOtherBasis = 0x84222325CBF29CE4u;  // for 64 bits more

// Of an entry, whatever its notes say and whichever Adar it is kept in. occurrence: among entries that are the same.
std::string KeyOf(const Person& person, int occurrence) {
  Person told = person;
  told.notes.clear();
  told.adar.reset();
  const std::string line = persons::LineOf(told);
  char key[64];
  std::snprintf(key, sizeof key, "%016llx%016llx-%d", static_cast<unsigned long long>(publishing::StableHash(line)),
                static_cast<unsigned long long>(publishing::StableHash(line, kOtherBasis)), occurrence);
  return key;
}

std::string UidOf(const std::string& key, const calendar::Date& jewish) {
  char day[48];
  std::snprintf(day, sizeof day, "-%04d%02d%02d@times-readings", jewish.year, jewish.month, jewish.day);
  return key + day;
}

std::string SummaryOf(const Person& person, const Observance& day) {
  const bool hasNoTitle = person.kind == Kind::kOther && person.title.empty();
  std::string summary = hasNoTitle ? person.name : OccasionOf(person) + " of " + person.name;
  if (day.years && *day.years > 0) summary += " (" + std::to_string(*day.years) + ")";
  return summary;
}

std::string DescriptionOf(const Person& person, const Observance& day, const calendar::Date& jewish) {
  std::string description = persons::JewishDateText(jewish);
  if (person.kind == Kind::kYahrzeit) {
    description += "\nIt begins the evening before, on " + DayInWords(day.absoluteDay - 1) + ".";
  }
  return description;
}

publishing::Event EventOf(const Person& person, const Observance& day, const std::string& key) {
  const calendar::Date jewish = calendar::JewishFromAbsolute(day.absoluteDay);
  const calendar::Date date = calendar::GregorianFromAbsolute(day.absoluteDay);
  return {.uid = UidOf(key, jewish),
          .date = {date.year, date.month, date.day},
          .summary = SummaryOf(person, day),
          .description = DescriptionOf(person, day, jewish)};
}

}  // namespace

std::vector<publishing::Event> EventsOf(const std::vector<Person>& people, persons::AdarCustom ofYahrzeit,
                                        int32_t firstYear, int32_t years) {
  std::vector<publishing::Event> events;
  std::map<std::string, int> occurrences;
  const int32_t end = std::min(firstYear + years, persons::kLastGregorianYear + 1);
  for (const Person& person : people) {
    const std::string key = KeyOf(person, ++occurrences[KeyOf(person, 0)]);
    const calendar::Date jewish = persons::JewishDateOf(person.event);
    const auto adar = persons::CustomOf(person.kind, person.adar, ofYahrzeit);
    for (int32_t year = firstYear; year < end; ++year) {
      const persons::Observances kept = persons::KeptInGregorianYear(jewish, person.kind, adar, year);
      for (const Observance& day : kept) events.push_back(EventOf(person, day, key));
    }
  }
  return events;
}

}  // namespace kinship
