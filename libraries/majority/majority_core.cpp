#include "libraries/majority/majority_core.h"

#include <algorithm>

#include "libraries/calendar/jewish.h"

namespace majority {
namespace {

constexpr char kBlanks[] = " \t\r\n";

std::string Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

int32_t ShabbatFrom(int32_t day) {
  constexpr int32_t kSaturday = static_cast<int32_t>(calendar::Weekday::kSaturday);
  return day + kSaturday - static_cast<int32_t>(calendar::WeekdayOf(day));
}

}  // namespace

std::optional<ComingOfAge> ComingOfAgeOf(const Child& child) {
  ComingOfAge age;
  age.birth = persons::JewishDateOf(child.birth);
  const std::optional<int32_t> day = persons::ComesOfAge(age.birth, child.isGirl ? kAgeOfGirls : kAgeOfBoys);
  if (!day) return std::nullopt;
  age.day = *day;
  age.birthday = calendar::JewishFromAbsolute(*day);
  age.shabbat = ShabbatFrom(*day);
  return age;
}

persons::Person BirthdayOf(const Child& child, std::string_view name) {
  persons::Person person;
  person.kind = persons::Kind::kBirthday;
  person.event = child.birth;
  person.name = Trimmed(name);
  return person;
}

bool HasBirthday(const persons::Persons& stored, const persons::Person& birthday) {
  return std::ranges::any_of(stored.persons, [&birthday](const persons::Person& person) {
    return person.kind == birthday.kind && person.name == birthday.name &&
           persons::JewishDateOf(person.event) == persons::JewishDateOf(birthday.event);
  });
}

}  // namespace majority
