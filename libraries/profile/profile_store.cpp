#include "libraries/profile/profile_store.h"

#include <string_view>
#include <utility>

namespace profile {

Store::File& Store::FileNamed(const char* name) {
  const auto known = files_.find(std::string_view(name));
  return known != files_.end() ? known->second : files_.try_emplace(name, name).first->second;
}

std::shared_ptr<const IniDocument> Store::Read(const char* file) {
  const std::lock_guard lock(mutex_);
  File& asked = FileNamed(file);
  std::string text;
  if (asked.watched.Refresh(&text)) asked.document = std::make_shared<IniDocument>(std::move(text));
  return asked.document;
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
