#include "libraries/kinship/person_dialog.h"

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/kinship/kinship_ids.h"
#include "libraries/kinship/pasted_line.h"
#include "libraries/kinship/person_texts.h"
#include "libraries/persons/date_entry.h"

namespace kinship {
namespace {

using dialogs::FromUtf8;
using persons::AdarCustom;
using persons::Kind;
using persons::Person;

constexpr persons::DateControls kDateControls = {{IDC_GREGORIAN_DAY, IDC_GREGORIAN_MONTH, IDC_GREGORIAN_YEAR},
                                                 {IDC_JEWISH_DAY, IDC_JEWISH_MONTH, IDC_JEWISH_YEAR},
                                                 IDC_AFTER_SUNSET,
                                                 IDC_DATE_FAULT};

int FieldOf(TextField field) {
  switch (field) {
    case TextField::kName: return IDC_NAME;
    case TextField::kTitle: return IDC_TITLE;
    case TextField::kNotes: return IDC_NOTES;
  }
  return IDC_NAME;
}

class PersonDialog {
 public:
  PersonDialog(const Shown& shown, const LastEntry& last, const Person* old) : shown_(shown), last_(last), old_(old) {}

  std::optional<Person> Run(HWND owner) {
    if (dialogs::RunDialog(owner, IDD_PERSON, dialogs::ClassDialogProc<PersonDialog>, this) != IDOK)
      return std::nullopt;
    return accepted_;
  }

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnCommand(int control, int notification);
  INT_PTR OnAccept();

  void FillLists() const;
  void ShowPerson(const Person& person);
  void ShowConsequences() const;
  Kind ChosenKind() const;
  std::optional<AdarCustom> ChosenAdar() const;
  Person Entered(const persons::EventDate& event) const;

