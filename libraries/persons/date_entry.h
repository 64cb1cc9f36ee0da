// The controls of a dialog in which a date is entered in either calendar: what is typed in one line shows in the other
// at once, and the line that was typed in last is the one that counts.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "libraries/persons/date_fields.h"

namespace persons {

// Days and years are edit controls, months are drop-down lists, which get their names here. message: a static text for
// what is wrong with what was typed.
struct DateLine {
  int day;
  int month;
  int year;
};
struct DateControls {
  DateLine gregorian;
  DateLine jewish;
  int afterSunset;  // a check box
  int message;
};

class DateEntry {
 public:
  // For WM_INITDIALOG: no date stands there then. ofNew: the calendar that counts until something is typed.
  void Start(HWND dialog, const DateControls& controls, YearIs year, Calendar ofNew);

  void Show(const EventDate& event);

  // WM_COMMAND of the dialog: whether it changed what Date answers, or might have.
  bool OnCommand(int control, int notification);

  // None while the line that counts is no date.
  std::optional<EventDate> Date() const;

  // The calendar of the line that counts.
  Calendar Counts() const { return counts_; }
  bool IsAfterSunset() const;

  // Where there is no date: what is wrong, and the control to be seen to.
  std::wstring Fault() const;
  int FaultyControl() const;

 private:
  const DateLine& LineOf(Calendar calendar) const;
  DateFields FieldsIn(Calendar calendar) const;
  void Put(Calendar calendar, const DateFields& fields) const;
  void FillMonths(int combo, const std::vector<MonthChoice>& months, int32_t chosen) const;
  void FollowJewishYear() const;
  void FollowTyping();
  bool IsOfLine(const DateLine& line, int control, int notification) const;
  DateReading Reading() const { return ReadDate(counts_, FieldsIn(counts_), year_); }

  HWND dialog_ = nullptr;
  DateControls controls_ = {};
  YearIs year_ = YearIs::kNeeded;
  Calendar counts_ = Calendar::kGregorian;
  bool isFilling_ = false;
};

}  // namespace persons
