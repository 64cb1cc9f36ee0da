#include "libraries/lections/settings.h"

#include <charconv>
#include <iterator>
#include <system_error>

#include "libraries/lections/language.h"

namespace lections {
namespace {

using calendar::Land;

template <typename T>
struct Named {
  const char* name;
  T value;
};

constexpr Named<Land> kLands[] = {{"Israel", Land::kIsrael}, {"Diaspora", Land::kDiaspora}};
constexpr Named<Customs> kCustoms[] = {
    {"Ashkenazi", Customs::kAshkenazi}, {"Sephardi", Customs::kSephardi}, {"Both", Customs::kBoth}};
constexpr Named<bool> kSwitches[] = {{"0", false}, {"1", true}};

constexpr char kLand[] = "Land";
constexpr char kCustom[] = "Custom";
constexpr char kLanguage[] = "Language";
constexpr char kOwnNumbers[] = "OwnNumbers";

// A number made of settings: a mark, which tells one kind of packing from others, then the switches in the order of
// kSwitchKeys, the customs and the land in the lowest bit. Whoever adds a setting takes another mark.
constexpr uint32_t kChoiceMark = 0x4C310000;
constexpr unsigned kLandBits = 1;
constexpr unsigned kCustomsBits = 2;
constexpr unsigned kFirstSwitchBit = kLandBits + kCustomsBits;

struct Switch {
  const char* key;
  bool& (*of)(Settings& settings);
};
constexpr Switch kSwitchKeys[] = {
    {"Chabad", [](Settings& settings) -> bool& { return settings.chabad; }},
    {"Verses", [](Settings& settings) -> bool& { return settings.verses; }},
    {"NewMonth", [](Settings& settings) -> bool& { return settings.newMonth; }},
    {"MondayThursday", [](Settings& settings) -> bool& { return settings.optional.mondayAndThursday; }},
    {"ShabbatAfternoon", [](Settings& settings) -> bool& { return settings.optional.shabbatAfternoon; }},
    {"Triennial", [](Settings& settings) -> bool& { return settings.optional.triennial; }},
};

template <typename T, size_t kCount>
void Take(const std::string& text, const Named<T> (&names)[kCount], T& value) {
  for (const Named<T>& named : names) {
    if (text == named.name) value = named.value;
  }
}

template <typename T, size_t kCount>
const char* NameOf(T value, const Named<T> (&names)[kCount]) {
  for (const Named<T>& named : names) {
    if (named.value == value) return named.name;
  }
  return "";
}

uint32_t LanguageFrom(const std::string& text) {
  uint32_t code = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, code);
  return LanguageOf(error == std::errc() && stop == end ? code : 0).code;
}

}  // namespace

Settings SettingsFrom(const ReadKey& read, Land landOfRegion) {
  Settings settings;
  settings.land = landOfRegion;
  Take(read(kLand), kLands, settings.land);
  Take(read(kCustom), kCustoms, settings.customs);
  for (const Switch& choice : kSwitchKeys) Take(read(choice.key), kSwitches, choice.of(settings));
  settings.language = LanguageFrom(read(kLanguage));
  Take(read(kOwnNumbers), kSwitches, settings.ownNumbers);
  return settings;
}

uint32_t ChoiceOf(const Settings& settings) {
  uint32_t choice = kChoiceMark | static_cast<uint32_t>(settings.land);
  choice |= static_cast<uint32_t>(settings.customs) << kLandBits;
  Settings copy = settings;
  unsigned bit = kFirstSwitchBit;
  for (const Switch& setting : kSwitchKeys) choice |= (setting.of(copy) ? 1u : 0u) << bit++;
  return choice;
}

Settings SettingsBy(uint32_t choice, const Settings& stored) {
  Settings settings = stored;
  settings.land = static_cast<Land>(choice % (1 << kLandBits));
  settings.customs = static_cast<Customs>((choice >> kLandBits) % (1 << kCustomsBits));
  unsigned bit = kFirstSwitchBit;
  for (const Switch& setting : kSwitchKeys) setting.of(settings) = (choice >> bit++) % 2 != 0;
  const bool isChoice = settings.customs <= Customs::kBoth && ChoiceOf(settings) == choice;
  return isChoice ? settings : stored;
}

std::vector<KeyValue> ValuesOf(const Settings& settings) {
  std::vector<KeyValue> values = {{kLand, NameOf(settings.land, kLands)},
                                  {kCustom, NameOf(settings.customs, kCustoms)},
                                  {kLanguage, std::to_string(settings.language)},
                                  {kOwnNumbers, NameOf(settings.ownNumbers, kSwitches)}};
  Settings copy = settings;
  for (const Switch& choice : kSwitchKeys) values.push_back({choice.key, NameOf(choice.of(copy), kSwitches)});
  return values;
}

}  // namespace lections
