#include "libraries/persons/date_entry.h"

#include <utility>

#include "libraries/dialogs/dialog_parts.h"

namespace persons {
namespace {

constexpr WPARAM kDigitsOfDay = 2;
constexpr WPARAM kDigitsOfYear = 4;

// The fields' texts are ASCII as far as they can be a date; other characters only have to be no digits.
std::string Narrow(const std::wstring& text) {
  std::string narrow;
  for (const wchar_t character : text) narrow += character < 0x80 ? static_cast<char>(character) : '?';
  return narrow;
}

std::wstring Wide(const std::string& ascii) {
  return {ascii.begin(), ascii.end()};
}

bool Offers(HWND list, const std::vector<MonthChoice>& months) {
  if (SendMessageW(list, CB_GETCOUNT, 0, 0) != static_cast<LRESULT>(months.size())) return false;
  for (size_t row = 0; row < months.size(); ++row) {
    const std::wstring wanted = Wide(months[row].name);
    const LRESULT found = SendMessageW(list, CB_FINDSTRINGEXACT, row - 1, reinterpret_cast<LPARAM>(wanted.c_str()));
    if (found != static_cast<LRESULT>(row)) return false;
  }
  return true;
}

}  // namespace

void DateEntry::Start(HWND dialog, const DateControls& controls, YearIs year, Calendar ofNew) {
  dialog_ = dialog;
  controls_ = controls;
  year_ = year;
  counts_ = ofNew;
  for (const DateLine& line : {controls.gregorian, controls.jewish}) {
    SendDlgItemMessageW(dialog, line.day, EM_LIMITTEXT, kDigitsOfDay, 0);
    SendDlgItemMessageW(dialog, line.year, EM_LIMITTEXT, kDigitsOfYear, 0);
  }
  FillMonths(controls.gregorian.month, GregorianMonths(), 0);
  FillMonths(controls.jewish.month, JewishMonths({}, 0), 0);
}

void DateEntry::Show(const EventDate& event) {
  counts_ = event.calendar;
  isFilling_ = true;
  CheckDlgButton(dialog_, controls_.afterSunset, event.afterSunset ? BST_CHECKED : BST_UNCHECKED);
  Put(event.calendar, FieldsOf(event.date));
  isFilling_ = false;
  FollowTyping();
}

bool DateEntry::OnCommand(int control, int notification) {
  if (isFilling_) return false;
  if (IsOfLine(controls_.gregorian, control, notification)) {
    counts_ = Calendar::kGregorian;
  } else if (IsOfLine(controls_.jewish, control, notification)) {
    counts_ = Calendar::kJewish;
    FollowJewishYear();
  } else if (control != controls_.afterSunset || notification != BN_CLICKED) {
    return false;
  }
  FollowTyping();
  return true;
}

bool DateEntry::IsOfLine(const DateLine& line, int control, int notification) const {
  if (control == line.month) return notification == CBN_SELCHANGE;
  return (control == line.day || control == line.year) && notification == EN_CHANGE;
}

std::optional<EventDate> DateEntry::Date() const {
  const std::optional<calendar::Date> date = Reading().date;
  if (!date) return std::nullopt;
  return EventDate{counts_, *date, IsAfterSunset()};
}

bool DateEntry::IsAfterSunset() const {
  return IsDlgButtonChecked(dialog_, controls_.afterSunset) == BST_CHECKED;
}

std::wstring DateEntry::Fault() const {
  return Wide(Reading().message);
}

int DateEntry::FaultyControl() const {
  const DateLine& line = LineOf(counts_);
  switch (Reading().faulty) {
    case DateField::kDay: return line.day;
    case DateField::kMonth: return line.month;
    case DateField::kYear: return line.year;
  }
  return line.day;
}

const DateLine& DateEntry::LineOf(Calendar calendar) const {
  return calendar == Calendar::kGregorian ? controls_.gregorian : controls_.jewish;
}

DateFields DateEntry::FieldsIn(Calendar calendar) const {
  const DateLine& line = LineOf(calendar);
  const HWND months = GetDlgItem(dialog_, line.month);
  const LRESULT chosen = SendMessageW(months, CB_GETCURSEL, 0, 0);
  DateFields fields;
  fields.day = Narrow(dialogs::TextOf(GetDlgItem(dialog_, line.day)));
  fields.year = Narrow(dialogs::TextOf(GetDlgItem(dialog_, line.year)));
  if (chosen >= 0) {
    fields.month = static_cast<int32_t>(SendMessageW(months, CB_GETITEMDATA, static_cast<WPARAM>(chosen), 0));
  }
  return fields;
}

void DateEntry::Put(Calendar calendar, const DateFields& fields) const {
  const DateLine& line = LineOf(calendar);
  SetDlgItemTextW(dialog_, line.day, Wide(fields.day).c_str());
  SetDlgItemTextW(dialog_, line.year, Wide(fields.year).c_str());
  const bool isGregorian = calendar == Calendar::kGregorian;
  FillMonths(line.month, isGregorian ? GregorianMonths() : JewishMonths(fields.year, fields.month), fields.month);
}

void DateEntry::FillMonths(int combo, const std::vector<MonthChoice>& months, int32_t chosen) const {
  const HWND list = GetDlgItem(dialog_, combo);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SendMessageW(list, CB_RESETCONTENT, 0, 0);
  for (const MonthChoice& month : months) {
    const LRESULT row = SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(month.name).c_str()));
    SendMessageW(list, CB_SETITEMDATA, static_cast<WPARAM>(row), month.month);
    if (month.month == chosen) SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

// Adar of a leap year is Adar I; the month that is chosen stays. A list that is open is not changed under the mouse.
void DateEntry::FollowJewishYear() const {
  const DateFields fields = FieldsIn(Calendar::kJewish);
  const std::vector<MonthChoice> months = JewishMonths(fields.year, fields.month);
  const HWND list = GetDlgItem(dialog_, controls_.jewish.month);
  if (SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) || Offers(list, months)) return;
  FillMonths(controls_.jewish.month, months, fields.month);
}

// The other line and the message become those of the line that counts, which itself stays as it was typed.
void DateEntry::FollowTyping() {
  const DateReading reading = Reading();
  const Calendar other = counts_ == Calendar::kGregorian ? Calendar::kJewish : Calendar::kGregorian;
  isFilling_ = true;
  Put(other, reading.date ? OtherFieldsOf({counts_, *reading.date, IsAfterSunset()}) : DateFields{});
  isFilling_ = false;
  const bool isUntouched = AreEmpty(FieldsIn(counts_));
  SetDlgItemTextW(dialog_, controls_.message, isUntouched ? L"" : Wide(reading.message).c_str());
}

}  // namespace persons
