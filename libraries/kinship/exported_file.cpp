#include "libraries/kinship/exported_file.h"

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/person_events.h"
#include "libraries/kinship/person_table.h"
#include "libraries/persons/persons_file.h"
#include "publishing/core/csv.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"
#include "publishing/utc_now.h"

namespace kinship {
namespace {

publishing::RtfFont RtfFontOfChoice() {
  const auto font = StoredFont();
  if (!font) return {"Arial"};
  return {dialogs::ToUtf8(font->lfFaceName), HalfPointsOf(*font)};
}

}  // namespace

std::string ExportedText(const std::vector<persons::Person>& people, const Shown& shown, const ExportRequest& request) {
  switch (request.choice.format) {
    case Format::kText: return publishing::TextOf(TableOf(people, shown));
    case Format::kRtf: return publishing::RtfOf(TableOf(people, shown), RtfFontOfChoice());
    case Format::kCsv: return publishing::CsvOf(CsvTableOf(people, shown));
    case Format::kCalendar:
      return publishing::CalendarOf("Birthdays and Yahrzeit",
                                    EventsOf(people, shown.ofYahrzeit, request.firstYear, request.choice.years),
                                    publishing::UtcNow());
  }
  return {};
}

void WriteExportedFile(HWND owner, const std::wstring& path, const std::string& text) {
  if (dialogs::IsSamePath(path, persons::PersonsPath())) {
    return dialogs::ShowError(owner, L"The file\n" + path +
                                         L"\nis the one that the program keeps the dates in. Choose another one to "
                                         L"export to.");
  }
  dialogs::WriteOrTell(owner, path, text, L"export again");
}

std::optional<std::string> ImportedText(HWND owner, const std::wstring& path) {
  return dialogs::TextOfFileOrTell(owner, path, L"a table of dates");
}

}  // namespace kinship
