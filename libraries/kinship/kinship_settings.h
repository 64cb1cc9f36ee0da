// What "kinship.ini" keeps beside the window's size.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "libraries/persons/person.h"

namespace kinship {

constexpr char kSettingsFile[] = "kinship.ini";

// The file's full path, for messages.
std::wstring SettingsPath();

// The Adar in which yahrzeit is kept in leap years. Rema, Orach Chaim 568:7: the first.
persons::AdarCustom StoredCustom();
bool StoreCustom(persons::AdarCustom custom);

// What a new entry offers: as in the last one that was added.
struct LastEntry {
  persons::Kind kind = persons::Kind::kBirthday;
  persons::Calendar calendar = persons::Calendar::kGregorian;
};
LastEntry StoredLastEntry();
void KeepLastEntry(const LastEntry& last);

enum class Format : uint8_t { kText, kRtf, kCsv, kCalendar };
constexpr int kFormats = 4;
constexpr int32_t kMostExportedYears = 100;

struct ExportChoice {
  Format format = Format::kText;
  bool all = true;  // not only those that the list shows
  int32_t years = 10;
};
ExportChoice StoredExportChoice();
void KeepExportChoice(const ExportChoice& choice);

// The font as chosen; none where none is, or where it is gone. Its height is in pixels of the screen.
std::optional<LOGFONTW> StoredFont();
bool StoreFont(const LOGFONTW& font);
// Of a height in pixels of the screen.
int HalfPointsOf(const LOGFONTW& font);

}  // namespace kinship
