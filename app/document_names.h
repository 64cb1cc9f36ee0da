// Names of days and months in the languages of documents, as the system and the calendar libraries have them. Texts are
// UTF-8.
#pragma once

#include <cstdint>
#include <string>

// weekday: from 0, Sunday.
std::string WeekdayName(int32_t weekday, uint32_t language);

// month: from 1.
std::string CivilMonthName(uint32_t month, uint32_t year, uint32_t language);

// month: from Nisan = 1; Adar, Adar I or Adar II by the year.
std::string JewishMonthName(uint32_t month, uint32_t year, uint32_t language);
