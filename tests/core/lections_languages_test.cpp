// All languages of the readings say the same: what one names and numbers is read back into passages by that language's
// own words and compared with what English says of the same day.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "libraries/lections/day_readings.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/language.h"
#include "libraries/lections/numerals.h"
#include "libraries/lections/verse_numbers.h"
#include "readings/core/split_rules.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using namespace lections_test;

constexpr int32_t kCommonYear = 5785;
constexpr int32_t kLeapYear = 5784;
constexpr int kMostVerses = 200;  // no chapter has as many, and no book as many chapters

using Verse = std::array<int, 2>;  // chapter and verse

// A stretch of verses as a text says it; without verses a whole book.
struct Stretch {
  size_t book = 0;
  Verse first{};
  Verse last{};

  auto operator<=>(const Stretch&) const = default;
};
using Stretches = std::vector<Stretch>;

bool TakeFrom(std::string_view& text, std::string_view beginning) {
  if (!text.starts_with(beginning)) return false;
  text.remove_prefix(beginning.size());
  return true;
}

// Reads passages of one language, in every way in which they can be read.
class PassageReader {
 public:
  explicit PassageReader(const Language& language) : language_(language) {
    for (int number = 1; number < kMostVerses; ++number) {
      numbers_.emplace_back(Number(number, language.notation.numerals), number);
    }
    std::ranges::stable_sort(numbers_, std::greater(), [](const auto& one) { return one.first.size(); });
  }

  std::vector<Stretches> WaysToRead(std::string_view text) const {
    std::vector<Stretches> ways;
    ReadBook(text, {}, ways);
    return ways;
  }

 private:
  // Books of which one's name begins with another's are all tried.
  void ReadBook(std::string_view text, const Stretches& before, std::vector<Stretches>& ways) const {
    for (size_t book = 0; book < language_.books.size(); ++book) {
      std::string_view rest = text;
      if (!TakeFrom(rest, language_.books[book])) continue;
      Stretches whole = before;
      whole.push_back({book, {}, {}});
      GoOn(rest, whole, ways);
      if (TakeFrom(rest, " ")) ReadVerses(rest, book, before, ways);
    }
  }

  void ReadVerses(std::string_view text, size_t book, const Stretches& before, std::vector<Stretches>& ways) const {
    Stretch stretch{book, {}, {}};
    if (!TakePlace(text, stretch.first)) return;
    const auto goOnAfter = [&](std::string_view rest) {
      Stretches with = before;
      with.push_back(stretch);
      GoOn(rest, with, ways);
    };
    stretch.last = stretch.first;
    goOnAfter(text);
    if (!TakeFrom(text, "-")) return;
    std::string_view toChapter = text;
    if (TakePlace(toChapter, stretch.last)) goOnAfter(toChapter);
    stretch.last[0] = stretch.first[0];
    if (TakeNumber(text, stretch.last[1])) goOnAfter(text);
  }

  void GoOn(std::string_view text, const Stretches& read, std::vector<Stretches>& ways) const {
    if (text.empty()) return ways.push_back(read);
    if (!TakeFrom(text, language_.notation.next)) return;
    ReadBook(text, read, ways);
    ReadVerses(text, read.back().book, read, ways);
  }

  bool TakePlace(std::string_view& text, Verse& place) const {
    return TakeNumber(text, place[0]) && TakeFrom(text, language_.notation.verse) && TakeNumber(text, place[1]);
  }

  // The longest number that stands there.
  bool TakeNumber(std::string_view& text, int& number) const {
    const auto found = std::ranges::find_if(numbers_, [&text](const auto& one) { return TakeFrom(text, one.first); });
    if (found != numbers_.end()) number = found->second;
    return found != numbers_.end();
  }

  const Language& language_;
  std::vector<std::pair<std::string, int>> numbers_;  // the longest first
};

std::vector<std::string_view> SplitAt(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  for (size_t at; (at = text.find(separator)) != text.npos; text.remove_prefix(at + separator.size())) {
    parts.push_back(text.substr(0, at));
  }
  parts.push_back(text);
  return parts;
}

// Reads texts of days in one language back, each text once.
class TextReader {
 public:
  explicit TextReader(const Language& language) : language_(language), passages_(language) {}

