// What a user chooses for paper, and its form in the settings.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "publishing/core/orientation.h"

namespace publishing {

// In 1/100 mm, from the sheet's edges.
struct PageMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  friend bool operator==(const PageMargins&, const PageMargins&) = default;
};

constexpr PageMargins kUsualMargins = {1905, 1905, 1905, 1905};    // 3/4 inch
constexpr PageMargins kOnePageMargins = {1270, 1270, 1270, 1270};  // 1/2 inch: the usual ones where all is on one page

// No margin is wider.
constexpr int kMostMargin = 20000;

struct PageSetup {
  Orientation orientation = Orientation::kAutomatic;
  int paper = 0;  // by the system's numbers of papers (DMPAPER_LETTER is 1, DMPAPER_A4 9); 0: the printer's own
  std::optional<PageMargins> margins = {};  // none: the usual ones
  friend bool operator==(const PageSetup&, const PageSetup&) = default;
};

// The margins that hold.
PageMargins MarginsOf(const PageSetup& setup, const PageMargins& usual);

// For a settings file: orientation and paper as numbers, and the four margins where they are chosen, "2 9 1500 1500
// 1500 1500".
std::string TextOf(const PageSetup& setup);

// A text that is none of these gives what holds without a choice.
PageSetup PageSetupOf(std::string_view text);

}  // namespace publishing
