#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "output/text_layout.h"
#include "tests/fuzz/check.h"
#include "zmanim/core/right_to_left_flow.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const PaneRect area{input.ConsumeIntegralInRange(-1000, 1000), input.ConsumeIntegralInRange(-1000, 1000),
                      input.ConsumeIntegralInRange(0, 2000), 0};
  const int lineHeight = input.ConsumeIntegralInRange(1, 50);
  const int letterWidth = input.ConsumeIntegralInRange(0, 30);
  const bool reversed = input.ConsumeBool();
  const std::string text = input.ConsumeRemainingBytesAsString();
  const auto measure = [letterWidth](std::string_view word) { return letterWidth * static_cast<int>(word.size()); };

  // Drawn words give the text back. None reaches over the left edge but one that is wider than the area; each stands
  // at the left of the one before it, or on a later line.
  std::string joined;
  int lastX = area.Right();
  int lastY = area.y;
  const auto draw = [&](int x, int y, std::string_view word) {
    joined += reversed ? ReverseText(word) : std::string(word);
    FUZZ_CHECK(x >= area.x || measure(word) > area.width);
    FUZZ_CHECK(y > lastY ? x == area.Right() - measure(word) : y == lastY && x == lastX - measure(word));
    FUZZ_CHECK((y - area.y) % lineHeight == 0);
    lastX = x;
    lastY = y;
  };
  const WordBytes bytes = reversed ? WordBytes::kReversed : WordBytes::kAsTheyStand;
  RightToLeftFlow drawn(area, lineHeight, measure, draw);
  drawn.Flow(text, bytes);
  FUZZ_CHECK(joined == text);
  FUZZ_CHECK(drawn.y() == lastY);

  RightToLeftFlow measured(area, lineHeight, measure, nullptr);
  measured.Flow(text, bytes);
  FUZZ_CHECK(measured.y() == drawn.y());
  return 0;
}
