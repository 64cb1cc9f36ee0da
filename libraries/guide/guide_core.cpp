#include "libraries/guide/guide_core.h"

#include <algorithm>

namespace guide {
namespace {

constexpr Topic kTopics[] = {
    {"Start", "index.html"},         {"Shabbat times", "shabbat_times.html"},
    {"Places", "places.html"},       {"Accuracy", "accuracy.html"},
    {"Zmanim", "zmanim.html"},       {"Readings", "readings.html"},
    {"Persons", "persons.html"},     {"Exports and printing", "exports.html"},
    {"Documents", "documents.html"}, {"Settings", "settings.html"},
    {"Occasions", "occasions.html"},
};

char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::span<const Topic> Topics() {
  return kTopics;
}

const Topic& TopicNamed(std::string_view name) {
  const auto topic = std::ranges::find_if(
      kTopics, [name](const Topic& t) { return std::ranges::equal(t.name, name, {}, LowerCase, LowerCase); });
  return topic == std::end(kTopics) ? kTopics[0] : *topic;
}

}  // namespace guide
