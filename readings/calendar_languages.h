// The languages that dates can be exported in.
#pragma once

#include <cstdint>

struct CalendarLanguage {
  uint32_t code;  // as the calendar libraries number them
  char name[32];
};

// Ended by a record with an empty name. Deliberate: "Finish" is shown as users know it.
inline constexpr CalendarLanguage kCalendarLanguages[] = {
    {1, "English"},    {3, "German"},   {5, "French"},   {6, "Danish"},     {7, "Finish"},
    {8, "Swedish"},    {9, "Dutch"},    {10, "Spanish"}, {11, "Norwegian"}, {12, "Portuguese"},
    {14, "Hungarian"}, {20, "Italian"}, {21, "Polish"},  {0, ""},
};
