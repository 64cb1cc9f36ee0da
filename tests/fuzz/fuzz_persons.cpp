#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "libraries/persons/person.h"
#include "tests/fuzz/check.h"

namespace {

using namespace persons;

std::vector<Person> In(const std::string& text) {
  return PersonsIn(text).persons;
}

// How often a person stands in a text.
int64_t Count(const std::string& text, const Person& person) {
  return std::ranges::count(In(text), person);
}

// In whatever text, an addition adds one, a removal takes one, and no other person or damaged line is touched.
void CheckChanges(const std::string& text, const Person& added) {
  const size_t persons = In(text).size();
  const size_t damaged = PersonsIn(text).damagedLines.size();
  std::vector<Change> missed;
  const std::string after = Applied({{std::nullopt, added}}, text, &missed);
  FUZZ_CHECK(missed.empty());
  FUZZ_CHECK(In(after).size() == persons + 1 && In(after).back() == added);
  FUZZ_CHECK(PersonsIn(after).damagedLines.size() == damaged);
  const std::string before = Applied({{added, std::nullopt}}, after, &missed);
  FUZZ_CHECK(missed.empty() && In(before).size() == persons && Count(before, added) == Count(text, added));
  FUZZ_CHECK(PersonsIn(before).damagedLines.size() == damaged);
}

// A change of one that is there keeps its place.
void CheckChange(const std::string& text, const Person& person) {
  const std::vector<Person> persons = In(text);
  if (persons.empty()) return;
  std::vector<Change> missed;
  const std::string after = Applied({{persons.back(), person}}, text, &missed);
  FUZZ_CHECK(missed.empty() && In(after).size() == persons.size());
  FUZZ_CHECK(Count(after, person) > 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  Person person;
  person.kind = static_cast<Kind>(input.ConsumeIntegralInRange(0, kKinds - 1));
  person.event.calendar = input.ConsumeBool() ? Calendar::kJewish : Calendar::kGregorian;
  person.event.afterSunset = input.ConsumeBool();
  person.event.date = {input.ConsumeIntegral<int8_t>() % 40, input.ConsumeIntegral<int8_t>() % 16,
                       input.ConsumeIntegral<uint16_t>() % 8000};
  if (input.ConsumeBool()) person.adar = static_cast<AdarCustom>(input.ConsumeIntegralInRange(0, 2));
  person.name = input.ConsumeRandomLengthString(210);
  person.notes = input.ConsumeRandomLengthString(100);
  const std::string text = input.ConsumeRemainingBytesAsString();
  std::vector<Change> missed;
  FUZZ_CHECK(text.empty() || Applied({}, text, &missed) == text);
  for (const Person& found : In(text)) {
    FUZZ_CHECK(CanBeKept(found) && PersonIn(LineOf(found)) == found);
  }
  if (!CanBeKept(person)) return 0;
  FUZZ_CHECK(PersonIn(LineOf(person)) == person);
  CheckChanges(text, person);
  CheckChange(text, person);
  return 0;
}
