// The columns in which occasions are listed, and their texts, UTF-8.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/occasions/occasion_texts.h"
#include "libraries/stamp/stamp_core.h"

namespace occasions {

enum class Column : uint8_t { kDate, kWeekday, kJewishDate, kOccasion, kTime, kRemark };
constexpr int kColumns = static_cast<int>(Column::kRemark) + 1;

// How texts are made.
struct Wording {
  Language language = Language::kEnglish;
  stamp::Form form = stamp::Form::kTwentyFourHours;

  bool operator==(const Wording&) const = default;
};

const char* HeadingOf(Column column, Language language);

std::string CellOf(const Question& question, const Row& row, Column column, const Wording& wording);

// "22.11.2026"
std::string DateText(int32_t day);

// Empty for a whole day, "----" for a moment that does not occur.
std::string TimeText(const Row& row, stamp::Form form);

}  // namespace occasions
