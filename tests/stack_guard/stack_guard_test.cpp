// What the program does when something has been written past an array: it ends at once, with the code that the system
// knows for it (STATUS_STACK_BUFFER_OVERRUN).
#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr unsigned kStackBufferOverrun = 0xC0000409;

// Read at run time, so that the compiler cannot see that it is too much.
volatile std::size_t tooMuch = 64;

[[gnu::noinline]] int WritePastAnArray() {
  char bytes[16];
  auto* place = bytes;
  asm volatile("" : "+r"(place));  // from here on the compiler does not know whose bytes these are
  for (std::size_t i = 0; i < tooMuch; ++i) place[i] = 1;
  asm volatile("" : : "r"(place) : "memory");
  return bytes[1];
}

// Ends the process itself behind the copy, so that nothing but the checked copy can be what stops it.
[[gnu::noinline, noreturn]] void CopyAndExit() {
  char bytes[16];
  std::memset(bytes, 1, tooMuch);
  asm volatile("" : : "r"(bytes) : "memory");
  std::_Exit(bytes[1]);
}

}  // namespace

TEST(StackGuard, AFunctionThatHasWrittenPastItsArrayDoesNotReturn) {
  EXPECT_EXIT(std::_Exit(WritePastAnArray()), testing::ExitedWithCode(static_cast<int>(kStackBufferOverrun)), "");
}

TEST(StackGuard, ACopyThatDoesNotFitIsNotMade) {
  EXPECT_EXIT(CopyAndExit(), testing::ExitedWithCode(static_cast<int>(kStackBufferOverrun)), "");
}

TEST(StackGuard, AnArrayFilledToItsEndIsFine) {
  tooMuch = 16;
  EXPECT_EQ(WritePastAnArray(), 1);
  EXPECT_EXIT(CopyAndExit(), testing::ExitedWithCode(1), "");
}
