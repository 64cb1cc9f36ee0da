#include "engine/profile_int.h"

#include "companion/profile.h"
#include "engine/core/leading_integer.h"
#include "engine/core/records.h"

int32_t ReadProfileInt(const char* section, const char* key, int32_t defaultValue, const char* file) {
  char text[kTextSize];
  ProfileGetString(section, key, "", text, sizeof text, file);
  return text[0] == '\0' ? defaultValue : LeadingInteger(text);
}