  // What each line of a text reads; of "Noach: Genesis 6:9-11:32" what follows the colon.
  std::vector<Stretches> PassagesOf(const std::string& text) {
    const auto [known, isNew] = known_.try_emplace(text);
    if (isNew) known->second = Read(Decoded(text, language_.codePage));
    return known->second;
  }

 private:
  std::vector<Stretches> Read(const std::string& text) const {
    std::vector<Stretches> lines;
    if (text.empty()) return lines;
    for (const std::string_view line : SplitAt(text, " / ")) {
      const std::vector<std::string_view> parts = SplitAt(line, ": ");
      EXPECT_LE(parts.size(), 2u) << text;
      const std::vector<Stretches> ways = passages_.WaysToRead(parts.back());
      EXPECT_EQ(ways.size(), 1u) << language_.name << ": ways to read \"" << text << "\"";
      lines.push_back(ways.empty() ? Stretches() : ways[0]);
    }
    return lines;
  }

  const Language& language_;
  PassageReader passages_;
  std::map<std::string, std::vector<Stretches>> known_;
};

// Everything that can be listed.
Settings Everything(Land land, uint32_t language) {
  Settings settings = Of(land, Customs::kBoth, true);
  settings.optional = {.mondayAndThursday = true, .shabbatAfternoon = true};
  settings.language = language;
  return settings;
}

using OfDay = std::function<void(const calendar::Date& date, const ReadingTexts& texts)>;

// Every day of a common and of a leap year, in both lands.
void ForEveryDay(const Language& language, const OfDay& ofDay, bool ownNumbers = false) {
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    Settings settings = Everything(land, language.code);
    settings.ownNumbers = ownNumbers;
    for (const int32_t year : {kCommonYear, kLeapYear}) {
      for (int32_t day = calendar::JewishNewYear(year); day < calendar::JewishNewYear(year + 1); ++day) {
        const calendar::Date date = calendar::JewishFromAbsolute(day);
        ofDay(date, TextsOn(date, settings));
      }
    }
  }
}

std::vector<std::string> SlotsOf(const ReadingTexts& texts) {
  std::vector<std::string> slots(texts.torah.begin(), texts.torah.end());
  slots.insert(slots.end(), texts.haftarot.begin(), texts.haftarot.end());
  return slots;
}

// By day and slot.
std::vector<std::vector<Stretches>> EverythingReadIn(const Language& language, bool ownNumbers = false) {
  TextReader reader(language);
  std::vector<std::vector<Stretches>> read;
  const auto readSlots = [&](const calendar::Date&, const ReadingTexts& texts) {
    for (const std::string& slot : SlotsOf(texts)) read.push_back(reader.PassagesOf(slot));
  };
  ForEveryDay(language, readSlots, ownNumbers);
  return read;
}

// The books of all stretches, without their verses.
std::vector<size_t> BooksOf(const std::vector<Stretches>& lines) {
  std::vector<size_t> books;
  for (const Stretches& line : lines) {
    for (const Stretch& stretch : line) books.push_back(stretch.book);
  }
  return books;
}

TEST(LectionsLanguages, TheYearsComparedAreACommonAndALeapYear) {
  EXPECT_FALSE(calendar::IsJewishLeapYear(kCommonYear));
  EXPECT_TRUE(calendar::IsJewishLeapYear(kLeapYear));
}

// Hand-made: the text of Vayera in Hebrew, and one of several stretches and books.
TEST(LectionsLanguages, TheReaderReadsWhatIsWritten) {
  constexpr size_t kGenesis = 0;
  EXPECT_EQ(PassageReader(kHebrew).WaysToRead("בראשית יח:א-כב:כד"),
            std::vector<Stretches>({{{kGenesis, {18, 1}, {22, 24}}}}));
  constexpr auto kHosea = static_cast<size_t>(Book::kHosea);
  constexpr auto kMicah = static_cast<size_t>(Book::kMicah);
  constexpr auto kRuth = static_cast<size_t>(Book::kRuth);
  const Stretches expected = {
      {kHosea, {14, 2}, {14, 10}}, {kMicah, {7, 18}, {7, 20}}, {kMicah, {7, 22}, {7, 22}}, {kRuth, {}, {}}};
  EXPECT_EQ(PassageReader(kEnglish).WaysToRead("Hosea 14:2-10, Micah 7:18-20, 7:22, Ruth"),
            std::vector<Stretches>{expected});
  EXPECT_TRUE(PassageReader(kEnglish).WaysToRead("Hosea 14:2-10, Mica 7:18-20").empty());
}

