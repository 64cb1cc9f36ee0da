// The settings that decide the form of times: the user's choice ("Form" in section "Times" of "stamp.ini"), else the
// region's.
#pragma once

#include <string>

#include "libraries/stamp/stamp_core.h"

namespace stamp {

constexpr char kFormFile[] = "stamp.ini";

Form RegionalForm();

// As it stands in the file; empty when there is none.
std::string StoredChoice();

// choice: "12", "24", or null to leave the form to the region. False when it cannot be written.
bool StoreChoice(const char* choice);

// The file's full path, for messages.
std::wstring SettingPath();

}  // namespace stamp
