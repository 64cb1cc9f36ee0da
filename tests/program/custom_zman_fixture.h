// A document whose zmanim table is shown and clicked: the days from 5 January to 31 December 2007, forty zmanim each.
#pragma once

#include "app/active_document.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/edit_zman_dialog.h"
#include "zmanim/zmanim_in_use.h"
#include "zmanim/zmanim_measures.h"

class CustomZmanTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    Libraries().zmanimCount = 40;
    OpenFrame();
    document_ = ActiveDocument();
    ASSERT_NE(document_, nullptr);
    SendMessageA(document_, WM_COMMAND, IDB_ZMANIM, 0);
    table_ = GetDlgItem(GetDlgItem(document_, IDC_ZMANIM_PANE), IDC_ZMANIM_TABLE);
    CurrentRange = {{5, 1, 2007}, {31, 12, 2007}};
    Compute();
  }

  // Has the document computed by what the libraries say now.
  void Compute() {
    CalculateZmanim(document_, 5, 1, 2007, 31, 12, 2007);
    UpdateWindow(table_);
    CallLog().clear();
  }
  ZmanimGeometry Geometry() {
    const ScopedWindowDc dc(table_);
    return MeasureZmanimTable(table_, dc.dc(), GetFontProperty(document_, property::kZmanimFont),
                              GetBlockProperty(document_, property::kZmanimTimes),
                              GetBlockProperty(document_, property::kZmanimLabels));
  }
  void ClickAt(int x, int y) { SendMessageA(table_, WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
  void ClickCell(const ZmanimCell& cell) {
    const PaneRect rect = Geometry().CellRect(cell);
    ClickAt(rect.x + rect.width / 2, rect.y + rect.height / 2);
  }
  // Clicks a cell and types a time into the dialog.
  void EditCell(const ZmanimCell& cell, const char* hour, const char* minute, int button = IDOK) {
    WithDialog([&] { ClickCell(cell); },
               [&](HWND dialog) {
                 SetField(dialog, 103, hour);
                 SetField(dialog, 104, minute);
                 Click(dialog, button);
               });
  }
  static uint32_t DaysIn(HWND document) {
    const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
    return block->count;
  }
  ClockTime TimeInBlock(const ZmanimCell& cell) {
    const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document_, property::kZmanimTimes));
    const ZmanimDay* const days = block->days;
    return days[cell.day].times[cell.zman];
  }

  HWND document_ = nullptr;
  HWND table_ = nullptr;
};
