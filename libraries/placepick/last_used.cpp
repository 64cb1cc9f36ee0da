#include "libraries/placepick/last_used.h"

#include <algorithm>
#include <array>
#include <optional>

#include "companion/profile.h"

namespace placepick {
namespace {

constexpr char kSection[] = "LastUsed";
constexpr std::size_t kMost = 10;

std::vector<std::string> StoredNames() {
  std::vector<std::string> names;
  for (std::size_t i = 1; i <= kMost; ++i) {
    std::array<char, kNameSize> name = {};
    ProfileGetString(kSection, std::to_string(i).c_str(), "", name.data(), static_cast<uint32_t>(name.size()),
                     kPickerFile);
    if (name[0] != '\0') names.emplace_back(name.data());
  }
  return names;
}

}  // namespace

std::vector<std::size_t> LastUsedPlaces(const PlaceIndex& places) {
  std::vector<std::size_t> numbers;
  for (const std::string& name : StoredNames()) {
    const std::optional<std::size_t> number = places.Named(name);
    const bool isThere = number && places[*number].name == name;
    if (isThere && std::ranges::find(numbers, *number) == numbers.end()) numbers.push_back(*number);
  }
  return numbers;
}

void KeepUsedPlace(const std::string& name) {
  std::vector<std::string> names = StoredNames();
  if (!names.empty() && names.front() == name) return;
  std::erase(names, name);
  names.insert(names.begin(), name);
  names.resize(std::min(names.size(), kMost));
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!ProfileWriteString(kSection, std::to_string(i + 1).c_str(), names[i].c_str(), kPickerFile)) return;
  }
}

}  // namespace placepick
