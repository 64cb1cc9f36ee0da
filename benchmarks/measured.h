// How a benchmark of the program is measured and reported.
#pragma once

#include <windows.h>

// A figure as the report reads it: its name, a tab, the number.
void Report(const char* name, double figure);

// Milliseconds on the system's high-resolution clock, from some start.
double NowMilliseconds();

// The least time that one of several rounds takes, in milliseconds: what else the machine does only ever adds to it.
template <typename Work>
double BestMilliseconds(int rounds, Work work) {
  double best = 0;
  for (int round = 0; round < rounds; ++round) {
    const double start = NowMilliseconds();
    work();
    const double taken = NowMilliseconds() - start;
    if (round == 0 || taken < best) best = taken;
  }
  return best;
}
