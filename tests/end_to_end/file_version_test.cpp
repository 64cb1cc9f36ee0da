// The version that Explorer shows of the executable and of every library: one and the same.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <vector>

#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

namespace {

// The bytes of a file's version resource; empty when it has none.
std::vector<char> VersionOf(const fs::path& file) {
  std::vector<char> version(GetFileVersionInfoSizeW(file.c_str(), nullptr));
  if (!GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(version.size()), version.data())) return {};
  return version;
}

std::string Text(const std::vector<char>& version, const std::string& name) {
  void* text = nullptr;
  UINT length = 0;  // with its end
  const std::string block = "\\StringFileInfo\\040904E4\\" + name;
  if (!VerQueryValueA(version.data(), block.c_str(), &text, &length) || length == 0) return {};
  return {static_cast<const char*>(text), length - 1};
}

std::vector<uint32_t> Numbers(const std::vector<char>& version) {
  void* block = nullptr;
  UINT length = 0;
  if (!VerQueryValueA(version.data(), "\\", &block, &length)) return {};
  const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(block);
  return {HIWORD(fixed.dwFileVersionMS), LOWORD(fixed.dwFileVersionMS), HIWORD(fixed.dwFileVersionLS),
          LOWORD(fixed.dwFileVersionLS)};
}

bool IsExecutable(const fs::path& file) {
  const std::wstring suffix = file.extension().wstring();
  return lstrcmpiW(suffix.c_str(), L".exe") == 0 || lstrcmpiW(suffix.c_str(), L".dll") == 0;
}

TEST(FileVersion, IsTheSameOfEveryFile) {
  int files = 0;
  for (const auto& entry : fs::directory_iterator(ProgramFolder())) {
    if (!IsExecutable(entry.path())) continue;
    ++files;
    const std::vector<char> version = VersionOf(entry.path());
    ASSERT_FALSE(version.empty()) << entry.path();
    EXPECT_EQ(Numbers(version), (std::vector<uint32_t>{6, 0, 0, 1})) << entry.path();
    EXPECT_EQ(Text(version, "ProductName"), "Times / Readings") << entry.path();
  }
  EXPECT_GT(files, 1);
}

// The release's mark stands where the About box has it.
TEST(FileVersion, OfTheExecutableReadsAsInTheAboutBox) {
  const std::vector<char> version = VersionOf(ProgramFolder() / "shabbat.exe");
  EXPECT_EQ(Text(version, "FileVersion"), "6.0.0.0001R");
  EXPECT_EQ(Text(version, "ProductVersion"), "6.0.0.0001R");
}

}  // namespace
