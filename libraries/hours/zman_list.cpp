#include "libraries/hours/zman_list.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace hours {
namespace {

constexpr UINT kSelection = LVIS_SELECTED | LVIS_FOCUSED;
constexpr wchar_t kIndent[] = L"  ";  // of what stands under a heading

bool MovesSelection(WPARAM key) {
  constexpr WPARAM kKeys[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END};
  return std::ranges::find(kKeys, key) != std::end(kKeys);
}

bool BeginsWith(const std::wstring& text, std::wstring_view typed) {
  if (typed.size() > text.size()) return false;
  const int length = static_cast<int>(typed.size());
  return CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, text.data(), length, typed.data(), length) == CSTR_EQUAL;
}

}  // namespace

const ZmanList::Column ZmanList::kColumns[] = {
    {L"No.", L"888", LVCFMT_LEFT, &ShownRow::number},
    {L"Zman", nullptr, LVCFMT_LEFT, &ShownRow::name},
    {L"Today", L"", LVCFMT_RIGHT, &ShownRow::time},  // the sample is the widest time
};

const ZmanList::Column* ZmanList::ColumnBegin() const {
  return numbers_ == Numbers::kYes ? kColumns : kColumns + 1;
}

void ZmanList::Start(HWND list, Numbers numbers, std::wstring widestTime) {
  list_ = list;
  widestTime_ = std::move(widestTime);
  numbers_ = numbers;
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  LOGFONTW font = {};
  GetObjectW(reinterpret_cast<HFONT>(Send(WM_GETFONT, 0, 0)), sizeof font, &font);
  font.lfWeight = FW_BOLD;
  boldFont_.reset(CreateFontIndirectW(&font));
  int index = 0;
  for (const Column* column = ColumnBegin(); column != std::end(kColumns); ++column, ++index) {
    LVCOLUMNW made = {};
    made.mask = LVCF_FMT | LVCF_TEXT | LVCF_SUBITEM;
    made.fmt = column->format;
    made.pszText = const_cast<wchar_t*>(column->heading);
    made.iSubItem = index;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&made));
  }
  SetWindowSubclass(list, KeyProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK ZmanList::KeyProc(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR self) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(list, KeyProc, id);
  const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
  if (message == WM_KEYDOWN && MovesSelection(wParam)) reinterpret_cast<const ZmanList*>(self)->LeaveHeading(wParam);
  return result;
}

// Upwards to the zman above the heading, else to the one below it: under every heading there is one.
void ZmanList::LeaveHeading(WPARAM key) const {
  const std::optional<std::size_t> row = Selected();
  if (!row || !rows_[*row].isHeading) return;
  const bool isUpwards = key == VK_UP || key == VK_PRIOR;
  Select(isUpwards && *row > 0 ? *row - 1 : *row + 1);
}

int ZmanList::WidthOf(const wchar_t* text) const {
  return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
}

void ZmanList::FitColumns() const {
  const int margins = WidthOf(L"mi");
  RECT list;
  GetWindowRect(list_, &list);
  int rest = list.right - list.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
  WPARAM index = 0;
  WPARAM stretched = 0;
  for (const Column* column = ColumnBegin(); column != std::end(kColumns); ++column, ++index) {
    if (!column->sample) {
      stretched = index;
      continue;
    }
    const wchar_t* const sample = column->text == &ShownRow::time ? widestTime_.c_str() : column->sample;
    const int width = std::max(WidthOf(sample), WidthOf(column->heading)) + margins;
    Send(LVM_SETCOLUMNWIDTH, index, width);
    rest -= width;
  }
  Send(LVM_SETCOLUMNWIDTH, stretched, rest);
}

void ZmanList::Show(std::vector<ShownRow> rows) {
  LVITEMW unselected = {};
  unselected.stateMask = kSelection;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&unselected));
  rows_ = std::move(rows);
  Send(LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL);
  InvalidateRect(list_, nullptr, FALSE);
}

void ZmanList::MakePale(std::size_t row, bool isPale) {
  if (rows_[row].isPale == isPale) return;
  rows_[row].isPale = isPale;
  Send(LVM_REDRAWITEMS, row, static_cast<LPARAM>(row));
}

std::optional<std::size_t> ZmanList::Selected() const {
  const LRESULT row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) return std::nullopt;
  return static_cast<std::size_t>(row);
}

void ZmanList::Select(std::size_t row) const {
  LVITEMW selected = {};
  selected.state = selected.stateMask = kSelection;
  Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&selected));
  if (row > 0 && rows_[row - 1].isHeading) Send(LVM_ENSUREVISIBLE, row - 1, FALSE);
  Send(LVM_ENSUREVISIBLE, row, FALSE);
}

std::optional<std::size_t> ZmanList::RowAt(POINT point) const {
  LVHITTESTINFO hit = {};
  hit.pt = point;
  const LRESULT row = Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) return std::nullopt;
  return static_cast<std::size_t>(row);
}

bool ZmanList::OnNotify(NMHDR& header, LRESULT& result) const {
  switch (header.code) {
    case LVN_GETDISPINFOW: OnGetDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header)); return true;
    case LVN_ODFINDITEMW: result = OnFindItem(reinterpret_cast<const NMLVFINDITEMW&>(header)); return true;
    case NM_CUSTOMDRAW: result = OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header)); return true;
  }
  return false;
}

void ZmanList::OnGetDisplayInfo(NMLVDISPINFOW& info) const {
  const auto row = static_cast<std::size_t>(info.item.iItem);
  const Column* const column = ColumnBegin() + info.item.iSubItem;
  if (!(info.item.mask & LVIF_TEXT) || row >= rows_.size() || column >= std::end(kColumns)) return;
  const std::wstring& text = rows_[row].*column->text;
  const bool isUnderHeading = numbers_ == Numbers::kNo && info.item.iSubItem == 0 && !rows_[row].isHeading;
  lstrcpynW(info.item.pszText, isUnderHeading ? (kIndent + text).c_str() : text.c_str(), info.item.cchTextMax);
}

// What the user types into the list moves the selection to a zman that begins so, around the end if need be.
int ZmanList::OnFindItem(const NMLVFINDITEMW& find) const {
  if (!(find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !find.lvfi.psz) return -1;
  const std::wstring_view typed = find.lvfi.psz;
  const auto start = static_cast<std::size_t>(std::max(find.iStart, 0));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const std::size_t row = (start + i) % rows_.size();
    if (!rows_[row].isHeading && BeginsWith(rows_[row].name, typed)) return static_cast<int>(row);
  }
  return -1;
}

// A selection keeps its colours without the focus: it says what the buttons act on.
LRESULT ZmanList::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const std::size_t row = draw.nmcd.dwItemSpec;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || row >= rows_.size()) return CDRF_DODEFAULT;
  if (rows_[row].isHeading) SelectObject(draw.nmcd.hdc, boldFont_.get());
  const bool isSelected = Send(LVM_GETITEMSTATE, row, LVIS_SELECTED) != 0;
  if (isSelected) {
    draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
    draw.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    draw.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  } else if (rows_[row].isPale) {
    draw.clrText = GetSysColor(COLOR_GRAYTEXT);
  }
  return CDRF_NEWFONT;
}

}  // namespace hours
