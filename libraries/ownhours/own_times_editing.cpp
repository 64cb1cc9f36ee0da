#include "libraries/ownhours/own_times_editing.h"

namespace ownhours {

std::vector<Occasion> Editing::OfPlace(std::string_view place) const {
  std::vector<Occasion> found;
  for (const auto& [occasion, time] : Now()) {
    if (occasion.place == place) found.push_back(occasion);
  }
  return found;
}

}  // namespace ownhours
