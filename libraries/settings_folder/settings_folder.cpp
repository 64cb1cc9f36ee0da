#include "libraries/settings_folder/settings_folder.h"

namespace settings_folder {
namespace {

constexpr std::wstring_view kSeparators = L"\\/";

bool IsSeparator(wchar_t character) {
  return kSeparators.find(character) != std::wstring_view::npos;
}

bool IsRelative(std::wstring_view path) {
  const bool hasDrive = path.size() >= 2 && path[1] == L':';
  return !hasDrive && !IsSeparator(path.front());
}

}  // namespace

std::wstring CleanedHome(std::wstring_view variable) {
  constexpr std::wstring_view kAround = L" \t\"";
  const size_t first = variable.find_first_not_of(kAround);
  if (first == std::wstring_view::npos) return {};
  return std::wstring(variable.substr(first, variable.find_last_not_of(kAround) - first + 1));
}

std::wstring FolderFor(const Surroundings& surroundings) {
  if (!surroundings.home.empty()) {
    return IsRelative(surroundings.home) ? Joined(surroundings.exeFolder, surroundings.home)
                                         : std::wstring(surroundings.home);
  }
  if (surroundings.settingsBesideExe || surroundings.appData.empty()) {
    return Joined(surroundings.exeFolder, L"settings");
  }
  return Joined(surroundings.appData, L"Times Readings");
}

bool IsBareName(std::wstring_view name) {
  return name.find_first_of(L"\\/:") == std::wstring_view::npos;
}

std::wstring Joined(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (!path.empty() && !IsSeparator(path.back())) path += L'\\';
  return path.append(name);
}

std::wstring WithoutLengthLimit(std::wstring fullPath) {
  constexpr size_t kSurelyPlain = 240;  // leaves room for a suffix
  const std::wstring_view path = fullPath;
  if (path.size() <= kSurelyPlain || path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) return fullPath;
  if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + fullPath.substr(2);
  return L"\\\\?\\" + fullPath;
}

}  // namespace settings_folder
