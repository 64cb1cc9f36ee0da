// The dialog of bar and bat mitzvah.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "libraries/lections/settings.h"
#include "libraries/majority/majority_core.h"
#include "libraries/persons/date_entry.h"

namespace majority {

class MajorityDialog {
 public:
  explicit MajorityDialog(const Child& child) : child_(child) {}

  // The child that the dialog was closed with: as long as there stands no date, the one that stood there before.
  Child Run(HWND owner);

  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnClose();

  // majority_dialog_actions.cpp
  void TakeOver();
  void Copy() const;
  void SaveAsCalendar();

  // After a change of what is typed or chosen.
  void Update();
  void EnableButtons() const;
  std::optional<Child> Entered() const;
  std::string Name() const;
  persons::Person Birthday(const Child& child) const { return BirthdayOf(child, Name()); }

  Child child_;
  HWND dialog_ = nullptr;
  persons::DateEntry date_;
  std::optional<persons::Person> taken_;  // last, in this dialog
  std::wstring calendarFile_;             // chosen last
};

// All that is said of the child, in the user's readings, by lines.
std::wstring ResultText(const Child& child);

}  // namespace majority
