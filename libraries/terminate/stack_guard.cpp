// What the compiler's stack protector and the checked copies of the C headers need: the value that stands between a
// function's arrays and its return address, and what happens when something has been written over it.
//
// This replaces GCC's libssp, which asks a cryptographic provider for its value: while a DLL is being loaded that loads
// further DLLs, twenty times at each start.
#include <windows.h>

#include <cstdint>

namespace {

// Where sources of little surprise are put together: each changes half of all bits (finaliser of splitmix64).
uint64_t Mixed(uint64_t value) {
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
  return value ^ (value >> 31);
}

// The system's way out (interrupt 0x29, the reason in cx), at once: nothing on this stack can be trusted, not even the
// handlers of exceptions. The system makes its own report of it.
[[noreturn]] void FailFast(unsigned reason) {
  asm volatile("int $0x29" : : "c"(reason));
  __builtin_unreachable();
}

}  // namespace

extern "C" {

uintptr_t __stack_chk_guard = 0;

// Of the same sources as the value in the system's own files: clock, process, thread, performance counter, where the
// stack lies. It is taken before any other constructor, and no function that is under way has an array of its own. Its
// last byte is 0, at which copying of a text ends.
__attribute__((constructor(101), no_stack_protector)) static void ChooseStackGuard() {
  FILETIME now;
  LARGE_INTEGER counter;
  GetSystemTimeAsFileTime(&now);
  QueryPerformanceCounter(&counter);
  uint64_t value = Mixed((uint64_t{now.dwHighDateTime} << 32) | now.dwLowDateTime);
  value = Mixed(value ^ ((uint64_t{GetCurrentProcessId()} << 32) | GetCurrentThreadId()));
  value = Mixed(value ^ static_cast<uint64_t>(counter.QuadPart));
  value = Mixed(value ^ reinterpret_cast<uintptr_t>(&now));
  __stack_chk_guard = value & ~uint64_t{0xFF};
}

[[noreturn]] void __stack_chk_fail() {
  FailFast(FAST_FAIL_STACK_COOKIE_CHECK_FAILURE);
}

[[noreturn]] void __chk_fail() {
  FailFast(FAST_FAIL_RANGE_CHECK_FAILURE);
}

}  // extern "C"
