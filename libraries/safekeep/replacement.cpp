#include "libraries/safekeep/replacement.h"

namespace safekeep {

ReplacementResult ReplaceAll(std::span<const Replacement> files, const PutFile& put) {
  ReplacementResult result;
  std::vector<const Replacement*> done;
  for (const Replacement& file : files) {
    if (file.before == file.bytes) continue;
    if (!put(file.name, file.bytes)) {
      result.failed = file.name;
      break;
    }
    done.push_back(&file);
  }
  if (result.failed.empty()) return result;
  for (auto file = done.rbegin(); file != done.rend(); ++file) {
    if (!put((*file)->name, (*file)->before)) result.left.push_back((*file)->name);
  }
  return result;
}

}  // namespace safekeep
