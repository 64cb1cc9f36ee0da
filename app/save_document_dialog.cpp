#include "app/save_document_dialog.h"

#include <optional>

#include "app/core/document_rows.h"
#include "app/document_contents.h"
#include "app/document_dialog.h"
#include "app/document_file.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/message_box.h"
#include "win/save_dialog.h"

namespace {

constexpr char kFace[] = "Arial";

// In the order of their enumerations.
constexpr const char* kPapers[] = {"A4", "Letter"};
constexpr const char* kOrientations[] = {"Automatic", "Portrait", "Landscape"};

// That word processors take in a table.
constexpr std::size_t kMostRtfColumns = 63;

class SaveDialog {
 public:
  explicit SaveDialog(HWND document) : document_(document) {}
  void OnInitDialog(HWND dialog);
  void OnCommand(int control, int notification);
  void OnNotify(const NMHDR& header);

 private:
  void OnSave();
  void EnableReminder() const;
  void Tell(SavingResult result, const DocumentFile& file) const;
  std::optional<DocumentForm> Form() const;
  void Store(const DocumentForm& form, DocumentType type) const;
  std::string OfferedName() const;
  template <std::size_t count>
  void FillList(int id, const char* const (&names)[count], int chosen) const;
  int Chosen(int id) const { return static_cast<int>(SendDlgItemMessageA(dialog_, id, CB_GETCURSEL, 0, 0)); }

  TakenDocument document_;
  DocumentSettings settings_;
  HWND dialog_ = nullptr;
  std::optional<DocumentContents> contents_;
};

template <std::size_t count>
void SaveDialog::FillList(int id, const char* const (&names)[count], int chosen) const {
  for (const char* const name : names) {
    SendDlgItemMessageA(dialog_, id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
  }
  SendDlgItemMessageA(dialog_, id, CB_SETCURSEL, static_cast<WPARAM>(chosen), 0);
}

// Only these become events of candle lighting.
void SaveDialog::EnableReminder() const {
  EnableWindow(GetDlgItem(dialog_, IDC_DOCUMENT_REMINDER), contents_->Kind() == DocumentKind::kShabbatTimes);
}

void SaveDialog::OnInitDialog(HWND dialog) {
  dialog_ = dialog;
  contents_.emplace(dialog, document_, settings_, false);
  FillList(IDC_DOCUMENT_PAPER, kPapers, static_cast<int>(settings_.Paper()));
  FillList(IDC_DOCUMENT_ORIENTATION, kOrientations, static_cast<int>(settings_.PaperOrientation()));
  CheckDlgButton(dialog, IDC_DOCUMENT_ISO_DATES, settings_.IsoDates() ? BST_CHECKED : BST_UNCHECKED);
  SetDlgItemInt(dialog, IDC_DOCUMENT_REMINDER, static_cast<UINT>(settings_.ReminderMinutes()), FALSE);
  EnableReminder();
}

// An empty field of the reminder is none. Says what is wrong with what cannot be one.
std::optional<DocumentForm> SaveDialog::Form() const {
  if (!contents_->Check()) return std::nullopt;
  DocumentForm form{.choice = contents_->Choice()};
  form.isoDates = IsDlgButtonChecked(dialog_, IDC_DOCUMENT_ISO_DATES) == BST_CHECKED;
  form.rtf.face = kFace;
  form.rtf.paper = static_cast<publishing::PaperSize>(Chosen(IDC_DOCUMENT_PAPER));
  form.rtf.orientation = static_cast<publishing::Orientation>(Chosen(IDC_DOCUMENT_ORIENTATION));
  if (GetWindowTextLengthA(GetDlgItem(dialog_, IDC_DOCUMENT_REMINDER)) == 0) return form;
  const std::optional<uint32_t> minutes = ReadUnsigned(dialog_, IDC_DOCUMENT_REMINDER);
  if (!minutes || *minutes > kMostReminderMinutes) {
    ShowFieldError(dialog_, IDC_DOCUMENT_REMINDER,
                   "The reminder must be a number of minutes from 0 (none) to 20160 (two weeks).");
    return std::nullopt;
  }
  form.reminderMinutes = static_cast<int32_t>(*minutes);
  return form;
}

void SaveDialog::Store(const DocumentForm& form, DocumentType type) const {
  contents_->Store();
  settings_.SetType(type);
  settings_.SetPaper(form.rtf.paper);
  settings_.SetPaperOrientation(form.rtf.orientation);
  settings_.SetIsoDates(form.isoDates);
  settings_.SetReminderMinutes(form.reminderMinutes);
}

// Days are written in the order in which names of files sort.
std::string SaveDialog::OfferedName() const {
  const DocumentChoice choice = contents_->Choice();
  const DateRange range = CoveredRange(document_.source(), choice.kind);
  return FileNameOf(KindName(choice.kind, choice.language), document_.source().place,
                    DocumentDate(range.start, true) + " - " + DocumentDate(range.end, true));
}

void SaveDialog::OnSave() {
  const std::optional<DocumentForm> form = Form();
  if (!form) return;
  const std::optional<DocumentFile> file = AskForDocumentFile(dialog_, settings_.Type(), OfferedName());
  if (!file) return;
  Store(*form, file->type);
  if (file->type == DocumentType::kRtf &&
      ColumnsOfDocument(document_.source(), form->choice).size() > kMostRtfColumns) {
    ShowStop(dialog_,
             "Word processors know no table of more than 63 columns.\nPlease choose fewer zmanim, or another type of "
             "file.",
             "Error");
    return;
  }
  Tell(SaveDocument(dialog_, document_.source(), *form, *file), *file);
}

void SaveDialog::Tell(SavingResult result, const DocumentFile& file) const {
  switch (result) {
    case SavingResult::kSaved: EndDialog(dialog_, IDOK); return;
    case SavingResult::kCancelled: return;
    case SavingResult::kUnwritable: ShowUnwritableFile(dialog_, file.path); return;
    case SavingResult::kNoEvents:
      ShowStop(dialog_,
               "There is nothing in these days that could stand in a calendar, so no file was written.\nPlease choose "
               "other contents, or open a document with other dates.",
               "Error");
      return;
  }
}

void SaveDialog::OnCommand(int control, int notification) {
  if (contents_ && contents_->OnCommand(control, notification)) return EnableReminder();
  switch (control) {
    case IDOK: OnSave(); break;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); break;
  }
}

void SaveDialog::OnNotify(const NMHDR& header) {
  if (contents_) contents_->OnNotify(header);
}

}  // namespace

void RunSaveDocumentDialog(HWND frame, HWND document) {
  SaveDialog save(document);
  RunDocumentDialog(frame, L"SAVEDOCUMENT", save);
}
