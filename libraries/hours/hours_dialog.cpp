#include "libraries/hours/hours_dialog.h"

#include <commctrl.h>

#include "companion/profile.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/dialogs/utc_seconds.h"
#include "libraries/hours/hours_file.h"
#include "libraries/hours/selection_dialog.h"
#include "libraries/stamp/form_setting.h"

namespace hours {

void RunSelectionDialog(HWND owner, const sun::PackedPlace& place) {
  const INITCOMMONCONTROLSEX listView = {sizeof listView, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&listView);
  const sun::PlaceSettings settings = sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString}, place);
  const stamp::Form form = stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm());
  std::optional<Choice> stored;
  const auto read = [&stored] { return (stored = StoredChoice()).has_value(); };
  if (!dialogs::IsKnown(owner, ChoicePath(), read)) return;
  SelectionDialog(*stored, DayTimes(settings, dialogs::UtcSeconds(), form)).Run(owner);
}

}  // namespace hours
