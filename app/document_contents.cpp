#include "app/document_contents.h"

#include <commctrl.h>

#include <algorithm>

#include "app/core/document_words.h"
#include "engine/settings_flags.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/unicode_text.h"

namespace {

constexpr int kLastKind = IDC_DOCUMENT_FIRST_KIND + static_cast<int>(DocumentKind::kDoorPage);

bool IsHebrewDocument(const DocumentChoice& choice) {
  return WordsLanguageOf(choice.language).rightToLeft;
}

// English in another spelling has no table of its own.
std::string NameOfLanguage(uint32_t code) {
  return WordsLanguageOf(code).englishName;
}

}  // namespace

DocumentContents::DocumentContents(HWND dialog, const TakenDocument& document, const DocumentSettings& settings,
                                   bool forPaper)
    : dialog_(dialog),
      document_(document),
      settings_(settings),
      forPaper_(forPaper),
      zmanimInHebrew_(ZmanimInHebrew()),
      kind_(settings.Kind(forPaper)) {
  CheckRadioButton(dialog, IDC_DOCUMENT_FIRST_KIND, kLastKind, IDC_DOCUMENT_FIRST_KIND + static_cast<int>(kind_));
  FillLanguages();
  const HWND list = Control(IDC_DOCUMENT_ZMANIM);
  ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  const std::vector<DocumentZman>& zmanim = document.source().zmanim;
  for (uint32_t zman = 0; zman < zmanim.size(); ++zman) {
    std::wstring name = WideOf(ZmanName(document.source(), zman, zmanimInHebrew_), CP_UTF8);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(zman);
    item.pszText = name.data();
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE_USEHEADER);
  ListView_SetItemState(list, 0, LVIS_FOCUSED, LVIS_FOCUSED);
  CheckDlgButton(dialog, IDC_DOCUMENT_OCCASIONS, settings.Occasions() ? BST_CHECKED : BST_UNCHECKED);
  ShowZmanim();
}

void DocumentContents::FillLanguages() {
  const HWND list = Control(IDC_DOCUMENT_LANGUAGE);
  const uint32_t code = settings_.Language().value_or(document_.ReadingsLanguage());
  const uint32_t chosen = WordsLanguageOf(code).code;
  for (const WordsLanguage& language : WordsLanguages()) {
    std::string name = language.englishName;
    if (name != language.ownName) name += std::string(" - ") + language.ownName;
    const LRESULT item = SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideOf(name, CP_UTF8).c_str()));
    SendMessageW(list, CB_SETITEMDATA, static_cast<WPARAM>(item), static_cast<LPARAM>(language.code));
    if (language.code == chosen) SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
  }
  const std::string readings = "Readings are in " + NameOfLanguage(document_.ReadingsLanguage()) +
                               ", as chosen under Settings, Readings language.";
  SetDlgItemTextA(dialog_, IDC_DOCUMENT_READINGS_LANGUAGE, readings.c_str());
}

bool DocumentContents::WantsOccasions() const {
  return IsDlgButtonChecked(dialog_, IDC_DOCUMENT_OCCASIONS) == BST_CHECKED;
}

uint32_t DocumentContents::Language() const {
  const HWND list = Control(IDC_DOCUMENT_LANGUAGE);
  const LRESULT item = SendMessageW(list, CB_GETCURSEL, 0, 0);
  return static_cast<uint32_t>(SendMessageW(list, CB_GETITEMDATA, static_cast<WPARAM>(item), 0));
}

void DocumentContents::ShowZmanim() {
  const bool isUsed = HasZmanim(kind_);
  for (const int id : {IDC_DOCUMENT_ZMANIM, IDC_DOCUMENT_ALL, IDC_DOCUMENT_NONE}) EnableWindow(Control(id), isUsed);
  EnableWindow(Control(IDC_DOCUMENT_OCCASIONS), document_.source().hasOccasions && CanHaveOccasions(kind_));
  const std::vector<DocumentZman>& zmanim = document_.source().zmanim;
  if (isUsed && !zmanim_.contains(kind_)) zmanim_[kind_] = settings_.Zmanim(kind_, zmanim);
  isFilling_ = true;
  for (uint32_t zman = 0; zman < zmanim.size(); ++zman) {
    const BOOL checked = isUsed && std::ranges::binary_search(zmanim_[kind_], zman);
    ListView_SetCheckState(Control(IDC_DOCUMENT_ZMANIM), static_cast<int>(zman), checked);
  }
  isFilling_ = false;
}

std::vector<uint32_t> DocumentContents::CheckedZmanim() const {
  std::vector<uint32_t> checked;
  for (uint32_t zman = 0; zman < document_.source().zmanim.size(); ++zman) {
    if (ListView_GetCheckState(Control(IDC_DOCUMENT_ZMANIM), zman)) checked.push_back(zman);
  }
  return checked;
}

void DocumentContents::KeepZmanim() {
  if (!isFilling_ && HasZmanim(kind_)) zmanim_[kind_] = CheckedZmanim();
}

void DocumentContents::CheckAll(bool checked) {
  for (uint32_t zman = 0; zman < document_.source().zmanim.size(); ++zman) {
    ListView_SetCheckState(Control(IDC_DOCUMENT_ZMANIM), zman, checked);
  }
  KeepZmanim();
}

bool DocumentContents::OnCommand(int control, int notification) {
  if (control >= IDC_DOCUMENT_FIRST_KIND && control <= kLastKind) {
    if (notification != BN_CLICKED) return true;
    kind_ = static_cast<DocumentKind>(control - IDC_DOCUMENT_FIRST_KIND);
    ShowZmanim();
    return true;
  }
  switch (control) {
    case IDC_DOCUMENT_ALL: CheckAll(true); return true;
    case IDC_DOCUMENT_NONE: CheckAll(false); return true;
  }
  return false;
}

void DocumentContents::OnNotify(const NMHDR& header) {
  if (header.idFrom == IDC_DOCUMENT_ZMANIM && header.code == LVN_ITEMCHANGED) KeepZmanim();
}

DocumentChoice DocumentContents::Choice() const {
  DocumentChoice choice{.kind = kind_, .language = Language(), .occasions = WantsOccasions()};
  if (const auto found = zmanim_.find(kind_); found != zmanim_.end()) choice.zmanim = found->second;
  choice.hebrewZmanim = zmanimInHebrew_ || IsHebrewDocument(choice);
  return choice;
}

void DocumentContents::Store() const {
  settings_.SetKind(forPaper_, kind_);
  const uint32_t usual = WordsLanguageOf(document_.ReadingsLanguage()).code;
  const uint32_t chosen = Language();
  settings_.SetLanguage(chosen == usual ? std::nullopt : std::optional(chosen));
  settings_.SetOccasions(WantsOccasions());
  for (const auto& [kind, zmanim] : zmanim_) settings_.SetZmanim(kind, document_.source().zmanim, zmanim);
}

bool DocumentContents::Check() const {
  if (kind_ != DocumentKind::kZmanim || !Choice().zmanim.empty()) return true;
  ShowStop(dialog_, "No zman is chosen.\nPlease mark at least one in the list.", "Error");
  SetFocus(Control(IDC_DOCUMENT_ZMANIM));
  return false;
}
