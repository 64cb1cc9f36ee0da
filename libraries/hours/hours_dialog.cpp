#include "libraries/hours/hours_dialog.h"

#include <commctrl.h>

#include "companion/profile.h"
#include "libraries/dialogs/known_file.h"
#include "libraries/hours/hours_file.h"
#include "libraries/hours/selection_dialog.h"
#include "libraries/stamp/form_setting.h"

namespace hours {
namespace {

double UtcSecondsNow() {
  constexpr double kTicksPerSecond = 1e7;
  constexpr double kSecondsFrom1601To1970 = 11644473600.0;
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  const uint64_t ticks = uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime;
  return static_cast<double>(ticks) / kTicksPerSecond - kSecondsFrom1601To1970;
}

}  // namespace

void RunSelectionDialog(HWND owner, const sun::PackedPlace& place) {
  const INITCOMMONCONTROLSEX listView = {sizeof listView, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&listView);
  const sun::PlaceSettings settings = sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString}, place);
  const stamp::Form form = stamp::ChosenForm(stamp::StoredChoice(), stamp::RegionalForm());
  std::optional<Choice> stored;
  const auto read = [&stored] { return (stored = StoredChoice()).has_value(); };
  if (!dialogs::IsKnown(owner, ChoicePath(), read)) return;
  SelectionDialog(*stored, DayTimes(settings, UtcSecondsNow(), form)).Run(owner);
}

}  // namespace hours
