#include <cstring>
#include <optional>
#include <string>

#include "companion/placepick.h"
#include "companion/profile.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/placepick/picker_dialog.h"
#include "libraries/placepick/place_list.h"
#include "libraries/placepick/place_search.h"

int32_t PlacePickSelectLocation(HWND owner, char* name) try {
  if (!name) return 0;
  for (const char* const file : {placepick::kListFile, placepick::kPlacesFile, placepick::kStartFile}) {
    if (!dialogs::IsKnownIni(owner, file)) return 0;
  }
  const placepick::PlaceIndex places(placepick::KnownPlaces({ProfileGetInt, ProfileGetString}));
  const std::string current(name, strnlen(name, placepick::kNameSize - 1));
  const std::optional<std::size_t> picked = placepick::PickPlace(owner, places, current);
  if (!picked) return 0;
  const std::string& pickedName = places[*picked].name;
  std::memcpy(name, pickedName.c_str(), pickedName.size() + 1);
  return 1;
} catch (...) {
  return 0;
}
