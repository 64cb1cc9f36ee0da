// The settings as the doubled profile library reads them, for the doubles of other libraries that read settings too.
#pragma once

#include <optional>
#include <string>

// The value without a pair of enclosing quotes; none when there is no such key. An unforeseen read fails the test.
std::optional<std::string> ReadSetting(const char* section, const char* key, const char* file);
