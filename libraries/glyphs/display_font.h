// The Hebrew display font, a file of the folder "fonts" beside this library.
#pragma once

inline constexpr char kDisplayFontName[] = "DisplayHebrew1";

// Makes the font known to this process, the first time that it is called. A machine on which the font is installed
// needs no file; where there is neither, the system draws another font and the letters of Hebrew texts are wrong.
void EnsureDisplayFont();
