#include "libraries/lections/own_text.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "libraries/lections/encoded_text.h"
#include "libraries/settings_folder/text_table.h"

namespace lections {
namespace {

constexpr char kBar = '|';
constexpr size_t kColumns = 6;  // before the text
constexpr char kAll[] = "all";

// In the order of their enumerations.
constexpr const char* kSlots[] = {"torah 1", "torah 2", "torah 3", "haftarah 1", "haftarah 2", "haftarah 3", "extra"};
constexpr const char* kListings[] = {kAll, "Ashkenazi", "Sephardi", "several"};
constexpr const char* kLands[] = {kAll, "Israel", "diaspora"};
constexpr const char* kHows[] = {"instead", "after"};

constexpr char kHeading[] =
    "# Own texts of readings: days | place | land | customs | language | instead or after | text\r\n"
    "# portion Noach | haftarah 1 | diaspora | Sephardi | all | instead | Isaiah 54:1-10\r\n";

template <typename T, size_t kCount>
std::optional<T> NamedIn(std::string_view name, const char* const (&names)[kCount]) {
  const auto* const found = std::ranges::find(names, name);
  if (found == std::end(names)) return std::nullopt;
  return static_cast<T>(found - names);
}

std::optional<uint32_t> LanguageIn(std::string_view name) {
  if (name == kAll) return kAnyLanguage;
  for (const Language* language : Languages()) {
    if (name == language->name) return language->code;
  }
  return std::nullopt;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

size_t CharactersOf(std::string_view utf8) {
  return static_cast<size_t>(std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

bool IsMark(char c) {
  return c == '{' || c == '}' || c == '\\' || static_cast<unsigned char>(c) < ' ' || c == 0x7F;
}

CodePage PageOf(const OwnPlace& place, const Language& language) {
  return place.slot == Slot::kExtra ? CodePage::kWestern : language.codePage;
}

bool IsInNoLanguage(const OwnPlace& place, std::string_view text) {
  if (place.language != kAnyLanguage) return !IsEncodable(text, PageOf(place, LanguageOf(place.language)));
  return std::ranges::none_of(Languages(),
                              [&](const Language* language) { return IsEncodable(text, PageOf(place, *language)); });
}

// Takes the columns off a line; what remains is the text.
std::optional<std::array<std::string_view, kColumns>> TakeColumns(std::string_view& line) {
  std::array<std::string_view, kColumns> columns;
  for (std::string_view& column : columns) {
    const size_t bar = line.find(kBar);
    if (bar == std::string_view::npos) return std::nullopt;
    column = Trimmed(line.substr(0, bar));
    line.remove_prefix(bar + 1);
  }
  return columns;
}

}  // namespace

Listing ListingOf(const Settings& settings) {
  if (settings.customs == Customs::kBoth || settings.chabad) return Listing::kSeveral;
  return settings.customs == Customs::kAshkenazi ? Listing::kAshkenazi : Listing::kSephardi;
}

bool IsFor(const OwnPlace& place, const Settings& settings) {
  const InLand land = settings.land == calendar::Land::kIsrael ? InLand::kIsrael : InLand::kDiaspora;
  return (place.land == InLand::kAny || place.land == land) &&
         (place.listing == Listing::kAny || place.listing == ListingOf(settings)) &&
         (place.language == kAnyLanguage || place.language == settings.language);
}

std::vector<const Language*> LanguagesWithout(const OwnPlace& place, std::string_view text) {
  std::vector<const Language*> without;
  for (const Language* language : Languages()) {
    const bool isOfPlace = place.language == kAnyLanguage || place.language == language->code;
    if (isOfPlace && !IsEncodable(text, PageOf(place, *language))) without.push_back(language);
  }
  return without;
}

Fault FaultOf(const OwnPlace& place, const OwnText& text) {
  if (std::ranges::any_of(text.text, IsMark)) return Fault::kMark;
  if (CharactersOf(text.text) > kLongestOwnText) return Fault::kTooLong;
  if (IsInNoLanguage(place, text.text)) return Fault::kLetters;
  const bool isGone = text.how == How::kInstead && Trimmed(text.text).empty();
  return isGone && place.slot == Slot::kTorah1 ? Fault::kNoTitle : Fault::kNone;
}

std::string FirstMissing(std::string_view text, CodePage page) {
  while (!text.empty()) {
    size_t length = 1;
    while (length < text.size() && (text[length] & 0xC0) == 0x80) ++length;
    const std::string_view character = text.substr(0, length);
    if (!IsEncodable(character, page)) return std::string(character);
    text.remove_prefix(length);
  }
  return {};
}

std::optional<OwnEntry> OwnEntryIn(std::string_view line) {
  if (line.starts_with('#')) return std::nullopt;
  const auto columns = TakeColumns(line);
  if (!columns) return std::nullopt;
  const auto& [days, slotName, landName, listingName, languageName, howName] = *columns;
  const auto slot = NamedIn<Slot>(slotName, kSlots);
  const auto land = NamedIn<InLand>(landName, kLands);
  const auto listing = NamedIn<Listing>(listingName, kListings);
  const auto language = LanguageIn(languageName);
  const auto how = NamedIn<How>(howName, kHows);
  const std::optional<std::string> text = settings_folder::PercentDecoded(Trimmed(line));
  if (!slot || !land || !listing || !language || !how || !text) return std::nullopt;
  const std::optional<When> when = WhenIn(days);
  if (!when) return std::nullopt;
  OwnEntry entry = {{*when, *slot, *language, *listing, *land}, {*how, *text}};
  if (FaultOf(entry.place, entry.text) != Fault::kNone) return std::nullopt;
  return entry;
}

std::string LineOf(const OwnEntry& entry) {
  const OwnPlace& place = entry.place;
  const std::string_view language = place.language == kAnyLanguage ? kAll : LanguageOf(place.language).name;
  std::string line = KeyOf(place.when);
  for (const std::string_view column : {std::string_view(kSlots[static_cast<size_t>(place.slot)]),
                                        std::string_view(kLands[static_cast<size_t>(place.land)]),
                                        std::string_view(kListings[static_cast<size_t>(place.listing)]), language,
                                        std::string_view(kHows[static_cast<size_t>(entry.text.how)])}) {
    line.append(" | ").append(column);
  }
  return line + " | " + settings_folder::PercentCoded(entry.text.text);
}

OwnFile OwnFileIn(std::string_view text) {
  OwnFile file;
  text.remove_prefix(settings_folder::MarkLength(text));
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = settings_folder::TakeLine(text).content;
    if (std::optional<OwnEntry> entry = OwnEntryIn(line)) {
      file.texts.insert_or_assign(entry->place, std::move(entry->text));
    } else if (!Trimmed(line).empty() && !line.starts_with('#')) {
      file.damagedLines.push_back(number);
    }
  }
  return file;
}

std::string Applied(const OwnChanges& changes, std::string_view text) {
  const std::string heading = text.empty() ? kHeading : "";
  return settings_folder::ChangedTable<OwnEntry, OwnChanges>(changes, OwnEntryIn, LineOf)
      .Applied(heading.empty() ? text : heading);
}

}  // namespace lections
