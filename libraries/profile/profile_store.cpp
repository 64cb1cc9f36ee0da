#include "libraries/profile/profile_store.h"

#include <string_view>
#include <utility>

namespace profile {

Store::File& Store::FileNamed(const char* name) {
  const auto known = files_.find(std::string_view(name));
  return known != files_.end() ? known->second : files_.try_emplace(name, name).first->second;
}

void Store::Refresh(File& file) {
  std::string text;
  if (file.watched.Refresh(&text)) file.document = std::make_shared<IniDocument>(std::move(text));
}

std::shared_ptr<const IniDocument> Store::Read(const char* file) {
  const std::lock_guard lock(mutex_);
  File& asked = FileNamed(file);
  Refresh(asked);
  return asked.document;
}

bool Store::CanRead(const char* file) {
  const std::lock_guard lock(mutex_);
  File& asked = FileNamed(file);
  asked.watched.Distrust();
  Refresh(asked);
  return asked.watched.IsKnown();
}

bool Store::Edit(const char* file, const Change& change) {
  const std::lock_guard lock(mutex_);
  File& edited = FileNamed(file);
  std::shared_ptr<const IniDocument> made;
  const auto edit = [&](std::string& bytes) {
    std::optional<std::string> changed = change(IniDocument(bytes));
    if (!changed) return false;
    bytes = *changed;
    made = std::make_shared<IniDocument>(std::move(*changed));  // before the write: nothing may fail after it
    return true;
  };
  if (!edited.watched.Edit(edit)) return false;
  edited.document = std::move(made);
  // The same file may be known under another name, too.
  for (auto& [name, other] : files_) other.watched.Distrust();
  return true;
}

}  // namespace profile
