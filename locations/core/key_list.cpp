#include "locations/core/key_list.h"

#include <algorithm>

std::vector<const char*> KeyList(std::span<const char> list) {
  std::vector<const char*> names;
  auto name = list.begin();
  while (name != list.end() && *name != '\0') {
    const auto end = std::find(name, list.end(), '\0');
    if (end == list.end()) break;  // cut off without its terminator
    names.push_back(&*name);
    name = end + 1;
  }
  return names;
}
