#include "libraries/lections/settings_store.h"

#include <windows.h>

#include <chrono>
#include <mutex>
#include <optional>

#include "companion/profile.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace lections {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kTrusted{50};
constexpr GEOID kIsrael = 117;  // of the table of geographical locations

struct Kept {
  std::mutex mutex;
  Settings settings;
  std::optional<Clock::time_point> readAt;
};

Kept kept;

calendar::Land LandOfRegion() {
  return GetUserGeoID(GEOCLASS_NATION) == kIsrael ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
}

std::string ValueInFile(const char* key) {
  char value[32];
  ProfileGetString(kSettingsSection, key, "", value, sizeof value, kSettingsFile);
  return value;
}

void Read() {
  kept.settings = SettingsFrom(ValueInFile, LandOfRegion());
  kept.readAt = Clock::now();
}

}  // namespace

Settings StoredSettings() {
  const std::lock_guard lock(kept.mutex);
  if (!kept.readAt || Clock::now() - *kept.readAt >= kTrusted) Read();
  return kept.settings;
}

Settings StoredSettingsNow() {
  const std::lock_guard lock(kept.mutex);
  Read();
  return kept.settings;
}

bool StoreSettings(const Settings& settings) {
  const std::lock_guard lock(kept.mutex);
  bool isStored = true;
  for (const KeyValue& wanted : ValuesOf(settings)) {
    if (ValueInFile(wanted.key) == wanted.value) continue;
    isStored = ProfileWriteString(kSettingsSection, wanted.key, wanted.value.c_str(), kSettingsFile) != 0;
    if (!isStored) break;
  }
  Read();
  return isStored;
}

std::wstring SettingsPath() {
  return settings_folder::PathNow(settings_folder::Wide(kSettingsFile));
}

}  // namespace lections
