// What the buttons of the dialog do with the result.
#include "libraries/majority/majority_dialog.h"

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/clipboard.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/today.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/own_readings_file.h"
#include "libraries/lections/settings_store.h"
#include "libraries/majority/majority_ids.h"
#include "libraries/majority/majority_texts.h"
#include "libraries/persons/date_fields.h"
#include "libraries/persons/persons_file.h"
#include "publishing/utc_now.h"

namespace majority {
namespace {

constexpr wchar_t kCalendarFilter[] = L"iCalendar (*.ics)\0*.ics\0All files\0*.*\0";

void ShowInformation(HWND dialog, const std::wstring& text) {
  MessageBoxW(dialog, text.c_str(), dialogs::TextOf(dialog).c_str(), MB_OK | MB_ICONINFORMATION);
}

// The file to write; empty when cancelled.
std::wstring AskForCalendarFile(HWND dialog, const std::wstring& offered) {
  return dialogs::AskForFileToWrite(dialog, {L"Save as iCalendar", kCalendarFilter, L"ics"}, offered);
}

}  // namespace

std::wstring ResultText(const Child& child) {
  const std::string facts = FactsOf(child, lections::StoredSettings(), lections::StoredOwnReadings().get());
  return dialogs::WithLineEnds(dialogs::FromUtf8(facts + TimeLeft(child, dialogs::Today())));
}

void MajorityDialog::TakeOver() {
  const std::optional<Child> child = Entered();
  if (!child) return;
  const persons::Person birthday = Birthday(*child);
  if (!persons::CanBeKept(birthday)) {
    dialogs::ShowFieldError(dialog_, IDC_NAME, L"The name is too long to be kept. Please enter a shorter one.");
    return;
  }
  const std::optional<persons::Persons> stored = persons::StoredPersons();
  if (!stored) {
    dialogs::ShowError(dialog_, L"The list of birthdays and yahrzeit in the file\n" + persons::PersonsPath() +
                                    L"\ncannot be read, so nothing was added. See to it that no other program holds "
                                    L"the file and that you may open it, then try again.");
    return;
  }
  const std::wstring entry =
      dialogs::FromUtf8(birthday.name + ", born on " + persons::JewishDateText(persons::JewishDateOf(birthday.event)));
  std::vector<persons::Change> missed;  // an added entry misses nothing
  if (HasBirthday(*stored, birthday)) {
    taken_ = birthday;
    ShowInformation(dialog_, entry + L", is in the list of birthdays and yahrzeit already. Nothing was added.");
  } else if (persons::StoreChanges({{std::nullopt, birthday}}, &missed)) {
    taken_ = birthday;
    ShowInformation(dialog_, entry + L", was added to the list of birthdays and yahrzeit.");
  } else {
    dialogs::ShowError(dialog_, L"The list of birthdays and yahrzeit in the file\n" + persons::PersonsPath() +
                                    L"\ncould not be written, so nothing was added. See to it that no other program "
                                    L"holds the file, that it is not read-only and that the disk is not full, then "
                                    L"try again.");
  }
  EnableButtons();
}

void MajorityDialog::Copy() const {
  const std::optional<Child> child = Entered();
  if (!child) return;
  const std::wstring text = dialogs::FromUtf8(TitleOf(*child, Name())) + L"\r\n" + ResultText(*child);
  if (dialogs::PutIntoClipboard(dialog_, text)) {
    ShowInformation(dialog_, L"The result was put into the clipboard.");
  } else {
    dialogs::ShowError(dialog_,
                       L"The clipboard takes nothing just now; another program may hold it. Please try again.");
  }
}

void MajorityDialog::SaveAsCalendar() {
  const std::optional<Child> child = Entered();
  if (!child) return;
  const std::vector<publishing::Event> events =
      EventsOf(*child, Name(), lections::StoredSettings(), lections::StoredOwnReadings().get());
  if (events.empty()) {
    dialogs::ShowError(dialog_, L"A calendar file can only hold days from 1583 to 3000.");
    return;
  }
  const std::string title = TitleOf(*child, {});
  const std::wstring offered = calendarFile_.empty() ? dialogs::FromUtf8(title + ".ics") : calendarFile_;
  const std::wstring path = AskForCalendarFile(dialog_, offered);
  if (path.empty()) return;
  calendarFile_ = path;
  StringSink file;
  publishing::CalendarWriter calendar(file, title, publishing::UtcNow());
  for (const publishing::Event& event : events) calendar.Add(event);
  calendar.Finish();
  dialogs::WriteOrTell(dialog_, path, file.text(), L"save again");
}

}  // namespace majority
