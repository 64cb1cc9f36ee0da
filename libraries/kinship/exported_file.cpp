#include "libraries/kinship/exported_file.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/person_events.h"
#include "libraries/kinship/person_table.h"
#include "libraries/persons/persons_file.h"
#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/whole_file.h"
#include "publishing/core/csv.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"
#include "publishing/utc_now.h"

namespace kinship {
namespace {

using settings_folder::ReadResult;

constexpr uint64_t kMostImportedBytes = 64 << 20;

publishing::RtfFont RtfFontOfChoice() {
  const auto font = StoredFont();
  if (!font) return {"Arial"};
  return {dialogs::ToUtf8(font->lfFaceName), HalfPointsOf(*font)};
}

// Of files that the user may name in several ways, as far as their full paths tell.
bool IsPersonsFile(const std::wstring& path) {
  const std::wstring full = settings_folder::FullPath(path);
  const std::wstring persons = settings_folder::FullPath(persons::PersonsPath());
  return CompareStringOrdinal(full.c_str(), -1, persons.c_str(), -1, TRUE) == CSTR_EQUAL;
}

std::wstring SystemPath(const std::wstring& path) {
  return settings_folder::WithoutLengthLimit(settings_folder::FullPath(path));
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
  if (IsPersonsFile(path)) {
    return dialogs::ShowError(owner, L"The file\n" + path +
                                         L"\nis the one that the program keeps the dates in. Choose another one to "
                                         L"export to.");
  }
  if (settings_folder::WriteChosenFile(path, text)) return;
  dialogs::ShowError(owner, L"The file\n" + path +
                                L"\ncould not be written; an older one of that name is as it was.\n\nSee to it that no "
                                L"other program holds it, that it is not read-only and that the disk is not full, or "
                                L"choose another file, then export again.");
}

std::optional<std::string> ImportedText(HWND owner, const std::wstring& path) {
  const std::wstring file = SystemPath(path);
  const settings_folder::FileStamp stamp = settings_folder::StampOf(file);
  if (stamp.sizeBytes > kMostImportedBytes) {
    dialogs::ShowError(owner, L"The file\n" + path + L"\nis far too large to be a table of dates.");
    return std::nullopt;
  }
  std::string bytes;
  if (settings_folder::ReadWholeFile(file, settings_folder::Patience::kShort, &bytes) == ReadResult::kRead) {
    return settings_folder::Utf8Text(std::move(bytes));
  }
  dialogs::ShowError(owner, L"The file\n" + path +
                                L"\ncannot be read. See to it that no other program holds it and that you may open "
                                L"it, then import again.");
  return std::nullopt;
}

}  // namespace kinship
