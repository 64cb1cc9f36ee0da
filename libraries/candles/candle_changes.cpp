#include "libraries/candles/candle_changes.h"

#include "libraries/settings_folder/text_table.h"

namespace candles {

Changes Difference(const Entries& before, const Entries& after) {
  Changes changes;
  for (const auto& [occasion, times] : before) {
    if (!after.contains(occasion)) changes.emplace(occasion, std::nullopt);
  }
  for (const auto& [occasion, times] : after) {
    const auto old = before.find(occasion);
    if (old == before.end() || old->second != times) changes.emplace(occasion, times);
  }
  return changes;
}

std::string Applied(const Changes& changes, std::string_view text) {
  return settings_folder::ChangedTable(changes, EntryIn, LineOf).Applied(text);
}

}  // namespace candles
