// Decimal numbers as users write them in settings: an optional sign, digits with at most one decimal point among or
// beside them. The decimal point is a point whatever the locale; there are no exponents.
#pragma once

#include <string_view>

namespace twilight {

struct DecimalPrefix {
  bool isNumber;  // the text starts, after white space, with a number
  double value;   // beyond the range of double: its largest number of that sign
  size_t length;  // of the white space and the number
};

// The longest number that a text starts with.
DecimalPrefix ReadDecimalPrefix(std::string_view text);

// Whether the text is one number, white space at either end aside.
bool IsDecimalNumber(std::string_view text);

}  // namespace twilight
