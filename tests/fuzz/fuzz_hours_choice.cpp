#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <set>
#include <string>

#include "libraries/hours/choice.h"
#include "libraries/hours/description_text.h"
#include "tests/fuzz/check.h"

namespace {

using namespace hours;

// The zmanim of the catalogue are the same each time, so only those of users are looked at.
void CheckDescriptions(const Choice& choice) {
  std::set<std::string> descriptions;
  std::set<std::string> hebrew;
  for (const OfferedZman& offered : OfferedZmanim(choice)) {
    FUZZ_CHECK(descriptions.insert(offered.zman.description).second);
    FUZZ_CHECK(hebrew.insert(offered.zman.hebrew).second);
    FUZZ_CHECK(offered.zman.description.size() <= kMostDescriptionBytes);
    FUZZ_CHECK(DisplayHebrew(offered.zman.hebrew).size() == offered.zman.hebrew.size());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const bool isOwnChosen = input.ConsumeBool();
  const std::string text = input.ConsumeRemainingBytesAsString();
  const Choice choice = ReadChoice(text);
  FUZZ_CHECK(!choice.chosen.empty() && choice.chosen.size() <= kMostChosen);
  const std::string written = Applied(choice, text);
  FUZZ_CHECK(ReadChoice(written) == choice);
  FUZZ_CHECK(Applied(choice, written) == written);
  if (!choice.own.empty()) CheckDescriptions(choice);

  // Another choice, written over it.
  Choice other = choice;
  other.chosen = {isOwnChosen && !choice.own.empty() ? OwnId(choice.own.back().number) : "sunset"};
  FUZZ_CHECK(ReadChoice(Applied(other, text)) == other);
  FUZZ_CHECK(EightBitFromUtf8(text).size() <= text.size());
  FUZZ_CHECK(DisplayHebrew(text).size() == text.size());
  return 0;
}
