// Which place a name means.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Whether two names differ in ASCII letter case alone.
bool DifferInCaseOnly(std::string_view left, std::string_view right);

// The name spelled exactly so, else the first that differs from it in letter case alone; null when there is neither.
// The settings files do not tell letter case apart, names of places do.
const std::string* NameMeant(const std::vector<std::string>& names, std::string_view name);

// How a place that the user types is spelled in the store: as it stands when a place of the user's own has that name,
// else as the own place, or else the built-in one, that differs from it in letter case alone. previous is the name of
// the place being changed, which does not hold its own spelling fast ("" for a new place).
std::string SpellingInStore(const std::string& typed, std::string_view previous, const std::vector<std::string>& own,
                            const std::vector<std::string>& builtIn);
