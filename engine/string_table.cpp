#include "engine/string_table.h"

#include "engine/core/records.h"
#include "resources/ids.h"

namespace {

char texts[IDS_LAST + 1][kTextSize];

}  // namespace

void LoadStringTable(HINSTANCE instance) {
  for (unsigned id = 1; id <= IDS_LAST; ++id) {
    texts[id][0] = '\0';
    LoadStringA(instance, id, texts[id], static_cast<int>(sizeof texts[id]));
  }
}

const char* TableString(unsigned id) {
  return id <= IDS_LAST ? texts[id] : "";
}
