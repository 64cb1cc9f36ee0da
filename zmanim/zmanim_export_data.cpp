#include "zmanim/zmanim_export_data.h"

#include "app/string_table.h"
#include "companion/glyphs.h"
#include "companion/stamp.h"
#include "document/properties.h"
#include "resources/ids.h"
#include "zmanim/zmanim_names.h"

namespace {

std::string HebrewFontName() {
  char name[LF_FACESIZE] = "";
  GlyphsGetHebrewFontName(name);
  return name;
}

}  // namespace

ZmanimExport DescribeZmanim(HWND document) {
  const ZmanimInUse inUse = GetZmanimInUse();
  return {.location = DocumentPlace(document),
          .dateTitle = TableString(IDS_DATE),
          .names = ZmanNames(inUse),
          .hebrew = LegendIsHebrew(inUse),
          .hebrewNames = HebrewZmanNames(inUse.count),
          .hebrewFont = HebrewFontName(),
          .vilnaGaon = TableString(IDS_VILNA_GAON),
          .magenAvraham = TableString(IDS_MAGEN_AVRAHAM),
          .days = {},
          .formatTime = StampConvert,
          .amPm = StampIsAmPm() != 0};
}
