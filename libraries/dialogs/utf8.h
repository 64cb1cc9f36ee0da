// Texts between the system, which takes UTF-16, and those that are kept as UTF-8. What is neither becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace dialogs {

std::wstring FromUtf8(std::string_view text);
std::string ToUtf8(std::wstring_view text);

}  // namespace dialogs
