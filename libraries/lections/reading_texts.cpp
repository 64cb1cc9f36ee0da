#include "libraries/lections/reading_texts.h"

#include <algorithm>
#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/day_readings.h"
#include "libraries/lections/numerals.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/reading_names.h"
#include "libraries/lections/verse_numbers.h"
#include "libraries/lections/when.h"

namespace lections {
namespace {

using namespace calendar;

void AppendItem(std::string& list, std::string_view item, std::string_view separator = ", ") {
  if (!list.empty() && !item.empty()) list += separator;
  list += item;
}

// The customs whose readings are listed, in the order in which they are.
std::vector<Custom> ListedCustoms(const Settings& settings) {
  std::vector<Custom> customs;
  if (settings.customs != Customs::kSephardi) customs.push_back(Custom::kAshkenazi);
  if (settings.customs != Customs::kAshkenazi) customs.push_back(Custom::kSephardi);
  if (settings.chabad) customs.push_back(Custom::kChabad);
  return customs;
}

// Writes one day: its readings in each of the customs, side by side.
class DayWriter {
 public:
  DayWriter(const Date& date, const Settings& settings)
      : date_(date), settings_(settings), language_(LanguageOf(settings.language)), customs_(ListedCustoms(settings)) {
    for (const Custom custom : customs_) {
      readings_.push_back(ReadingsOn(date, settings.land, custom, settings.optional));
    }
  }

  bool HasReadings() const {
    return std::ranges::any_of(readings_, [](const DayReadings& one) { return !one.torah.empty(); });
  }

  // For own texts, the days of which are the same in all customs.
  Whens Kinds() const { return WhensOn(date_, readings_[0]); }

  std::array<std::string, 3> Torah() const {
    return Slots(
        [](const DayReadings& one) -> const auto& { return one.torah; }, Title(), false);
  }

  std::array<std::string, 3> Haftarot() const {
    const auto haftarot = [](const DayReadings& one) -> const auto& {
      return one.haftarot;
    };
    const bool isTwice = std::ranges::any_of(
        readings_, [](const DayReadings& one) { return LineOf(one.haftarot, Part::kAfternoon) != nullptr; });
    return Slots(haftarot, isTwice ? language_.words.morning : "", true);
  }

  std::string Additional() const {
    const int32_t month = settings_.newMonth ? MonthAnnouncedOn(date_) : 0;
    if (month == 0) return {};
    return language_.plain.monthAnnounced + std::string(MonthName(language_.plain.months, month, IsLeapYear()));
  }

 private:
  template <typename Lines>
  static const Line* LineOf(const Lines& lines, Part part) {
    const auto* line = std::ranges::find(lines, part, &Line::part);
    return line == lines.end() ? nullptr : line;
  }

  bool IsLeapYear() const { return IsJewishLeapYear(date_.year); }

  // The portion with what the day is besides, or what the day is.
  std::string Title() const {
    std::string occasions;
    for (const NumberedOccasion& occasion : readings_[0].occasions)
      AppendItem(occasions, NameOf(occasion, IsLeapYear(), language_));
    if (!readings_[0].portion) return occasions;
    const std::string portion = NameOf(*readings_[0].portion, language_);
    return occasions.empty() ? portion : portion + " (" + occasions + ")";
  }

  std::string PartName(const Line& line, const std::string& nameOfMain) const {
    const Words& words = language_.words;
    switch (line.part) {
      case Part::kMain: return nameOfMain;
      case Part::kRoshChodesh: return OccasionName(language_, Occasion::kRoshChodesh);
      case Part::kMaftir: return words.maftir;
      case Part::kMaftirOfWalledCities: return words.maftirOfWalledCities;
      case Part::kWalledCities: return words.walledCities;
      case Part::kAfternoon:
        return line.portion ? std::string(words.afternoon) + ", " + NameOf(*line.portion, language_) : words.afternoon;
      case Part::kScroll: return words.scroll;
    }
    return {};
  }

  // What is read; a Torah reading without verses is its name.
  std::string PassageOf(const Line& line, bool isHaftarah) const {
    const bool isNameEnough = !settings_.verses && line.part == Part::kMain && !isHaftarah;
    if (isNameEnough) return {};
    return PassageText(line.passage, language_, settings_.verses, settings_.ownNumbers);
  }

