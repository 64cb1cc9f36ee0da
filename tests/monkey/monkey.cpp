#include "tests/monkey/monkey.h"

#include <algorithm>
#include <vector>

#include "resources/ids.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostDocuments = 12;

// Left out are the commands that lead to the system's dialogs for files (exports as text and RTF, backups of settings)
// and printers, where Wine crashes by itself, to the browser (help), and to the end, which has an action of its own.
constexpr unsigned kCommands[] = {IDM_SELECT_LOCATION,    IDM_SELECT_RANGE,
                                  IDM_SELECT_RANGE,       IDM_SUNSET_OF_A_DAY,
                                  IDM_EXPORT_ZMANIM,      IDM_EXPORT_DATES,
                                  IDM_WINDOW_CASCADE,     IDM_WINDOW_TILE_VERTICALLY,
                                  IDM_WINDOW_TILE,        IDM_WINDOW_ARRANGE_ICONS,
                                  IDM_WINDOW_CLOSE_ALL,   IDM_VIEW_SHABBAT_TIMES,
                                  IDM_VIEW_ZMANIM,        IDM_VIEW_ZMANIM,
                                  IDM_VIEW_READINGS,      IDM_LOCATION_MANAGER,
                                  IDM_SUMMER_TIME,        IDM_PREFERENCES,
                                  IDM_CUSTOM_CANDLES,     IDM_ZMANIM_SELECTION,
                                  IDM_OWN_TIMES,          IDM_BUILT_IN_ZMANIM,
                                  IDM_ZMANIM_HEBREW,      IDM_ZMANIM_ENGLISH,
                                  IDM_READINGS_CONFIGURE, IDM_READINGS_CUSTOM,
                                  IDM_READINGS_LANGUAGE,  IDM_TIME_FORM,
                                  IDM_KINSHIP_FONT,       IDM_DAF_YOMI,
                                  IDM_BIRTHDAYS,          IDM_BIRTHDAYS,
                                  IDM_SAVE_DOCUMENT,      IDM_PRINT_CALENDAR,
                                  IDM_OCCASIONS,          IDM_OCCASIONS_SHOWN,
                                  IDM_BAR_MITZVAH,        IDM_ABOUT,
                                  IDM_FIRST_DOCUMENT,     IDM_FIRST_DOCUMENT + 1,
                                  IDM_FIRST_DOCUMENT + 5, 9999 /* no command */};

constexpr int kToolbarButtons[] = {IDB_SHABBAT_TIMES, IDB_ZMANIM,      IDB_READINGS, IDB_SELECT_LOCATION,
                                   IDB_BIRTHDAYS,     IDB_BAR_MITZVAH, IDB_DAF_YOMI};

}  // namespace

bool LeadsOut(HWND window) {
  const std::string className = ClassOf(window);
  if (className == "Button") return TextOf(window) == "&Browse...";
  if (className != "ShabbatIconButton") return false;
  const int id = GetDlgCtrlID(window);
  return std::find(std::begin(kToolbarButtons), std::end(kToolbarButtons), id) == std::end(kToolbarButtons) ||
         ClassOf(GetParent(window)) != "ShabbatToolbar";
}

Monkey::Monkey(uint64_t seed, fs::path programFolder, const fs::path& settingsFolder)
    : dice_(seed),
      input_(dice_),
      programFolder_(std::move(programFolder)),
      trouble_(settingsFolder),
      program_(std::make_unique<RunningProgram>(programFolder_)) {}

void Monkey::Settle() {
  slowestMilliseconds_ = std::max(slowestMilliseconds_, program_->Settle());
  program_->WaitForInput();
}

void Monkey::Step() {
  journal_.NextStep();
  journal_.Note(Act());
  Settle();
  KeepFewDocuments();
}

std::string Monkey::Act() {
  if (program_->InMenu()) return ActInMenu();
  if (dice_.Chance(2)) return trouble_.Make(dice_);
  const HWND dialog = program_->Dialog();
  if (dialog != lastDialog_) stepsInDialog_ = 0;
  lastDialog_ = dialog;
  return dialog ? ActInDialog(dialog) : ActInFrame();
}

// No key here that takes a command: it might be one that leads out.
std::string Monkey::ActInMenu() {
  constexpr WPARAM kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_ESCAPE, VK_ESCAPE, VK_ESCAPE};
  return "in the menu: " + input_.Key(program_->frame(), dice_.Pick(kKeys));
}

std::string Monkey::ActInFrame() {
  // Ends are rare, since some faults show only after minutes.
  const int kind = dice_.Between(1, 10000);
  if (kind <= 2) return Restart();
  if (kind <= 70) return DriveSecondCopy();
  if (kind <= 2500) return ChooseCommand();
  if (kind <= 3500) return PressToolbar();
  if (kind <= 5000) return MoveWindows();
  return Touch();
}

std::string Monkey::ChooseCommand() {
  const unsigned id = dice_.Pick(kCommands);
  PostMessageA(program_->frame(), WM_COMMAND, id, 0);
  return "command " + std::to_string(id);
}

std::string Monkey::PressToolbar() {
  const std::vector<HWND> documents = program_->Documents();
  if (documents.empty()) return ChooseCommand();
  const HWND button = GetDlgItem(GetDlgItem(dice_.Pick(documents), IDC_TOOLBAR), dice_.Pick(kToolbarButtons));
  return input_.Click(button, {dice_.Between(0, 30), dice_.Between(0, 30)});
}

