#include "engine/settings_flags.h"

#include "companion/profile.h"

namespace {

bool SetFlag(const char* section, const char* key, bool value) {
  return ProfileWriteString(section, key, value ? "1" : "0", kFlagsFile) != 0;
}

}  // namespace

bool ZmanimInHebrew() {
  return ProfileGetInt("Zmanim", "Hebrew", 0, kFlagsFile) != 0;
}
bool SetZmanimInHebrew(bool hebrew) {
  return SetFlag("Zmanim", "Hebrew", hebrew);
}

bool ZmanimEnabled() {
  return ProfileGetInt("Settings", "EnableZmanim", 1, kFlagsFile) != 0;
}
bool SetZmanimEnabled(bool enabled) {
  return SetFlag("Settings", "EnableZmanim", enabled);
}
