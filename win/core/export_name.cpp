#include "win/core/export_name.h"

#include <algorithm>

namespace {

constexpr std::size_t kLongestExtension = 4;

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsLetterOrDigit(char c) {
  return IsLetter(c) || (c >= '0' && c <= '9');
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

// Behind the last point of the file's name; empty where that is no extension.
std::string_view ExtensionIn(std::string_view file) {
  const std::string_view name = file.substr(file.find_last_of("\\/:") + 1);
  const std::size_t point = name.rfind('.');
  if (point == name.npos || point == 0) return {};
  const std::string_view extension = name.substr(point + 1);
  const bool fits = extension.size() <= kLongestExtension && std::ranges::any_of(extension, IsLetter) &&
                    std::ranges::all_of(extension, IsLetterOrDigit);
  return fits ? extension : std::string_view();
}

}  // namespace

const char* ExtensionOf(ExportFormat format) {
  return format == ExportFormat::kText ? "txt" : "rtf";
}

std::string OfferedName(std::string_view file, ExportFormat written, ExportFormat wanted) {
  if (file.empty()) return "";
  const std::string_view given = ExtensionIn(file);
  const std::string lower = Lower(given);
  if (lower == ExtensionOf(wanted)) return std::string(file);
  const bool ofAFormat = lower == ExtensionOf(ExportFormat::kText) || lower == ExtensionOf(ExportFormat::kRtf);
  if (!given.empty() && !ofAFormat && written == wanted) return std::string(file);
  if (!given.empty()) file.remove_suffix(given.size() + 1);
  while (file.ends_with('.')) file.remove_suffix(1);
  return std::string(file) + "." + ExtensionOf(wanted);
}
