#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "libraries/ownhours/own_times.h"
#include "tests/fuzz/check.h"

namespace {

using namespace ownhours;

// In whatever text, a time that is set is found, and what it does not name stays as it was.
void CheckSet(const std::string& text, const Entry& entry) {
  const Changes changes = {{entry.occasion, entry.time}};
  const std::string after = Applied(changes, text);
  const Occasion& occasion = entry.occasion;
  FUZZ_CHECK(OwnTimes(after).Find(occasion.date, occasion.description, occasion.place) == entry.time);
  const std::string otherPlace = occasion.place + "x";
  FUZZ_CHECK(OwnTimes(after).Find(occasion.date, occasion.description, otherPlace) ==
             OwnTimes(text).Find(occasion.date, occasion.description, otherPlace));
  FUZZ_CHECK(Applied(changes, after) == after);
  FUZZ_CHECK(EntryIn(LineOf(entry)) == entry);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto number = [&input](int32_t last) { return input.ConsumeIntegralInRange(0, last); };
  const auto date = PackDate(input.ConsumeIntegral<uint8_t>(), input.ConsumeIntegral<uint8_t>() % 16,
                             input.ConsumeIntegral<uint16_t>());
  const Time time = {number(30), number(70)};
  const std::string description = input.ConsumeRandomLengthString(60);
  const std::string place = input.ConsumeRandomLengthString(40);
  const std::string text = input.ConsumeRemainingBytesAsString();
  const OwnTimes times(text);
  FUZZ_CHECK(Applied({}, text) == text);
  if (!date) return 0;
  times.Find(*date, description, place);
  const Entry entry = {{*date, description, place}, time};
  if (CanBeKept(entry)) CheckSet(text, entry);
  return 0;
}
