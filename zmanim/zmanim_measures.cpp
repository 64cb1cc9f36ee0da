#include "zmanim/zmanim_measures.h"

#include "companion/glyphs.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/core/zmanim_labels.h"

namespace {

int DateWidth(HDC dc, HFONT font) {
  const ScopedSelect selected(dc, font);
  SIZE size{};
  GlyphsGetTextExtentPoint(dc, kWidestDate, sizeof kWidestDate - 1, &size);
  return size.cx;
}

}  // namespace

ZmanimGeometry MeasureZmanimTable(HWND table, HDC dc, HFONT font, HGLOBAL block, HGLOBAL labels) {
  RECT client;
  GetClientRect(table, &client);
  const FontMeasure measure = MeasureFont(dc, font);
  const ScopedGlobalLock<const ZmanimBlock> days(block);
  const ScopedGlobalLock<const ZmanimLabels> zmanim(labels);
  return {.clientWidth = client.right,
          .clientHeight = client.bottom,
          .rowHeight = measure.lineHeight,
          .dateWidth = DateWidth(dc, font),
          .textIndent = measure.averageCharacterWidth,
          .visibleColumns = zmanim && zmanim->amPm ? kColumnsOf12HourTimes : kColumnsOf24HourTimes,
          .firstDay = static_cast<uint32_t>(GetScrollPos(table, SB_VERT)),
          .firstZman = static_cast<uint32_t>(GetScrollPos(table, SB_HORZ)),
          .dayCount = days ? days->count : 0,
          .zmanCount = zmanim ? zmanim->count : 0};
}
