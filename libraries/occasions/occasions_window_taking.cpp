// What the user takes away of the window: copied, printed, saved.
#include <algorithm>
#include <cwchar>
#include <optional>

#include "libraries/dialogs/chosen_file.h"
#include "libraries/dialogs/clipboard.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/occasions/occasion_table.h"
#include "libraries/occasions/occasions_ids.h"
#include "libraries/occasions/occasions_window.h"
#include "libraries/occasions/saved_text.h"
#include "libraries/occasions/take_dialog.h"
#include "publishing/preview_window.h"

namespace occasions {
namespace {

struct FormatLook {
  const wchar_t* filter;  // for the dialog of files: pairs of texts, ended by an empty one
  const wchar_t* extension;
};

// In the order of Format.
constexpr FormatLook kLooks[kFormats] = {{L"iCalendar (*.ics)\0*.ics\0All files\0*.*\0", L"ics"},
                                         {L"Comma-separated values (*.csv)\0*.csv\0All files\0*.*\0", L"csv"},
                                         {L"Web page (*.html)\0*.html;*.htm\0All files\0*.*\0", L"html"},
                                         {L"Rich text (*.rtf)\0*.rtf\0All files\0*.*\0", L"rtf"},
                                         {L"Text (*.txt)\0*.txt\0All files\0*.*\0", L"txt"}};

// A title as a file may be named.
std::wstring OfferedName(const Taken& taken, const wchar_t* extension) {
  std::wstring name = dialogs::FromUtf8(TitleText(taken) + (taken.place.empty() ? "" : ", " + taken.place));
  std::ranges::replace_if(
      name, [](wchar_t letter) { return letter < L' ' || std::wcschr(L"<>:\"/\\|?*", letter) != nullptr; }, L'-');
  return name + L"." + extension;
}

}  // namespace

Taken OccasionsWindow::WhatIsShown() const {
  Taken taken;
  taken.question = rows_.question();
  taken.packed = request_.packed;
  taken.place = dialogs::ToUtf8(dialogs::Wide(request_.place));
  taken.wording = WordingNow();
  taken.span = choice_.span;
  taken.year = year_;
  taken.days = days_;
  taken.kind = kind_;
  taken.searched = dialogs::ToUtf8(dialogs::TextOf(Control(IDC_TYPED)));
  taken.rows = rows_.Shown();
  return taken;
}

// Whatever kinds are shown. An evening has the end of the day after, and a Jewish year the evening of its eve but not
// that of its last day.
Taken OccasionsWindow::AllCandles() const {
  Taken taken = WhatIsShown();
  taken.candlesAlone = true;
  taken.question.customs.hiddenKinds = 0;
  const int32_t lastEvening = choice_.span == Span::kJewishYear ? days_.last - 1 : days_.last;
  constexpr int32_t kDaysToEnd = 2;  // where it is after midnight
  const Days evenings = {days_.first, lastEvening};
  taken.rows = RowsBetween(taken.question, evenings.first, evenings.last + kDaysToEnd);
  std::erase_if(taken.rows, [&](const Row& row) {
    const bool isOne = row.moment == Moment::kCandles || row.moment == Moment::kEnd;
    return !isOne || !evenings.Contain(EveningOf(row));
  });
  return taken;
}

// The rows that are selected, or all, with their headings.
void OccasionsWindow::Copy() {
  if (rows_.Count() == 0) return;
  std::vector<int> rows = list_.Selected();
  if (rows.empty()) {
    for (int row = 0; row < rows_.Count(); ++row) rows.push_back(row);
  }
  const Wording wording = WordingNow();
  std::string text;
  const auto add = [&text](int column, const std::string& cell) {
    text += cell + (column + 1 < kColumns ? "\t" : "\r\n");
  };
  for (int i = 0; i < kColumns; ++i) add(i, HeadingOf(static_cast<Column>(i), wording.language));
  for (const int row : rows) {
    for (int i = 0; i < kColumns; ++i) {
      add(i, CellOf(rows_.question(), rows_.At(row), static_cast<Column>(i), wording));
    }
  }
  if (!dialogs::PutIntoClipboard(dialog_, dialogs::FromUtf8(text))) {
    return dialogs::ShowError(dialog_,
                              L"The clipboard cannot be written now. See to it that no other program holds "
                              L"it, then choose Copy again.");
  }
  const std::wstring count = std::to_wstring(rows.size());
  SetDlgItemTextW(dialog_, IDC_STATE,
                  (count + (rows.size() == 1 ? L" occasion is" : L" occasions are") + L" copied.").c_str());
}

void OccasionsWindow::Print() {
  const TakeQuestion question = {false, rows_.Count(), days_.last - days_.first + 1};
  const auto answer = AskWhatToTake(dialog_, question, {choice_.candlesAlone, choice_.format});
  if (!answer) return;
  choice_.candlesAlone = answer->candlesAlone;
  const Taken taken = answer->candlesAlone ? AllCandles() : WhatIsShown();
  const publishing::Table table = TableOf(taken);
  LOGFONTW font = {};
  font.lfCharSet = DEFAULT_CHARSET;
  lstrcpynW(font.lfFaceName, kFace, LF_FACESIZE);
  const auto layout = answer->candlesAlone ? publishing::PaperLayout::kOnePage : publishing::PaperLayout::kTable;
  publishing::PreviewTable(dialog_, {table, font, dialogs::FromUtf8(table.title), layout}, choice_.pageSetup);
}

void OccasionsWindow::Save() {
  const TakeQuestion question = {true, rows_.Count(), days_.last - days_.first + 1};
  const auto answer = AskWhatToTake(dialog_, question, {choice_.candlesAlone, choice_.format});
  if (!answer) return;
  choice_.candlesAlone = answer->candlesAlone;
  choice_.format = answer->format;
  const Taken taken = answer->candlesAlone ? AllCandles() : WhatIsShown();
  const FormatLook& look = kLooks[static_cast<size_t>(answer->format)];
  const std::wstring path = dialogs::AskForFileToWrite(
      dialog_, {L"Save Occasions to File", look.filter, look.extension}, OfferedName(taken, look.extension));
  if (path.empty()) return;
  const std::optional<std::string> text = SavedText(dialog_, taken, answer->format);
  if (text) dialogs::WriteOrTell(dialog_, path, *text, L"save again");
}

}  // namespace occasions
