// The zmanim that a user has chosen, as they are remembered: by their English descriptions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/core/document_source.h"

// Names between bars, "|Shkia|Chatzot|"; descriptions have none. No names are "|".
std::string JoinedNames(const std::vector<std::string>& names);
std::vector<std::string> SplitNames(std::string_view text);

// The indexes of the zmanim of these names, in the order of the zmanim.
std::vector<uint32_t> ZmanimNamed(const std::vector<DocumentZman>& zmanim, const std::vector<std::string>& names);

// The names of which the zmanim have none: of another selection, for which they stay remembered.
std::vector<std::string> NamesOfOthers(const std::vector<DocumentZman>& zmanim, std::vector<std::string> names);

// Those that most calendars of days have: sunrise, latest Shema and Tefila by the Vilna Gaon, midday, sunset, and the
// first nightfall.
std::vector<uint32_t> UsualZmanim(const std::vector<DocumentZman>& zmanim);
