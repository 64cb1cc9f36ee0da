#include "libraries/lections/own_text_dialog.h"

#include <algorithm>
#include <string>
#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/lections_ids.h"
#include "libraries/lections/own_preview.h"
#include "libraries/lections/own_remark.h"
#include "libraries/lections/reading_texts.h"

namespace lections {
namespace {

using dialogs::FromUtf8;

constexpr size_t kDatesShown = 3;
constexpr WPARAM kMostTyped = 1000;  // what is too long is told, not cut

constexpr const wchar_t* kLands[] = {L"All lands", L"Israel", L"Diaspora"};
constexpr const wchar_t* kListings[] = {L"All", L"Ashkenazi alone", L"Sephardi alone", L"Several side by side"};

class OwnTextDialog {
 public:
  explicit OwnTextDialog(const OwnTextQuestion& question) : question_(question) {}

  std::optional<OwnEntry> Run(HWND owner) {
    if (dialogs::RunDialog(owner, IDD_OWN_TEXT, dialogs::ClassDialogProc<OwnTextDialog>, this) != IDOK) return {};
    return Entered();
  }

  // For dialogs::ClassDialogProc.
  void Attach(HWND dialog) { dialog_ = dialog; }
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR OnInitDialog();
  INT_PTR OnCommand(int control, int notification);
  void OnAccept();

  void FillLists() const;
  OwnPlace OfferedPlace() const;
  void ShowPlace(const OwnPlace& place) const;
  void ShowTextOfPlace();
  void FindDays();
  size_t LengthBefore(const OwnEntry& entry, const Settings& settings) const;
  void ShowConsequences();
  OwnTexts TextsWith(const OwnEntry& entry) const;
  OwnEntry Entered() const;
  bool IsWritten() const { return Entered().text != shown_; }

  size_t Choice(int control) const {
    return static_cast<size_t>(SendDlgItemMessageW(dialog_, control, CB_GETCURSEL, 0, 0));
  }
  void Choose(int control, size_t row) const { SendDlgItemMessageW(dialog_, control, CB_SETCURSEL, row, 0); }
  void Offer(int control, const std::wstring& text) const {
    SendDlgItemMessageW(dialog_, control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  }

  const OwnTextQuestion& question_;
  HWND dialog_ = nullptr;
  OwnText shown_;  // before the user wrote anything
  bool isFilling_ = false;
  std::optional<calendar::Land> landOfDays_;
  std::vector<int32_t> days_;
  std::optional<OwnEntry> accepted_;
};

INT_PTR OwnTextDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog();
    case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog_, lParam);
  }
  return FALSE;
}

INT_PTR OwnTextDialog::OnInitDialog() {
  const Language& language = LanguageOf(question_.settings.language);
  SetWindowTextW(dialog_, (L"Own Text: " + FromUtf8(NameOf(question_.when, language))).c_str());
  FillLists();
  SendDlgItemMessageW(dialog_, IDC_OWN_TEXT, EM_LIMITTEXT, kMostTyped, 0);
  CheckRadioButton(dialog_, IDC_OWN_INSTEAD, IDC_OWN_AFTER, IDC_OWN_INSTEAD);
  ShowPlace(question_.old ? *question_.old : OfferedPlace());
  ShowTextOfPlace();
  ShowConsequences();
  dialogs::FocusField(dialog_, question_.old ? IDC_OWN_TEXT : IDC_OWN_SLOT);
  return FALSE;
}

void OwnTextDialog::FillLists() const {
  for (int slot = 0; slot < kSlotCount; ++slot) Offer(IDC_OWN_SLOT, FromUtf8(NameOf(static_cast<Slot>(slot))));
  for (const wchar_t* land : kLands) Offer(IDC_OWN_LAND, land);
  for (const wchar_t* listing : kListings) Offer(IDC_OWN_LISTING, listing);
  Offer(IDC_OWN_LANGUAGE, L"All languages");
  for (const Language* language : Languages()) Offer(IDC_OWN_LANGUAGE, FromUtf8(language->name));
}

// For all, but where what stands there depends on the customs that are listed: there for those listed now.
OwnPlace OwnTextDialog::OfferedPlace() const {
  return OfferedPlaceOf(question_.when, question_.settings, question_.today);
}

void OwnTextDialog::ShowPlace(const OwnPlace& place) const {
  Choose(IDC_OWN_SLOT, static_cast<size_t>(place.slot));
  Choose(IDC_OWN_LAND, static_cast<size_t>(place.land));
  Choose(IDC_OWN_LISTING, static_cast<size_t>(place.listing));
  size_t row = 0;
  for (size_t i = 0; i < Languages().size(); ++i) {
    if (Languages()[i]->code == place.language) row = i + 1;
  }
  Choose(IDC_OWN_LANGUAGE, row);
}

// What the place says already.
void OwnTextDialog::ShowTextOfPlace() {
  const auto found = question_.texts.find(Entered().place);
  shown_ = found == question_.texts.end() ? OwnText() : found->second;
  isFilling_ = true;
  CheckRadioButton(dialog_, IDC_OWN_INSTEAD, IDC_OWN_AFTER,
                   shown_.how == How::kInstead ? IDC_OWN_INSTEAD : IDC_OWN_AFTER);
  SetDlgItemTextW(dialog_, IDC_OWN_TEXT, FromUtf8(shown_.text).c_str());
  isFilling_ = false;
}

