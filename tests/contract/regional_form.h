// The regional setting of the form of times, for a test.
#pragma once

#include <windows.h>

// Puts another regional setting in force while it lives.
class RegionalForm {
 public:
  explicit RegionalForm(const char* setting) {
    GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, before_, sizeof before_);
    SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, setting);
  }
  ~RegionalForm() { SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_ITIME, before_); }
  RegionalForm(const RegionalForm&) = delete;
  RegionalForm& operator=(const RegionalForm&) = delete;

 private:
  char before_[8] = "";
};
