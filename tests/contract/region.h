// The country of the user's region, for a test.
#pragma once

#include <windows.h>

// Puts another country in force while it lives; a number of the system's table of geographical locations.
class Region {
 public:
  static constexpr GEOID kIsrael = 117;
  static constexpr GEOID kGermany = 94;

  explicit Region(GEOID country) : before_(GetUserGeoID(GEOCLASS_NATION)) { SetUserGeoID(country); }
  ~Region() { SetUserGeoID(before_); }
  Region(const Region&) = delete;
  Region& operator=(const Region&) = delete;

 private:
  GEOID before_;
};
