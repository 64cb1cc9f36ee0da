#include <windows.h>

#include <cstring>
#include <memory>
#include <optional>
#include <string>

#include "companion/profile.h"
#include "libraries/profile/profile_answers.h"
#include "libraries/profile/profile_store.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace {

using profile::IniDocument;

profile::Store store;

bool IsName(const char* file) {
  return file && *file;
}

const char* OrEmpty(const char* text) {
  return text ? text : "";
}

std::shared_ptr<const IniDocument> Read(const char* file) {
  static const auto kNothing = std::make_shared<const IniDocument>("");
  return IsName(file) ? store.Read(file) : kNothing;
}

std::optional<std::string> Changed(const IniDocument& document, const char* section, const char* key,
                                   const char* value) {
  if (!key) return document.WithoutSection(section);
  if (!value) return document.WithoutKey(section, key);
  return document.WithValue(section, key, value);
}

}  // namespace

int32_t ProfileGetInt(const char* section, const char* key, int32_t defaultValue, const char* file) try {
  return profile::IntAnswer(*Read(file), OrEmpty(section), OrEmpty(key), defaultValue);
} catch (...) {
  return defaultValue;
}

uint32_t ProfileGetString(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                          const char* file) try {
  if (!buffer || size == 0) return 0;
  const auto document = Read(file);
  if (!section) return profile::ListAnswer(document->SectionNames(), buffer, size);
  if (!key) return profile::KeyListAnswer(*document, section, OrEmpty(defaultValue), buffer, size);
  return profile::TextAnswer(*document, section, key, OrEmpty(defaultValue), buffer, size);
} catch (...) {
  std::memset(buffer, 0, size);
  return 0;
}

int32_t ProfileWriteString(const char* section, const char* key, const char* value, const char* file) try {
  if (!section || !IsName(file)) return 0;
  return store.Edit(file, [=](const IniDocument& document) { return Changed(document, section, key, value); });
} catch (...) {
  return 0;
}

int32_t ProfileCanRead(const char* file) try { return !IsName(file) || store.CanRead(file); } catch (...) {
  return 0;
}

uint32_t ProfileGetFolder(char* buffer, uint32_t size) try {
  if (!buffer || size == 0) return 0;
  buffer[0] = '\0';
  const std::wstring folder = settings_folder::FullPath(settings_folder::FolderNow());
  const int copied =
      WideCharToMultiByte(CP_UTF8, 0, folder.c_str(), -1, buffer, static_cast<int>(size), nullptr, nullptr);
  if (copied > 0) return static_cast<uint32_t>(copied) - 1;
  buffer[0] = '\0';
  return 0;
} catch (...) {
  return 0;
}
