// What the monkey does while a dialog or a message box is open.
#include <algorithm>
#include <vector>

#include "tests/monkey/monkey.h"

namespace {

constexpr std::size_t kStepsToLeave = 60;  // then it wants out, so that it gets to everything
constexpr std::size_t kMostSteps = 400;

// The name in the system's dialogs for files. Wine's copies a path of any length into one of MAX_PATH characters.
constexpr int kFileName = 1148;
constexpr std::size_t kLongestFileName = 60;

bool HasButtonThatLeadsOut(const std::vector<HWND>& controls) {
  for (const HWND control : controls) {
    if (LeadsOut(control)) return true;
  }
  return false;
}

// No user gets at what a disabled window contains.
bool IsWithinReach(HWND control, HWND dialog) {
  for (HWND window = control; window && window != dialog; window = GetParent(window)) {
    if (!IsWindowEnabled(window)) return false;
  }
  return true;
}

}  // namespace

std::string Monkey::ActInMessageBox(HWND box) {
  std::vector<HWND> buttons;
  for (const HWND control : VisibleDescendants(box)) {
    if (ClassOf(control) == "Button") buttons.push_back(control);
  }
  if (buttons.empty() || dice_.Chance(20)) return input_.Key(box, VK_ESCAPE);
  const std::string what = Describe(box);
  return input_.ClickButton(dice_.Pick(buttons)) + " in " + what;
}

// The old text is selected and typed over, as a user would, or stays.
std::string Monkey::FillField(HWND field) {
  const std::string old = TextOf(field);
  const bool isDate = std::count(old.begin(), old.end(), '.') == 2;
  std::wstring text = isDate && dice_.Chance(70) ? input_.AnyDate() : input_.AnyText();
  if (GetDlgCtrlID(field) == kFileName) text.resize(std::min(text.size(), kLongestFileName));
  if (dice_.Chance(90)) PostMessageA(field, EM_SETSEL, 0, -1);
  if (text.empty()) return input_.Key(field, VK_DELETE);
  return input_.Characters(field, text);
}

std::string Monkey::ActInDialog(HWND dialog) {
  if (++stepsInDialog_ > kMostSteps) throw Fault("the dialog cannot be left: " + Describe(dialog));
  std::vector<HWND> fields;
  std::vector<HWND> buttons;
  std::vector<HWND> others;
  const std::vector<HWND> controls = VisibleDescendants(dialog);
  for (const HWND control : controls) {
    if (!IsWithinReach(control, dialog) || LeadsOut(control)) continue;
    const std::string className = ClassOf(control);
    if (className == "Edit") {
      fields.push_back(control);
    } else if (className == "Button") {
      buttons.push_back(control);
    } else if (className != "Static") {
      others.push_back(control);
    }
  }
  if (fields.empty() && others.empty() && buttons.size() <= 3) return ActInMessageBox(dialog);
  const auto command = [dialog](WPARAM id) {
    PostMessageA(dialog, WM_COMMAND, id, 0);
    return "command " + std::to_string(id) + " to " + Describe(dialog);
  };
  const int kind = dice_.Between(1, 100);
  if (stepsInDialog_ > kStepsToLeave) return command(dice_.Chance(70) ? IDCANCEL : IDOK);
  if (kind <= 6) return command(IDOK);
  if (kind <= 9) return command(IDCANCEL);
  if (kind <= 11) return input_.Key(dialog, VK_ESCAPE);
  if (kind <= 40 && !fields.empty()) return FillField(dice_.Pick(fields));
  if (kind <= 60 && !buttons.empty()) return input_.ClickButton(dice_.Pick(buttons));
  if (kind <= 75 && !others.empty()) {
    const HWND control = dice_.Pick(others);
    return dice_.Chance(70) ? input_.AnyMouse(control) : input_.AnyKey(control);
  }
  // Keys travel to a button that leads out, and Return or a blank presses it; the dialogs that have one get no keys.
  if (HasButtonThatLeadsOut(controls)) return FillField(fields.front());
  return Touch();
}
