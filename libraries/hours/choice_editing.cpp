#include "libraries/hours/choice_editing.h"

#include <algorithm>

namespace hours {

bool IsChosen(const Choice& choice, std::string_view id) {
  return std::ranges::find(choice.chosen, id) != choice.chosen.end();
}

bool HasRoom(const Choice& choice) {
  return choice.chosen.size() < kMostChosen;
}

bool Choose(Choice& choice, const std::string& id) {
  if (!HasRoom(choice) || IsChosen(choice, id)) return false;
  choice.chosen.push_back(id);
  return true;
}

bool MoveChosen(Choice& choice, size_t from, size_t to) {
  if (from >= choice.chosen.size() || to >= choice.chosen.size()) return false;
  const auto at = [&choice](size_t row) { return choice.chosen.begin() + static_cast<std::ptrdiff_t>(row); };
  if (from < to) {
    std::rotate(at(from), at(from) + 1, at(to) + 1);
  } else {
    std::rotate(at(to), at(from), at(from) + 1);
  }
  return true;
}

void UsePreset(Choice& choice, const Preset& preset) {
  choice.chosen.assign(preset.ids.begin(), preset.ids.end());
}

std::optional<size_t> PresetInUse(const Choice& choice) {
  for (size_t number = 0; number < Presets().size(); ++number) {
    if (std::ranges::equal(Presets()[number].ids, choice.chosen)) return number;
  }
  return std::nullopt;
}

const OwnZman* FindOwn(const Choice& choice, std::string_view id) {
  const auto found = std::ranges::find_if(choice.own, [id](const OwnZman& own) { return OwnId(own.number) == id; });
  return found == choice.own.end() ? nullptr : &*found;
}

void ChangeOwn(Choice& choice, const OwnZman& zman) {
  std::ranges::replace_if(
      choice.own, [&zman](const OwnZman& own) { return own.number == zman.number; }, zman);
}

}  // namespace hours
