// The program's files are 8-bit texts, some of them UTF-8; an editor may have saved one as UTF-16 all the same.
#pragma once

#include <string>

namespace settings_folder {

// The bytes of a text file as 8-bit text. UTF-16, known by its byte order mark, becomes text of the program's code page
// or, when that cannot spell it all, UTF-8 with a byte order mark, so that nothing is lost when it is written back.
// Other bytes stay as they are.
std::string EightBitText(std::string bytes);

// The bytes of a text file that is UTF-8: UTF-16 with its byte order mark becomes UTF-8 with one. Other bytes stay as
// they are.
std::string Utf8Text(std::string bytes);

}  // namespace settings_folder