// A dash within a stretch and between two would be read in two ways.
TEST(LectionsLanguages, TheReaderSeesWhatCannotBeToldApart) {
  Language language = kEnglish;
  language.notation.next = "-";
  EXPECT_EQ(PassageReader(language).WaysToRead("Hosea 1:1-2:3").size(), 2u);
  language = kEnglish;
  language.books[static_cast<size_t>(Book::kKingsII)] = "I Kings";
  EXPECT_EQ(PassageReader(language).WaysToRead("I Kings 1:1").size(), 2u);
}

TEST(LectionsLanguages, VersesAreTheSameInAllLanguages) {
  const std::vector<std::vector<Stretches>> english = EverythingReadIn(kEnglish);
  EXPECT_GT(std::ranges::count_if(english, [](const auto& lines) { return !lines.empty(); }), 1400);
  for (const Language* language : Languages()) {
    const std::vector<std::vector<Stretches>> read = EverythingReadIn(*language);
    ASSERT_EQ(read.size(), english.size());
    const auto different = std::ranges::mismatch(english, read);
    EXPECT_EQ(different.in1 - english.begin(), static_cast<std::ptrdiff_t>(english.size())) << language->name;
  }
}

// The numbers of the language's own Bibles change the verses, and not what is a stretch of which book.
TEST(LectionsLanguages, NumbersOfOwnBiblesAreReadInOneWayToo) {
  const std::vector<std::vector<Stretches>> english = EverythingReadIn(kEnglish);
  for (const Language* language : Languages()) {
    const std::vector<std::vector<Stretches>> read = EverythingReadIn(*language, true);
    const auto different = std::ranges::mismatch(english, read, {}, BooksOf, BooksOf);
    EXPECT_EQ(different.in1 - english.begin(), static_cast<std::ptrdiff_t>(english.size())) << language->name;
    EXPECT_EQ(read != EverythingReadIn(*language), OwnBibleOf(language->code) != nullptr) << language->name;
  }
}

// The titles, the additional text and the names before passages are in as many places as in English.
TEST(LectionsLanguages, EveryLanguageFillsTheSlotsThatEnglishFills) {
  std::vector<size_t> english;
  const auto shapeOf = [](const ReadingTexts& texts) {
    size_t shape = texts.additional.empty() ? 0 : 1;
    for (const std::string& slot : SlotsOf(texts)) shape = shape * 8 + SplitAt(slot, ": ").size();
    return shape;
  };
  ForEveryDay(kEnglish, [&](const calendar::Date&, const ReadingTexts& texts) { english.push_back(shapeOf(texts)); });
  for (const Language* language : Languages()) {
    std::vector<size_t> shapes;
    ForEveryDay(*language, [&](const calendar::Date&, const ReadingTexts& texts) { shapes.push_back(shapeOf(texts)); });
    EXPECT_EQ(shapes, english) << language->name;
  }
}

// All texts of a table, by kind: the names within a kind are to be told apart.
std::map<std::string, std::vector<const char*>> NamesOf(const Language& language) {
  const auto listed = [](const auto& names, size_t from = 0) {
    return std::vector<const char*>(names.begin() + static_cast<std::ptrdiff_t>(from), names.end());
  };
  return {{"portion", listed(language.portions)},
          {"book", listed(language.books)},
          {"occasion", listed(language.occasions, 1)},  // the first is that of no occasion
          {"month", listed(language.months)},
          {"custom", listed(language.words.customs)},
          {"month in plain letters", listed(language.plain.months)}};
}

std::vector<const char*> WordsOf(const Language& language) {
  const Words& words = language.words;
  return {words.numbered,  words.monthly, words.maftir,       words.morning,
          words.afternoon, words.scroll,  words.walledCities, words.maftirOfWalledCities};
}

