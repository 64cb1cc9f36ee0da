#include "libraries/occasions/customs.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/named_days.h"

namespace occasions {
namespace {

constexpr std::string_view kEat = "chametz-eat-";
constexpr std::string_view kBurn = "chametz-burn-";

// The words of a key in the order of its values.
constexpr const char* kLands[] = {"AsReadings", "Diaspora", "Israel"};
constexpr const char* kChanukahRules[] = {"Sunset", "Nightfall", "HalfTwilight", "Minutes"};
constexpr const char* kSelichot[] = {"Ashkenazi", "Sephardi"};

template <typename Value, size_t count>
Value ValueOf(const std::string& word, const char* const (&words)[count], Value defaultValue) {
  const auto* const found = std::find(std::begin(words), std::end(words), word);
  return found == std::end(words) ? defaultValue : static_cast<Value>(found - std::begin(words));
}

std::optional<int32_t> NumberIn(std::string_view text) {
  int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 0 || number > kMostMinutes) return {};
  return number;
}

const hours::CatalogueZman* ZmanOfKind(std::string_view id, hours::Kind kind) {
  const hours::CatalogueZman* const zman = hours::FindInCatalogue(id);
  return zman && zman->kind == kind ? zman : nullptr;
}

bool IsNightfall(std::string_view id) {
  return MinutesOfId(id) || ZmanOfKind(id, hours::Kind::kNightfall);
}

bool IsAuthority(const std::string& authority) {
  return hours::FindInCatalogue(std::string(kEat) + authority) != nullptr;
}

uint32_t HiddenIn(std::string_view ids) {
  uint32_t hidden = 0;
  for (int kind = 0; kind < kKinds; ++kind) {
    const std::string id = std::string(",") + IdOf(static_cast<Kind>(kind)) + ",";
    if (("," + std::string(ids) + ",").find(id) != std::string::npos) hidden |= 1u << kind;
  }
  return hidden;
}

std::string HiddenText(uint32_t hidden) {
  std::string text;
  for (int kind = 0; kind < kKinds; ++kind) {
    if (hidden >> kind & 1) text += (text.empty() ? "" : ",") + std::string(IdOf(static_cast<Kind>(kind)));
  }
  return text;
}

// "MGA, 72 min" of "Latest Eating of Chametz (MGA, 72 min)".
std::string InBrackets(std::string_view description) {
  const size_t from = description.find('(') + 1;
  return std::string(description.substr(from, description.rfind(')') - from));
}

std::vector<Choice> ChoicesOfKind(hours::Kind kind) {
  std::vector<Choice> choices;
  for (const hours::CatalogueZman& zman : hours::Catalogue()) {
    if (zman.kind == kind) choices.push_back({zman.id, std::string(zman.description) + ": " + zman.authority});
  }
  return choices;
}

}  // namespace

std::optional<int32_t> MinutesOfId(std::string_view id) {
  return id.starts_with(kMinutesId) ? NumberIn(id.substr(kMinutesId.size())) : std::nullopt;
}

Customs CustomsFrom(const ReadKey& read) {
  Customs customs;
  customs.land = ValueOf(read("Land"), kLands, customs.land);
  if (const std::string dawn = read("Dawn"); ZmanOfKind(dawn, hours::Kind::kDawn)) customs.dawn = dawn;
  if (const std::string nightfall = read("Nightfall"); IsNightfall(nightfall)) customs.nightfall = nightfall;
  if (const std::string ofAv = read("NightfallOfAv"); IsNightfall(ofAv)) customs.nightfallOfAv = ofAv;
  if (const std::string authority = read("Chametz"); IsAuthority(authority)) customs.chametz = authority;
  customs.chanukah = ValueOf(read("Chanukah"), kChanukahRules, customs.chanukah);
  customs.chanukahMinutes = NumberIn(read("ChanukahMinutes")).value_or(customs.chanukahMinutes);
  if (read("KiddushLevanaFrom") == "7") customs.kiddushLevanaFromDays = 7;
  if (read("KiddushLevanaUntil") == "15") customs.kiddushLevanaUntilHalfMonth = false;
  customs.selichot = ValueOf(read("Selichot"), kSelichot, customs.selichot);
  customs.hiddenKinds = HiddenIn(read("Hidden"));
  return customs;
}

