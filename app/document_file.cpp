#include "app/document_file.h"

#include "app/core/document_calendar.h"
#include "publishing/core/csv.h"
#include "publishing/core/table_html.h"
#include "publishing/core/table_text.h"
#include "publishing/progress_box.h"
#include "publishing/utc_now.h"
#include "win/file_sink.h"
#include "win/message_box.h"
#include "win/save_dialog.h"
#include "win/scoped.h"
#include "win/unicode_text.h"

namespace {

constexpr std::size_t kLongestPath = 32768;

// In the order of DocumentType.
constexpr wchar_t kTypes[] =
    L"Web page (*.html)\0*.html;*.htm\0Word processor (*.rtf)\0*.rtf\0Spreadsheet (*.csv)\0*.csv\0"
    L"Calendar (*.ics)\0*.ics\0Plain text (*.txt)\0*.txt\0";

constexpr char kReplace[] = "There is a file of this name with its extension already. Do you want to replace it?";

SavingResult ResultOf(CalendarResult result) {
  switch (result) {
    case CalendarResult::kWritten: return SavingResult::kSaved;
    case CalendarResult::kNoEvents: return SavingResult::kNoEvents;
    case CalendarResult::kCancelled: break;
  }
  return SavingResult::kCancelled;
}

SavingResult Write(const DocumentSource& source, const DocumentForm& form, DocumentType type, TextSink& sink,
                   const publishing::Progress& progress) {
  if (type == DocumentType::kCalendar) {
    return ResultOf(
        WriteDocumentCalendar(source, form.choice, form.reminderMinutes, publishing::UtcNow(), sink, progress));
  }
  DocumentChoice choice = form.choice;
  choice.forSpreadsheet = type == DocumentType::kCsv;
  choice.isoDates = choice.forSpreadsheet && form.isoDates;
  const publishing::Table table = DocumentTable(source, choice);
  bool isWhole = false;
  switch (type) {
    case DocumentType::kHtml: isWhole = WriteHtml(table, sink, progress); break;
    case DocumentType::kRtf: isWhole = WriteRtf(table, form.rtf, sink, progress); break;
    case DocumentType::kCsv: isWhole = WriteCsv(table, sink, progress); break;
    default: isWhole = WriteText(table, sink, progress); break;
  }
  return isWhole ? SavingResult::kSaved : SavingResult::kCancelled;
}

}  // namespace

// A name without one gets the extension of the type; that the file may then be written over was not asked yet.
std::optional<DocumentFile> AskForDocumentFile(HWND owner, DocumentType type, const std::string& offered) {
  std::wstring path = WideOf(offered, CP_UTF8);
  path.resize(kLongestPath);
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = kTypes;
  dialog.nFilterIndex = static_cast<DWORD>(type) + 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  const std::wstring usual = WideOf(ExtensionOf(type), CP_UTF8);
  dialog.lpstrDefExt = usual.c_str();
  dialog.Flags = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (!RunSaveDialog(dialog, GetSaveFileNameW)) {
    ShowIfNameTooLong(owner);
    return std::nullopt;
  }
  DocumentFile file{path.c_str(), type};
  if (dialog.nFilterIndex >= 1 && dialog.nFilterIndex <= static_cast<DWORD>(DocumentType::kText) + 1) {
    file.type = static_cast<DocumentType>(dialog.nFilterIndex - 1);
  }
  const std::string name = Utf8Of(file.path);
  if (HasExtension(name)) {
    file.type = TypeOfName(name).value_or(file.type);
    return file;
  }
  file.path += L"." + WideOf(ExtensionOf(file.type), CP_UTF8);
  const bool isThere = GetFileAttributesW(file.path.c_str()) != INVALID_FILE_ATTRIBUTES;
  if (isThere && !Ask(owner, kReplace, "Save as document")) return std::nullopt;
  return file;
}

SavingResult SaveDocument(HWND owner, const DocumentSource& source, const DocumentForm& form,
                          const DocumentFile& file) {
  const ScopedWaitCursor wait;
  publishing::LateProgress late(owner, L"Saving");
  const publishing::Progress progress = [&late](std::size_t done, std::size_t all) { return late.GoesOn(done, all); };
  FileSink sink(file.path.c_str());
  const SavingResult result = Write(source, form, file.type, sink, progress);
  if (result != SavingResult::kSaved) return result;
  return sink.Commit() ? SavingResult::kSaved : SavingResult::kUnwritable;
}
