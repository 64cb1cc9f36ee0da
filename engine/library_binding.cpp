#include "engine/library_binding.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <span>

#include "engine/bound_entries.h"
#include "engine/core/records.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/message_box.h"

CivilCalendarEntries CivilCalendar;
LunarCalendarEntries LunarCalendar;
SolarEntries Solar;

namespace {

struct EntryPoint {
  const char* name;
  void* slot;  // of a function pointer
};

// A library to bind: its entry points in the order they are looked up. With a minimum version, the first entry point
// is the one that answers the version.
struct BoundLibrary {
  const char* fileName;
  uint32_t minimumVersion;  // 0: no version to ask for
  std::span<const EntryPoint> entryPoints;
  HMODULE module = nullptr;
};

#define ENTRY(library, name) \
  { #name, &library.name }

constexpr EntryPoint kCivilCalendarEntries[] = {
    ENTRY(CivilCalendar, DatefilterGetAPIVersion),       ENTRY(CivilCalendar, DatefilterGetDescriptionString),
    ENTRY(CivilCalendar, DatefilterAbsoluteFromForeign), ENTRY(CivilCalendar, DatefilterForeignFromAbsolute),
    ENTRY(CivilCalendar, DatefilterGetMonthName),        ENTRY(CivilCalendar, DatefilterGetLastDayOfMonth),
    ENTRY(CivilCalendar, DatefilterGetLastMonthOfYear),  ENTRY(CivilCalendar, DatefilterGetHolidayCount),
    ENTRY(CivilCalendar, DatefilterGetHolidayName),      ENTRY(CivilCalendar, DatefilterGetHolidayDate),
    ENTRY(CivilCalendar, DatefilterGetHolidayFirstYear), ENTRY(CivilCalendar, DatefilterGetMonthNameEx),
    ENTRY(CivilCalendar, DatefilterGetHolidayNameEx),
};

constexpr EntryPoint kLunarCalendarEntries[] = {
    ENTRY(LunarCalendar, DatefilterForeignFromAbsolute),
    ENTRY(LunarCalendar, DatefilterGetMonthNameEx),
};

constexpr EntryPoint kSolarEntries[] = {
    ENTRY(Solar, SolarGetAPIVersion),
    ENTRY(Solar, SolarGetCountOfBuiltInLocations),
    ENTRY(Solar, SolarGetBuiltInLocation),
    ENTRY(Solar, SolarGetSunsetSunrise),
};

#undef ENTRY

BoundLibrary civilCalendarLibrary{"CIVILCAL.DLL", 267, kCivilCalendarEntries};
BoundLibrary lunarCalendarLibrary{"LUNARCAL.DLL", 0, kLunarCalendarEntries};
BoundLibrary solarLibrary{"SOLAR.DLL", 256, kSolarEntries};

void ShowFormatted(unsigned textId, const char* argument, const char* caption) {
  char text[kTextSize];
  std::snprintf(text, sizeof text, TableString(textId), argument);
  ShowStop(nullptr, text, caption);
}

bool LookUp(HMODULE module, const EntryPoint& entry) {
  const FARPROC found = GetProcAddress(module, entry.name);
  static_assert(sizeof found == sizeof(void (*)()));
  std::memcpy(entry.slot, &found, sizeof found);
  return found != nullptr;
}

bool FindEntryPoints(const BoundLibrary& library, const char* caption) {
  for (const EntryPoint& entry : library.entryPoints) {
    if (!LookUp(library.module, entry)) {
      ShowFormatted(IDS_PROCEDURE_NOT_FOUND, entry.name, caption);
      return false;
    }
    if (library.minimumVersion == 0 || &entry != &library.entryPoints.front()) continue;
    uint32_t (*getVersion)() = nullptr;
    std::memcpy(&getVersion, entry.slot, sizeof getVersion);
    if (getVersion() < library.minimumVersion) {
      ShowStop(nullptr, TableString(IDS_NEW_VERSION_REQUIRED), caption);
      return false;
    }
  }
  return true;
}

void Unload(BoundLibrary& library) {
  for (const EntryPoint& entry : library.entryPoints) std::memset(entry.slot, 0, sizeof(FARPROC));
  if (library.module) FreeLibrary(library.module);
  library.module = nullptr;
}

bool Bind(BoundLibrary& library) {
  char caption[kTextSize];
  std::snprintf(caption, sizeof caption, TableString(IDS_ERROR_LOADING), library.fileName);

  const HMODULE module = LoadLibraryA(library.fileName);
  // Deliberate: by the old convention a module handle below 32 is an error code, the null handle among them.
  constexpr ULONG_PTR kFirstModuleHandle = 32;
  if (reinterpret_cast<ULONG_PTR>(module) < kFirstModuleHandle) {
    ShowFormatted(IDS_LIBRARY_NOT_FOUND, library.fileName, TableString(IDS_TITLE));
    return false;
  }
  library.module = module;
  if (FindEntryPoints(library, caption)) return true;
  Unload(library);
  return false;
}

}  // namespace

bool BindCivilCalendar() {
  return Bind(civilCalendarLibrary);
}
bool BindLunarCalendar() {
  return Bind(lunarCalendarLibrary);
}
bool BindSolar() {
  return Bind(solarLibrary);
}

void UnloadCivilCalendar() {
  Unload(civilCalendarLibrary);
}
void UnloadLunarCalendar() {
  Unload(lunarCalendarLibrary);
}
void UnloadSolar() {
  Unload(solarLibrary);
}
