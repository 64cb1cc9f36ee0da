// Texts in spreadsheets: what begins like a formula would be run as one, whoever wrote it.
#pragma once

#include <string_view>

namespace publishing {

// Stands before such a text, and says that it is one.
constexpr char kFormulaGuard = '\'';

// Whether a text would be run, or would be but for the apostrophes before it. One more before each text of this kind,
// and one less again, gives every text back as it was.
bool IsFormulaOrGuarded(std::string_view text);

}  // namespace publishing
