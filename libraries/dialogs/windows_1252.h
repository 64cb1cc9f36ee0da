// Texts of the libraries are windows-1252, whatever the system's own code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dialogs {

// Every byte has its character: the five that windows-1252 leaves free (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the
// control characters of the same number.
std::u16string Utf16(std::string_view text);
std::wstring Wide(std::string_view text);

// The bytes of a text; none when windows-1252 lacks one of its characters.
std::optional<std::string> Narrow(std::wstring_view text);

}  // namespace dialogs
