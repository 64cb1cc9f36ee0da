// Adds own texts of readings that are their numbers, each for a date of its own, 1 Nisan of the year 1 for 0.
#include <string>
#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/own_readings_file.h"
#include "tests/profile_store/writer_progress.h"

int main(int argumentCount, char** arguments) {
  return RunWriter(argumentCount, arguments, [](int number) {
    using namespace lections;
    constexpr int kDays = 29;
    const OwnPlace place = {.when = WhenOfDate(1 + number % kDays, calendar::kNisan, 1 + number / kDays)};
    std::vector<OwnPlace> conflicts;
    return WriteOwnChanges({{place, OwnText{How::kInstead, std::to_string(number)}}}, {}, false, &conflicts);
  });
}
