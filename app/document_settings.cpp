#include "app/document_settings.h"

#include <algorithm>

#include "app/core/chosen_names.h"
#include "companion/profile.h"
#include "engine/settings_flags.h"
#include "engine/unread_settings.h"
#include "publishing/printer.h"

namespace {

constexpr char kSection[] = "Document";
constexpr uint32_t kLongestValue = 16384;  // a hundred descriptions of 48 bytes and more

std::string Read(const char* key) {
  std::string text(kLongestValue, '\0');
  text.resize(ProfileGetString(kSection, key, "", text.data(), kLongestValue, kFlagsFile));
  return text;
}

int32_t ReadNumber(const char* key, int32_t usual) {
  return ProfileGetInt(kSection, key, usual, kFlagsFile);
}

// A number that stands for none of the values is the first.
template <typename Value>
Value ReadChoice(const char* key, Value last) {
  const int32_t number = ReadNumber(key, 0);
  return number >= 0 && number <= static_cast<int32_t>(last) ? static_cast<Value>(number) : Value{};
}

// For zmanim alone all are wanted at first, and those that the user selects later too: what is left out is remembered.
constexpr bool IsByLeftOut(DocumentKind kind) {
  return kind == DocumentKind::kZmanim;
}

const char* ZmanimKey(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::kWeeks: return "ZmanimOfWeeks";
    case DocumentKind::kDays: return "ZmanimOfDays";
    default: return "ZmanimLeftOut";
  }
}

std::vector<uint32_t> AllBut(std::size_t count, const std::vector<uint32_t>& leftOut) {
  std::vector<uint32_t> rest;
  for (uint32_t zman = 0; zman < count; ++zman) {
    if (!std::ranges::binary_search(leftOut, zman)) rest.push_back(zman);
  }
  return rest;
}

}  // namespace

DocumentSettings::DocumentSettings() {
  const char* const files[] = {kFlagsFile};
  mayStore_ = UnreadSettings(files).empty();
}

void DocumentSettings::Store(const char* key, const std::string& value) const {
  if (mayStore_ && Read(key) != value) ProfileWriteString(kSection, key, value.c_str(), kFlagsFile);
}

DocumentKind DocumentSettings::Kind(bool forPaper) const {
  return forPaper ? ReadChoice("PrintedKind", DocumentKind::kDoorPage) : ReadChoice("Kind", DocumentKind::kReadings);
}
void DocumentSettings::SetKind(bool forPaper, DocumentKind kind) const {
  StoreNumber(forPaper ? "PrintedKind" : "Kind", static_cast<int64_t>(kind));
}

std::optional<uint32_t> DocumentSettings::Language() const {
  const int32_t code = ReadNumber("Language", 0);
  if (code <= 0) return std::nullopt;
  return static_cast<uint32_t>(code);
}
void DocumentSettings::SetLanguage(std::optional<uint32_t> language) const {
  StoreNumber("Language", language.value_or(0));
}

std::vector<uint32_t> DocumentSettings::Zmanim(DocumentKind kind, const std::vector<DocumentZman>& zmanim) const {
  const std::string stored = Read(ZmanimKey(kind));
  const std::vector<uint32_t> named = ZmanimNamed(zmanim, SplitNames(stored));
  if (IsByLeftOut(kind)) return AllBut(zmanim.size(), named);
  // Names of another selection alone say nothing about this one.
  const bool isOfAnother = named.empty() && !SplitNames(stored).empty();
  return stored.empty() || isOfAnother ? UsualZmanim(zmanim) : named;
}

void DocumentSettings::SetZmanim(DocumentKind kind, const std::vector<DocumentZman>& zmanim,
                                 const std::vector<uint32_t>& chosen) const {
  std::vector<std::string> names = NamesOfOthers(zmanim, SplitNames(Read(ZmanimKey(kind))));
  for (const uint32_t zman : IsByLeftOut(kind) ? AllBut(zmanim.size(), chosen) : chosen) {
    names.push_back(zmanim[zman].english);
  }
  Store(ZmanimKey(kind), JoinedNames(names));
}

bool DocumentSettings::Occasions() const {
  return ReadNumber("Occasions", 1) != 0;
}
void DocumentSettings::SetOccasions(bool occasions) const {
  StoreNumber("Occasions", occasions ? 1 : 0);
}

DocumentType DocumentSettings::Type() const {
  return ReadChoice("Type", DocumentType::kText);
}
void DocumentSettings::SetType(DocumentType type) const {
  StoreNumber("Type", static_cast<int64_t>(type));
}

publishing::PaperSize DocumentSettings::Paper() const {
  if (Read("Paper").empty())
    return publishing::IsLetterUsual() ? publishing::PaperSize::kLetter : publishing::PaperSize::kA4;
  return ReadChoice("Paper", publishing::PaperSize::kLetter);
}
void DocumentSettings::SetPaper(publishing::PaperSize paper) const {
  StoreNumber("Paper", static_cast<int64_t>(paper));
}

publishing::Orientation DocumentSettings::PaperOrientation() const {
  return ReadChoice("Orientation", publishing::Orientation::kLandscape);
}
void DocumentSettings::SetPaperOrientation(publishing::Orientation orientation) const {
  StoreNumber("Orientation", static_cast<int64_t>(orientation));
}

bool DocumentSettings::IsoDates() const {
  return ReadNumber("IsoDates", 0) != 0;
}
void DocumentSettings::SetIsoDates(bool isoDates) const {
  StoreNumber("IsoDates", isoDates ? 1 : 0);
}

int32_t DocumentSettings::ReminderMinutes() const {
  return std::clamp(ReadNumber("Reminder", 0), 0, kMostReminderMinutes);
}
void DocumentSettings::SetReminderMinutes(int32_t minutes) const {
  StoreNumber("Reminder", minutes);
}

DoorYear DocumentSettings::Year() const {
  return ReadChoice("Year", DoorYear::kCivil);
}
void DocumentSettings::SetYear(DoorYear year) const {
  StoreNumber("Year", static_cast<int64_t>(year));
}

std::string DocumentSettings::PageSetup() const {
  return Read("PageSetup");
}
void DocumentSettings::SetPageSetup(const std::string& setup) const {
  Store("PageSetup", setup);
}
