#include "tests/program/zmanim_view_fixture.h"

#include "app/active_document.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "win/text_metrics.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/zmanim_in_use.h"

void ZmanimViewTest::SetUp() {
  ProgramTest::SetUp();
  Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
  OpenFrame();
  document_ = ActiveDocument();
  ASSERT_NE(document_, nullptr);
  SendMessageA(document_, WM_COMMAND, IDB_ZMANIM, 0);
  container_ = GetDlgItem(document_, IDC_ZMANIM_PANE);
  table_ = GetDlgItem(container_, IDC_ZMANIM_TABLE);
  heading_ = GetDlgItem(container_, IDC_ZMANIM_HEADING);
  legend_ = GetDlgItem(container_, IDC_ZMANIM_LEGEND);
  const FontMeasure font = MeasureFontOnDisplay(GetFontProperty(document_, property::kZmanimFont));
  rowHeight_ = font.lineHeight;
  indent_ = font.averageCharacterWidth;
  CallLog().clear();
}

void ZmanimViewTest::UseZmanim(uint32_t count) {
  Libraries().zmanimCount = count;
  CallLog().clear();
}

void ZmanimViewTest::ComputeDays(uint32_t days) {
  const CalendarDate start{5, 1, 2007};
  const CalendarDate end = DateFromAbsolute(AbsoluteFromDate(start) + static_cast<int32_t>(days) - 1);
  CurrentRange = {start, end};
  CalculateZmanim(document_, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  CallLog().clear();
}

void ZmanimViewTest::ShowRows(int rows, int pixels) {
  RECT window, view;
  GetWindowRect(table_, &window);
  GetClientRect(container_, &view);
  const int borders = window.bottom - window.top - TableClient().bottom;
  MoveWindow(table_, 0, 100, view.right, rows * rowHeight_ + pixels + borders, TRUE);
  ASSERT_EQ(TableClient().bottom, rows * rowHeight_ + pixels);
}

RECT ZmanimViewTest::TableClient() {
  RECT client;
  GetClientRect(table_, &client);
  return client;
}

void ZmanimViewTest::PaintAll() {
  RedrawWindow(document_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}
