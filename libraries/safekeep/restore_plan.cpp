#include "libraries/safekeep/restore_plan.h"

#include <algorithm>

#include "libraries/safekeep/backup_form.h"
#include "libraries/safekeep/kept_files.h"

namespace safekeep {
namespace {

const ZipEntry* Find(const std::vector<ZipEntry>& files, std::string_view name) {
  const auto found = std::find_if(files.begin(), files.end(), [name](const auto& file) { return file.name == name; });
  return found == files.end() ? nullptr : &*found;
}

std::string ChangedText(const ZipEntry* file) {
  return file ? MinuteText(MomentOf(file->changed)) : "";
}

Fate FateOf(const ZipEntry* inBackup, const ZipEntry* now) {
  if (!inBackup) return Fate::kStays;
  if (!now) return Fate::kAdded;
  return inBackup->bytes == now->bytes ? Fate::kSame : Fate::kReplaced;
}

}  // namespace

std::vector<PlannedFile> PlanOf(const std::vector<ZipEntry>& backup, const std::vector<ZipEntry>& present) {
  std::vector<PlannedFile> plan;
  for (const KeptFile& file : KeptFiles()) {
    const ZipEntry* const inBackup = Find(backup, file.name);
    const ZipEntry* const now = Find(present, file.name);
    if (!inBackup && !now) continue;
    plan.push_back({file.name, file.what, FateOf(inBackup, now), ChangedText(inBackup), ChangedText(now)});
  }
  std::stable_partition(plan.begin(), plan.end(), [](const auto& file) { return file.fate != Fate::kStays; });
  return plan;
}

std::string_view InWords(Fate fate) {
  switch (fate) {
    case Fate::kReplaced: return "is replaced";
    case Fate::kAdded: return "is added";
    case Fate::kSame: return "is the same already";
    case Fate::kStays: break;
  }
  return "stays: not in the backup";
}

}  // namespace safekeep