std::string Monkey::MoveWindows() {
  constexpr WPARAM kStates[] = {SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_RESTORE};
  const std::vector<HWND> documents = program_->Documents();
  const bool ofFrame = documents.empty() || dice_.Chance(20);
  const HWND window = ofFrame ? program_->frame() : dice_.Pick(documents);
  const auto command = [window](WPARAM request, LPARAM parameter = 0) {
    PostMessageA(window, WM_SYSCOMMAND, request, parameter);
    return "system command " + std::to_string(request) + " to " + Describe(window);
  };
  switch (dice_.Between(1, 8)) {
    case 1:
    case 2: return command(dice_.Pick(kStates));
    case 3: return command(SC_KEYMENU, dice_.Chance(50) ? 0 : ' ');
    case 4: return command(SC_NEXTWINDOW);
    case 5: return ofFrame ? command(SC_RESTORE) : command(SC_CLOSE);
    case 6: {  // moved or sized by keys, then let go
      const std::string what = command(dice_.Chance(50) ? SC_SIZE : SC_MOVE);
      for (int i = 0; i < 5; ++i) input_.Key(window, dice_.Chance(50) ? VK_LEFT : VK_DOWN);
      input_.Key(window, dice_.Chance(50) ? VK_RETURN : VK_ESCAPE);
      return what;
    }
  }
  const int width = dice_.Between(0, 1300);
  const int height = dice_.Between(0, 1000);
  SetWindowPos(window, nullptr, dice_.Between(-200, 400), dice_.Between(-100, 400), width, height,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
  return "size " + std::to_string(width) + " x " + std::to_string(height) + " of " + Describe(window);
}

// A key to where the focus is, or the mouse anywhere.
std::string Monkey::Touch() {
  const HWND focus = program_->Focus();
  if (focus && !LeadsOut(focus) && dice_.Chance(40)) {
    return dice_.Chance(80) ? input_.AnyKey(focus) : input_.AnyCharacter(focus);
  }
  const std::vector<HWND> windows = program_->ReachableWindows();
  if (windows.empty()) return "nothing to touch";
  const HWND window = dice_.Pick(windows);
  if (LeadsOut(window)) return "leave " + Describe(window) + " alone";
  const bool scrolls = (GetWindowLongA(window, GWL_STYLE) & (WS_VSCROLL | WS_HSCROLL)) != 0;
  if (scrolls && dice_.Chance(20)) return input_.PressScrollBar(window);
  return dice_.Chance(30) ? input_.AnyScroll(window) : input_.AnyMouse(window);
}

// The second copy shares the settings. It comes, changes a setting, and goes.
std::string Monkey::DriveSecondCopy() try {
  journal_.Note("the second copy's turn");
  if (!secondCopy_) {
    secondCopy_ = std::make_unique<RunningProgram>(programFolder_);
    return "start a second copy";
  }
  constexpr unsigned kChanges[] = {IDM_ZMANIM_HEBREW, IDM_ZMANIM_ENGLISH, IDM_BUILT_IN_ZMANIM};
  if (!secondCopy_->Dialog() && dice_.Chance(60)) {
    const unsigned change = dice_.Pick(kChanges);
    PostMessageA(secondCopy_->frame(), WM_COMMAND, change, 0);
    secondCopy_->Settle();
    return "command " + std::to_string(change) + " to the second copy";
  }
  while (const HWND box = secondCopy_->Dialog()) {  // settings that are held are complained about
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    secondCopy_->Settle();
  }
  secondCopy_->Exit();
  secondCopy_.reset();
  return "close the second copy";
} catch (const Fault& fault) {
  throw Fault("in the second copy: " + std::string(fault.what()));
}

std::string Monkey::Restart() {
  journal_.Note("end");
  program_->Exit();
  program_ = std::make_unique<RunningProgram>(programFolder_);
  rested_ = false;
  return "start again";
}

void Monkey::KeepFewDocuments() {
  while (program_->Documents().size() > kMostDocuments && !program_->Dialog()) {
    const HWND document = dice_.Pick(program_->Documents());
    PostMessageA(document, WM_SYSCOMMAND, SC_CLOSE, 0);
    journal_.Note("close " + Describe(document));
    Settle();
  }
}

void Monkey::LeaveDialogs() {
  trouble_.Release();
  for (int tries = 0; program_->InMenu() || program_->Dialog(); ++tries) {
    constexpr int kMostTries = 50;
    if (tries == kMostTries) throw Fault("what is open does not close");
    if (program_->InMenu()) {
      input_.Key(program_->frame(), VK_ESCAPE);
    } else {
      // About has no Cancel, a question no harmless Yes.
      const HWND dialog = program_->Dialog();
      const auto hasButton = [dialog](int id) { return GetDlgItem(dialog, id) != nullptr; };
      PostMessageA(dialog, WM_COMMAND, hasButton(IDCANCEL) ? IDCANCEL : hasButton(IDNO) ? IDNO : IDOK, 0);
    }
    Settle();
  }
}

void Monkey::Rest() {
  LeaveDialogs();
  journal_.Note("rest");
  PostMessageA(program_->frame(), WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  Settle();
  if (!program_->Documents().empty()) throw Fault("documents stay open after Close All");
  lastRest_ = program_->Measure();
  if (!rested_) firstRest_ = lastRest_;
  rested_ = true;
}

void Monkey::Finish() {
  Rest();
  secondCopy_.reset();
  journal_.Note("end");
  program_->Exit();
  program_ = std::make_unique<RunningProgram>(programFolder_);
  journal_.Note("start and end once more");
  program_->Settle();
  program_->Exit();
  if (const std::string faults = trouble_.Judge(); !faults.empty()) throw Fault("settings are damaged: " + faults);
}
