// The zmanim in use among communities, from which the user chooses.
//
// Sources: Shulchan Aruch, Orach Chaim 58, 89, 233, 261, 443 with Magen Avraham, Vilna Gaon, Mishnah Berurah and
// Shulchan Aruch HaRav; the tables of degrees and minutes that printed calendars and independent programs of the field
// publish.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "libraries/hours/zman.h"

namespace hours {

// The kinds of zmanim, in the order of the day.
enum class Kind : uint8_t {
  kDawn,
  kTallit,
  kSunrise,
  kShema,
  kTefila,
  kChametz,
  kMidday,
  kMincha,
  kPlag,
  kCandles,
  kSunset,
  kBeinHashmashot,
  kNightfall,
  kMidnight,
};

// The kinds as people call them, in the order of Kind.
std::span<const char* const> KindNames();

struct CatalogueZman {
  const char* id;           // ASCII; kept in users' files, never changed
  const char* description;  // UTF-8, all of windows-1252
  const char* hebrew;       // UTF-8 in logical order, letters and ASCII
  Definition definition;
  Kind kind;
  const char* authority;  // whose opinion it is, or who uses it
};

// In the order of the kinds, each kind roughly by time of day.
std::span<const CatalogueZman> Catalogue();

// Null when there is none.
const CatalogueZman* FindInCatalogue(std::string_view id);

}  // namespace hours
