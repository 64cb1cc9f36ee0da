#include "tests/doubles/library_doubles.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "companion/candles.h"
#include "companion/datecore.h"
#include "companion/folio.h"
#include "companion/glyphs.h"
#include "companion/guide.h"
#include "companion/hours.h"
#include "companion/kinship.h"
#include "companion/lections.h"
#include "companion/majority.h"
#include "companion/ownhours.h"
#include "companion/placepick.h"
#include "companion/safekeep.h"
#include "companion/stamp.h"
#include "companion/twilight.h"
#include "engine/bound_entries.h"
#include "tests/doubles/call_log.h"
#include "tests/doubles/profile_double.h"

LibraryScript& Libraries() {
  static LibraryScript script;
  return script;
}

void ResetLibraries() {
  CallLog().clear();
  Libraries() = {};
  Libraries().missingSettings = {
      "shabbat2.ini|Shabbat|CandleLighting",
      "shabbat2.ini|Shabbat|DoMinutes",
      "shabbat2.ini|Shabbat|End",
      "shabbat2.ini|Shabbat|DegreesBelowHorizon",
      "shabbat2.ini|Shabbat|AddMinutesAfterDegrees",
      "shab30.ini|Zmanim|Hebrew",
      "shab30.ini|RtfForAllWordProcessors|ShabbatTimes",
      "shab30.ini|RtfForAllWordProcessors|Zmanim",
      "shab30.ini|RtfForAllWordProcessors|Readings",
      "shab30.ini|Settings|EnableZmanim",
      "almanac13.ini|Preferences|DefaultLocation",
  };
}

namespace {

std::string FontOf(HDC dc) {
  LOGFONTA font{};
  GetObjectA(GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
  return std::string(font.lfFaceName) + " " + std::to_string(font.lfWeight);
}

// Copies the name of a zman; whether there is one.
int32_t CopyName(const std::map<uint32_t, std::string>& names, const char* usual, uint32_t index, char* text) {
  if (index >= Libraries().zmanimCount) return 0;
  const auto found = names.find(index);
  const std::string name = found != names.end() ? found->second : usual + std::to_string(index);
  if (name.empty()) return 0;
  std::strcpy(text, name.c_str());
  return 1;
}

using OwnTimes = std::map<std::string, DoubledTime>;

OwnTimes& OwnTimesOf(const OwnHoursHandle* handle) {
  return *static_cast<OwnTimes*>(handle->store);
}

std::string OwnTimeKey(uint32_t day, uint32_t month, uint32_t year, const char* description, const char* location) {
  return std::string(location) + "|" + description + "|" + std::to_string(day) + "." + std::to_string(month) + "." +
         std::to_string(year);
}

}  // namespace

void TwilightCalculate(uint32_t day, uint32_t month, uint32_t year, double depressionDegrees, int32_t, int32_t, int32_t,
                       int32_t, int32_t* hours, int32_t* minutes) {
  LogCall("twilight %u.%u.%u %.2f", day, month, year, depressionDegrees);
  const auto found = Libraries().twilightIntervals.find(depressionDegrees);
  const DoubledTime interval =
      found != Libraries().twilightIntervals.end() ? found->second : Libraries().twilightInterval;
  *hours = interval.hour;
  *minutes = interval.minute;
}

double TwilightGetProfileDouble(const char* section, const char* key, double defaultValue, const char* file) {
  const std::optional<std::string> value = ReadSetting(section, key, file);
  return !value || value->empty() ? defaultValue : std::atof(value->c_str());
}

int32_t TwilightIsValidFloat(const char* text) {
  char* end = nullptr;
  std::strtod(text, &end);
  return end != text && *end == '\0';
}

int32_t CandlesGetTime(const char* location, uint32_t day, uint32_t month, uint32_t year, int32_t* candleHour,
                       int32_t* candleMinute, int32_t* endHour, int32_t* endMinute) {
  const auto& times = Libraries().customTimes;
  const auto found =
      times.find(location + ("|" + std::to_string(day)) + "." + std::to_string(month) + "." + std::to_string(year));
  if (found == times.end()) return 0;
  *candleHour = found->second.candles.hour;
  *candleMinute = found->second.candles.minute;
  *endHour = found->second.end.hour;
  *endMinute = found->second.end.minute;
  return 1;
}

void StampCheck(HINSTANCE, HINSTANCE, LPSTR commandLine, int showState) {
  LogCall("StampCheck %s %d", commandLine, showState);
}

int32_t StampIsAmPm(void) {
  return Libraries().amPm;
}

void StampConvert(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, STAMP_TEXT_SIZE, "<%d:%d>", hour, minute);
}

int32_t StampConfigure(HWND owner) {
  LogCall("form of times, owner %s", owner ? "yes" : "none");
  return Libraries().formChanged;
}

