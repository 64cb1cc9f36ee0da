#include "libraries/stamp/form_setting.h"

#include <windows.h>

#include <cstring>

#include "companion/profile.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace stamp {
namespace {

constexpr char kSection[] = "Times";
constexpr char kKey[] = "Form";

}  // namespace

Form RegionalForm() {
  char setting[8] = "";  // "0" is the 12-hour form
  GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, setting, sizeof setting);
  return std::strcmp(setting, "0") == 0 ? Form::kTwelveHours : Form::kTwentyFourHours;
}

std::string StoredChoice() {
  char choice[8];
  ProfileGetString(kSection, kKey, "", choice, sizeof choice, kFormFile);
  return choice;
}

bool StoreChoice(const char* choice) {
  return ProfileWriteString(kSection, kKey, choice, kFormFile) != 0;
}

std::wstring SettingPath() {
  return settings_folder::PathNow(settings_folder::Wide(kFormFile));
}

}  // namespace stamp
