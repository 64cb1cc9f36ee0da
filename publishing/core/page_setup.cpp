#include "publishing/core/page_setup.h"

#include <charconv>

namespace publishing {
namespace {

constexpr int kMostPaper = 0xFFFF;

constexpr int kMostOrientation = static_cast<int>(Orientation::kLandscape);

// Takes a number and the blanks after it off a text.
bool TakeNumber(std::string_view& text, int most, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || number < 0 || number > most) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  const std::size_t next = text.find_first_not_of(' ');
  if (next == 0) return false;
  text.remove_prefix(next == std::string_view::npos ? text.size() : next);
  return true;
}

}  // namespace

PageMargins MarginsOf(const PageSetup& setup, const PageMargins& usual) {
  return setup.margins.value_or(usual);
}

std::string TextOf(const PageSetup& setup) {
  std::string text = std::to_string(static_cast<int>(setup.orientation)) + ' ' + std::to_string(setup.paper);
  if (!setup.margins) return text;
  for (const int margin : {setup.margins->left, setup.margins->top, setup.margins->right, setup.margins->bottom}) {
    text += ' ' + std::to_string(margin);
  }
  return text;
}

PageSetup PageSetupOf(std::string_view text) {
  int orientation = 0;
  PageSetup setup;
  if (!TakeNumber(text, kMostOrientation, orientation) || !TakeNumber(text, kMostPaper, setup.paper)) return {};
  setup.orientation = static_cast<Orientation>(orientation);
  if (text.empty()) return setup;
  PageMargins margins;
  for (int* const margin : {&margins.left, &margins.top, &margins.right, &margins.bottom}) {
    if (!TakeNumber(text, kMostMargin, *margin)) return {};
  }
  setup.margins = margins;
  return text.empty() ? setup : PageSetup{};
}

}  // namespace publishing
