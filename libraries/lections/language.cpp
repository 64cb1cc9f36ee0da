#include "libraries/lections/language.h"

#include <algorithm>

#include "libraries/calendar/jewish.h"

namespace lections {
namespace {

// English and Hebrew, then by their English names.
constexpr const Language* kLanguages[] = {
    &kEnglish, &kAshkenaziEnglish, &kHebrew,  &kCzech,     &kDanish, &kDutch,      &kFinnish, &kFrench,  &kGerman,
    &kGreek,   &kHungarian,        &kItalian, &kNorwegian, &kPolish, &kPortuguese, &kRussian, &kSpanish, &kSwedish};

const char* NameOr(const char* name, const char* english) {
  return name ? name : english;
}

}  // namespace

std::span<const Language* const> Languages() {
  return kLanguages;
}

const Language& LanguageOf(uint32_t code) {
  const auto* found = std::ranges::find(kLanguages, code, &Language::code);
  return found == std::end(kLanguages) ? kEnglish : **found;
}

const char* PortionName(const Language& language, calendar::Portion portion) {
  return NameOr(language.portions[portion], kEnglish.portions[portion]);
}

const char* BookName(const Language& language, Book book) {
  const auto index = static_cast<size_t>(book);
  return NameOr(language.books[index], kEnglish.books[index]);
}

const char* OccasionName(const Language& language, Occasion occasion) {
  const auto index = static_cast<size_t>(occasion);
  return NameOr(language.occasions[index], kEnglish.occasions[index]);
}

const char* MonthName(const std::array<const char*, 14>& months, int32_t month, bool isLeapYear) {
  const bool isAdarI = month == calendar::kAdar && isLeapYear;
  return months[isAdarI ? 0 : static_cast<size_t>(month)];
}

}  // namespace lections
