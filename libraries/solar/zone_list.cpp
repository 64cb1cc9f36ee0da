#include "libraries/solar/zone_list.h"

#include <algorithm>
#include <string>
#include <utility>

#include "libraries/dialogs/windows_1252.h"
#include "libraries/solar/clock_texts.h"
#include "libraries/sun/clock_rules.h"

namespace solar {
namespace {

enum ColumnNumber { kName, kOffsetNow, kColumns };

constexpr const wchar_t* kHeadings[kColumns] = {L"Zone", L"Now"};
constexpr wchar_t kWidestOffset[] = L"GMT+88:88";

}  // namespace

void ZoneList::Start(HWND list) {
  list_ = list;
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  for (int i = 0; i < kColumns; ++i) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = const_cast<wchar_t*>(kHeadings[i]);
    column.iSubItem = i;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
  }
}

void ZoneList::FitColumns() const {
  const auto widthOf = [this](const wchar_t* text) {
    return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
  };
  const int offsetWidth = widthOf(kWidestOffset) + widthOf(L"mm");
  RECT area;
  GetWindowRect(list_, &area);
  const int room = area.right - area.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  Send(LVM_SETCOLUMNWIDTH, kOffsetNow, offsetWidth);
  Send(LVM_SETCOLUMNWIDTH, kName, room - offsetWidth);
}

void ZoneList::Show(std::vector<std::size_t> zones) {
  LVITEMW unselected = {};
  unselected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&unselected));
  zones_ = std::move(zones);
  Send(LVM_SETITEMCOUNT, zones_.size(), 0);
}

void ZoneList::Select(std::string_view zoneId) const {
  if (zones_.empty()) return;
  const auto found = std::ranges::find(zones_, zoneId, [](std::size_t zone) { return sun::ZoneId(zone); });
  const auto row = static_cast<std::size_t>(found == zones_.end() ? 0 : found - zones_.begin());
  LVITEMW selected = {};
  selected.state = selected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&selected));
  Send(LVM_ENSUREVISIBLE, row, FALSE);
}

std::string_view ZoneList::Selected() const {
  const LRESULT row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  if (row < 0 || static_cast<std::size_t>(row) >= zones_.size()) return {};
  return sun::ZoneId(zones_[static_cast<std::size_t>(row)]);
}

void ZoneList::OnGetDisplayInfo(NMLVDISPINFOW& info, int64_t unixSeconds) const {
  const LVITEMW& item = info.item;
  if (!(item.mask & LVIF_TEXT) || static_cast<std::size_t>(item.iItem) >= zones_.size()) return;
  const std::string_view zone = sun::ZoneId(zones_[static_cast<std::size_t>(item.iItem)]);
  const std::string text =
      item.iSubItem == kName ? std::string(zone) : OffsetText(sun::UtcOffsetSeconds(zone, unixSeconds).value_or(0));
  lstrcpynW(item.pszText, dialogs::Wide(text).c_str(), item.cchTextMax);
}

LRESULT ZoneList::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const bool isSelected = draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && IsWindowEnabled(list_) &&
                          Send(LVM_GETITEMSTATE, draw.nmcd.dwItemSpec, LVIS_SELECTED);
  if (!isSelected) return CDRF_DODEFAULT;
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  draw.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  draw.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  return CDRF_NEWFONT;
}

int ZoneList::RowBeginningWith(const NMLVFINDITEMW& find) const {
  if (!(find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !find.lvfi.psz) return -1;
  const std::wstring typed = find.lvfi.psz;
  const auto count = static_cast<int>(zones_.size());
  for (int i = 0; i < count; ++i) {
    const int row = (std::max(find.iStart, 0) + i) % count;
    const std::wstring zone = dialogs::Wide(sun::ZoneId(zones_[static_cast<std::size_t>(row)]));
    const auto length = static_cast<int>(std::min(typed.size(), zone.size()));
    const int order = CompareStringOrdinal(zone.c_str(), length, typed.c_str(), static_cast<int>(typed.size()), TRUE);
    if (order == CSTR_EQUAL) return row;
  }
  return -1;
}

}  // namespace solar
