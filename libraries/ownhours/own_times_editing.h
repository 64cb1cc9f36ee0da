// The times as the user changes them in the dialog.
#pragma once

#include <string_view>
#include <vector>

#include "libraries/ownhours/own_times.h"
#include "libraries/settings_folder/table_editing.h"

namespace ownhours {

class Editing : public settings_folder::TableEditing<Occasion, Time> {
 public:
  using TableEditing::TableEditing;

  std::vector<Occasion> OfPlace(std::string_view place) const;
};

}  // namespace ownhours
