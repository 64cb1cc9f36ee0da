#include "libraries/ownhours/time_list.h"

#include <algorithm>

#include "libraries/ownhours/time_rows.h"

namespace ownhours {
namespace {

struct ColumnLook {
  const wchar_t* heading;
  const wchar_t* sample;  // null: shares the rest
};
constexpr ColumnLook kColumnLooks[kColumns] = {{L"Place", nullptr},
                                               {L"Date", L"88.88.8888"},
                                               {L"Zman", nullptr},
                                               {L"Set to", L"88:88 p.m."},
                                               {L"Calculated", L"88:88 p.m."}};

constexpr int kAllRows = -1;

}  // namespace

void TimeList::Start(HWND list) {
  list_ = list;
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  for (int i = 0; i < kColumns; ++i) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = const_cast<wchar_t*>(kColumnLooks[i].heading);
    column.iSubItem = i;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
  }
}

void TimeList::FitColumns() const {
  const auto widthOf = [this](const wchar_t* text) {
    return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
  };
  const int margins = 2 * widthOf(L"mm");
  const auto widthOfColumn = [&](const ColumnLook& look) {
    return std::max(widthOf(look.sample), widthOf(look.heading)) + margins;
  };
  RECT list;
  GetWindowRect(list_, &list);
  int rest = list.right - list.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  for (const ColumnLook& look : kColumnLooks) rest -= look.sample ? widthOfColumn(look) : 0;
  for (int i = 0; i < kColumns; ++i) {
    const ColumnLook& look = kColumnLooks[i];
    const int share = i == kPlaceColumn ? rest * 2 / 5 : rest - rest * 2 / 5;
    Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(i), look.sample ? widthOfColumn(look) : share);
  }
}

void TimeList::SetCount(int count) const {
  SetState(kAllRows, 0, LVIS_SELECTED | LVIS_FOCUSED);
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), 0);
  InvalidateRect(list_, nullptr, TRUE);
}

void TimeList::SelectOnly(const std::vector<int>& rows) const {
  SetState(kAllRows, 0, LVIS_SELECTED | LVIS_FOCUSED);
  if (rows.empty()) return;
  const bool areAll = static_cast<LRESULT>(rows.size()) == Send(LVM_GETITEMCOUNT, 0, 0);
  Send(WM_SETREDRAW, FALSE, 0);
  for (const int row : areAll ? std::vector<int>{kAllRows} : rows) SetState(row, LVIS_SELECTED, LVIS_SELECTED);
  Send(WM_SETREDRAW, TRUE, 0);
  SetState(rows.front(), LVIS_FOCUSED, LVIS_FOCUSED);
  Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(rows.front()), FALSE);
}

void TimeList::SelectAll() const {
  SetState(kAllRows, LVIS_SELECTED, LVIS_SELECTED);
}

std::vector<int> TimeList::Selected() const {
  std::vector<int> selected;
  LRESULT row = -1;
  while ((row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0) {
    selected.push_back(static_cast<int>(row));
  }
  return selected;
}

void TimeList::SetState(int row, UINT state, UINT mask) const {
  LVITEMW item = {};
  item.state = state;
  item.stateMask = mask;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace ownhours
