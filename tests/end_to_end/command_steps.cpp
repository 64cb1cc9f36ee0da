#include "tests/end_to_end/command_steps.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned kSelectRange = 1002;
constexpr int kRangeStart = 101;
constexpr int kRangeEnd = 102;
// Of the system's dialog: cmb13 and cmb1.
constexpr int kSaveDialogFileName = 0x47C;
constexpr int kSaveDialogType = 0x470;

}  // namespace

HWND OpenRange(const ProgramRun& program, const std::string& start, const std::string& end) {
  program.WaitForDocuments(1);
  program.PostCommand(kSelectRange);
  const HWND dialog = program.WaitForDialog("Select Range");
  SetText(dialog, kRangeStart, start);
  SetText(dialog, kRangeEnd, end);
  Answer(dialog, IDOK);
  // The new one shows up before it comes to the top.
  const std::string range = " (" + start + " - " + end + ")";
  HWND document = nullptr;
  EXPECT_TRUE(program.Eventually([&] {
    const auto documents = program.WaitForDocuments(2);
    document = documents.empty() ? nullptr : documents.front();
    return TextOf(document).ends_with(range);
  })) << "no document"
      << range;
  return document;
}

void Answer(HWND box, int button) {
  PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

void SaveAs(const ProgramRun& program, const std::filesystem::path& file) {
  const HWND dialog = program.WaitForDialog("Save As");
  ASSERT_NE(dialog, nullptr);
  SetText(dialog, kSaveDialogFileName, file.string());
  Answer(dialog, IDOK);
}

int TypeToSave(const ProgramRun& program) {
  return static_cast<int>(SendDlgItemMessageA(program.WaitForDialog("Save As"), kSaveDialogType, CB_GETCURSEL, 0, 0));
}

void ChooseTypeToSave(const ProgramRun& program, int type) {
  const HWND dialog = program.WaitForDialog("Save As");
  const HWND types = GetDlgItem(dialog, kSaveDialogType);
  SendMessageA(types, CB_SETCURSEL, static_cast<WPARAM>(type), 0);
  // Systems differ in which of the two they listen to.
  for (const int notification : {CBN_SELENDOK, CBN_SELCHANGE}) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kSaveDialogType, notification), reinterpret_cast<LPARAM>(types));
  }
}

void CancelSaving(const ProgramRun& program) {
  const HWND dialog = program.WaitForDialog("Save As");
  Answer(dialog, IDCANCEL);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(dialog); }));
}

void AddHome(const ProgramRun& program) {
  program.PostCommand(1101);
  const HWND manager = program.WaitForDialog("Select Location");
  Click(manager, 102);
  const HWND editor = program.WaitForDialog("Add location");
  const std::pair<int, const char*> fields[] = {{101, "Home"}, {102, "32"}, {103, "49"}, {106, "34"},
                                                {107, "59"},   {110, "2"},  {200, "0"},  {300, "754"}};
  for (const auto& [field, text] : fields) SetText(editor, field, text);
  Click(editor, IDOK);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(editor); }));
  PostMessageA(manager, WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(manager); }));
}
