#include "app/document_names.h"

#include <windows.h>

#include <iterator>

#include "app/core/document_words.h"
#include "companion/datecore.h"
#include "engine/bound_entries.h"
#include "win/unicode_text.h"

namespace {

constexpr uint32_t kNameSize = 64;

}  // namespace

std::string WeekdayName(int32_t weekday, uint32_t language) {
  constexpr LCTYPE kFromSunday[] = {LOCALE_SDAYNAME7, LOCALE_SDAYNAME1, LOCALE_SDAYNAME2, LOCALE_SDAYNAME3,
                                    LOCALE_SDAYNAME4, LOCALE_SDAYNAME5, LOCALE_SDAYNAME6};
  if (weekday < 0 || weekday >= static_cast<int32_t>(std::size(kFromSunday))) return {};
  const std::wstring tag = WideOf(WordsLanguageOf(language).tag, CP_UTF8);
  wchar_t name[kNameSize] = L"";
  GetLocaleInfoEx(tag.c_str(), kFromSunday[weekday], name, kNameSize);
  return Utf8Of(name);
}

std::string CivilMonthName(uint32_t month, uint32_t year, uint32_t language) {
  char name[kNameSize] = "";
  CivilCalendar.DatefilterGetMonthNameEx(month, 0, name, kNameSize, year, language);
  return Utf8Of(WideOf(name, WordsLanguageOf(language).codePage));
}

std::string JewishMonthName(uint32_t month, uint32_t year, uint32_t language) {
  char name[kNameSize] = "";
  LunarGetMonthNameEx(month, 0, name, kNameSize, year, language);
  return Utf8Of(WideOf(name, WordsLanguageOf(language).codePage));
}
