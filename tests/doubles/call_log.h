// What the program asked of its doubles and of replaced system calls, in order.
#pragma once

#include <string>
#include <vector>

std::vector<std::string>& CallLog();

// Adds a line, formatted as by printf.
[[gnu::format(printf, 1, 2)]] void LogCall(const char* format, ...);
