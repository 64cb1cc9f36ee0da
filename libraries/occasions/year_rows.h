// What has its dates in the Jewish year.
#pragma once

#include "libraries/occasions/holy_days.h"

namespace occasions {

// The sources of rows of a year.
struct YearSources {
  const Question& question;
  Sky& sky;
  HolyTimes& times;
  RowCollector& rows;
};

// A zman of a day as a row's moment; where it does not occur, the row stands on the day without a time and says why.
void AddZman(const YearSources& sources, int32_t day, const hours::Definition& zman, Row row);

// Festivals' days, minor days, named Shabbatot, modern days.
void AddNamedDays(const YearSources& sources, int32_t jewishYear);

// Fasts but that of Yom Kippur, and BeHaB.
void AddFasts(const YearSources& sources, int32_t jewishYear);

// Search, eating and burning on the eve of Pesach.
void AddChametz(const YearSources& sources, int32_t jewishYear);

// Lights of Chanukah, the count of the omer.
void AddLights(const YearSources& sources, int32_t jewishYear);
void AddOmer(const YearSources& sources, int32_t jewishYear);

// Rosh Chodesh, molad, its announcement, kiddush levana: month_rows.cpp.
void AddMonths(const YearSources& sources, int32_t jewishYear);

// Tekufot, tal umatar, the blessing of the sun, Selichot: season_rows.cpp.
void AddSeasons(const YearSources& sources, int32_t jewishYear);
void AddSelichot(const YearSources& sources, int32_t jewishYear);

}  // namespace occasions
