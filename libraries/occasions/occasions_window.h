// The window that lists the occasions of a year or of a range.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "libraries/dialogs/resizable_dialog.h"
#include "libraries/dialogs/row_list.h"
#include "libraries/occasions/occasion_list.h"
#include "libraries/occasions/taken.h"
#include "libraries/occasions/window_settings.h"

namespace occasions {

// For what the window is opened.
struct Request {
  std::string place;  // windows-1252
  sun::PackedPlace packed;
  Days range;
};

class OccasionsWindow {
 public:
  OccasionsWindow(const Request& request, const WindowChoice& choice);

  // Modal over its owner, which may be null.
  void Run(HWND owner);

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnSize();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnYear(int notification);
  INT_PTR OnButton(int control);
  INT_PTR OnNotify(NMHDR& header);
  void OnListKey(WORD key);
  void OnGetDisplayInfo(NMLVDISPINFOW& info) const;
  void FillBoxes() const;

  // The list: occasions_window_list.cpp.
  void ShowSpan(Span span, int32_t year);
  void ShowControls();
  void OnSpanChosen();
  void OnYearTyped();
  void OnYearLeft();
  void TurnYear(int years);
  void OnKindChosen();
  void Search();
  void OnHebrew();
  void ChangeSettings();
  void Load();
  void Fill(std::optional<int32_t> day);
  void SelectRow(int row);
  void GoToNext();
  void ShowNext();
  void ShowState() const;
  void ShowRemark() const;
  std::wstring StateText() const;
  std::wstring ReasonOfNothing() const;
  void UpdateButtons() const;
  std::optional<int32_t> SelectedDay() const;
  ClockMoment Now() const;
  Wording WordingNow() const { return {choice_.hebrew ? Language::kHebrew : Language::kEnglish, form_}; }

  // What the user takes away: occasions_window_taking.cpp.
  Taken WhatIsShown() const;
  Taken AllCandles() const;
  void Copy();
  void Print();
  void Save();

  HWND Control(int id) const { return GetDlgItem(dialog_, id); }
  LRESULT Send(int control, UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendDlgItemMessageW(dialog_, control, message, wParam, lParam);
  }

  const Request request_;
  WindowChoice choice_;
  int32_t year_ = 0;  // where the span is one
  Days days_;
  OccasionList rows_;
  std::optional<Kind> kind_;
  stamp::Form form_;
  bool isFilling_ = true;  // the controls tell of changes that are the window's own
  HWND dialog_ = nullptr;
  dialogs::RowList list_;
  dialogs::ResizableDialog size_;
};

// The window of OccasionsDoDialog. A file that cannot be read is named in a box, and the window opens when it can be
// read or not at all.
void RunOccasionsWindow(HWND owner, const Request& request);

}  // namespace occasions
