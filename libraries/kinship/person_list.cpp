#include "libraries/kinship/person_list.h"

#include <array>
#include <string>

#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_settings.h"

namespace kinship {
namespace {

// Headings depend on what is shown.
constexpr std::array<dialogs::ListColumn, kColumns> kListColumns = {{{L"", L"Mmmmmm Mmmmmm", 9},
                                                                     {L"", L"Yahrzeit", 3},
                                                                     {L"", L"28 Cheshvan 5788", 0},
                                                                     {L"", L"88.88.8888", 0},
                                                                     {L"", L"Wednesday", 0},
                                                                     {L"", L"Years", 0},
                                                                     {L"", L"88.88.8888", 0},
                                                                     {L"", L"88.88.8888", 0},
                                                                     {L"", L"88.88.8888", 0},
                                                                     {L"", L"Mmmmmmmm", 8}}};

}  // namespace

PersonList::~PersonList() {
  if (font_) DeleteObject(font_);
}

void PersonList::Start(HWND list, const Shown& shown) {
  RowList::Start(list, kListColumns);
  if (const auto font = StoredFont()) font_ = CreateFontIndirectW(&*font);
  if (font_) Send(WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  LVCOLUMNW years = {};
  years.mask = LVCF_FMT;
  years.fmt = LVCFMT_RIGHT;
  Send(LVM_SETCOLUMNW, static_cast<WPARAM>(Column::kYears), reinterpret_cast<LPARAM>(&years));
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

}  // namespace kinship
