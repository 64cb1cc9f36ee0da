// Which help page belongs to a topic.
#pragma once

#include <filesystem>
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

struct HelpPage {
  std::filesystem::path file;
  bool exists;
};

// The topic's page in the folder "help" of the program's folder.
HelpPage PageOf(std::string_view topicName, const std::filesystem::path& programFolder);

}  // namespace guide
