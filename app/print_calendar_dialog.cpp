#include "app/print_calendar_dialog.h"

#include <optional>
#include <string>

#include "app/core/door_year.h"
#include "app/document_contents.h"
#include "app/document_dialog.h"
#include "publishing/preview_window.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/unicode_text.h"

namespace {

constexpr wchar_t kFace[] = L"Arial";

class PrintDialog {
 public:
  explicit PrintDialog(HWND document) : window_(document), document_(document) {}
  void OnInitDialog(HWND dialog);
  void OnCommand(int control, int notification);
  void OnNotify(const NMHDR& header);

 private:
  void OnPreview();
  void OnYearKind();
  void EnableYear() const;
  void ShowYear() const;
  std::optional<uint32_t> Year() const;
  void Preview(const TakenDocument& document, publishing::PaperLayout layout) const;

  HWND window_;
  TakenDocument document_;
  DocumentSettings settings_;
  HWND dialog_ = nullptr;
  std::optional<DocumentContents> contents_;
  DoorYear yearKind_ = DoorYear::kJewish;
};

void PrintDialog::OnInitDialog(HWND dialog) {
  dialog_ = dialog;
  contents_.emplace(dialog, document_, settings_, true);
  yearKind_ = settings_.Year();
  CheckRadioButton(dialog, IDC_DOCUMENT_JEWISH_YEAR, IDC_DOCUMENT_CIVIL_YEAR,
                   yearKind_ == DoorYear::kCivil ? IDC_DOCUMENT_CIVIL_YEAR : IDC_DOCUMENT_JEWISH_YEAR);
  ShowYear();
  EnableYear();
}

// The year in which the document begins.
void PrintDialog::ShowYear() const {
  const DocumentSource& source = document_.source();
  SetDlgItemInt(dialog_, IDC_DOCUMENT_YEAR, YearOf(source.services, yearKind_, source.range.start), FALSE);
}

void PrintDialog::EnableYear() const {
  const bool isUsed = contents_->Kind() == DocumentKind::kDoorPage;
  for (const int id : {IDC_DOCUMENT_JEWISH_YEAR, IDC_DOCUMENT_CIVIL_YEAR, IDC_DOCUMENT_YEAR}) {
    EnableWindow(GetDlgItem(dialog_, id), isUsed);
  }
}

void PrintDialog::OnYearKind() {
  const bool isCivil = IsDlgButtonChecked(dialog_, IDC_DOCUMENT_CIVIL_YEAR) == BST_CHECKED;
  const DoorYear kind = isCivil ? DoorYear::kCivil : DoorYear::kJewish;
  if (kind == yearKind_) return;
  yearKind_ = kind;
  ShowYear();
}

// Says which years there are when the field has none of them.
std::optional<uint32_t> PrintDialog::Year() const {
  const YearLimits limits = LimitsOf(document_.source().services, yearKind_);
  const std::optional<uint32_t> year = ReadUnsigned(dialog_, IDC_DOCUMENT_YEAR);
  if (year && *year >= limits.first && *year <= limits.last) return year;
  const char* const what = yearKind_ == DoorYear::kCivil ? "The civil year" : "The Jewish year";
  const std::string text = std::string(what) + " must be a number from " + std::to_string(limits.first) + " to " +
                           std::to_string(limits.last) + ".";
  ShowFieldError(dialog_, IDC_DOCUMENT_YEAR, text.c_str());
  return std::nullopt;
}

void PrintDialog::Preview(const TakenDocument& document, publishing::PaperLayout layout) const {
  const publishing::Table table = DocumentTable(document.source(), contents_->Choice());
  publishing::PrintedTable printed{
      .table = table, .font = {}, .documentName = WideOf(table.title, CP_UTF8), .layout = layout};
  lstrcpynW(printed.font.lfFaceName, kFace, LF_FACESIZE);
  printed.font.lfCharSet = DEFAULT_CHARSET;
  const std::string stored = settings_.PageSetup();
  publishing::PageSetup setup = publishing::PageSetupOf(stored);
  const publishing::PageSetup before = setup;
  publishing::PreviewTable(dialog_, printed, setup);
  if (setup != before) settings_.SetPageSetup(publishing::TextOf(setup));
}

void PrintDialog::OnPreview() {
  if (!contents_->Check()) return;
  const bool isDoorPage = contents_->Kind() == DocumentKind::kDoorPage;
  const std::optional<uint32_t> year = isDoorPage ? Year() : std::nullopt;
  if (isDoorPage && !year) return;
  contents_->Store();
  if (!isDoorPage) return Preview(document_, publishing::PaperLayout::kTable);
  settings_.SetYear(yearKind_);
  const std::optional<DateRange> days = DaysOfYear(document_.source().services, yearKind_, *year);
  if (!days) return;
  TakenDocument ofYear(window_);
  ofYear.TakeRange(*days);
  Preview(ofYear, publishing::PaperLayout::kOnePage);
}

void PrintDialog::OnCommand(int control, int notification) {
  if (!contents_) return;
  if (contents_->OnCommand(control, notification)) return EnableYear();
  switch (control) {
    case IDC_DOCUMENT_JEWISH_YEAR:
    case IDC_DOCUMENT_CIVIL_YEAR: OnYearKind(); break;
    case IDOK: OnPreview(); break;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); break;
  }
}

void PrintDialog::OnNotify(const NMHDR& header) {
  if (contents_) contents_->OnNotify(header);
}

}  // namespace

void RunPrintCalendarDialog(HWND frame, HWND document) {
  PrintDialog print(document);
  RunDocumentDialog(frame, L"PRINTCALENDAR", print);
}
