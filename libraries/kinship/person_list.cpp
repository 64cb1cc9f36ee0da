#include "libraries/kinship/person_list.h"

#include <algorithm>
#include <array>
#include <string>

#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_settings.h"

namespace kinship {
namespace {

// What a column has room for; those with a share get that part of the rest, too.
struct ColumnLook {
  const wchar_t* sample;
  int share;  // of kShares
};
constexpr int kShares = 20;
constexpr std::array<ColumnLook, kColumns> kLooks = {{{L"Mmmmmm Mmmmmm", 9},
                                                      {L"Yahrzeit", 3},
                                                      {L"28 Cheshvan 5788", 0},
                                                      {L"88.88.8888", 0},
                                                      {L"Wednesday", 0},
                                                      {L"Years", 0},
                                                      {L"88.88.8888", 0},
                                                      {L"88.88.8888", 0},
                                                      {L"88.88.8888", 0},
                                                      {L"Mmmmmmmm", 8}}};

constexpr int kAllRows = -1;

}  // namespace

PersonList::~PersonList() {
  if (font_) DeleteObject(font_);
}

void PersonList::Start(HWND list, const Shown& shown) {
  list_ = list;
  if (const auto font = StoredFont()) font_ = CreateFontIndirectW(&*font);
  if (font_) Send(WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  for (int i = 0; i < kColumns; ++i) {
    LVCOLUMNW column = {};
    column.mask = LVCF_SUBITEM | LVCF_FMT;
    column.fmt = static_cast<Column>(i) == Column::kYears ? LVCFMT_RIGHT : LVCFMT_LEFT;
    column.iSubItem = i;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
  }
  ShowHeadings(shown);
}

void PersonList::ShowHeadings(const Shown& shown) const {
  for (int i = 0; i < kColumns; ++i) {
    std::wstring heading = dialogs::FromUtf8(HeadingOf(static_cast<Column>(i), shown));
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT;
    column.pszText = heading.data();
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
  }
}

void PersonList::ShowOrder(Column sorted, bool descending) const {
  const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER, 0, 0));
  for (int i = 0; i < kColumns; ++i) {
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
    if (static_cast<Column>(i) == sorted) item.fmt |= descending ? HDF_SORTDOWN : HDF_SORTUP;
    SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
}

int PersonList::WidthOf(const wchar_t* text) const {
  return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
}

void PersonList::FitColumns() const {
  const int margins = WidthOf(L"mm");
  std::array<int, kColumns> widths;
  RECT list;
  GetWindowRect(list_, &list);
  int rest = list.right - list.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  for (size_t i = 0; i < kLooks.size(); ++i) rest -= widths[i] = WidthOf(kLooks[i].sample) + margins;
  for (size_t i = 0; i < kLooks.size(); ++i) {
    const int width = widths[i] + std::max(rest, 0) * kLooks[i].share / kShares;
    Send(LVM_SETCOLUMNWIDTH, i, width);
  }
}

void PersonList::SetCount(int count) const {
  SelectNone();
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOINVALIDATEALL);
  InvalidateRect(list_, nullptr, TRUE);
}

void PersonList::SelectOnly(const std::vector<int>& rows) const {
  SelectNone();
  if (rows.empty()) return;
  const bool areAll = static_cast<LRESULT>(rows.size()) == Send(LVM_GETITEMCOUNT, 0, 0);
  const bool areMany = !areAll && rows.size() > 1;  // drawn once then
  if (areMany) Send(WM_SETREDRAW, FALSE, 0);
  for (const int row : areAll ? std::vector<int>{kAllRows} : rows) SetState(row, LVIS_SELECTED, LVIS_SELECTED);
  if (areMany) Send(WM_SETREDRAW, TRUE, 0);
  SetState(rows.front(), LVIS_FOCUSED, LVIS_FOCUSED);
  Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(rows.front()), FALSE);
}

// To tell all rows costs some milliseconds for thousands of them, and there is seldom more than one to tell.
void PersonList::SelectNone() const {
  const int selected = SelectedCount();
  if (selected > 1) return SetState(kAllRows, 0, LVIS_SELECTED | LVIS_FOCUSED);
  const LRESULT focused = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  if (focused >= 0) SetState(static_cast<int>(focused), 0, LVIS_SELECTED | LVIS_FOCUSED);
  if (selected == 1 && FirstSelected() >= 0) SetState(FirstSelected(), 0, LVIS_SELECTED);
}

void PersonList::SelectAll() const {
  SetState(kAllRows, LVIS_SELECTED, LVIS_SELECTED);
}

std::vector<int> PersonList::Selected() const {
  std::vector<int> selected;
  LRESULT row = -1;
  while ((row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0) {
    selected.push_back(static_cast<int>(row));
  }
  return selected;
}

void PersonList::SetState(int row, UINT state, UINT mask) const {
  LVITEMW item = {};
  item.state = state;
  item.stateMask = mask;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace kinship
