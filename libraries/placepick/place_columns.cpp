#include "libraries/placepick/place_columns.h"

#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <iterator>

#include "companion/profile.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/stamp/form_setting.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/place_settings.h"

namespace placepick {
namespace {

using dialogs::Wide;

enum ColumnNumber { kName, kCountry, kLatitude, kLongitude, kZone, kTimeNow };

// All but the first are as wide as their sample.
struct Column {
  const wchar_t* heading;
  const wchar_t* sample;
  int format;
};
constexpr Column kColumns[] = {
    {L"Name", L"", LVCFMT_LEFT},
    {L"Country", L"United Arab Emirates", LVCFMT_LEFT},
    {L"Latitude", L"88\u00B088' N", LVCFMT_RIGHT},
    {L"Longitude", L"188\u00B088' W", LVCFMT_RIGHT},
    {L"Time zone", L"GMT+88:88", LVCFMT_LEFT},
    {L"Time now", L"88:88 p.m.", LVCFMT_LEFT},
};
constexpr int64_t kSecondsPerMinute = 60;

std::wstring TimeText(const Place& place, int64_t utcSeconds, stamp::Form form) {
  const sun::PlaceSettings settings =
      sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString},
                             {place.packedLatitude, place.packedLongitude, place.zoneHours, place.zoneMinutes});
  const auto now = static_cast<double>(utcSeconds);
  const int64_t clock = utcSeconds + sun::ClockOffsetSeconds(settings.clock, now);
  const sun::HourAndMinute time = sun::TimeOfDay((clock - (clock % kSecondsPerMinute)) / kSecondsPerMinute);
  return Wide(stamp::TimeText(time.hour, time.minute, form));
}

}  // namespace

PlaceColumns::PlaceColumns() : form_(stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm())) {
  SetNow();
}

void PlaceColumns::Add(HWND list) const {
  for (std::size_t i = 0; i < std::size(kColumns); ++i) {
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT | LVCF_TEXT | LVCF_SUBITEM;
    column.fmt = kColumns[i].format;
    column.pszText = const_cast<wchar_t*>(kColumns[i].heading);
    column.iSubItem = static_cast<int>(i);
    SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

void PlaceColumns::Fit(HWND list) const {
  const auto widthOf = [list](const wchar_t* text) {
    return static_cast<int>(SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
  };
  const int margins = widthOf(L"mm");
  RECT area;
  GetWindowRect(list, &area);
  int rest = area.right - area.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  for (std::size_t i = std::size(kColumns) - 1; i > 0; --i) {
    const int width = std::max(widthOf(kColumns[i].sample), widthOf(kColumns[i].heading)) + margins;
    SendMessageW(list, LVM_SETCOLUMNWIDTH, i, width);
    rest -= width;
  }
  SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, rest);
}

std::wstring PlaceColumns::Text(const Place& place, int column) const {
  switch (column) {
    case kName: return Wide(place.name);
    case kCountry: return place.isUsersOwn ? L"your own" : std::wstring(place.country.begin(), place.country.end());
    case kLatitude: return Wide(LatitudeText(place.packedLatitude));
    case kLongitude: return Wide(LongitudeText(place.packedLongitude));
    case kZone: return Wide(ZoneText(place.zoneHours, place.zoneMinutes));
    case kTimeNow: return TimeText(place, nowSeconds_, form_);
  }
  return {};
}

bool PlaceColumns::SetNow() {
  using namespace std::chrono;
  const int64_t before = nowSeconds_;
  nowSeconds_ = duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
  return nowSeconds_ / kSecondsPerMinute != before / kSecondsPerMinute;
}

}  // namespace placepick
