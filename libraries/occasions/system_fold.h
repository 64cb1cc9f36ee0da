#pragma once

#include <string>
#include <string_view>

namespace occasions {

// For OccasionList: letters' case, accents, Hebrew points and quotation marks aside, by what the system knows of them.
std::string FoldBySystem(std::string_view text);

}  // namespace occasions
