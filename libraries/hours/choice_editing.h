// What the user does with a choice before it is kept. Rows count the chosen zmanim from 0.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/hours/choice.h"

namespace hours {

bool IsChosen(const Choice& choice, std::string_view id);

// Whether one more zman can be chosen.
bool HasRoom(const Choice& choice);

// Adds a zman at the end; false when it is chosen already or there is no room.
bool Choose(Choice& choice, const std::string& id);

// Takes the zman at a row to another row; those between move by one. False when either row is not there.
bool MoveChosen(Choice& choice, size_t from, size_t to);

// Chooses what the preset does, in its order. The user's own zmanim stay, unchosen.
void UsePreset(Choice& choice, const Preset& preset);

// The preset that is just what is chosen, by its number.
std::optional<size_t> PresetInUse(const Choice& choice);

// The user's own zman with the id; null when there is none.
const OwnZman* FindOwn(const Choice& choice, std::string_view id);

// Puts the zman in the place of the one with its number.
void ChangeOwn(Choice& choice, const OwnZman& zman);

}  // namespace hours
