// When a child comes of age. Sources: Mishnah, Avot 5:21 and Niddah 5:6; Shulchan Aruch, Orach Chaim 55:9-10 with Rema
// (Adar, and days that the year does not have); the rules of the day itself are persons::ComesOfAge.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/persons/person.h"
#include "libraries/persons/personal_date.h"

namespace majority {

constexpr int32_t kAgeOfBoys = 13;
constexpr int32_t kAgeOfGirls = 12;

struct Child {
  persons::EventDate birth;  // one that IsDate, its year known
  bool isGirl = false;

  friend bool operator==(const Child&, const Child&) = default;
};

// Absolute days are the daytime of a Jewish day, which begins on the evening before.
struct ComingOfAge {
  calendar::Date birth;     // Jewish
  calendar::Date birthday;  // Jewish, on which the child comes of age
  int32_t day = 0;          // the same
  int32_t shabbat = 0;      // the first on or after it
};

// None where the day lies beyond the years of persons/personal_date.h.
std::optional<ComingOfAge> ComingOfAgeOf(const Child& child);

// The child's birthday as an entry of the persons' file; its name without blanks around it.
persons::Person BirthdayOf(const Child& child, std::string_view name);

// Whether the entries have the birthday already: the same name, born on the same Jewish day.
bool HasBirthday(const persons::Persons& stored, const persons::Person& birthday);

}  // namespace majority
