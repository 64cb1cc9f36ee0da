// Passages of the Bible as the tables of readings write them: "Isaiah 27:6-28:13, 29:22-23".
//
// Chapters and verses are numbered as in the Hebrew Bible (Genesis 32:4, Exodus 20:23, Joel 4), which differs here and
// there from Christian translations.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace lections {

enum class Book : uint8_t {
  kGenesis,
  kExodus,
  kLeviticus,
  kNumbers,
  kDeuteronomy,
  kJoshua,
  kJudges,
  kSamuelI,
  kSamuelII,
  kKingsI,
  kKingsII,
  kIsaiah,
  kJeremiah,
  kEzekiel,
  kHosea,
  kJoel,
  kAmos,
  kObadiah,
  kJonah,
  kMicah,
  kHabakkuk,
  kZechariah,
  kMalachi,
  kSongOfSongs,
  kRuth,
  kLamentations,
  kEcclesiastes,
  kEsther,
};

// The books' names in the tables, in the order of Book.
constexpr std::string_view kBooks[] = {
    "Genesis",   "Exodus",    "Leviticus",     "Numbers",  "Deuteronomy",  "Joshua",       "Judges",
    "I Samuel",  "II Samuel", "I Kings",       "II Kings", "Isaiah",       "Jeremiah",     "Ezekiel",
    "Hosea",     "Joel",      "Amos",          "Obadiah",  "Jonah",        "Micah",        "Habakkuk",
    "Zechariah", "Malachi",   "Song of Songs", "Ruth",     "Lamentations", "Ecclesiastes", "Esther"};
constexpr size_t kBookCount = std::size(kBooks);

// From a verse to a verse of one book, both included; chapter 0 throughout means the whole book.
struct Verses {
  Book book = Book::kGenesis;
  uint8_t chapter = 0;
  uint8_t verse = 0;
  uint8_t lastChapter = 0;
  uint8_t lastVerse = 0;

  friend bool operator==(const Verses&, const Verses&) = default;
};

// What is read in one go: nothing, or up to five stretches of verses.
class Passage {
 public:
  constexpr Passage() = default;

  // As in "Joshua 3:5-7, 5:2-6:1, 6:27", "Hosea 14:2-10, Micah 7:18-20" or "Ruth". What cannot be read throws, which in
  // a table does not compile.
  constexpr Passage(const char* text) : Passage(std::string_view(text)) {}
  constexpr explicit Passage(std::string_view text) {
    Book book = Book::kGenesis;
    while (!text.empty()) {
      const size_t comma = std::min(text.find(", "), text.size());
      parts_.at(count_++) = Read(text.substr(0, comma), book);
      book = parts_[count_ - 1].book;
      text.remove_prefix(std::min(comma + 2, text.size()));
    }
  }

  constexpr bool empty() const { return count_ == 0; }
  constexpr size_t size() const { return count_; }
  constexpr const Verses& operator[](size_t i) const { return parts_[i]; }
  constexpr const Verses* begin() const { return parts_.data(); }
  constexpr const Verses* end() const { return parts_.data() + count_; }

  // The verses of both, one after the other.
  constexpr Passage operator+(const Passage& next) const {
    Passage both = *this;
    for (const Verses& verses : next) both.parts_.at(both.count_++) = verses;
    return both;
  }

  // From the beginning of this passage to the end of a later one of the same book.
  constexpr Passage Until(const Passage& last) const {
    Passage whole = *this;
    whole.parts_[0].lastChapter = last.parts_[0].lastChapter;
    whole.parts_[0].lastVerse = last.parts_[0].lastVerse;
    return whole;
  }

  friend constexpr bool operator==(const Passage& a, const Passage& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

 private:
  static constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

  // The number at the front of a text, taken off it.
  static constexpr uint8_t TakeNumber(std::string_view& text) {
    if (text.empty() || !IsDigit(text.front())) throw std::invalid_argument("a number is missing");
    int number = 0;
    while (!text.empty() && IsDigit(text.front())) {
      number = 10 * number + (text.front() - '0');
      if (number > 255) throw std::invalid_argument("no such verse");
      text.remove_prefix(1);
    }
    return static_cast<uint8_t>(number);
  }

  static constexpr bool Take(std::string_view& text, char c) {
    if (text.empty() || text.front() != c) return false;
    text.remove_prefix(1);
    return true;
  }

  // One stretch; book is that of the stretch before, for one that does not name its own.
  static constexpr Verses Read(std::string_view text, Book book) {
    if (!text.empty() && !IsDigit(text.front())) {
      const size_t blank = text.rfind(' ');
      const bool isWhole = blank == std::string_view::npos || !IsDigit(text.back());
      const std::string_view name = isWhole ? text : text.substr(0, blank);
      const auto* found = std::find(std::begin(kBooks), std::end(kBooks), name);
      if (found == std::end(kBooks)) throw std::invalid_argument("no such book");
      book = static_cast<Book>(found - kBooks);
      if (isWhole) return {book};
      text.remove_prefix(blank + 1);
    }
    Verses verses{book};
    verses.chapter = verses.lastChapter = TakeNumber(text);
    if (!Take(text, ':')) throw std::invalid_argument("a colon is missing");
    verses.verse = verses.lastVerse = TakeNumber(text);
    if (Take(text, '-')) {
      verses.lastVerse = TakeNumber(text);
      if (Take(text, ':')) {
        verses.lastChapter = verses.lastVerse;
        verses.lastVerse = TakeNumber(text);
      }
    }
    if (!text.empty()) throw std::invalid_argument("no passage");
    return verses;
  }

  std::array<Verses, 5> parts_{};
  size_t count_ = 0;
};

}  // namespace lections
