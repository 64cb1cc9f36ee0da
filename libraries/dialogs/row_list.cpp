#include "libraries/dialogs/row_list.h"

#include <algorithm>

namespace dialogs {
namespace {

constexpr int kAllRows = -1;

}  // namespace

void RowList::Start(HWND list, std::span<const ListColumn> columns) {
  list_ = list;
  columns_ = columns;
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  for (size_t i = 0; i < columns.size(); ++i) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = const_cast<wchar_t*>(columns[i].heading);
    column.iSubItem = static_cast<int>(i);
    Send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

int RowList::WidthOf(const wchar_t* text) const {
  return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
}

void RowList::FitColumns() const {
  const int margins = WidthOf(L"mm");
  std::vector<int> widths;
  RECT list;
  GetWindowRect(list_, &list);
  int rest = list.right - list.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  int shares = 0;
  for (const ListColumn& column : columns_) {
    widths.push_back(std::max(WidthOf(column.sample), WidthOf(column.heading)) + margins);
    rest -= widths.back();
    shares += column.share;
  }
  for (size_t i = 0; i < columns_.size(); ++i) {
    const int more = shares == 0 ? 0 : std::max(rest, 0) * columns_[i].share / shares;
    Send(LVM_SETCOLUMNWIDTH, i, widths[i] + more);
  }
}

void RowList::SetCount(int count) const {
  SelectNone();
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOINVALIDATEALL);
  InvalidateRect(list_, nullptr, TRUE);
}

void RowList::SelectOnly(const std::vector<int>& rows) const {
  SelectNone();
  if (rows.empty()) return;
  // A list of which one row alone can be selected does not take all, though it be one.
  const bool areAll = rows.size() > 1 && static_cast<LRESULT>(rows.size()) == Send(LVM_GETITEMCOUNT, 0, 0);
  const bool areMany = !areAll && rows.size() > 1;  // drawn once then
  if (areMany) Send(WM_SETREDRAW, FALSE, 0);
  for (const int row : areAll ? std::vector<int>{kAllRows} : rows) SetState(row, LVIS_SELECTED, LVIS_SELECTED);
  if (areMany) Send(WM_SETREDRAW, TRUE, 0);
  SetState(rows.front(), LVIS_FOCUSED, LVIS_FOCUSED);
  Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(rows.front()), FALSE);
}

// To tell all rows costs some milliseconds for thousands of them, and there is seldom more than one to tell.
void RowList::SelectNone() const {
  const int selected = SelectedCount();
  if (selected > 1) return SetState(kAllRows, 0, LVIS_SELECTED | LVIS_FOCUSED);
  const LRESULT focused = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  if (focused >= 0) SetState(static_cast<int>(focused), 0, LVIS_SELECTED | LVIS_FOCUSED);
  if (selected == 1 && FirstSelected() >= 0) SetState(FirstSelected(), 0, LVIS_SELECTED);
}

void RowList::SelectAll() const {
  SetState(kAllRows, LVIS_SELECTED, LVIS_SELECTED);
}

std::vector<int> RowList::Selected() const {
  std::vector<int> selected;
  LRESULT row = -1;
  while ((row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0) {
    selected.push_back(static_cast<int>(row));
  }
  return selected;
}

void RowList::SetState(int row, UINT state, UINT mask) const {
  LVITEMW item = {};
  item.state = state;
  item.stateMask = mask;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace dialogs
