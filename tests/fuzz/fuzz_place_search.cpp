#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "libraries/placepick/place_names_table.h"
#include "libraries/placepick/place_search.h"
#include "libraries/sun/places.h"
#include "tests/fuzz/check.h"

namespace {

using namespace placepick;

// Some of the built-in places, since each input searches them all.
const PlaceIndex& SomePlaces() {
  static const PlaceIndex index([] {
    std::vector<Place> places;
    for (std::size_t i = 0; i < sun::BuiltInPlaces().size(); i += 50) {
      const auto& others = place_names_table::names[i];
      places.push_back({sun::BuiltInPlaces()[i].name, 0, 0, 0, 0, i % 100 == 0, others.country, others.names});
    }
    return places;
  }());
  return index;
}

std::u16string Units(const std::string& bytes) {
  std::u16string units;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto byte = [&bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    units += static_cast<char16_t>(byte(i) | byte(i + 1) << 8);
  }
  return units;
}

}  // namespace

// Whatever is typed, each place is found at most once, those used last come first, and one of them is the best.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const PlaceIndex& index = SomePlaces();
  std::vector<std::size_t> lastUsed;
  for (int i = input.ConsumeIntegralInRange(0, 10); i > 0; --i) lastUsed.push_back(input.ConsumeIntegral<uint8_t>());
  const std::u16string typed = Units(input.ConsumeRemainingBytesAsString());

  const std::vector<std::size_t> found = index.Matching(typed, lastUsed);
  FUZZ_CHECK(std::set(found.begin(), found.end()).size() == found.size());
  for (const std::size_t number : found) {
    FUZZ_CHECK(number < index.Size());
    const std::u16string_view meant = index.MeantName(number, typed);
    FUZZ_CHECK(index[number].otherNames.find(meant) != std::u16string_view::npos);
  }
  const auto isUsed = [&lastUsed](std::size_t number) { return std::ranges::find(lastUsed, number) != lastUsed.end(); };
  FUZZ_CHECK(std::ranges::is_partitioned(found, isUsed));
  const auto best = index.Best(typed, found);
  FUZZ_CHECK(best.has_value() == !found.empty() && (!best || *best < found.size()));
  if (Fold(typed).text.empty()) FUZZ_CHECK(found.size() == index.Size());
  return 0;
}