OwnEntry OwnTextDialog::Entered() const {
  if (accepted_) return *accepted_;
  OwnEntry entry;
  entry.place.when = question_.when;
  entry.place.slot = static_cast<Slot>(Choice(IDC_OWN_SLOT));
  entry.place.land = static_cast<InLand>(Choice(IDC_OWN_LAND));
  entry.place.listing = static_cast<Listing>(Choice(IDC_OWN_LISTING));
  const size_t language = Choice(IDC_OWN_LANGUAGE);
  entry.place.language = language == 0 ? kAnyLanguage : Languages()[language - 1]->code;
  entry.text.how = IsDlgButtonChecked(dialog_, IDC_OWN_AFTER) == BST_CHECKED ? How::kAfter : How::kInstead;
  entry.text.text = WithoutBlanksAround(dialogs::ToUtf8(dialogs::TextOf(GetDlgItem(dialog_, IDC_OWN_TEXT))));
  return entry;
}

// The texts as they will be: the entry in place of the old one.
OwnTexts OwnTextDialog::TextsWith(const OwnEntry& entry) const {
  OwnTexts texts = question_.texts;
  if (question_.old) texts.erase(*question_.old);
  if (FaultOf(entry.place, entry.text) == Fault::kNone) texts.insert_or_assign(entry.place, entry.text);
  return texts;
}

// The dates that the preview shows: looking for rare ones takes too long to be done at every key.
void OwnTextDialog::FindDays() {
  const Settings settings = SettingsFor(Entered().place, question_.settings);
  if (landOfDays_ == settings.land) return;
  landOfDays_ = settings.land;
  days_ = NextDaysOf(question_.when, settings.land, question_.today, kDatesShown);
}

// How much of the program's the text follows, on the date on which that is the longest, with the blank between.
size_t OwnTextDialog::LengthBefore(const OwnEntry& entry, const Settings& settings) const {
  if (entry.text.how != How::kAfter) return 0;
  size_t longest = 0;
  for (const int32_t day : days_) {
    longest = std::max(longest, LengthOf(TextInSlot(entry.place.slot, day, settings)));
  }
  return longest == 0 ? 0 : longest + 1;
}

void OwnTextDialog::ShowConsequences() {
  FindDays();
  const OwnEntry entry = Entered();
  const Settings settings = SettingsFor(entry.place, question_.settings);
  const std::string programs = days_.empty() ? "" : TextInSlot(entry.place.slot, days_.front(), settings);
  const std::string preview =
      days_.empty() ? NoDaysText(settings.land) : PreviewOf(days_, settings, OwnReadings(TextsWith(entry)));
  SetDlgItemTextW(dialog_, IDC_OWN_PROGRAMS_TEXT, FromUtf8(programs).c_str());
  SetDlgItemTextW(dialog_, IDC_OWN_REMARK, FromUtf8(RemarkOn(entry, LengthBefore(entry, settings))).c_str());
  SetDlgItemTextW(dialog_, IDC_OWN_NEXT_DATES, dialogs::WithLineEnds(FromUtf8(preview)).c_str());
}

INT_PTR OwnTextDialog::OnCommand(int control, int notification) {
  switch (control) {
    case IDOK: OnAccept(); return TRUE;
    case IDCANCEL: EndDialog(dialog_, IDCANCEL); return TRUE;
    case IDC_OWN_SLOT:
    case IDC_OWN_LAND:
    case IDC_OWN_LISTING:
    case IDC_OWN_LANGUAGE:
      if (notification != CBN_SELCHANGE) return FALSE;
      // What was written is never replaced, and a text that is being changed goes to its new place.
      if (!question_.old && !IsWritten()) ShowTextOfPlace();
      ShowConsequences();
      return TRUE;
    case IDC_OWN_TEXT:
      if (notification != EN_CHANGE || isFilling_) return FALSE;
      ShowConsequences();
      return TRUE;
    case IDC_OWN_INSTEAD:
    case IDC_OWN_AFTER: ShowConsequences(); return TRUE;
  }
  return FALSE;
}

void OwnTextDialog::OnAccept() {
  const OwnEntry entry = Entered();
  if (FaultOf(entry.place, entry.text) != Fault::kNone) {
    return dialogs::ShowFieldError(dialog_, IDC_OWN_TEXT, FromUtf8(RemarkOn(entry)));
  }
  const bool isMoved = !question_.old || *question_.old != entry.place;
  const bool isTaken = isMoved && question_.texts.contains(entry.place);
  if (isTaken && (question_.old || IsWritten()) &&
      !dialogs::IsConfirmed(dialog_, L"There is a text of yours at this place already:\n\n" +
                                         FromUtf8(question_.texts.at(entry.place).text) +
                                         L"\n\nShall this one replace it?")) {
    return;
  }
  accepted_ = entry;
  EndDialog(dialog_, IDOK);
}

}  // namespace

std::optional<OwnEntry> AskForOwnText(HWND owner, const OwnTextQuestion& question) {
  return OwnTextDialog(question).Run(owner);
}

}  // namespace lections
