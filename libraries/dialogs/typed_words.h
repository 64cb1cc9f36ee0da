// What users type to search by.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace dialogs {

// The words of a std::string or std::wstring, which spaces separate.
template <typename Text>
std::vector<Text> WordsIn(const Text& typed) {
  constexpr typename Text::value_type kSpace = ' ';
  std::vector<Text> words;
  for (std::size_t begin = 0; (begin = typed.find_first_not_of(kSpace, begin)) != typed.npos;) {
    const std::size_t end = std::min(typed.find(kSpace, begin), typed.size());
    words.push_back(typed.substr(begin, end - begin));
    begin = end;
  }
  return words;
}

}  // namespace dialogs
