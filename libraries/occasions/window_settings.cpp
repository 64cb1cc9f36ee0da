#include "libraries/occasions/window_settings.h"

#include <algorithm>
#include <iterator>

#include "companion/profile.h"
#include "libraries/occasions/customs.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace occasions {
namespace {

constexpr char kSection[] = "Window";
constexpr char kDays[] = "Days";
constexpr char kHebrew[] = "HebrewNames";  // 0, 1
constexpr char kCandles[] = "CandlesAlone";
constexpr char kFormat[] = "Format";
constexpr char kPageSetup[] = "PageSetup";

// In the order of Span, and of Format.
constexpr const char* kSpanWords[kSpans] = {"Range", "JewishYear", "CivilYear"};
constexpr const char* kFormatWords[kFormats] = {"ics", "csv", "html", "rtf", "txt"};

std::string Text(const char* key) {
  char text[200];
  ProfileGetString(kSection, key, "", text, sizeof text, kCustomsFile);
  return text;
}

template <typename Value, size_t count>
Value ValueOf(const char* key, const char* const (&words)[count], Value otherwise) {
  const auto* const found = std::find(std::begin(words), std::end(words), Text(key));
  return found == std::end(words) ? otherwise : static_cast<Value>(found - std::begin(words));
}

void Keep(const char* key, const std::string& text) {
  if (Text(key) != text) ProfileWriteString(kSection, key, text.c_str(), kCustomsFile);
}

}  // namespace

WindowChoice StoredWindowChoice() {
  WindowChoice choice;
  choice.span = ValueOf(kDays, kSpanWords, choice.span);
  choice.hebrew = Text(kHebrew) == "1";
  choice.candlesAlone = Text(kCandles) == "1";
  choice.format = ValueOf(kFormat, kFormatWords, choice.format);
  choice.pageSetup = publishing::PageSetupOf(Text(kPageSetup));
  return choice;
}

void KeepWindowChoice(const WindowChoice& choice) {
  if (choice == StoredWindowChoice()) return;
  Keep(kDays, kSpanWords[static_cast<size_t>(choice.span)]);
  Keep(kHebrew, choice.hebrew ? "1" : "0");
  Keep(kCandles, choice.candlesAlone ? "1" : "0");
  Keep(kFormat, kFormatWords[static_cast<size_t>(choice.format)]);
  Keep(kPageSetup, publishing::TextOf(choice.pageSetup));
}

std::wstring SettingsPath() {
  return settings_folder::PathNow(settings_folder::Wide(kCustomsFile));
}

}  // namespace occasions
