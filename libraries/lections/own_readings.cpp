#include "libraries/lections/own_readings.h"

#include <algorithm>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/day_readings.h"
#include "libraries/lections/encoded_text.h"

namespace lections {
namespace {

// A text that begins with a mark follows without a blank.
std::string After(const std::string& before, const std::string& own) {
  constexpr std::string_view kMarks = ",;.:";
  if (before.empty() || own.empty() || kMarks.find(own.front()) != std::string_view::npos) return before + own;
  return before + " " + own;
}

void PutOne(const OwnPlace& place, const OwnText& own, const Language& language, ReadingTexts& texts) {
  const CodePage page = place.slot == Slot::kExtra ? CodePage::kWestern : language.codePage;
  if (!IsEncodable(own.text, page)) return;
  const std::string encoded = Encoded(own.text, page);
  std::string& text = SlotOf(place.slot, texts);
  text = (own.how == How::kInstead ? encoded : After(text, encoded)).substr(0, kLongestText);
}

bool IsAnyText(const ReadingTexts& texts) {
  const auto isText = [](const std::string& text) { return !text.empty(); };
  return std::ranges::any_of(texts.torah, isText) || std::ranges::any_of(texts.haftarot, isText) ||
         isText(texts.additional);
}

}  // namespace

std::string& SlotOf(Slot slot, ReadingTexts& texts) {
  const auto index = static_cast<size_t>(slot);
  if (slot == Slot::kExtra) return texts.additional;
  return slot < Slot::kHaftarah1 ? texts.torah[index] : texts.haftarot[index - static_cast<size_t>(Slot::kHaftarah1)];
}

void OwnReadings::Put(const Whens& whens, const Settings& settings, ReadingTexts& texts) const {
  const Language& language = LanguageOf(settings.language);
  for (const When& when : whens) {
    auto entry = std::ranges::lower_bound(entries_, OwnPlace{.when = when}, {},
                                          [](const auto& one) -> const OwnPlace& { return one.first; });
    for (; entry != entries_.end() && entry->first.when == when; ++entry) {
      if (IsFor(entry->first, settings)) PutOne(entry->first, entry->second, language, texts);
    }
  }
  if (texts.torah[0].empty() && IsAnyText(texts)) {
    const When& date = whens[whens.size() - 2];  // that of every year
    texts.torah[0] = Encoded(NameOf(date, language), language.codePage);
  }
}

std::vector<int32_t> NextDaysOf(const When& when, calendar::Land land, int32_t from, size_t count) {
  std::vector<int32_t> days;
  if (IsOfOneYear(when)) return {calendar::AbsoluteFromJewish(DateOfOneYear(when))};
  for (int32_t day = from; day < from + kDaysAhead && days.size() < count; ++day) {
    const calendar::Date date = calendar::JewishFromAbsolute(day);
    if (date.year > calendar::kLastYear) break;
    const Whens whens = WhensOn(date, ReadingsOn(date, land, Custom::kAshkenazi, {}));
    if (std::ranges::find(whens, when) != whens.end()) days.push_back(day);
  }
  return days;
}

}  // namespace lections
