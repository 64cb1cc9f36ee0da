#include "engine/optional_entries.h"

#include <windows.h>

#include <cstring>

OptionalEntryPoints OptionalEntries;

namespace {

template <typename Function>
void LookUp(const char* library, const char* name, Function& entry) {
  const HMODULE module = GetModuleHandleA(library);
  const FARPROC found = module ? GetProcAddress(module, name) : nullptr;
  static_assert(sizeof found == sizeof entry);
  std::memcpy(&entry, &found, sizeof entry);
}

}  // namespace

void LookUpOptionalEntries() {
  OptionalEntryPoints& entries = OptionalEntries;
  LookUp("candles.dll", "CandlesDoDialogAt", entries.CandlesDoDialogAt);
  LookUp("hours.dll", "HoursGetDayOffset", entries.HoursGetDayOffset);
  LookUp("hours.dll", "HoursGetDefinition", entries.HoursGetDefinition);
  LookUp("hours.dll", "HoursGetFingerprint", entries.HoursGetFingerprint);
  LookUp("lections.dll", "LectionsGetChoice", entries.LectionsGetChoice);
  LookUp("lections.dll", "LectionsGetCustomName", entries.LectionsGetCustomName);
  LookUp("lections.dll", "LectionsGetReadingsBy", entries.LectionsGetReadingsBy);
  LookUp("lections.dll", "LectionsHasOwnNumbers", entries.LectionsHasOwnNumbers);
  LookUp("lections.dll", "LectionsIsYizkorBy", entries.LectionsIsYizkorBy);
  LookUp("ownhours.dll", "OwnHoursDoDialog", entries.OwnHoursDoDialog);
  LookUp("profile.dll", "ProfileCanRead", entries.ProfileCanRead);
  LookUp("profile.dll", "ProfileGetFolder", entries.ProfileGetFolder);
  if (!entries.LectionsGetReadingsBy || !entries.LectionsIsYizkorBy) entries.LectionsGetChoice = nullptr;
}

void LookUpSolarEntries() {
  LookUp("solar.dll", "SolarDescribeZone", OptionalEntries.SolarDescribeZone);
  LookUp("solar.dll", "SolarDoSummerTimeDialog", OptionalEntries.SolarDoSummerTimeDialog);
  LookUp("solar.dll", "SolarGetClockOffset", OptionalEntries.SolarGetClockOffset);
}
