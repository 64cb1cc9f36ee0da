#include "engine/optional_entries.h"

#include <windows.h>

#include <cstring>

#include "win/own_folder.h"

OptionalEntryPoints OptionalEntries;

namespace {

HMODULE occasionsLibrary = nullptr;

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

// The folder is looked into first, so that no library of the system's can be taken for it.
void BindOccasions() {
  if (!IsInOwnFolder(L"occasions.dll")) return;
  occasionsLibrary = LoadLibraryA("occasions.dll");
  if (!occasionsLibrary) return;
  LookUp("occasions.dll", "OccasionsDoDialog", OptionalEntries.OccasionsDoDialog);
  LookUp("occasions.dll", "OccasionsDoSettingsDialog", OptionalEntries.OccasionsDoSettingsDialog);
  LookUp("occasions.dll", "OccasionsEnumerate", OptionalEntries.OccasionsEnumerate);
}

void UnloadOccasions() {
  OptionalEntries.OccasionsDoDialog = nullptr;
  OptionalEntries.OccasionsDoSettingsDialog = nullptr;
  OptionalEntries.OccasionsEnumerate = nullptr;
  if (occasionsLibrary) FreeLibrary(occasionsLibrary);
  occasionsLibrary = nullptr;
}
