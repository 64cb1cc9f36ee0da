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

publishing::RtfStyle RtfStyleOfChoice() {
  const auto font = StoredFont();
  if (!font) return {"Arial"};
  return {dialogs::ToUtf8(font->lfFaceName), HalfPointsOf(*font)};
}

void WriteCalendar(const std::vector<publishing::Event>& events, TextSink& sink) {
  publishing::CalendarWriter calendar(sink, "Birthdays and Yahrzeit", publishing::UtcNow());
  for (const publishing::Event& event : events) calendar.Add(event);
  calendar.Finish();
}

}  // namespace

std::string ExportedText(const std::vector<persons::Person>& people, const Shown& shown, const ExportRequest& request) {
  StringSink file;
  switch (request.choice.format) {
    case Format::kText: publishing::WriteText(TableOf(people, shown), file); break;
    case Format::kRtf: publishing::WriteRtf(TableOf(people, shown), RtfStyleOfChoice(), file); break;
    case Format::kCsv: publishing::WriteCsv(CsvTableOf(people, shown), file); break;
    case Format::kCalendar:
      WriteCalendar(EventsOf(people, shown.ofYahrzeit, request.firstYear, request.choice.years), file);
      break;
  }
  return file.text();
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
