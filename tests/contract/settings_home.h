// A settings folder of a test's own.
#pragma once

#include <windows.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Sets TIMES_READINGS_HOME, or removes it (null), and waits until the libraries see it: they look at it once in a tick
// of the system's clock.
inline void SetHome(const wchar_t* folder) {
  SetEnvironmentVariableW(L"TIMES_READINGS_HOME", folder);
  const DWORD tick = GetTickCount();
  while (GetTickCount() == tick) Sleep(1);
}

// Waits until the libraries look at the settings files again: 50 ms and a tick of the clock after they last did.
inline void WaitUntilSeen() {
  const ULONGLONG end = GetTickCount64() + 50 + 16;
  while (GetTickCount64() <= end) Sleep(1);
}

// While it lives, TIMES_READINGS_HOME names a folder that nobody has used before and that does not exist yet.
class SettingsHome {
 public:
  SettingsHome() : folder_(NewFolder()) { SetHome(folder_.c_str()); }
  ~SettingsHome() {
    SetHome(nullptr);
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  SettingsHome(const SettingsHome&) = delete;
  SettingsHome& operator=(const SettingsHome&) = delete;

  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path Path(const char* name) const { return folder_ / name; }

  // As another program would write and read the file.
  void Put(const char* name, const std::string& bytes) const {
    std::filesystem::create_directories(folder_);
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  std::string Bytes(const char* name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

 private:
  static std::filesystem::path NewFolder() {
    static std::atomic<unsigned> number;
    const std::wstring name = L"times-readings-test-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                              std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(++number);
    return std::filesystem::temp_directory_path() / name;
  }

  std::filesystem::path folder_;
};
