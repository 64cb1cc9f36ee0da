// Texts in both languages of occasions, UTF-8 in reading order.
#pragma once

#include <string>

#include "libraries/occasions/occasion_texts.h"

namespace occasions {

struct Words {
  const char* english;
  const char* hebrew;

  std::string In(Language language) const { return language == Language::kHebrew ? hebrew : english; }

  // With a text in place of "%1".
  std::string In(Language language, const std::string& text) const {
    std::string words = In(language);
    if (const size_t place = words.find("%1"); place != std::string::npos) words.replace(place, 2, text);
    return words;
  }
};

}  // namespace occasions