std::vector<KeyValue> ValuesOf(const Customs& customs) {
  return {{"Land", kLands[static_cast<size_t>(customs.land)]},
          {"Dawn", customs.dawn},
          {"Nightfall", customs.nightfall},
          {"NightfallOfAv", customs.nightfallOfAv.empty() ? "AsOthers" : customs.nightfallOfAv},
          {"Chametz", customs.chametz},
          {"Chanukah", kChanukahRules[static_cast<size_t>(customs.chanukah)]},
          {"ChanukahMinutes", std::to_string(customs.chanukahMinutes)},
          {"KiddushLevanaFrom", std::to_string(customs.kiddushLevanaFromDays)},
          {"KiddushLevanaUntil", customs.kiddushLevanaUntilHalfMonth ? "HalfMonth" : "15"},
          {"Selichot", kSelichot[static_cast<size_t>(customs.selichot)]},
          {"Hidden", HiddenText(customs.hiddenKinds)}};
}

calendar::Land LandOf(const Customs& customs, calendar::Land landOfReadings) {
  if (customs.land == LandChoice::kAsReadings) return landOfReadings;
  return customs.land == LandChoice::kIsrael ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
}

bool IsShown(const Customs& customs, const Row& row) {
  for (const Kind kind : {KindOf(row.occasion), Kind::kShabbat, Kind::kYomTov}) {
    if (IsShown(customs, kind) && IsOfKind(row, kind)) return true;
  }
  return false;
}

std::vector<Choice> DawnChoices() {
  return ChoicesOfKind(hours::Kind::kDawn);
}

std::vector<Choice> NightfallChoices() {
  return ChoicesOfKind(hours::Kind::kNightfall);
}

std::vector<Choice> ChametzChoices() {
  std::vector<Choice> choices;
  for (const hours::CatalogueZman& zman : hours::Catalogue()) {
    const std::string_view id = zman.id;
    if (!id.starts_with(kEat)) continue;
    choices.push_back({std::string(id.substr(kEat.size())), InBrackets(zman.description) + ": " + zman.authority});
  }
  return choices;
}

hours::Definition DawnOf(const Customs& customs) {
  const hours::CatalogueZman* const zman = ZmanOfKind(customs.dawn, hours::Kind::kDawn);
  return zman ? zman->definition : hours::FindInCatalogue(Customs().dawn)->definition;
}

hours::Definition NightfallOf(const std::string& id) {
  if (const std::optional<int32_t> minutes = MinutesOfId(id)) {
    return {{hours::Both(hours::Minutes(*minutes)), hours::kDayThousandthHours}, hours::Rounding::kUp};
  }
  const hours::CatalogueZman* const zman = ZmanOfKind(id, hours::Kind::kNightfall);
  return zman ? zman->definition : hours::FindInCatalogue(Customs().nightfall)->definition;
}

hours::Definition EatingChametz(const Customs& customs) {
  const std::string authority = IsAuthority(customs.chametz) ? customs.chametz : Customs().chametz;
  return hours::FindInCatalogue(std::string(kEat) + authority)->definition;
}

hours::Definition BurningChametz(const Customs& customs) {
  const std::string authority = IsAuthority(customs.chametz) ? customs.chametz : Customs().chametz;
  return hours::FindInCatalogue(std::string(kBurn) + authority)->definition;
}

std::string NameOfZman(const std::string& id, bool hebrew) {
  const hours::CatalogueZman* const zman = hours::FindInCatalogue(id);
  if (!zman) return "";
  return hebrew ? zman->hebrew : zman->description;
}

std::string OpinionOfChametz(const Customs& customs, bool hebrew) {
  const std::string authority = IsAuthority(customs.chametz) ? customs.chametz : Customs().chametz;
  return InBrackets(NameOfZman(std::string(kEat) + authority, hebrew));
}

}  // namespace occasions
