#include "libraries/lections/own_preview.h"

#include <array>
#include <utility>

#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/reading_names.h"
#include "libraries/lections/reading_texts.h"

namespace lections {
namespace {

using calendar::Date;

std::string Joined(const std::array<std::string, 3>& slots, CodePage page) {
  std::string text;
  for (const std::string& slot : slots) {
    if (!slot.empty()) text += (text.empty() ? "" : " / ") + Decoded(slot, page);
  }
  return text;
}

void AddLines(const char* name, const std::array<std::string, 3>& slots, CodePage page, std::string& lines) {
  for (const std::string& slot : slots) {
    if (!slot.empty()) lines += name + Decoded(slot, page) + "\n";
  }
}

}  // namespace

Settings SettingsFor(const OwnPlace& place, const Settings& settings) {
  Settings seen = settings;
  if (place.language != kAnyLanguage) seen.language = place.language;
  if (place.land != InLand::kAny) {
    seen.land = place.land == InLand::kIsrael ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
  }
  if (place.listing == Listing::kAny || place.listing == ListingOf(settings)) return seen;
  constexpr std::array kCustoms = {Customs::kBoth, Customs::kAshkenazi, Customs::kSephardi, Customs::kBoth};
  seen.customs = kCustoms[static_cast<size_t>(place.listing)];
  seen.chabad = false;
  return seen;
}

std::string LinesOf(const ReadingTexts& texts, const Language& language) {
  std::string lines;
  AddLines("Torah: ", texts.torah, language.codePage, lines);
  AddLines("Haftarah: ", texts.haftarot, language.codePage, lines);
  if (!texts.additional.empty()) lines += "Note: " + Decoded(texts.additional, CodePage::kWestern) + "\n";
  return lines;
}

std::string DateText(int32_t day) {
  const Date jewish = calendar::JewishFromAbsolute(day);
  return CivilDateText(day) + ", " + std::to_string(jewish.day) + " " +
         calendar::JewishMonthName(jewish.month, jewish.year, calendar::kEnglish) + " " + std::to_string(jewish.year);
}

std::string PreviewOf(const std::vector<int32_t>& days, const Settings& settings, const OwnReadings& own) {
  const Language& language = LanguageOf(settings.language);
  std::string text;
  for (const int32_t day : days) {
    if (!text.empty()) text += "\n";
    text += DateText(day) + "\n" + LinesOf(TextsOn(calendar::JewishFromAbsolute(day), settings, &own), language);
  }
  return text;
}

std::map<When, int32_t> NextDays(calendar::Land land, int32_t from) {
  const std::vector<When>& every = EveryWhen();
  std::map<When, int32_t> days;
  for (int32_t day = from; day < from + kDaysAhead && days.size() < every.size(); ++day) {
    const Date date = calendar::JewishFromAbsolute(day);
    if (date.year > calendar::kLastYear) break;
    for (const When& when : WhensOn(date, ReadingsOn(date, land, Custom::kAshkenazi, {}))) {
      if (!IsOfOneYear(when)) days.emplace(when, day);
    }
  }
  return days;
}

OwnRow RowOf(const When& when, int32_t next, const Settings& settings, const OwnReadings& own) {
  const Language& language = LanguageOf(settings.language);
  OwnRow row = {when, NameOf(when, language), next, {}, {}};
  if (next == 0) return row;
  const ReadingTexts texts = TextsOn(calendar::JewishFromAbsolute(next), settings, &own);
  row.torah = Joined(texts.torah, language.codePage);
  row.haftarot = Joined(texts.haftarot, language.codePage);
  return row;
}

std::string ScopeText(const OwnPlace& place) {
  std::string text;
  const auto add = [&text](const char* part) { text += (text.empty() ? "" : ", ") + std::string(part); };
  if (place.land != InLand::kAny) add(place.land == InLand::kIsrael ? "Israel" : "diaspora");
  constexpr const char* kListings[] = {"", "Ashkenazi", "Sephardi", "several customs"};
  if (place.listing != Listing::kAny) add(kListings[static_cast<size_t>(place.listing)]);
  if (place.language != kAnyLanguage) add(LanguageOf(place.language).name);
  return text.empty() ? "all" : text;
}

const char* NameOf(Slot slot) {
  constexpr const char* kNames[] = {"Torah 1", "Torah 2", "Torah 3", "Haftarah 1", "Haftarah 2", "Haftarah 3", "Note"};
  return kNames[static_cast<size_t>(slot)];
}

}  // namespace lections