void CandlesDoDialog(HWND owner) {
  LogCall("custom times, owner %s", owner ? "yes" : "none");
}

void HoursDoDialogInitLoc(HWND owner, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes) {
  LogCall("choose zmanim at %d %d, zone %d:%d, owner %s", latitude, longitude, zoneHours, zoneMinutes,
          owner ? "yes" : "none");
  if (Libraries().zmanimCountAfterDialog) Libraries().zmanimCount = *Libraries().zmanimCountAfterDialog;
}

uint32_t HoursGetCount(void) {
  ++Libraries().zmanimCountQuestions;
  return Libraries().zmanimCount;
}

namespace {

std::string JewishDateText(uint32_t day, uint32_t month, uint32_t year) {
  return std::to_string(day) + "." + std::to_string(month) + "." + std::to_string(year);
}

}  // namespace

void LectionsGetReadings(uint32_t day, uint32_t month, uint32_t year, LectionsReadings* readings) {
  *readings = {};
  const auto found = Libraries().readings.find(JewishDateText(day, month, year));
  if (found == Libraries().readings.end()) return;
  std::vector<std::string> texts = found->second;
  texts.resize(7);
  std::strcpy(readings->torah1, texts[0].c_str());
  std::strcpy(readings->torah2, texts[1].c_str());
  std::strcpy(readings->torah3, texts[2].c_str());
  std::strcpy(readings->haftarah1, texts[3].c_str());
  std::strcpy(readings->haftarah2, texts[4].c_str());
  std::strcpy(readings->haftarah3, texts[5].c_str());
  std::strcpy(readings->extraText, texts[6].c_str());
}

uint32_t LectionsGetLanguage(void) {
  return Libraries().readingsLanguage;
}

int32_t LectionsIsYizkor(uint32_t day, uint32_t month, uint32_t year) {
  return Libraries().yizkorDays.count(JewishDateText(day, month, year)) ? 7 : 0;
}

void LectionsGetYizkor(char* text) {
  std::strcpy(text, Libraries().yizkorText.c_str());
}

void LectionsGetFont2(LectionsFont* font) {
  const DoubledFont& script = Libraries().readingsFont;
  *font = {script.face.empty() ? 1u : 0u, "", script.points, script.charset};
  std::strcpy(font->FaceName, script.face.c_str());
}

int32_t LectionsDoConfigureDialog(HWND owner) {
  LogCall("readings, owner %s", owner ? "yes" : "none");
  return Libraries().readingsChanged;
}

int32_t LectionsDoLanguageDialog(HWND owner) {
  LogCall("language of readings, owner %s", owner ? "yes" : "none");
  return Libraries().readingsChanged;
}

int32_t LectionsDoCustomReadingsDialog(HWND owner) {
  LogCall("own readings, owner %s", owner ? "yes" : "none");
  return Libraries().readingsChanged;
}

int32_t HoursGetDescription(uint32_t index, char* text) {
  return CopyName(Libraries().zmanNames, "Zman ", index, text);
}

int32_t HoursGetDescriptionHebrew(uint32_t index, char* text) {
  return CopyName(Libraries().hebrewZmanNames, "namZ", index, text);
}

int32_t HoursCalculate2(HWND document, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes,
                        uint32_t day, uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour,
                        int32_t sunriseMinute, int32_t sunsetHour, int32_t sunsetMinute) {
  EXPECT_LT(index, Libraries().zmanimCount) << "a zman that the selection has not";
  if (Libraries().logZmanim) {
    LogCall("zman %u of %u.%u.%u at %d %d %d:%d sun %d:%d %d:%d window %s", index, day, month, year, latitude,
            longitude, zoneHours, zoneMinutes, sunriseHour, sunriseMinute, sunsetHour, sunsetMinute,
            document ? "yes" : "none");
  }
  if (Libraries().zmanMinutes) return Libraries().zmanMinutes(index, {day, month, year});
  return 360 + 10 * static_cast<int32_t>(index);
}

int32_t OwnHoursLoad(OwnHoursHandle* handle) {
  if (Libraries().logZmanim) LogCall("own times loaded");
  ++Libraries().openOwnTimes;
  handle->store = new OwnTimes(Libraries().ownTimes);
  return 1;
}

int32_t OwnHoursGet(const OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t* hour, int32_t* minute) {
  if (Libraries().logZmanim) LogCall("own time asked for %s", description);
  const OwnTimes& times = OwnTimesOf(handle);
  if (times.empty()) return 0;
  const auto found = times.find(OwnTimeKey(day, month, year, description, location));
  if (found == times.end()) return 0;
  *hour = found->second.hour;
  *minute = found->second.minute;
  return 1;
}

