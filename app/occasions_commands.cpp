#include "app/occasions_commands.h"

#include "app/active_document.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"

// Place and range are copies: the document may be closed while the window is open.
void ShowOccasions(HWND frame) {
  const auto dialog = OptionalEntries.OccasionsDoDialog;
  if (!dialog) return;
  const HWND document = ActiveDocument();
  const Location place = document ? GetPlace(document) : CurrentLocation;
  const DateRange range = document ? GetRangeProperties(document) : CurrentRange;
  const auto& [first, last] = range;
  dialog(frame, place.name, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, first.uDay,
         first.uMonth, first.uYear, last.uDay, last.uMonth, last.uYear);
}

void ChooseOccasionsShown(HWND frame) {
  if (const auto dialog = OptionalEntries.OccasionsDoSettingsDialog) dialog(frame);
}