// What a language has no name for is said in English.
TEST(LectionsLanguages, NothingFallsBackToEnglish) {
  std::vector<std::string> missing;
  for (const Language* language : Languages()) {
    for (const auto& [kind, names] : NamesOf(*language)) {
      for (size_t i = 0; i < names.size(); ++i) {
        if (!names[i] || !*names[i]) missing.push_back(std::string(language->name) + ": " + kind + std::to_string(i));
      }
    }
    for (const char* word : WordsOf(*language)) {
      if (!word || !*word) missing.push_back(std::string(language->name) + ": a word");
    }
  }
  EXPECT_EQ(missing, std::vector<std::string>());
}

TEST(LectionsLanguages, NamesOfOneKindAreAllDifferent) {
  for (const Language* language : Languages()) {
    for (const auto& [kind, names] : NamesOf(*language)) {
      std::set<std::string_view> known;
      for (const char* name : names) EXPECT_TRUE(known.insert(name).second) << language->name << ' ' << kind << name;
    }
  }
}

TEST(LectionsLanguages, EveryTextIsInItsLanguagesCodePage) {
  for (const Language* language : Languages()) {
    std::vector<const char*> texts = WordsOf(*language);
    for (const auto& [kind, names] : NamesOf(*language)) texts.insert(texts.end(), names.begin(), names.end());
    texts.insert(texts.end(), {language->ownName, language->notation.verse, language->notation.next});
    for (const char* text : texts) {
      EXPECT_EQ(Decoded(Encoded(text, language->codePage), language->codePage), text) << language->name;
    }
  }
}

TEST(LectionsLanguages, PatternsHaveAPlaceForTheNameAndOneForItsNumber) {
  for (const Language* language : Languages()) {
    for (const std::string_view pattern : {language->words.numbered, language->words.monthly}) {
      EXPECT_EQ(std::ranges::count(pattern, '@'), 1) << language->name << pattern;
      EXPECT_EQ(std::ranges::count(pattern, '#'), 1) << language->name << pattern;
    }
  }
}

TEST(LectionsLanguages, CodesAndNamesOfLanguagesAreTheirOwn) {
  std::set<uint32_t> codes;
  std::set<std::string_view> names;
  for (const Language* language : Languages()) {
    EXPECT_TRUE(codes.insert(language->code).second) << language->name;
    EXPECT_TRUE(names.insert(language->name).second) << language->name;
  }
}

ReadingsEntry EntryOf(const ReadingTexts& texts) {
  ReadingsEntry entry{};
  const auto put = [](const std::string& text, char(&slot)[kTextSize]) { slot[text.copy(slot, kTextSize - 1)] = '\0'; };
  put(texts.torah[0], entry.torah1);
  put(texts.torah[1], entry.torah2);
  put(texts.torah[2], entry.torah3);
  put(texts.haftarot[0], entry.haftarah1);
  put(texts.haftarot[1], entry.haftarah2);
  put(texts.haftarot[2], entry.haftarah3);
  put(texts.additional, entry.extraText);
  return entry;
}

// The rules as the program has them, with the language's own code and, for the language that they pass over, with
// another's.
TEST(LectionsLanguages, TheProgramDividesNoText) {
  ReadingTexts ofTwoServices;
  ofTwoServices.torah[0] = "A; Morning: B";
  ReadingsEntry joined = EntryOf(ofTwoServices);
  SplitReadings(joined, kEnglish.code);
  ASSERT_STREQ(joined.torah2, "Morning: B");
  for (const Language* language : Languages()) {
    const auto expectUndivided = [language](const calendar::Date& date, const ReadingTexts& texts) {
      const ReadingsEntry given = EntryOf(texts);
      for (const uint32_t code : {language->code, kEnglish.code}) {
        ReadingsEntry divided = given;
        SplitReadings(divided, code);
        EXPECT_EQ(std::memcmp(&divided, &given, sizeof given), 0)
            << language->name << ' ' << date.day << '.' << date.month << '.' << date.year << ' ' << divided.torah1;
      }
    };
    for (const bool ownNumbers : {false, true}) ForEveryDay(*language, expectUndivided, ownNumbers);
  }
}

}  // namespace
