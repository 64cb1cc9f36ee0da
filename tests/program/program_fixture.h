// What every test of the program's windows starts from: fresh doubles, registered window classes, a known place and
// range.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "shabbat/core/shabbat_record.h"
#include "tests/doubles/bound_doubles.h"
#include "tests/doubles/call_log.h"
#include "tests/doubles/library_doubles.h"
#include "tests/doubles/system_calls.h"

class ProgramTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A frame with an MDI client and its first document, as start-up makes it.
  HWND OpenFrame();

  HWND frame_ = nullptr;
};

void DispatchPendingMessages();

std::string TextOf(HWND window);
std::string ClassOf(HWND window);

// The document windows of the frame.
int CountDocuments();

// The calls of the log that start with a prefix.
std::vector<std::string> CallsWith(const std::string& prefix);

// The entries of the document's list of Shabbat times.
std::vector<ShabbatTimeEntry> ShabbatTimesOf(HWND document);

// Paints a pane afresh and answers what it drew.
std::vector<Draw> DrawsOf(HWND pane);
