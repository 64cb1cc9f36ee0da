#include "libraries/candles/candle_changes.h"

#include "libraries/settings_folder/text_table.h"

namespace candles {

Changes Difference(const Entries& before, const Entries& after) {
  return settings_folder::Difference(before, after);
}

std::string Applied(const Changes& changes, std::string_view text) {
  return settings_folder::ChangedTable(changes, EntryIn, LineOf).Applied(text);
}

}  // namespace candles
