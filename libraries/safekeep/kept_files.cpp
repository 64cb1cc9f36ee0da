#include "libraries/safekeep/kept_files.h"

#include <algorithm>

namespace safekeep {
namespace {

constexpr KeptFile kKeptFiles[] = {
    {"shabbat2.ini", "Your places and Shabbat time preferences"},
    {"shabloc2.ini", "Your places: coordinates and zones"},
    {"almanachlp2.ini", "Your places, for the sibling calendar"},
    {"almanachlpl2.ini", "Coordinates, for the sibling calendar"},
    {"almanacelevation.ini", "Elevations of places"},
    {"almanac13.ini", "The place at the start"},
    {"placepick.ini", "Places used last"},
    {"solar.ini", "Summer time"},
    {"shab30.ini", "Zmanim names and forms of exports"},
    {"stamp.ini", "Form of times"},
    {"candles.txt", "Custom candle-lighting times"},
    {"hours.txt", "Zmanim selection"},
    {"hours.ini", "Zmanim selection: its window"},
    {"ownhours.txt", "Times set by hand"},
    {"ownhours.ini", "Times set by hand: their window"},
    {"lections.ini", "Readings: land, customs and language"},
    {"readings.txt", "Custom readings"},
    {"readings.ini", "Custom readings: their window"},
    {"persons.txt", "Birthdays and yahrzeit"},
    {"persons.txt.1", "Birthdays and yahrzeit, one change ago"},
    {"persons.txt.2", "Birthdays and yahrzeit, two changes ago"},
    {"persons.txt.3", "Birthdays and yahrzeit, three changes ago"},
    {"kinship.ini", "Birthdays and yahrzeit: window and font"},
    {"occasions.ini", "Occasions of the year: customs and window"},
    {"safekeep.ini", "Restoring settings: its window"},
};

}  // namespace

std::span<const KeptFile> KeptFiles() {
  return kKeptFiles;
}

const KeptFile* FindKeptFile(std::string_view name) {
  const auto* const found = std::find_if(std::begin(kKeptFiles), std::end(kKeptFiles),
                                         [name](const auto& file) { return file.name == name; });
  return found == std::end(kKeptFiles) ? nullptr : found;
}

}  // namespace safekeep
