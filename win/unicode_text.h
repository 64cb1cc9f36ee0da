// Texts between the 8 bits that libraries and settings have, the UTF-16 of the system, and UTF-8.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// codePage: as the system numbers them. What the text's code page does not have becomes U+FFFD or what the system takes
// for it.
std::wstring WideOf(std::string_view text, UINT codePage);

std::string Utf8Of(std::wstring_view text);
