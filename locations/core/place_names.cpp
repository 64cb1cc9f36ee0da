#include "locations/core/place_names.h"

#include <algorithm>
#include <iterator>

namespace {

char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool DifferInCaseOnly(std::string_view left, std::string_view right) {
  return left != right && std::ranges::equal(left, right, {}, LowerCase, LowerCase);
}

const std::string* NameMeant(const std::vector<std::string>& names, std::string_view name) {
  auto found = std::ranges::find(names, name);
  if (found == names.end()) {
    found = std::ranges::find_if(names, [name](const std::string& other) { return DifferInCaseOnly(other, name); });
  }
  return found == names.end() ? nullptr : &*found;
}

std::string SpellingInStore(const std::string& typed, std::string_view previous, const std::vector<std::string>& own,
                            const std::vector<std::string>& builtIn) {
  if (std::ranges::find(own, typed) != own.end()) return typed;
  std::vector<std::string> others;
  std::ranges::copy_if(own, std::back_inserter(others), [&](const std::string& name) { return name != previous; });
  if (const std::string* const meant = NameMeant(others, typed)) return *meant;
  const std::string* const meant = NameMeant(builtIn, typed);
  return meant ? *meant : typed;
}
