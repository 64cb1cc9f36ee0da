// Times as text, in 24- or 12-hour form.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace stamp {

enum class Form { kTwentyFourHours, kTwelveHours };

// "18:47", or "06:47 p.m." in 12-hour form, where midnight is "12:00 a.m." and noon "12:00 p.m.". The hours 24 to 47
// are those of the next day, which an evening in the far north can reach: 25:18 is "01:18". When the hour is not 0 to
// 47 or the minute not 0 to 59, both are printed as they stand in either form, each to at least two characters, a minus
// sign included: "48:05", "19:-3". At most 23 characters.
std::string TimeText(int32_t hour, int32_t minute, Form form);

// The form that the user chose ("12" or "24"); any other text leaves it to the regional setting.
Form ChosenForm(std::string_view choice, Form regional);

}  // namespace stamp
