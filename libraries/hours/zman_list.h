// A list view of zmanim: one selected row, headings that no key stops at.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace hours {

struct ShownRow {
  std::wstring number;  // of a list with numbers
  std::wstring name;
  std::wstring time;
  bool isHeading = false;
  bool isPale = false;
};

class ZmanList {
 public:
  enum class Numbers { kNo, kYes };

  // list: an owner-data list view in report form, which gets its columns. widestTime: in the form of times.
  void Start(HWND list, Numbers numbers, std::wstring widestTime);

  // The columns' widths, after the list has changed its own.
  void FitColumns() const;

  // Shows other rows, none of them selected; and redraws rows of which only the looks have changed.
  void Show(std::vector<ShownRow> rows);
  void MakePale(std::size_t row, bool isPale);

  std::size_t Count() const { return rows_.size(); }
  std::optional<std::size_t> Selected() const;
  // Selects the row and brings it into sight, with the heading that it may stand under.
  void Select(std::size_t row) const;

  // The row at a point of the list's client area.
  std::optional<std::size_t> RowAt(POINT point) const;

  HWND Window() const { return list_; }

  // The list's notifications that are its own business; whether this was one. The result is for DWLP_MSGRESULT.
  bool OnNotify(NMHDR& header, LRESULT& result) const;

 private:
  struct Column {
    const wchar_t* heading;
    const wchar_t* sample;  // nothing for the column that takes the width that the others leave
    int format;
    std::wstring ShownRow::*text;
  };
  static const Column kColumns[];

  struct FontDeleter {
    void operator()(HFONT font) const { DeleteObject(font); }
  };

  static LRESULT CALLBACK KeyProc(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR self);
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageW(list_, message, wParam, lParam);
  }
  int WidthOf(const wchar_t* text) const;
  const Column* ColumnBegin() const;
  void LeaveHeading(WPARAM key) const;
  void OnGetDisplayInfo(NMLVDISPINFOW& info) const;
  int OnFindItem(const NMLVFINDITEMW& find) const;
  LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;

  HWND list_ = nullptr;
  std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter> boldFont_;  // of headings
  Numbers numbers_ = Numbers::kNo;
  std::wstring widestTime_;
  std::vector<ShownRow> rows_;
};

}  // namespace hours
