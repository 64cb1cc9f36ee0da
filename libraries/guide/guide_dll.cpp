#include "companion/guide.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

#include <filesystem>
#include <string>

#include "libraries/guide/guide_core.h"

namespace {

constexpr wchar_t kCaption[] = L"Times / Readings";

// What ShellExecute answers up to this number is an error.
constexpr INT_PTR kLastShellError = 32;

std::filesystem::path OwnFolder() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&OwnFolder), &module);
  std::wstring file(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, file.data(), static_cast<DWORD>(file.size()));
    if (length < file.size()) return std::filesystem::path(file.substr(0, length)).parent_path();
    file.resize(2 * file.size());
  }
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

bool Open(HWND owner, const std::filesystem::path& file) {
  const ScopedCom com;
  const HINSTANCE answer = ShellExecuteW(owner, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(answer) > kLastShellError;
}

void Say(HWND owner, const wchar_t* before, const std::filesystem::path& file, const wchar_t* after) {
  const std::wstring text = before + (L"\n\n" + file.wstring()) + L"\n\n" + after;
  MessageBoxW(owner, text.c_str(), kCaption, MB_OK | MB_ICONWARNING);
}

}  // namespace

void GuideGo(HWND owner, const char* topic) try {
  const guide::HelpPage page = guide::PageOf(topic ? topic : "", OwnFolder());
  if (!page.exists) {
    Say(owner, L"A page of the help is missing:", page.file, L"Please install the program again.");
  } else if (!Open(owner, page.file)) {
    Say(owner, L"Windows could not open this page of the help:", page.file,
        L"You can open the file in your browser yourself.");
  }
} catch (...) {  // out of memory: no help
}
