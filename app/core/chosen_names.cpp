#include "app/core/chosen_names.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>

namespace {

constexpr char kBar = '|';

// As many as a selection has; more would make the setting grow for ever.
constexpr std::ptrdiff_t kMostOthers = 100;

// Descriptions of which one is taken, by what they begin with: the zman of the first form that there is.
constexpr std::string_view kSunrise[] = {"HaNetz HaChama"};
constexpr std::string_view kShema[] = {"Kriat Shema (GR\"O)"};
constexpr std::string_view kTefila[] = {"Tefila (GR\"O)"};
constexpr std::string_view kMidday[] = {"Chatzot"};
constexpr std::string_view kSunset[] = {"Shkia"};
constexpr std::string_view kNightfall[] = {"3 Medium Stars", "3 Small Stars", "Tzait"};
constexpr std::span<const std::string_view> kUsual[] = {kSunrise, kShema, kTefila, kMidday, kSunset, kNightfall};

}  // namespace

std::string JoinedNames(const std::vector<std::string>& names) {
  std::string text(1, kBar);
  for (const std::string& name : names) text += name + kBar;
  return text;
}

std::vector<std::string> SplitNames(std::string_view text) {
  std::vector<std::string> names;
  while (!text.empty()) {
    const std::string_view name = text.substr(0, text.find(kBar));
    if (!name.empty()) names.emplace_back(name);
    text.remove_prefix(std::min(name.size() + 1, text.size()));
  }
  return names;
}

std::vector<uint32_t> ZmanimNamed(const std::vector<DocumentZman>& zmanim, const std::vector<std::string>& names) {
  std::vector<uint32_t> indexes;
  for (uint32_t zman = 0; zman < zmanim.size(); ++zman) {
    if (std::ranges::find(names, zmanim[zman].english) != names.end()) indexes.push_back(zman);
  }
  return indexes;
}

std::vector<std::string> NamesOfOthers(const std::vector<DocumentZman>& zmanim, std::vector<std::string> names) {
  std::erase_if(names, [&](const std::string& name) {
    return std::ranges::find(zmanim, name, &DocumentZman::english) != zmanim.end();
  });
  if (std::ssize(names) > kMostOthers) names.erase(names.begin(), names.end() - kMostOthers);
  return names;
}

std::vector<uint32_t> UsualZmanim(const std::vector<DocumentZman>& zmanim) {
  std::vector<uint32_t> indexes;
  const auto take = [&](std::string_view beginning) {
    for (uint32_t zman = 0; zman < zmanim.size(); ++zman) {
      if (!zmanim[zman].english.starts_with(beginning)) continue;
      indexes.push_back(zman);
      return true;
    }
    return false;
  };
  for (const std::span<const std::string_view> beginnings : kUsual) std::ranges::any_of(beginnings, take);
  std::ranges::sort(indexes);
  return indexes;
}
