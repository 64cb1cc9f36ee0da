// The list of the tz database's zones with the time that each has now.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace solar {

// A virtual list view in report form; rows are zones by their number.
class ZoneList {
 public:
  void Start(HWND list);
  void FitColumns() const;

  // Lists zones, none of them selected.
  void Show(std::vector<std::size_t> zones);
  // Selects the zone where it is listed, else the first one listed.
  void Select(std::string_view zoneId) const;
  // The name of the selected zone; empty when there is none.
  std::string_view Selected() const;
  std::size_t Count() const { return zones_.size(); }

  // For LVN_GETDISPINFO: the offsets are those of the moment.
  void OnGetDisplayInfo(NMLVDISPINFOW& info, int64_t unixSeconds) const;
  // For LVN_ODFINDITEM: the row whose zone begins with what the user types into the list, around the end if need be;
  // -1 for none.
  int RowBeginningWith(const NMLVFINDITEMW& find) const;
  // For NM_CUSTOMDRAW; its result. The list seldom has the focus, and its own colours for a selection without focus are
  // next to none.
  LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;

 private:
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(list_, message, wParam, lParam);
  }

  HWND list_ = nullptr;
  std::vector<std::size_t> zones_;
};

}  // namespace solar