  std::string Text(int control) const { return dialogs::ToUtf8(dialogs::TextOf(GetDlgItem(dialog_, control))); }
  LRESULT Choice(int control) const { return SendDlgItemMessageW(dialog_, control, CB_GETCURSEL, 0, 0); }
  void Choose(int control, int row) const {
    SendDlgItemMessageW(dialog_, control, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  }
  void Offer(int control, const char* text) const {
    SendDlgItemMessageW(dialog_, control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(FromUtf8(text).c_str()));
  }

  const Shown& shown_;
  const LastEntry& last_;
  const Person* const old_;        // null for a new one
  std::optional<Person> offered_;  // what the controls said of the old one at first
  HWND dialog_ = nullptr;
  persons::DateEntry date_;
  std::optional<Person> accepted_;
};

INT_PTR PersonDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR PersonDialog::OnInitDialog() {
  SetWindowTextW(dialog_, old_ ? L"Change Date" : L"Add Date");
  FillLists();
  SendDlgItemMessageW(dialog_, IDC_NAME, EM_LIMITTEXT, persons::kLongestName, 0);
  SendDlgItemMessageW(dialog_, IDC_TITLE, EM_LIMITTEXT, persons::kLongestTitle, 0);
  SendDlgItemMessageW(dialog_, IDC_NOTES, EM_LIMITTEXT, persons::kLongestNotes, 0);
  TakePastedLines(GetDlgItem(dialog_, IDC_NAME));
  TakePastedLines(GetDlgItem(dialog_, IDC_TITLE));
  date_.Start(dialog_, kDateControls, persons::YearIs::kOptional, last_.calendar);
  if (old_) {
    ShowPerson(*old_);
    ShowConsequences();
    offered_ = Entered(old_->event);
  } else {
    Choose(IDC_OCCASION, static_cast<int>(last_.kind));
    Choose(IDC_ADAR, 0);
    ShowConsequences();
  }
  return TRUE;
}

void PersonDialog::FillLists() const {
  for (int i = 0; i < persons::kKinds; ++i) Offer(IDC_OCCASION, KindName(static_cast<Kind>(i)));
  Offer(IDC_ADAR, "As for all");
  for (const AdarCustom adar : {AdarCustom::kAdarI, AdarCustom::kAdarII, AdarCustom::kBoth}) {
    Offer(IDC_ADAR, AdarName(adar));
  }
}

void PersonDialog::ShowPerson(const Person& person) {
  SetDlgItemTextW(dialog_, IDC_NAME, FromUtf8(person.name).c_str());
  Choose(IDC_OCCASION, static_cast<int>(person.kind));
  SetDlgItemTextW(dialog_, IDC_TITLE, FromUtf8(person.title).c_str());
  date_.Show(person.event);
  Choose(IDC_ADAR, person.adar ? static_cast<int>(*person.adar) + 1 : 0);
  SetDlgItemTextW(dialog_, IDC_NOTES, dialogs::WithLineEnds(FromUtf8(person.notes)).c_str());
}

INT_PTR PersonDialog::OnCommand(int control, int notification) {
  if (date_.OnCommand(control, notification)) {
    ShowConsequences();
    return TRUE;
  }
  switch (control) {
    case IDOK: return OnAccept();
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); return TRUE;
    case IDC_OCCASION:
    case IDC_ADAR:
      if (notification == CBN_SELCHANGE) ShowConsequences();
      return TRUE;
  }
  return FALSE;
}

// What the choices so far make of the other controls, and the days on which the date is kept.
void PersonDialog::ShowConsequences() const {
  const bool hasTitle = ChosenKind() == Kind::kOther;
  EnableWindow(GetDlgItem(dialog_, IDC_TITLE), hasTitle);
  EnableWindow(GetDlgItem(dialog_, IDC_TITLE_LABEL), hasTitle);
  const auto event = date_.Date();
  const bool isByCustom = event && persons::IsAdarByCustom(persons::JewishDateOf(*event));
  EnableWindow(GetDlgItem(dialog_, IDC_ADAR), isByCustom);
  EnableWindow(GetDlgItem(dialog_, IDC_ADAR_LABEL), isByCustom);
  SetDlgItemTextW(dialog_, IDC_OUTLOOK, event ? FromUtf8(Outlook(Entered(*event), shown_)).c_str() : L"");
}

Kind PersonDialog::ChosenKind() const {
  return static_cast<Kind>(Choice(IDC_OCCASION));
}

std::optional<AdarCustom> PersonDialog::ChosenAdar() const {
  const LRESULT row = Choice(IDC_ADAR);
  if (row < 1 || !IsWindowEnabled(GetDlgItem(dialog_, IDC_ADAR))) return std::nullopt;
  return static_cast<AdarCustom>(row - 1);
}

Person PersonDialog::Entered(const persons::EventDate& event) const {
  Person person;
  person.kind = ChosenKind();
  person.event = event;
  person.adar = ChosenAdar();
  person.name = OneLine(Text(IDC_NAME));
  if (person.kind == Kind::kOther) person.title = OneLine(Text(IDC_TITLE));
  person.notes = SeveralLines(Text(IDC_NOTES));
  return person;
}

INT_PTR PersonDialog::OnAccept() {
  const auto event = date_.Date();
  const Person person = Entered(event.value_or(persons::EventDate{}));
  if (const auto fault = FaultIn(person)) {
    dialogs::ShowFieldError(dialog_, FieldOf(fault->field), FromUtf8(fault->message));
  } else if (!event) {
    dialogs::ShowFieldError(dialog_, date_.FaultyControl(), date_.Fault());
  } else {
    accepted_ = person == offered_ ? *old_ : person;  // a file written by hand may say more than the controls
    EndDialog(dialog_, IDOK);
  }
  return TRUE;
}

}  // namespace

std::optional<Person> AskForNewPerson(HWND owner, const Shown& shown, const LastEntry& last) {
  return PersonDialog(shown, last, nullptr).Run(owner);
}

std::optional<Person> AskForChangedPerson(HWND owner, const Shown& shown, const Person& old) {
  const LastEntry last = {old.kind, old.event.calendar};
  return PersonDialog(shown, last, &old).Run(owner);
}

}  // namespace kinship
