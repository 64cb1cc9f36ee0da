// The line of the About box that says what the program is for, under which licence and with what warranty.
#pragma once

#include <cstddef>
#include <span>

// Writes the line, zero-terminated, into a buffer; a line that does not fit is cut. It is stored scrambled, so that no
// editor of strings in the executable changes it by accident.
void ProduceNoticeLine(std::span<char> buffer);
