#pragma once

#include <windows.h>

#include <optional>

#include "libraries/kinship/kinship_settings.h"
#include "libraries/kinship/person_dates.h"

namespace kinship {

// Asks for a new person, or for what an old one is to be; nothing when cancelled. A new one is offered with the
// occasion and calendar of last. shown: for the days that the dialog tells.
std::optional<persons::Person> AskForNewPerson(HWND owner, const Shown& shown, const LastEntry& last);
std::optional<persons::Person> AskForChangedPerson(HWND owner, const Shown& shown, const persons::Person& old);

}  // namespace kinship
