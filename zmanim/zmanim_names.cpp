#include "zmanim/zmanim_names.h"

#include "app/string_table.h"
#include "companion/hours.h"
#include "engine/settings_flags.h"
#include "resources/ids.h"

std::string LibraryZmanName(uint32_t zman) {
  char text[HOURS_TEXT_SIZE] = "";
  return HoursGetDescription(zman, text) ? text : "";
}

std::vector<std::string> ZmanNames(const ZmanimInUse& inUse) {
  std::vector<std::string> names;
  for (uint32_t zman = 0; zman < inUse.count; ++zman) {
    names.push_back(inUse.fromLibrary ? LibraryZmanName(zman) : TableString(IDS_FIRST_BUILT_IN_ZMAN + zman));
  }
  return names;
}

bool LegendIsHebrew(const ZmanimInUse& inUse) {
  return inUse.fromLibrary && ZmanimInHebrew();
}

std::vector<std::string> HebrewZmanNames(uint32_t count) {
  std::vector<std::string> names;
  for (uint32_t zman = 0; zman < count; ++zman) {
    char text[HOURS_TEXT_SIZE] = "";
    names.push_back(HoursGetDescriptionHebrew(zman, text) ? text : "");
  }
  return names;
}
