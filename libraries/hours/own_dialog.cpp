#include "libraries/hours/own_dialog.h"

#include <iterator>
#include <string>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/description_text.h"
#include "libraries/hours/hours_ids.h"
#include "libraries/hours/own_fields.h"

namespace hours {
namespace {

using dialogs::Narrow;
using dialogs::TextOf;
using dialogs::Wide;

constexpr WPARAM kMostAmountLetters = 9;

// In the order of Rounding.
constexpr const wchar_t* kRoundings[] = {L"down, as for what ends or is forbidden then", L"up, as for what begins then",
                                         L"to the nearest minute"};

// In the order of Combination.
constexpr const wchar_t* kCombinations[] = {L"this time alone", L"the later of this and a second time",
                                            L"the earlier of this and a second time"};

struct OwnState {
  const wchar_t* title;
  const Choice& choice;
  DayTimes& times;
  OwnZman zman;            // as the fields start; number 0 for a new one
  std::wstring shownName;  // what the fields made of the texts
  std::wstring shownHebrew;
  bool isRoundingChosen;  // by the user; else it follows form and amount
};

OwnState& StateOf(HWND dialog) {
  return *reinterpret_cast<OwnState*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

std::wstring FieldText(HWND dialog, int fieldId) {
  return TextOf(GetDlgItem(dialog, fieldId));
}

size_t ChosenItem(HWND dialog, int comboId) {
  return static_cast<size_t>(SendDlgItemMessageW(dialog, comboId, CB_GETCURSEL, 0, 0));
}

void ChooseItem(HWND dialog, int comboId, size_t item) {
  SendDlgItemMessageW(dialog, comboId, CB_SETCURSEL, item, 0);
}

void AddItem(HWND dialog, int comboId, const std::wstring& text) {
  SendDlgItemMessageW(dialog, comboId, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

const OwnForm& FormIn(HWND dialog, int comboId) {
  return OwnForms()[ChosenItem(dialog, comboId)];
}

Combination CombinationIn(HWND dialog) {
  return static_cast<Combination>(ChosenItem(dialog, IDC_COMBINATION));
}

Rounding RoundingIn(HWND dialog) {
  return static_cast<Rounding>(ChosenItem(dialog, IDC_ROUNDING));
}

// The amount as typed; a character outside of windows-1252 is none of a number's either.
std::string AmountText(HWND dialog, int fieldId) {
  return Narrow(FieldText(dialog, fieldId)).value_or("?");
}

// What the fields hold. A text left as it was shown keeps its bytes, whatever the field made of them.
OwnTyped TypedIn(HWND dialog) {
  const OwnState& state = StateOf(dialog);
  const std::wstring name = FieldText(dialog, IDC_DESCRIPTION);
  const std::wstring hebrew = FieldText(dialog, IDC_HEBREW);
  return {name == state.shownName ? state.zman.description : Narrow(name),
          hebrew == state.shownHebrew ? state.zman.hebrew : NarrowHebrew(hebrew),
          AmountText(dialog, IDC_AMOUNT),
          &FormIn(dialog, IDC_FORM),
          RoundingIn(dialog),
          CombinationIn(dialog),
          AmountText(dialog, IDC_OTHER_AMOUNT),
          &FormIn(dialog, IDC_OTHER_FORM)};
}

// Tells what the fields mean as they stand, and what time that is.
void ShowMeaning(HWND dialog) {
  OwnState& state = StateOf(dialog);
  const OwnForm& form = FormIn(dialog, IDC_FORM);
  const std::optional<int32_t> amount = AmountIn(AmountText(dialog, IDC_AMOUNT), form);
  if (amount && !state.isRoundingChosen) {
    ChooseItem(dialog, IDC_ROUNDING, static_cast<size_t>(SuggestedRounding(form, *amount)));
  }
  for (const int field : {IDC_OTHER_AMOUNT, IDC_OTHER_FORM}) {
    EnableWindow(GetDlgItem(dialog, field), CombinationIn(dialog) != Combination::kNone);
  }
  std::string meaning;
  if (const std::optional<OwnTimes> times = TimesIn(TypedIn(dialog))) {
    const Definition typed = DefinitionOf({1, &form, times->thousandths, RoundingIn(dialog), "", "", times->other});
    const Definition zman = state.choice.areHoursAtSeaLevel ? WithHoursAtSeaLevel(typed) : typed;
    meaning = DefinitionSentence(zman) + "\r\nOn " + state.times.DateText() + ": " + state.times.TimeOf(zman);
  }
  SetDlgItemTextW(dialog, IDC_MEANING, Wide(meaning).c_str());
}

// The second time, or none.
void ShowOther(HWND dialog, const std::optional<OwnOther>& other) {
  Combination combination = Combination::kNone;
  const OwnForm* form = &OwnForms().front();
  if (other) {
    combination = other->isLater ? Combination::kLater : Combination::kEarlier;
    form = other->form;
  }
  ChooseItem(dialog, IDC_COMBINATION, static_cast<size_t>(combination));
  ChooseItem(dialog, IDC_OTHER_FORM, static_cast<size_t>(form - OwnForms().data()));
  if (other) SetDlgItemTextW(dialog, IDC_OTHER_AMOUNT, Wide(NumberText(other->thousandths)).c_str());
}

INT_PTR OnOpen(HWND dialog, OwnState& state) {
  SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&state));
  SetWindowTextW(dialog, state.title);
  for (const OwnForm& form : OwnForms()) {
    const std::wstring label = Wide(EightBitFromUtf8(form.label));
    AddItem(dialog, IDC_FORM, label);
    AddItem(dialog, IDC_OTHER_FORM, label);
  }
  for (const wchar_t* combination : kCombinations) AddItem(dialog, IDC_COMBINATION, combination);
  for (const wchar_t* rounding : kRoundings) AddItem(dialog, IDC_ROUNDING, rounding);
  ChooseItem(dialog, IDC_FORM, static_cast<size_t>(state.zman.form - OwnForms().data()));
  ChooseItem(dialog, IDC_ROUNDING, static_cast<size_t>(state.zman.rounding));
  ShowOther(dialog, state.zman.other);
  SendDlgItemMessageW(dialog, IDC_DESCRIPTION, EM_LIMITTEXT, kMostDescriptionBytes, 0);
  SendDlgItemMessageW(dialog, IDC_HEBREW, EM_LIMITTEXT, kMostDescriptionBytes, 0);
  SendDlgItemMessageW(dialog, IDC_AMOUNT, EM_LIMITTEXT, kMostAmountLetters, 0);
  SendDlgItemMessageW(dialog, IDC_OTHER_AMOUNT, EM_LIMITTEXT, kMostAmountLetters, 0);
  SetDlgItemTextW(dialog, IDC_DESCRIPTION, Wide(state.zman.description).c_str());
  SetDlgItemTextW(dialog, IDC_HEBREW, WideHebrew(state.zman.hebrew).c_str());
  if (state.zman.number != 0) SetDlgItemTextW(dialog, IDC_AMOUNT, Wide(NumberText(state.zman.thousandths)).c_str());
  state.shownName = FieldText(dialog, IDC_DESCRIPTION);
  state.shownHebrew = FieldText(dialog, IDC_HEBREW);
  ShowMeaning(dialog);
  return TRUE;
}

int FieldId(OwnField field) {
  switch (field) {
    case OwnField::kDescription: return IDC_DESCRIPTION;
    case OwnField::kHebrew: return IDC_HEBREW;
    case OwnField::kAmount: return IDC_AMOUNT;
    case OwnField::kOtherAmount: return IDC_OTHER_AMOUNT;
  }
  return IDC_DESCRIPTION;
}

INT_PTR OnAccept(HWND dialog) {
  OwnState& state = StateOf(dialog);
  const OwnAnswer answer = ReadOwn(TypedIn(dialog), state.choice, state.zman.number);
  if (answer.zman) {
    state.zman = *answer.zman;
    EndDialog(dialog, IDOK);
  } else {
    dialogs::ShowFieldError(dialog, FieldId(answer.field), Wide(answer.complaint));
  }
  return TRUE;
}

INT_PTR OnCommand(HWND dialog, int controlId, int notification) {
  switch (controlId) {
    case IDOK: return OnAccept(dialog);
    case IDCANCEL: return EndDialog(dialog, IDCANCEL);
    case IDC_AMOUNT:
    case IDC_OTHER_AMOUNT:
      if (notification == EN_CHANGE) ShowMeaning(dialog);
      return TRUE;
    case IDC_ROUNDING:
      if (notification == CBN_SELCHANGE) StateOf(dialog).isRoundingChosen = true;
      [[fallthrough]];
    case IDC_FORM:
    case IDC_COMBINATION:
    case IDC_OTHER_FORM:
      if (notification == CBN_SELCHANGE) ShowMeaning(dialog);
      return TRUE;
  }
  return FALSE;
}

INT_PTR CALLBACK OwnDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
  if (message != WM_INITDIALOG && !GetWindowLongPtrW(dialog, DWLP_USER)) return FALSE;
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog, *reinterpret_cast<OwnState*>(lParam));
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
  }
  return FALSE;
} catch (...) {
  return dialogs::OnException(dialog, message);
}

std::optional<OwnZman> Ask(HWND owner, OwnState state) {
  if (dialogs::RunDialog(owner, IDD_OWN, OwnDialogProc, &state) != IDOK) return std::nullopt;
  return state.zman;
}

}  // namespace

std::optional<OwnZman> AskForNewOwn(HWND owner, const Choice& choice, DayTimes& times) {
  return Ask(owner, {L"New Zman", choice, times, {0, &OwnForms().front(), 0, Rounding::kDown, "", ""}, {}, {}, false});
}

std::optional<OwnZman> AskForChangedOwn(HWND owner, const Choice& choice, const OwnZman& zman, DayTimes& times) {
  return Ask(owner, {L"Change Zman", choice, times, zman, {}, {}, true});
}

}  // namespace hours