  // The lines of one part: one when all customs read the same, else one for each reading, named after every custom that
  // has it.
  template <typename LinesOf>
  void AddPart(Part part, const LinesOf& linesOf, const std::string& nameOfMain, bool isHaftarah,
               std::vector<std::string>& lines) const {
    struct Read {
      std::string customs;
      const Line* line;
      std::string passage;
    };
    std::vector<Read> reads;
    bool isReadByAll = true;
    for (size_t i = 0; i < customs_.size(); ++i) {
      const Line* line = LineOf(linesOf(readings_[i]), part);
      if (!line) {
        isReadByAll = false;
        continue;
      }
      const std::string passage = PassageOf(*line, isHaftarah);
      auto read = std::ranges::find(reads, passage, &Read::passage);
      if (read == reads.end()) read = reads.insert(read, {"", line, passage});
      AppendItem(read->customs, language_.words.customs[static_cast<size_t>(customs_[i])]);
    }
    for (const Read& read : reads) {
      const bool isTitle = part == Part::kMain && !isHaftarah;
      std::string text = isTitle && &read != &reads[0] ? "" : PartName(*read.line, nameOfMain);
      if (!isReadByAll || reads.size() > 1) AppendItem(text, read.customs);
      AppendItem(text, read.passage, ": ");
      lines.push_back(std::move(text));
    }
  }

  // The lines in the slots; what the last has no room for joins it, told apart by a mark that no passage holds.
  template <typename LinesOf>
  std::array<std::string, 3> Slots(const LinesOf& linesOf, const std::string& nameOfMain, bool isHaftarah) const {
    std::vector<std::string> lines;
    for (int part = 0; part < kPartCount; ++part) {
      AddPart(static_cast<Part>(part), linesOf, nameOfMain, isHaftarah, lines);
    }
    std::array<std::string, 3> slots;
    for (size_t i = 0; i < lines.size(); ++i) AppendItem(slots[std::min(i, slots.size() - 1)], lines[i], " / ");
    for (std::string& slot : slots) slot = Encoded(slot, language_.codePage).substr(0, kLongestText);
    return slots;
  }

  const Date& date_;
  const Settings& settings_;
  const Language& language_;
  std::vector<Custom> customs_;
  std::vector<DayReadings> readings_;
};

void AppendVerses(std::string& text, const Verses& verses, const Notation& notation) {
  const Numerals numerals = notation.numerals;
  const auto place = [&](int chapter, int verse) {
    text += Number(chapter, numerals);
    text += notation.verse;
    text += Number(verse, numerals);
  };
  place(verses.chapter, verses.verse);
  if (verses.lastChapter != verses.chapter) {
    text += '-';
    place(verses.lastChapter, verses.lastVerse);
  } else if (verses.lastVerse != verses.verse) {
    text += '-';
    text += Number(verses.lastVerse, numerals);
  }
}

}  // namespace

std::string PassageText(const Passage& passage, const Language& language, bool verses, bool ownNumbers) {
  const OwnBible* const bible = ownNumbers && verses ? OwnBibleOf(language.code) : nullptr;
  std::string text;
  const Verses* before = nullptr;
  for (const Verses& part : passage) {
    const bool isNewBook = !before || before->book != part.book;
    before = &part;
    if (!isNewBook && !verses) continue;
    const char* const next = verses ? language.notation.next : ", ";
    if (isNewBook) AppendItem(text, BookName(language, part.book), next);
    if (part.chapter == 0 || !verses) continue;
    text += isNewBook ? " " : next;
    AppendVerses(text, bible ? InNumbersOf(bible->versification, part) : part, language.notation);
  }
  return text;
}

ReadingTexts TextsOn(const Date& date, const Settings& settings, const OwnReadings* own) {
  const DayWriter day(date, settings);
  ReadingTexts texts;
  if (day.HasReadings()) texts = {day.Torah(), day.Haftarot(), day.Additional()};
  if (own && !own->empty() && IsJewishDate(date)) own->Put(day.Kinds(), settings, texts);
  return texts;
}

}  // namespace lections