int32_t OwnHoursSet(OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t hour, int32_t minute) {
  const std::string key = OwnTimeKey(day, month, year, description, location);
  LogCall("own time set %s = %d:%d", key.c_str(), hour, minute);
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59) return 0;
  OwnTimesOf(handle)[key] = {hour, minute};
  return 1;
}

int32_t OwnHoursStore(OwnHoursHandle* handle) {
  LogCall("own times stored");
  if (Libraries().ownTimesFail) return 0;
  Libraries().ownTimes = OwnTimesOf(handle);
  return 1;
}

void OwnHoursDone(OwnHoursHandle* handle) {
  if (Libraries().logZmanim) LogCall("own times done");
  --Libraries().openOwnTimes;
  delete static_cast<OwnTimes*>(handle->store);
  handle->store = nullptr;
}

// The dates are those of the doubled calendars.
int32_t CivilAbsoluteFromDate(const CalendarDate* date) {
  return AbsoluteFromDate(*date);
}

void LunarDateFromAbsolute(int32_t absoluteDay, CalendarDate* date) {
  *date = JewishFromAbsolute(absoluteDay);
}

void LunarGetMonthNameEx(uint32_t month, uint32_t reserved, char* name, uint32_t size, uint32_t year,
                         uint32_t language) {
  EXPECT_EQ(reserved, 0u);
  std::snprintf(name, size, "Month %u of %u in %u", month, year, language);
}

int32_t PlacePickSelectLocation(HWND owner, char* name) {
  LogCall("pick a place, current '%s', owner %s", name, owner ? "yes" : "none");
  if (Libraries().pickedLocation.empty()) return 0;
  std::strcpy(name, Libraries().pickedLocation.c_str());
  return 1;
}

void GuideGo(HWND owner, const char* topic) {
  Libraries().helpOwner = owner;
  LogCall("help '%s' owner %s", topic, owner ? "yes" : "none");
}

void KinshipInit(void) {
  LogCall("KinshipInit");
}
void KinshipDone(void) {
  LogCall("KinshipDone");
}
void KinshipInvoke(HWND owner, uint32_t calendar, uint32_t year) {
  Libraries().dialogOwner = owner;
  LogCall("persons, calendar %u year %u", calendar, year);
}
void KinshipFontDialog(HWND owner) {
  Libraries().dialogOwner = owner;
  LogCall("font of persons");
}

void MajorityInitDialogData(MajorityDialogData* data) {
  *data = kDoubledChild;
}
void MajorityDoDialog(HWND owner, MajorityDialogData* data) {
  Libraries().dialogOwner = owner;
  LogCall("coming of age of %u.%u.%u %u %u", data->day, data->month, data->year, data->afterSunset, data->isGirl);
}

int32_t SafekeepBackUp(HWND owner) {
  LogCall("back settings up, owner %s", owner ? "yes" : "none");
  return 1;
}
int32_t SafekeepRestore(HWND owner) {
  LogCall("restore settings, owner %s", owner ? "yes" : "none");
  if (!Libraries().restoreSettings) return 0;
  Libraries().restoreSettings();
  return 1;
}

void FolioGetWithCycle(uint32_t day, uint32_t month, uint32_t year, char* text) {
  std::snprintf(text, 256, "page %u.%u.%u", day, month, year);
}

BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count) {
  auto& draws = GetObjectType(dc) == OBJ_MEMDC ? Libraries().printedDraws : Libraries().draws;
  draws.push_back({x, y, std::string(text, static_cast<std::size_t>(count)), FontOf(dc)});
  return TRUE;
}

BOOL GlyphsExtTextOut(HDC dc, int x, int y, UINT options, const RECT* rectangle, const char* text, UINT count,
                      const INT*) {
  EXPECT_EQ(options, UINT{ETO_CLIPPED});
  Libraries().lastClip = *rectangle;
  GetClipBox(dc, &Libraries().lastPaintedArea);
  return GlyphsTextOut(dc, x, y, text, static_cast<int>(count));
}

int GlyphsDrawText(HDC dc, const char* text, int count, RECT* rectangle, UINT format) {
  GetClipBox(dc, &Libraries().lastPaintedArea);
  Libraries().brokenTexts.push_back({rectangle->right - rectangle->left, rectangle->bottom - rectangle->top, format,
                                     std::string(text, static_cast<std::size_t>(count)), FontOf(dc)});
  return kDoubledTextHeight;
}

void GlyphsGetHebrewFontName(char* name) {
  std::strcpy(name, "Hebrew Face");
}

BOOL GlyphsGetTextExtentPoint(HDC, const char*, int count, SIZE* size) {
  *size = {count * kDoubledCharacterWidth, kDoubledTextHeight};
  return TRUE;
}
