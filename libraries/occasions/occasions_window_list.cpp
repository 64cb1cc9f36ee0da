// The list of the window: which days and rows it has, which of them are shown and selected.
#include <algorithm>
#include <utility>

#include "libraries/calendar/date.h"
#include "libraries/dialogs/dialog_parts.h"
#include "libraries/dialogs/utc_seconds.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/occasions/occasions_ids.h"
#include "libraries/occasions/occasions_question.h"
#include "libraries/occasions/occasions_window.h"
#include "libraries/occasions/settings_dialog.h"
#include "libraries/sun/clock_in_force.h"

namespace occasions {
namespace {

constexpr int32_t kDaysAhead = 400;            // in which everything comes that comes every year
constexpr int kYearsAhead = 2;                 // in which "Next occasion" looks, beside the present one
constexpr char kLeftToRightMark[] = "\u200E";  // behind Hebrew in a line of English
constexpr uint32_t kAllKinds = (1u << kKinds) - 1;

// As long as it lives: centuries take their time.
class WaitCursor {
 public:
  WaitCursor() : before_(SetCursor(LoadCursorA(nullptr, IDC_WAIT))) {}
  ~WaitCursor() { SetCursor(before_); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  HCURSOR before_;
};

std::wstring Counted(size_t count) {
  return std::to_wstring(count) + (count == 1 ? L" occasion" : L" occasions");
}

std::wstring WideText(const std::string& text) {
  return dialogs::FromUtf8(text);
}

}  // namespace

// On the place's own clock.
ClockMoment OccasionsWindow::Now() const {
  constexpr int32_t kSecondsPerMinute = 60;
  constexpr int32_t kSecondsPerDay = 24 * 60 * kSecondsPerMinute;
  const double utc = dialogs::UtcSeconds();
  const int64_t shown = static_cast<int64_t>(utc) + sun::ClockOffsetSeconds(rows_.question().settings.clock, utc);
  return {static_cast<int32_t>(shown / kSecondsPerDay) + calendar::kAbsoluteDayOfUnixDay0,
          static_cast<int32_t>(shown % kSecondsPerDay) / kSecondsPerMinute};
}

// year: of a span that is one, within its limits.
void OccasionsWindow::ShowSpan(Span span, int32_t year) {
  choice_.span = span;
  year_ = year;
  days_ = span == Span::kRange ? request_.range : DaysOfYear(span, year);
  ShowControls();
  Load();
}

void OccasionsWindow::ShowControls() {
  isFilling_ = true;
  const YearLimits limits = YearLimitsOf(choice_.span);
  const bool isYear = choice_.span != Span::kRange;
  Send(IDC_SPAN, CB_SETCURSEL, static_cast<WPARAM>(choice_.span), 0);
  Send(IDC_YEAR_SPIN, UDM_SETRANGE32, static_cast<WPARAM>(limits.first), limits.last);
  SetDlgItemInt(dialog_, IDC_YEAR, static_cast<UINT>(year_), FALSE);
  for (const int control : {IDC_YEAR, IDC_YEAR_SPIN}) EnableWindow(Control(control), isYear);
  isFilling_ = false;
}

// The year is the one of what is selected.
void OccasionsWindow::OnSpanChosen() {
  const auto span = static_cast<Span>(Send(IDC_SPAN, CB_GETCURSEL, 0, 0));
  if (span == choice_.span) return;
  const std::optional<int32_t> day = SelectedDay();
  ShowSpan(span, YearOfDay(span, day.value_or(days_.first)));
  Fill(day);
}

// Only whole years count; the field is put right when the user leaves it.
void OccasionsWindow::OnYearTyped() {
  const auto year = static_cast<int32_t>(GetDlgItemInt(dialog_, IDC_YEAR, nullptr, FALSE));
  if (choice_.span == Span::kRange || year == year_ || !YearLimitsOf(choice_.span).Contain(year)) return;
  year_ = year;
  days_ = DaysOfYear(choice_.span, year);
  Load();
}

void OccasionsWindow::OnYearLeft() {
  const std::wstring typed = dialogs::TextOf(Control(IDC_YEAR));
  if (choice_.span == Span::kRange || typed == std::to_wstring(year_)) return;
  const YearLimits limits = YearLimitsOf(choice_.span);
  ShowControls();
  SetDlgItemTextW(dialog_, IDC_STATE,
                  (L"\"" + typed + L"\" is none of the years that can be listed, " + std::to_wstring(limits.first) +
                   L" to " + std::to_wstring(limits.last) + L". The list is of " + std::to_wstring(year_) + L" still.")
                      .c_str());
}

void OccasionsWindow::TurnYear(int years) {
  const int32_t year = year_ + years;
  if (choice_.span == Span::kRange || !YearLimitsOf(choice_.span).Contain(year)) return;
  ShowSpan(choice_.span, year);
}

void OccasionsWindow::OnKindChosen() {
  const LRESULT chosen = Send(IDC_KIND, CB_GETCURSEL, 0, 0);
  kind_.reset();
  if (chosen > 0) kind_ = static_cast<Kind>(chosen - 1);
  const std::optional<int32_t> day = SelectedDay();
  rows_.ShowKind(kind_);
  Fill(day);
}

void OccasionsWindow::Search() {
  const WaitCursor wait;
  const std::optional<int32_t> day = SelectedDay();
  rows_.Search(dialogs::ToUtf8(dialogs::TextOf(Control(IDC_TYPED))));
  Fill(day);
}

void OccasionsWindow::OnHebrew() {
  choice_.hebrew = IsDlgButtonChecked(dialog_, IDC_HEBREW) == BST_CHECKED;
  InvalidateRect(list_.Window(), nullptr, TRUE);
  ShowNext();
  ShowRemark();
}

void OccasionsWindow::ChangeSettings() {
  if (!RunSettingsDialog(dialog_)) return;
  const std::optional<int32_t> day = SelectedDay();
  Load();
  Fill(day);
}

// All rows of the days that are shown, with the settings as they are now. The first is selected.
void OccasionsWindow::Load() {
  const WaitCursor wait;
  Question question = QuestionOf(request_.place, request_.packed);
  std::vector<Row> rows = RowsBetween(question, days_.first, days_.last);
  rows_.Take(std::move(question), std::move(rows));
  Fill(std::nullopt);
  ShowNext();
}

// Lists what is shown, and selects its first row from a day on, or the very first.
void OccasionsWindow::Fill(std::optional<int32_t> day) {
  list_.SetCount(rows_.Count());
  SelectRow(day ? rows_.NearestTo(*day) : 0);
  ShowState();
  ShowRemark();
  UpdateButtons();
}

// With what comes after it in sight.
void OccasionsWindow::SelectRow(int row) {
  if (row < 0 || row >= rows_.Count()) return;
  constexpr int kRowsAbove = 2;
  const int page = static_cast<int>(Send(IDC_OCCASIONS, LVM_GETCOUNTPERPAGE, 0, 0));
  const int last = std::clamp(row + page - 1 - kRowsAbove, row, rows_.Count() - 1);
  Send(IDC_OCCASIONS, LVM_ENSUREVISIBLE, static_cast<WPARAM>(last), FALSE);
  list_.SelectOnly({row});
}

// Enter in the field of the year is for that year.
void OccasionsWindow::GoToNext() {
  if (GetFocus() == Control(IDC_YEAR)) {
    SetFocus(list_.Window());
    return;
  }
  SetFocus(list_.Window());
  const ClockMoment now = Now();
  const Span span = choice_.span;
  const int32_t year = year_;
  int row = days_.Contain(now.day) ? rows_.FirstToCome(now) : -1;
  const Span years = span == Span::kRange ? Span::kJewishYear : span;
  const int32_t present = YearOfDay(years, now.day);
  for (int32_t tried = present; row < 0 && tried <= present + kYearsAhead; ++tried) {
    if (!YearLimitsOf(years).Contain(tried)) break;
    ShowSpan(years, tried);
    row = rows_.FirstToCome(now);
  }
  if (row >= 0) return SelectRow(row);
  ShowSpan(span, year);
  dialogs::ShowError(dialog_,
                     L"Nothing of what is shown comes in this year and the next two.\n\nClear \"Search\", choose "
                     L"\"All that are shown\", or see what is hidden by \"What is shown...\".");
}

// Whatever the list shows, by the settings that it was made with.
void OccasionsWindow::ShowNext() {
  const ClockMoment now = Now();
  std::wstring text = L"Nothing that is shown comes within " + std::to_wstring(kDaysAhead) + L" days.";
  for (const Row& row : RowsBetween(rows_.question(), now.day, now.day + kDaysAhead)) {
    if (!IsToCome(row, now)) continue;
    const Wording wording = WordingNow();
    const std::string time = TimeText(row, wording.form);
    const std::string end = choice_.hebrew ? kLeftToRightMark : "";
    text = L"Next: " + WideText(TitleOf(row, wording.language) + end + ", " + WeekdayName(row.day, wording.language) +
                                end + " " + DateText(row.day) + (time.empty() ? "" : ", " + time));
    break;
  }
  if (text != dialogs::TextOf(Control(IDC_NEXT_TEXT))) SetDlgItemTextW(dialog_, IDC_NEXT_TEXT, text.c_str());
}

void OccasionsWindow::ShowState() const {
  SetDlgItemTextW(dialog_, IDC_STATE, StateText().c_str());
}

// Of the row that is selected alone: the column has no room for long ones.
void OccasionsWindow::ShowRemark() const {
  const int row = list_.SelectedCount() == 1 ? list_.FirstSelected() : -1;
  const bool isThere = row >= 0 && row < rows_.Count();
  const std::wstring text = isThere ? WideText(RemarkOf(rows_.question(), rows_.At(row), WordingNow().language)) : L"";
  if (text != dialogs::TextOf(Control(IDC_REMARK))) SetDlgItemTextW(dialog_, IDC_REMARK, text.c_str());
}

std::wstring OccasionsWindow::StateText() const {
  const auto shown = static_cast<size_t>(rows_.Count());
  if (shown == 0) return ReasonOfNothing();
  if (shown == rows_.All()) return Counted(shown);
  return std::to_wstring(shown) + L" of " + Counted(rows_.All());
}

std::wstring OccasionsWindow::ReasonOfNothing() const {
  const Customs& customs = rows_.question().customs;
  if ((customs.hiddenKinds & kAllKinds) == kAllKinds) {
    return L"No occasions: all kinds are hidden. \"What is shown...\" shows them again.";
  }
  if (kind_ && !IsShown(customs, *kind_)) {
    return L"No occasions: this kind is hidden. \"What is shown...\" shows it again.";
  }
  if (rows_.All() == 0) {
    return L"No occasions from " + WideText(DateText(days_.first)) + L" to " + WideText(DateText(days_.last)) +
           L". Choose a year, or show more kinds by \"What is shown...\".";
  }
  if (GetWindowTextLengthW(Control(IDC_TYPED)) > 0) {
    return L"None of " + Counted(rows_.All()) + L" has all that is typed in \"Search\". Clear it to see all.";
  }
  return L"None of " + Counted(rows_.All()) + L" is of this kind. Choose \"All that are shown\" or another year.";
}

// A button that is disabled must not keep the focus.
void OccasionsWindow::UpdateButtons() const {
  const struct {
    int control;
    bool isUsable;
  } buttons[] = {{IDC_COPY, rows_.Count() > 0}, {IDC_PRINT, rows_.All() > 0}, {IDC_SAVE, rows_.All() > 0}};
  for (const auto& [control, isUsable] : buttons) {
    if (!isUsable && GetFocus() == Control(control)) {
      SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Window()), TRUE);
    }
    EnableWindow(Control(control), isUsable);
  }
}

std::optional<int32_t> OccasionsWindow::SelectedDay() const {
  const int row = list_.FirstSelected();
  if (row < 0 || row >= rows_.Count()) return std::nullopt;
  return rows_.At(row).day;
}

}  // namespace occasions
