#include "engine/mirrored_write.h"

#include <cstring>

#include "companion/profile.h"

namespace {

struct Mirror {
  const char* file;
  const char* copy;
};

constexpr Mirror kMirrors[] = {{"shabbat2.ini", "almanachlp2.ini"}, {"shabloc2.ini", "almanachlpl2.ini"}};

}  // namespace

bool WriteMirrored(const char* section, const char* key, const char* value, const char* file) {
  const bool written = ProfileWriteString(section, key, value, file) != 0;
  for (const Mirror& mirror : kMirrors) {
    if (std::strcmp(file, mirror.file) == 0) ProfileWriteString(section, key, value, mirror.copy);
  }
  return written;
}
