// What a fuzz target says about its input, beside what the sanitizers say.
#pragma once

#include <cstdio>
#include <cstdlib>

// A statement that holds for every input; one that does not is a crash.
#define FUZZ_CHECK(statement)                                                             \
  do {                                                                                    \
    if (!(statement)) {                                                                   \
      std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #statement); \
      std::abort();                                                                       \
    }                                                                                     \
  } while (false)
