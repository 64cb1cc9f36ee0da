// The months' names in the languages of the exports.
#pragma once

#include <cstdint>

namespace calendar {

// Languages are numbered: 1 English, 3 German, 4 Hebrew, 5 French, 6 Danish, 7 Finnish, 8 Swedish, 9 Dutch, 10 Spanish,
// 11 Norwegian, 12 Portuguese, 14 Hungarian, 15 Czech, 16 Greek, 17 Russian, 20 Italian, 21 Polish; any other number
// answers English. Names are in windows-1252, Hungarian, Czech and Polish ones in windows-1250, Hebrew ones in
// windows-1255, in logical order, Greek ones in windows-1253, Russian ones in windows-1251. A month that the year does
// not have answers an empty text; never null.
constexpr uint32_t kEnglish = 1;

const char* GregorianMonthName(int32_t month, int32_t year, uint32_t language);

// Month 12 is Adar in a common year and Adar I in a leap year.
const char* JewishMonthName(int32_t month, int32_t year, uint32_t language);

}  // namespace calendar
