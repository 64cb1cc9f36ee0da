// The named properties of a document window: everything that belongs to one document hangs on its window. A property's
// name is spelled here and nowhere else.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "engine/core/records.h"

namespace property {

// First and last day of the range, integers.
inline constexpr char kStartDay[] = "StartDay";
inline constexpr char kStartMonth[] = "StartMonth";
inline constexpr char kStartYear[] = "StartYear";
inline constexpr char kEndDay[] = "EndDay";
inline constexpr char kEndMonth[] = "EndMonth";
inline constexpr char kEndYear[] = "EndYear";

// The place: a block of kTextSize bytes with its name; packed coordinates and zone, integers.
inline constexpr char kCity[] = "City";
inline constexpr char kLatitude[] = "Latitude";
inline constexpr char kLongitude[] = "Longitude";
inline constexpr char kTimeZone[] = "TimeZone";
inline constexpr char kTimeZoneMin[] = "TimeZoneMin";

// Result blocks, and blocks that say what two of them hold: which zmanim the times are those of, and the language and
// font of the readings.
inline constexpr char kShabbatTimes[] = "ShabbatTimes";
inline constexpr char kZmanimTimes[] = "ZmanimTimes";
inline constexpr char kZmanimLabels[] = "ZmanimLabels";
inline constexpr char kParashaReadings[] = "ParashaReadings";
inline constexpr char kReadingsForm[] = "ReadingsForm";

// On the container of the zmanim view: the window of its tooltips.
inline constexpr char kZmanimTooltip[] = "ZmanimTooltip";

// Fonts. The bold one of a pair is named kBoldPrefix + name.
inline constexpr char kBoldPrefix[] = "Bold";
inline constexpr char kFont[] = "Font";
inline constexpr char kBoldFont[] = "BoldFont";
inline constexpr char kZmanimFont[] = "ZmanimFont";
inline constexpr char kBoldZmanimFont[] = "BoldZmanimFont";
inline constexpr char kParashaFont[] = "ParashaFont";
inline constexpr char kBoldParashaFont[] = "BoldParashaFont";

}  // namespace property

// Integers are stored as the property's value itself, sign included. A missing property reads as 0.
void SetIntegerProperty(HWND window, const char* name, int32_t value);
int32_t GetIntegerProperty(HWND window, const char* name);

// The six date properties.
void SetRangeProperties(HWND window, const DateRange& range);
DateRange GetRangeProperties(HWND window);
void RemoveRangeProperties(HWND window);

// Movable memory blocks owned by the window. Replacing frees the old block, after the new one is in place; freeing
// removes the property. A null block is never freed.
HGLOBAL GetBlockProperty(HWND window, const char* name);
void ReplaceBlockProperty(HWND window, const char* name, HGLOBAL block);
void FreeBlockProperty(HWND window, const char* name);

// The name of the document's place; empty before it was computed.
std::string DocumentPlace(HWND window);

// The place whole. Without memory for its name the document has none.
void SetPlace(HWND window, const Location& place);
Location GetPlace(HWND window);

HFONT GetFontProperty(HWND window, const char* name);
void DeleteFontProperty(HWND window, const char* name);
