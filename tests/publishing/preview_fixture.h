// A preview that a test looks at and works.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "publishing/preview_ids.h"
#include "publishing/preview_window.h"
#include "tests/contract/dialog_driver.h"
#include "tests/publishing/spooler_double.h"

// Rows of names in three scripts, of which each is there once: "Reuben 017", "ראובן 017", "Рувим 017".
publishing::Table TableOfNames(int rows);

class PreviewTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Opens the preview of a table and waits for it.
  HWND Open(publishing::Table table, publishing::PaperLayout layout = publishing::PaperLayout::kTable);
  void Close();

  // As a key is pressed there, until the page has this number: "Page 2 of 5".
  bool LeafsTo(HWND control, WPARAM key, const std::wstring& number) const;
  HWND Control(int id) const { return GetDlgItem(preview_, id); }
  std::wstring Number() const { return ControlText(preview_, IDC_PREVIEW_NUMBER); }

  std::unique_ptr<DialogDriver> run_;
  HWND preview_ = nullptr;
  publishing::Table table_;
  publishing::PageSetup setup_;  // what the preview is given, and what it leaves
};
