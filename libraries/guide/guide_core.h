// Which help page belongs to a topic.
#pragma once

#include <span>
#include <string_view>

namespace guide {

struct Topic {
  std::string_view name;
  std::string_view page;  // a file in the help folder
};

// The general page's topic comes first.
std::span<const Topic> Topics();

// The topic of that name, ASCII letter case aside; the general one for an unknown or empty name.
const Topic& TopicNamed(std::string_view name);

}  // namespace guide
