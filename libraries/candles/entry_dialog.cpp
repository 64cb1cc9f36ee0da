#include "libraries/candles/entry_dialog.h"

#include <string>
#include <vector>

#include "libraries/candles/candles_ids.h"
#include "libraries/candles/field_texts.h"
#include "libraries/candles/offered_places.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/windows_1252.h"

namespace candles {
namespace {

using dialogs::FocusField;
using dialogs::IsConfirmed;
using dialogs::Narrow;
using dialogs::OnException;
using dialogs::RunDialog;
using dialogs::ShowFieldError;
using dialogs::TextOf;
using dialogs::Wide;

constexpr WPARAM kMostPlaceLetters = 255;  // the program's places are shorter than 256 bytes
constexpr WPARAM kMostFieldLetters = 40;

struct EntryForm {
  const wchar_t* title;
  const Entries& entries;
  std::optional<Entry> changed;  // the entry to be changed; none for a new one
  std::string place;
  calendar::Date friday;
  std::string candleTime;
  std::string endTime;
  std::vector<std::string> offered;
  std::wstring shownPlace;  // the preset place as the field took it
  Entry accepted;
};

EntryForm& FormOf(HWND dialog) {
  return *reinterpret_cast<EntryForm*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

void SetField(HWND dialog, int fieldId, const std::string& text) {
  SendDlgItemMessageW(dialog, fieldId, EM_LIMITTEXT, kMostFieldLetters, 0);
  SetDlgItemTextW(dialog, fieldId, Wide(text).c_str());
}

std::wstring FieldText(HWND dialog, int fieldId) {
  return TextOf(GetDlgItem(dialog, fieldId));
}

INT_PTR OnOpen(HWND dialog, EntryForm& form) {
  SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&form));
  SetWindowTextW(dialog, form.title);
  const HWND place = GetDlgItem(dialog, IDC_PLACE);
  for (const std::string& offered : form.offered) {
    SendMessageW(place, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(offered).c_str()));
  }
  SendMessageW(place, CB_LIMITTEXT, kMostPlaceLetters, 0);
  SetWindowTextW(place, Wide(form.place).c_str());
  form.shownPlace = TextOf(place);
  SetField(dialog, IDC_FRIDAY, DateText(form.friday));
  SetField(dialog, IDC_CANDLE_TIME, form.candleTime);
  SetField(dialog, IDC_END_TIME, form.endTime);
  return TRUE;
}

// The place in the field. Left as it was shown, it keeps its bytes, whatever the field made of them.
std::optional<std::string> ReadPlace(HWND dialog, const EntryForm& form) {
  const std::wstring typed = FieldText(dialog, IDC_PLACE);
  if (typed.find_first_not_of(L" \t") == std::wstring::npos) {
    ShowFieldError(dialog, IDC_PLACE, L"The place is missing. Choose one from the list or write its name.");
    return std::nullopt;
  }
  if (typed == form.shownPlace) return form.place;
  const std::optional<std::string> place = Narrow(typed);
  if (place) return PlaceMeant(*place, form.offered);
  ShowFieldError(dialog, IDC_PLACE,
                 L"The place has letters that names of places cannot have. Write it as it is written in the list, in "
                 L"Western European letters.");
  return std::nullopt;
}

std::optional<calendar::Date> ReadFridayField(HWND dialog) {
  // A character outside of windows-1252 is none of a date's or time's either.
  const FridayAnswer answer = ReadFriday(Narrow(FieldText(dialog, IDC_FRIDAY)).value_or("?"));
  if (!answer.friday) ShowFieldError(dialog, IDC_FRIDAY, Wide(answer.complaint));
  return answer.friday;
}

// name: what the field is called at the start of a sentence.
std::optional<TypedTime> ReadTimeField(HWND dialog, int fieldId, const std::wstring& name) {
  const std::optional<TypedTime> time = ReadTime(Narrow(FieldText(dialog, fieldId)).value_or("?"));
  if (!time) {
    ShowFieldError(dialog, fieldId,
                   name + L" must be a time written hour:minute, such as 18:47 or 6:47 pm, from 0:00 to 23:59.");
    return std::nullopt;
  }
  const std::wstring shown = Wide(TimeText(time->hour, time->minute));
  if (!MayMeanEvening(*time) || IsConfirmed(dialog, name + L" at " + shown + L" is in the morning. Is that meant?")) {
    return time;
  }
  FocusField(dialog, fieldId);
  return std::nullopt;
}

// Whether the entry may take its place among the others.
bool MayStand(HWND dialog, const EntryForm& form, const Entry& entry) {
  const auto other = form.entries.find(entry.occasion);
  if (other == form.entries.end() || (form.changed && form.changed->occasion == entry.occasion)) return true;
  const Times& times = other->second;
  return IsConfirmed(dialog, Wide(entry.occasion.place) + L" has times for " + Wide(DateText(DateOf(entry.occasion))) +
                                 L" already: candle lighting " + Wide(TimeText(times.candleHour, times.candleMinute)) +
                                 L", end of Shabbat " + Wide(TimeText(times.endHour, times.endMinute)) +
                                 L". Replace them?");
}

INT_PTR OnAccept(HWND dialog) {
  EntryForm& form = FormOf(dialog);
  const std::optional<std::string> place = ReadPlace(dialog, form);
  if (!place) return TRUE;
  const std::optional<calendar::Date> friday = ReadFridayField(dialog);
  if (!friday) return TRUE;
  const std::optional<TypedTime> candles = ReadTimeField(dialog, IDC_CANDLE_TIME, L"Candle lighting");
  if (!candles) return TRUE;
  const std::optional<TypedTime> end = ReadTimeField(dialog, IDC_END_TIME, L"End of Shabbat");
  if (!end) return TRUE;
  const Entry entry = {{*place, static_cast<uint32_t>(friday->year), static_cast<uint32_t>(friday->month),
                        static_cast<uint32_t>(friday->day)},
                       {candles->hour, candles->minute, end->hour, end->minute}};
  if (!MayStand(dialog, form, entry)) return TRUE;
  form.accepted = entry;
  EndDialog(dialog, IDOK);
  return TRUE;
}

INT_PTR OnCommand(HWND dialog, int commandId) {
  switch (commandId) {
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return EndDialog(dialog, IDCANCEL);
  }
  return FALSE;
}

INT_PTR CALLBACK EntryDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog, *reinterpret_cast<EntryForm*>(lParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return FALSE;
} catch (...) {
  return OnException(dialog, message);
}

std::optional<Entry> Ask(HWND owner, EntryForm form) {
  form.offered = OfferedPlaces(form.entries);
  if (RunDialog(owner, IDD_ENTRY, EntryDialogProc, &form) != IDOK) return std::nullopt;
  return form.accepted;
}

calendar::Date Today() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wDay, now.wMonth, now.wYear};
}

}  // namespace

std::optional<Entry> AskForNewEntry(HWND owner, const Entries& entries, const std::string& place) {
  return Ask(owner, {L"Add Times", entries, {}, place, FreeFriday(entries, place, Today()), "", "", {}, {}, {}});
}

std::optional<Entry> AskForChangedEntry(HWND owner, const Entries& entries, const Entry& entry) {
  const Times& times = entry.times;
  return Ask(owner, {L"Change Times",
                     entries,
                     entry,
                     entry.occasion.place,
                     DateOf(entry.occasion),
                     TimeText(times.candleHour, times.candleMinute),
                     TimeText(times.endHour, times.endMinute),
                     {},
                     {},
                     {}});
}

}  // namespace candles
