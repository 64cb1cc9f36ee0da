// The user's Shabbat-time preferences: "shabbat2.ini", section "Shabbat". Nothing is kept; every call reads afresh.
#pragma once

#include <cstdint>

namespace ShabbatPreferences {

int32_t CandleLightingMinutes();  // before Friday's sunset; 18 unless set
bool EndsByMinutes();             // true: minutes after Saturday's sunset; false: degrees below the horizon
int32_t EndMinutes();             // after Saturday's sunset; 45 unless set
double DegreesBelowHorizon();     // the sun's depression at the end of Shabbat; 8.0 unless set
int32_t MinutesAfterDegrees();    // added to the degrees time; 0 unless set

}  // namespace ShabbatPreferences
