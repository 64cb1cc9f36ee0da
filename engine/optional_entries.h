// Entry points that companion libraries offer beyond those that the program needs. They are looked up by name in the
// libraries that the program imports or binds anyway, and in the occasions library, which it can do without altogether;
// one that is not there is null, and the program does without.
#pragma once

#include "companion/candles.h"
#include "companion/hours.h"
#include "companion/lections.h"
#include "companion/occasions.h"
#include "companion/ownhours.h"
#include "companion/profile.h"
#include "companion/solar.h"

struct OptionalEntryPoints {
  decltype(&::CandlesDoDialogAt) CandlesDoDialogAt;
  decltype(&::HoursGetDayOffset) HoursGetDayOffset;
  decltype(&::HoursGetDefinition) HoursGetDefinition;
  decltype(&::HoursGetFingerprint) HoursGetFingerprint;
  // These three are there together or not at all.
  decltype(&::LectionsGetChoice) LectionsGetChoice;
  decltype(&::LectionsGetReadingsBy) LectionsGetReadingsBy;
  decltype(&::LectionsIsYizkorBy) LectionsIsYizkorBy;

  decltype(&::LectionsGetCustomName) LectionsGetCustomName;
  decltype(&::LectionsHasOwnNumbers) LectionsHasOwnNumbers;
  decltype(&::OccasionsDoDialog) OccasionsDoDialog;
  decltype(&::OccasionsDoSettingsDialog) OccasionsDoSettingsDialog;
  decltype(&::OccasionsEnumerate) OccasionsEnumerate;
  decltype(&::OwnHoursDoDialog) OwnHoursDoDialog;
  decltype(&::ProfileCanRead) ProfileCanRead;
  decltype(&::ProfileGetFolder) ProfileGetFolder;
  decltype(&::SolarDescribeZone) SolarDescribeZone;
  decltype(&::SolarDoSummerTimeDialog) SolarDoSummerTimeDialog;
  decltype(&::SolarGetClockOffset) SolarGetClockOffset;
};

extern OptionalEntryPoints OptionalEntries;

void LookUpOptionalEntries();

// Those of the solar library, which the program does not import: once it is bound.
void LookUpSolarEntries();

// Those of the occasions library, which is loaded if it stands in the program's own folder. Unloading clears them.
void BindOccasions();
void UnloadOccasions();
