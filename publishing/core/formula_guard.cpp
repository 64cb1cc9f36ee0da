#include "publishing/core/formula_guard.h"

#include <algorithm>

namespace publishing {
namespace {

// U+FF0B, U+FF0D, U+FF1D, U+FF20: spreadsheets of East Asia take them for + - = @.
constexpr std::string_view kFullWidthSigns[] = {"\xEF\xBC\x8B", "\xEF\xBC\x8D", "\xEF\xBC\x9D", "\xEF\xBC\xA0"};

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// After a sign: digits, with signs of the decimals and thousands of whichever country.
bool IsUnsignedNumber(std::string_view text) {
  return std::any_of(text.begin(), text.end(), IsDigit) &&
         std::all_of(text.begin(), text.end(), [](char at) { return IsDigit(at) || at == '.' || at == ','; });
}

bool IsFormula(std::string_view text) {
  if (text.empty()) return false;
  if (text.front() == '-' && text.find_first_not_of('-') == std::string_view::npos) return false;
  if (text.front() == '-' || text.front() == '+') return !IsUnsignedNumber(text.substr(1));
  if (std::string_view("=@\t\r").find(text.front()) != std::string_view::npos) return true;
  return std::any_of(std::begin(kFullWidthSigns), std::end(kFullWidthSigns),
                     [&](std::string_view sign) { return text.starts_with(sign); });
}

}  // namespace

bool IsFormulaOrGuarded(std::string_view text) {
  return IsFormula(text.substr(std::min(text.find_first_not_of(kFormulaGuard), text.size())));
}

}  // namespace publishing
