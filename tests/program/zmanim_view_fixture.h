// The zmanim view of a document, shown in a frame.
#pragma once

#include "tests/program/program_fixture.h"

inline constexpr int kDoubledDateWidth = 10 * kDoubledCharacterWidth;

class ZmanimViewTest : public ProgramTest {
 protected:
  void SetUp() override;

  // The size of the library's selection.
  void UseZmanim(uint32_t count);
  // So many days from 5 January 2007 on.
  void ComputeDays(uint32_t days);

  // Makes the table's client area so many whole rows high, and a number of pixels.
  void ShowRows(int rows, int pixels = 0);

  RECT TableClient();
  int ColumnWidth(int columns = 16) { return (TableClient().right - kDoubledDateWidth) / columns; }
  void PaintAll();

  HWND document_ = nullptr;
  HWND container_ = nullptr;
  HWND table_ = nullptr;
  HWND heading_ = nullptr;
  HWND legend_ = nullptr;
  int rowHeight_ = 0;  // these two of the table's font
  int indent_ = 0;
};
