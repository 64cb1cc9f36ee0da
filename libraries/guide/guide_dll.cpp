#include "companion/guide.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

#include <string>

#include "libraries/guide/guide_core.h"
#include "libraries/settings_folder/settings_folder.h"

namespace {

constexpr wchar_t kCaption[] = L"Times / Readings";

// What ShellExecute answers up to this number is an error.
constexpr INT_PTR kLastShellError = 32;

std::wstring OwnFolder() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&OwnFolder), &module);
  std::wstring file(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, file.data(), static_cast<DWORD>(file.size()));
    if (length < file.size()) return file.substr(0, file.rfind(L'\\', length));
    file.resize(2 * file.size());
  }
}

// Paths are plain wide texts here: std::filesystem would make the library five times as large.
std::wstring PageFile(std::string_view topic) {
  const std::string_view page = guide::TopicNamed(topic).page;
  return settings_folder::Joined(settings_folder::Joined(OwnFolder(), L"help"), std::wstring(page.begin(), page.end()));
}

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(settings_folder::WithoutLengthLimit(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// Some browsers are opened by objects that need COM.
class ScopedCom {
 public:
  ScopedCom() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  ~ScopedCom() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ScopedCom(const ScopedCom&) = delete;
  ScopedCom& operator=(const ScopedCom&) = delete;

 private:
  HRESULT result_;
};

bool Open(HWND owner, const std::wstring& file) {
  const ScopedCom com;
  const HINSTANCE answer = ShellExecuteW(owner, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(answer) > kLastShellError;
}

void Say(HWND owner, const wchar_t* before, const std::wstring& file, const wchar_t* after) {
  const std::wstring text = before + (L"\n\n" + file) + L"\n\n" + after;
  MessageBoxW(owner, text.c_str(), kCaption, MB_OK | MB_ICONWARNING);
}

}  // namespace

void GuideGo(HWND owner, const char* topic) try {
  const std::wstring page = PageFile(topic ? topic : "");
  if (!IsFile(page)) {
    Say(owner, L"A page of the help is missing:", page, L"Please install the program again.");
  } else if (!Open(owner, page)) {
    Say(owner, L"Windows could not open this page of the help:", page,
        L"You can open the file in your browser yourself.");
  }
} catch (...) {  // out of memory: no help
}
