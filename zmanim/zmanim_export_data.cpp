#include "zmanim/zmanim_export_data.h"

#include "companion/glyphs.h"
#include "companion/stamp.h"
#include "engine/properties.h"
#include "engine/settings_flags.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/scoped.h"
#include "zmanim/core/zmanim_labels.h"

namespace {

std::string HebrewFontName() {
  char name[LF_FACESIZE] = "";
  GlyphsGetHebrewFontName(name);
  return name;
}

}  // namespace

ZmanimExport DescribeZmanim(HWND document) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  const auto names = [&labels](auto language) {
    return labels ? NamesOf(*labels.get(), language) : std::vector<std::string>();
  };
  return {.location = DocumentPlace(document),
          .dateTitle = TableString(IDS_DATE),
          .names = names(&ZmanLabel::english),
          .hebrew = labels && ZmanimInHebrew(),
          .hebrewNames = names(&ZmanLabel::hebrew),
          .hebrewFont = HebrewFontName(),
          .vilnaGaon = TableString(IDS_VILNA_GAON),
          .magenAvraham = TableString(IDS_MAGEN_AVRAHAM),
          .days = {},
          .formatTime = StampConvert,
          .amPm = StampIsAmPm() != 0};
}
