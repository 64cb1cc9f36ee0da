#include "libraries/lections/own_remark.h"

#include <algorithm>
#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/divided_text.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/own_preview.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/reading_texts.h"

namespace lections {
namespace {

constexpr size_t kColumnOfTextExport = 95;  // characters, beyond which the export of readings as text cuts
constexpr size_t kLanguagesNamed = 4;
constexpr size_t kLinesNamed = 5;

// "English, German and 3 more"
std::string Listed(const std::vector<const Language*>& languages) {
  std::string names;
  const size_t named = languages.size() > kLanguagesNamed + 1 ? kLanguagesNamed : languages.size();
  for (size_t i = 0; i < named; ++i) {
    const bool isLast = i + 1 == languages.size();
    names += (i == 0 ? "" : isLast ? " and " : ", ") + std::string(languages[i]->name);
  }
  const size_t more = languages.size() - named;
  return more == 0 ? names : names + " and " + std::to_string(more) + " more";
}

std::string MissingLetter(const OwnEntry& entry) {
  if (entry.place.slot == Slot::kExtra) {
    return "The note is drawn in the program's own font, which does not have the letter \"" +
           FirstMissing(entry.text.text, CodePage::kWestern) + "\". Please write it in Latin letters.";
  }
  if (entry.place.language == kAnyLanguage)
    return "There is no language of readings that has all letters of this text.";
  const Language& language = LanguageOf(entry.place.language);
  return std::string(language.name) + " readings cannot show \"" + FirstMissing(entry.text.text, language.codePage) +
         "\". Please leave it out, or choose another language.";
}

std::string FaultText(const OwnEntry& entry, Fault fault) {
  switch (fault) {
    case Fault::kNone: return {};
    case Fault::kMark:
      return "Braces { }, backslashes and tabs cannot stand in a reading: they are marks of RTF files. Please leave "
             "them out.";
    case Fault::kTooLong:
      return "The text has " + std::to_string(LengthOf(entry.text.text)) + " characters; the program has room for " +
             std::to_string(kLongestOwnText) + ". Please shorten it.";
    case Fault::kLetters: return MissingLetter(entry);
    case Fault::kNoTitle: return "Please enter a text: a day whose first text is empty would not be listed at all.";
  }
  return {};
}

Settings ListingAlone(const Settings& settings, Customs customs) {
  Settings other = settings;
  other.customs = customs;
  other.chabad = false;
  return other;
}

}  // namespace

std::string WithoutBlanksAround(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') + 1 - first));
}

size_t LengthOf(std::string_view utf8) {
  return static_cast<size_t>(std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string RemarkOn(const OwnEntry& entry, size_t before) {
  if (const Fault fault = FaultOf(entry.place, entry.text); fault != Fault::kNone) return FaultText(entry, fault);
  const std::string& text = entry.text.text;
  if (text.empty()) return entry.text.how == How::kInstead ? "Nothing will stand there." : "";
  const size_t length = before + LengthOf(text);
  std::string remark = std::to_string(length) + " of " + std::to_string(kLongestOwnText) + " characters" +
                       (before == 0 ? "." : " with the program's.");
  if (length > kLongestOwnText) remark += " The end will be cut.";
  if (const std::string division = DivisionRemark(entry.place, text); !division.empty()) remark += " " + division;
  if (length > kColumnOfTextExport) {
    remark += " The export as text shows the first " + std::to_string(kColumnOfTextExport) + ".";
  }
  if (const auto without = LanguagesWithout(entry.place, text); !without.empty()) {
    remark += " " + Listed(without) + " cannot show all of its letters: there the program's own text stays.";
  }
  return remark;
}

std::string TextInSlot(Slot slot, int32_t day, const Settings& settings) {
  ReadingTexts texts = TextsOn(calendar::JewishFromAbsolute(day), settings);
  const CodePage page = slot == Slot::kExtra ? CodePage::kWestern : LanguageOf(settings.language).codePage;
  return Decoded(SlotOf(slot, texts), page);
}

OwnPlace OfferedPlaceOf(const When& when, const Settings& settings, int32_t today) {
  OwnPlace place = {.when = when};
  const std::vector<int32_t> days = NextDaysOf(when, settings.land, today, 1);
  if (days.empty()) return place;
  const calendar::Date date = calendar::JewishFromAbsolute(days.front());
  const ReadingTexts ashkenazi = TextsOn(date, ListingAlone(settings, Customs::kAshkenazi));
  // The user's own settings may list Chabad's too.
  for (const Settings& other :
       {ListingAlone(settings, Customs::kSephardi), ListingAlone(settings, Customs::kBoth), settings}) {
    if (TextsOn(date, other) != ashkenazi) place.listing = ListingOf(settings);
  }
  return place;
}

std::string LinesText(const std::vector<int>& lines) {
  std::string text = lines.size() == 1 ? "line " : "lines ";
  for (size_t i = 0; i < lines.size() && i < kLinesNamed; ++i) text += (i == 0 ? "" : ", ") + std::to_string(lines[i]);
  return lines.size() > kLinesNamed ? text + " and " + std::to_string(lines.size() - kLinesNamed) + " more" : text;
}

std::string NoDaysText(calendar::Land land) {
  return std::string("It does not come in ") + (land == calendar::Land::kIsrael ? "Israel" : "the diaspora") +
         " within the next sixty years.";
}

}  // namespace lections
