#include "engine/properties.h"

#include <initializer_list>

#include "win/scoped.h"

void SetIntegerProperty(HWND window, const char* name, int32_t value) {
  SetPropA(window, name, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(value)));
}

int32_t GetIntegerProperty(HWND window, const char* name) {
  return static_cast<int32_t>(reinterpret_cast<INT_PTR>(GetPropA(window, name)));
}

void SetRangeProperties(HWND window, const DateRange& range) {
  SetIntegerProperty(window, property::kStartDay, static_cast<int32_t>(range.start.uDay));
  SetIntegerProperty(window, property::kStartMonth, static_cast<int32_t>(range.start.uMonth));
  SetIntegerProperty(window, property::kStartYear, static_cast<int32_t>(range.start.uYear));
  SetIntegerProperty(window, property::kEndDay, static_cast<int32_t>(range.end.uDay));
  SetIntegerProperty(window, property::kEndMonth, static_cast<int32_t>(range.end.uMonth));
  SetIntegerProperty(window, property::kEndYear, static_cast<int32_t>(range.end.uYear));
}

DateRange GetRangeProperties(HWND window) {
  const auto get = [window](const char* name) { return static_cast<uint32_t>(GetIntegerProperty(window, name)); };
  return {{get(property::kStartDay), get(property::kStartMonth), get(property::kStartYear)},
          {get(property::kEndDay), get(property::kEndMonth), get(property::kEndYear)}};
}

void RemoveRangeProperties(HWND window) {
  for (const char* name : {property::kStartDay, property::kStartMonth, property::kStartYear, property::kEndDay,
                           property::kEndMonth, property::kEndYear}) {
    RemovePropA(window, name);
  }
}

HGLOBAL GetBlockProperty(HWND window, const char* name) {
  return GetPropA(window, name);
}

void ReplaceBlockProperty(HWND window, const char* name, HGLOBAL block) {
  const HGLOBAL old = GetBlockProperty(window, name);
  if (!SetPropA(window, name, block)) {  // the window has gone
    if (block) GlobalFree(block);
    return;
  }
  if (old) GlobalFree(old);
}

void FreeBlockProperty(HWND window, const char* name) {
  const HGLOBAL block = RemovePropA(window, name);
  if (block) GlobalFree(block);
}

std::string DocumentPlace(HWND window) {
  const ScopedGlobalLock<const char> city(GetBlockProperty(window, property::kCity));
  return city ? city.get() : "";
}

void SetPlace(HWND window, const Location& place) {
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, kTextSize);
  if (const ScopedGlobalLock<char> city(block); city) lstrcpynA(city.get(), place.name, kTextSize);
  ReplaceBlockProperty(window, property::kCity, block);
  SetIntegerProperty(window, property::kLatitude, place.latitude);
  SetIntegerProperty(window, property::kLongitude, place.longitude);
  SetIntegerProperty(window, property::kTimeZone, place.zoneHours);
  SetIntegerProperty(window, property::kTimeZoneMin, place.zoneMinutes);
}

Location GetPlace(HWND window) {
  Location place{};
  lstrcpynA(place.name, DocumentPlace(window).c_str(), kTextSize);
  place.latitude = GetIntegerProperty(window, property::kLatitude);
  place.longitude = GetIntegerProperty(window, property::kLongitude);
  place.zoneHours = GetIntegerProperty(window, property::kTimeZone);
  place.zoneMinutes = GetIntegerProperty(window, property::kTimeZoneMin);
  return place;
}

HFONT GetFontProperty(HWND window, const char* name) {
  return static_cast<HFONT>(GetPropA(window, name));
}

void DeleteFontProperty(HWND window, const char* name) {
  const HANDLE font = RemovePropA(window, name);
  if (font) DeleteObject(font);
}
