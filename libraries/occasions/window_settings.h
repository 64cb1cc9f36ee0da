// What "occasions.ini" keeps beside the customs and the window's size: what the window showed last.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "libraries/occasions/shown_days.h"
#include "publishing/core/page_setup.h"

namespace occasions {

enum class Format : uint8_t { kCalendar, kCsv, kHtml, kRtf, kText };
constexpr int kFormats = static_cast<int>(Format::kText) + 1;

struct WindowChoice {
  Span span = Span::kRange;
  bool hebrew = false;
  bool candlesAlone = false;  // of what is printed or saved
  Format format = Format::kCalendar;
  publishing::PageSetup pageSetup;

  bool operator==(const WindowChoice&) const = default;
};

WindowChoice StoredWindowChoice();

// Writes what differs from what is stored. That it cannot be written is not worth a word: nothing else depends on it.
void KeepWindowChoice(const WindowChoice& choice);

// The settings file's full path, for messages.
std::wstring SettingsPath();

}  // namespace occasions
