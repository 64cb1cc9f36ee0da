// The call that opens the browser is replaced in the import table of the loaded library, so no test opens one.
#include "companion/guide.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <shellapi.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/contract/picker_driver.h"
#include "tests/contract/settings_home.h"

namespace fs = std::filesystem;

namespace {

using testing::EndsWith;
using testing::HasSubstr;

struct Opened {
  int count;
  std::wstring verb;
  std::wstring file;
  INT_PTR answer;
};
Opened opened;

HINSTANCE WINAPI RecordOpening(HWND, LPCWSTR verb, LPCWSTR file, LPCWSTR, LPCWSTR, INT) {
  ++opened.count;
  opened.verb = verb;
  opened.file = file;
  return reinterpret_cast<HINSTANCE>(opened.answer);
}

// The slot of a module's import table that holds an imported function; null when the module does not import it.
void** ImportSlot(HMODULE module, const char* function) {
  auto* const base = reinterpret_cast<BYTE*>(module);
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); library->Name; ++library) {
    const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
    auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots) {
      const auto* const name = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
      if (std::strcmp(name->Name, function) == 0) return reinterpret_cast<void**>(&slots->u1.Function);
    }
  }
  return nullptr;
}

void Replace(void** slot, void* function) {
  DWORD protection = 0;
  VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
  *slot = function;
  VirtualProtect(slot, sizeof *slot, protection, &protection);
}

fs::path FileOf(HMODULE module) {
  wchar_t file[MAX_PATH] = L"";
  GetModuleFileNameW(module, file, std::size(file));
  return file;
}

class GuideContract : public testing::Test {
 protected:
  void SetUp() override {
    opened = {0, L"", L"", 42};
    slot_ = ImportSlot(library_, "ShellExecuteW");
    ASSERT_TRUE(slot_);
    original_ = *slot_;
    Replace(slot_, reinterpret_cast<void*>(&RecordOpening));
  }
  void TearDown() override {
    if (slot_) Replace(slot_, original_);
  }

  fs::path Page(const char* name) const { return FileOf(library_).parent_path() / "help" / name; }

 private:
  const HMODULE library_ = GetModuleHandleW(L"guide.dll");
  void** slot_ = nullptr;
  void* original_ = nullptr;
};

using GoCall = void (*)(HWND, const char*);

// The text of the box that the call shows, which is then closed.
std::wstring TextOfBox(GoCall go, const char* topic) {
  std::thread call([=] { go(nullptr, topic); });
  std::wstring text;
  if (const HWND box = WaitForDialog(L"Times / Readings")) {
    constexpr int kTextOfMessageBox = 0xFFFF;
    text = WindowText(GetDlgItem(box, kTextOfMessageBox));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }
  call.join();
  return text;
}

TEST_F(GuideContract, OpensTheTopicsPageBesideTheLibrary) {
  struct Expected {
    const char* topic;
    const char* page;
  };
  for (const auto& [topic, page] :
       {Expected{"Start", "index.html"}, Expected{"", "index.html"}, Expected{"Shabbat times", "shabbat_times.html"},
        Expected{"PLACES", "places.html"}, Expected{"accuracy", "accuracy.html"}, Expected{"Zmanim", "zmanim.html"},
        Expected{"Readings", "readings.html"}, Expected{"Exports and printing", "exports.html"},
        Expected{"no such topic", "index.html"}, Expected{nullptr, "index.html"}}) {
    opened.count = 0;
    GuideGo(nullptr, topic);
    EXPECT_EQ(opened.count, 1);
    EXPECT_EQ(opened.verb, L"open");
    EXPECT_EQ(fs::path(opened.file), Page(page));
    EXPECT_TRUE(fs::exists(opened.file));
  }
}

TEST_F(GuideContract, PageThatCannotBeOpenedIsNamed) {
  opened.answer = SE_ERR_NOASSOC;
  EXPECT_THAT(TextOfBox(GuideGo, "Zmanim"), HasSubstr(Page("zmanim.html").wstring()));
  opened.answer = 32;  // the last of the answers that are errors
  EXPECT_THAT(TextOfBox(GuideGo, "Places"), HasSubstr(Page("places.html").wstring()));
  EXPECT_EQ(opened.count, 2);
}

// A copy of the library in a folder of its own. Paths have the prefix that lifts the limit of their length.
class LibraryCopy {
 public:
  explicit LibraryCopy(const std::wstring& folder) : folder_(L"\\\\?\\" + folder) {
    MakeFolders(folder_);
    const std::wstring file = folder_ + L"\\guide_copy.dll";
    EXPECT_TRUE(CopyFileW(FileOf(GetModuleHandleW(L"guide.dll")).c_str(), file.c_str(), FALSE));
    library_ = LoadLibraryW(file.c_str());
    EXPECT_TRUE(library_);
    if (library_) Replace(ImportSlot(library_, "ShellExecuteW"), reinterpret_cast<void*>(&RecordOpening));
  }
  ~LibraryCopy() { FreeLibrary(library_); }
  LibraryCopy(const LibraryCopy&) = delete;
  LibraryCopy& operator=(const LibraryCopy&) = delete;

  GoCall Go() const { return reinterpret_cast<GoCall>(reinterpret_cast<void*>(GetProcAddress(library_, "GuideGo"))); }

  void PutPage(const wchar_t* name) const {
    MakeFolders(folder_ + L"\\help");
    CloseHandle(CreateFileW((folder_ + L"\\help\\" + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  }

 private:
  static void MakeFolders(const std::wstring& folder) {
    if (CreateDirectoryW(folder.c_str(), nullptr) || GetLastError() != ERROR_PATH_NOT_FOUND) return;
    MakeFolders(folder.substr(0, folder.rfind(L'\\')));
    CreateDirectoryW(folder.c_str(), nullptr);
  }

  std::wstring folder_;
  HMODULE library_ = nullptr;
};

TEST_F(GuideContract, MissingPageIsNamedWithWhatToDo) {
  const SettingsHome folder;  // a folder of the test's own, with the library alone in it
  const LibraryCopy library(folder.Folder().wstring());
  const std::wstring text = TextOfBox(library.Go(), "Zmanim");
  EXPECT_THAT(text, HasSubstr((folder.Folder() / "help" / "zmanim.html").wstring()));
  EXPECT_THAT(text, HasSubstr(L"Please install the program again."));
}

TEST_F(GuideContract, FolderInThePagesPlaceIsNoPage) {
  const SettingsHome folder;
  const LibraryCopy library(folder.Folder().wstring());
  fs::create_directories(folder.Folder() / "help" / "zmanim.html");
  EXPECT_THAT(TextOfBox(library.Go(), "Zmanim"), HasSubstr(L"Please install the program again."));
  EXPECT_EQ(opened.count, 0);
}

TEST_F(GuideContract, ProgramFolderMayHaveANameOfAnyLanguageAndLength) {
  const SettingsHome folder;
  const std::wstring longName = std::wstring(100, L'f');
  for (const std::wstring& name :
       {std::wstring(L"\x05DC\x05D5\x05D7 \x4E2D \x0159"), longName + L"\\" + longName + L"\\" + longName}) {
    const std::wstring path = (folder.Folder() / name).wstring();
    const LibraryCopy library(path);
    library.PutPage(L"zmanim.html");
    opened.count = 0;
    library.Go()(nullptr, "Zmanim");
    EXPECT_EQ(opened.count, 1);
    EXPECT_THAT(opened.file, EndsWith(path + L"\\help\\zmanim.html"));
  }
}

}  // namespace
