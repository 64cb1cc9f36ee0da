#include "tests/publishing/preview_fixture.h"

#include <cstdio>
#include <utility>

#include "tests/contract/picker_driver.h"

publishing::Table TableOfNames(int rows) {
  publishing::Table table = {.title = "Persons",
                             .remarks = {"of three scripts"},
                             .columns = {{"Name"}, {"שם"}, {"Имя"}, {"Years", publishing::Align::kEnd}}};
  std::vector<std::vector<std::string>> texts;
  for (int row = 1; row <= rows; ++row) {
    char number[16];
    std::snprintf(number, sizeof number, " %03d", row);
    texts.push_back({std::string("Reuben") + number, std::string("ראובן") + number, std::string("Рувим") + number,
                     std::to_string(4000 + row)});
  }
  table.rows = publishing::ListedTexts(std::move(texts));
  return table;
}

void PreviewTest::SetUp() {
  ResetSpooler();
}

void PreviewTest::TearDown() {
  if (run_) Close();
}

HWND PreviewTest::Open(publishing::Table table, publishing::PaperLayout layout) {
  table_ = std::move(table);
  run_ = std::make_unique<DialogDriver>([this, layout](HWND owner) {
    LOGFONTW font = {};
    font.lfHeight = -13;
    wcscpy(font.lfFaceName, L"Times New Roman");
    publishing::PreviewTable(owner, {table_, font, L"Names", layout}, setup_);
    return 0;
  });
  preview_ = run_->WaitFor(L"Names - Print Preview");
  return preview_;
}

void PreviewTest::Close() {
  Press(preview_, IDCANCEL);
  run_->Result();
  run_.reset();
}

bool PreviewTest::LeafsTo(HWND control, WPARAM key, const std::wstring& number) const {
  PressKey(control, key);
  return Eventually([&] { return Number() == number; });
}
