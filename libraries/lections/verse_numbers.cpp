#include "libraries/lections/verse_numbers.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace lections {
namespace {

constexpr uint8_t kAll = kLuther | kKingJames | kFolkbibel | kSegond | kNorwegianBible | kSynodal;
constexpr uint8_t kChristian = kAll & ~kLuther;
constexpr uint8_t kEnglishLike = kKingJames | kFolkbibel;

struct Row {
  constexpr Row(const char* hebrewText, const char* ownText, int versificationBits)
      : hebrew(Passage(hebrewText)[0]),
        own(Passage(ownText)[0]),
        versifications(static_cast<uint8_t>(versificationBits)) {}

  Verses hebrew;  // of one chapter
  Verses own;
  uint8_t versifications;  // that have it so
};

// In the order of the books. What is not here is numbered as in passage.h.
//
// Sources, for each versification:
// - kLuther: the chapters' lengths in Luther's Bible as SWORD has them ("German", "Luther": those of the Leningrad
//   codex), whose Decalogue has a verse for each commandment.
// - kKingJames: "eng.vrs" of the Paratext program, which maps it to the Biblia Hebraica verse by verse; SWORD's "KJV".
// - kFolkbibel: Svenska Folkbibeln 2015, chapter by chapter where it was to be had; it leaves Numbers 30 as it is.
// - kSegond: SWORD's "Segond" (Segond 1910).
// - kNorwegianBible: Bibelen 2011 of the Norwegian Bible Society, chapter by chapter.
// - kSynodal: "rsc.vrs" of the Paratext program; SWORD's "SynodalProt".
//
// A row has as many verses on both sides, or one Hebrew verse that is several in the others.
constexpr Row kRows[] = {
    {"Genesis 32:1", "Genesis 31:55", kChristian},
    {"Genesis 32:2-33", "Genesis 32:1-32", kChristian},
    {"Exodus 7:26-29", "Exodus 8:1-4", kChristian & ~kSegond},
    {"Exodus 8:1-28", "Exodus 8:5-32", kChristian & ~kSegond},
    // From "You shall not murder" to "You shall not bear false witness".
    {"Exodus 20:13", "Exodus 20:13-16", kAll},
    {"Exodus 20:14-23", "Exodus 20:17-26", kAll},
    {"Exodus 21:37", "Exodus 22:1", kChristian},
    {"Exodus 22:1-30", "Exodus 22:2-31", kChristian},
    {"Leviticus 5:20-26", "Leviticus 6:1-7", kEnglishLike | kSynodal},
    {"Leviticus 6:1-23", "Leviticus 6:8-30", kEnglishLike | kSynodal},
    {"Leviticus 14:56", "Leviticus 14:55", kSynodal},
    {"Leviticus 14:57", "Leviticus 14:56", kSynodal},
    {"Numbers 12:16", "Numbers 13:1", kSynodal},
    {"Numbers 13:1-33", "Numbers 13:2-34", kSynodal},
    {"Numbers 17:1-15", "Numbers 16:36-50", kChristian},
    {"Numbers 17:16-28", "Numbers 17:1-13", kChristian},
    {"Numbers 25:19", "Numbers 26:1", kChristian},
    {"Numbers 30:1", "Numbers 29:40", kKingJames},
    {"Numbers 30:2-17", "Numbers 30:1-16", kKingJames},
    {"Deuteronomy 5:17", "Deuteronomy 5:17-20", kAll},
    {"Deuteronomy 5:18-30", "Deuteronomy 5:21-33", kAll},
    {"Deuteronomy 13:1", "Deuteronomy 12:32", kChristian},
    {"Deuteronomy 13:2-19", "Deuteronomy 13:1-18", kChristian},
    {"Deuteronomy 23:1", "Deuteronomy 22:30", kChristian},
    {"Deuteronomy 23:2-26", "Deuteronomy 23:1-25", kChristian},
    {"Deuteronomy 28:69", "Deuteronomy 29:1", kChristian},
    {"Deuteronomy 29:1-28", "Deuteronomy 29:2-29", kChristian},
    {"Joshua 6:1", "Joshua 5:16", kSynodal},
    {"Joshua 6:2-27", "Joshua 6:1-26", kSynodal},
    {"I Samuel 21:1", "I Samuel 20:42", kEnglishLike},
    {"I Samuel 21:1", "I Samuel 20:43", kSegond | kNorwegianBible | kSynodal},
    {"I Samuel 21:2-16", "I Samuel 21:1-15", kChristian},
    {"I Samuel 24:1", "I Samuel 23:29", kEnglishLike},
    {"I Samuel 24:2-23", "I Samuel 24:1-22", kEnglishLike},
    {"II Samuel 19:1", "II Samuel 18:33", kChristian},
    {"II Samuel 19:2-44", "II Samuel 19:1-43", kChristian},
    {"I Kings 5:1-14", "I Kings 4:21-34", kChristian},
    {"I Kings 5:15-32", "I Kings 5:1-18", kChristian},
    {"I Kings 22:44", "I Kings 22:43", kEnglishLike | kSynodal},
    {"I Kings 22:45-54", "I Kings 22:44-53", kEnglishLike | kSynodal},
    {"II Kings 12:1", "II Kings 11:21", kChristian},
    {"II Kings 12:2-22", "II Kings 12:1-21", kChristian},
    {"Isaiah 3:20", "Isaiah 3:19", kSynodal},
    {"Isaiah 3:21-26", "Isaiah 3:20-25", kSynodal},
    {"Isaiah 8:23", "Isaiah 9:1", kChristian & ~kSegond},
    {"Isaiah 9:1-20", "Isaiah 9:2-21", kChristian & ~kSegond},
    // The second half, from "Oh that you would rend the heavens".
    {"Isaiah 63:19", "Isaiah 63:19-64:1", kEnglishLike | kSynodal},
    {"Isaiah 64:1-11", "Isaiah 64:2-12", kEnglishLike | kSynodal},
    {"Jeremiah 8:23", "Jeremiah 9:1", kChristian},
    {"Jeremiah 9:1-25", "Jeremiah 9:2-26", kChristian},
    {"Ezekiel 21:1-5", "Ezekiel 20:45-49", kEnglishLike | kSynodal},
    {"Ezekiel 21:6-37", "Ezekiel 21:1-32", kEnglishLike | kSynodal},
    {"Hosea 2:1-2", "Hosea 1:10-11", kChristian & ~kSegond},
    {"Hosea 2:3-25", "Hosea 2:1-23", kChristian & ~kSegond},
    {"Hosea 12:1", "Hosea 11:12", kEnglishLike | kSynodal},
    {"Hosea 12:2-15", "Hosea 12:1-14", kEnglishLike | kSynodal},
    {"Hosea 14:1", "Hosea 13:16", kEnglishLike | kSegond},
    {"Hosea 14:2-10", "Hosea 14:1-9", kEnglishLike | kSegond},
    {"Joel 3:1-5", "Joel 2:28-32", kChristian & ~kNorwegianBible},
    {"Joel 4:1-21", "Joel 3:1-21", kChristian & ~kNorwegianBible},
    {"Joel 4:1-21", "Joel 3:6-26", kNorwegianBible},
    {"Jonah 2:1", "Jonah 1:17", kEnglishLike},
    {"Jonah 2:2-11", "Jonah 2:1-10", kEnglishLike},
    {"Micah 4:14", "Micah 5:1", kEnglishLike | kSynodal},
    {"Micah 5:1-14", "Micah 5:2-15", kEnglishLike | kSynodal},
    {"Zechariah 2:1-4", "Zechariah 1:18-21", kChristian & ~kNorwegianBible},
    {"Zechariah 2:5-17", "Zechariah 2:1-13", kChristian & ~kNorwegianBible},
    {"Malachi 3:19-24", "Malachi 4:1-6", kChristian},
    {"Song of Songs 1:2-17", "Song of Songs 1:1-16", kSynodal},
    {"Song of Songs 7:1", "Song of Songs 6:13", kEnglishLike},
    {"Song of Songs 7:2-14", "Song of Songs 7:1-13", kEnglishLike},
    {"Ecclesiastes 4:17", "Ecclesiastes 5:1", kEnglishLike},
    {"Ecclesiastes 5:1-19", "Ecclesiastes 5:2-20", kEnglishLike},
    {"Ecclesiastes 11:9-10", "Ecclesiastes 12:1-2", kSegond},
    {"Ecclesiastes 12:1-14", "Ecclesiastes 12:3-16", kSegond},
};

constexpr bool IsSound(const Row& row) {
  if (row.hebrew.book != row.own.book || row.hebrew.chapter != row.hebrew.lastChapter) return false;
  const int verses = row.hebrew.lastVerse - row.hebrew.verse;
  return verses == 0 || (row.own.chapter == row.own.lastChapter && verses == row.own.lastVerse - row.own.verse);
}
static_assert(std::ranges::all_of(kRows, IsSound));

// The Bible of each language that most of its readers have in print. What Jewish readers use is numbered as the tables
// are: Jewish translations follow the Hebrew Bible.
constexpr OwnBible kOwnBibles[] = {
    {1, "the King James Version", kKingJames},
    {2, "the King James Version", kKingJames},
    {3, "the Luther Bible (2017)", kLuther},  // and the Einheitsübersetzung
    {5, "the Segond Bible", kSegond},
    {6, "the Danish Bible (1992)", kLuther},
    {7, "the Finnish Bible (1992)", kLuther},
    {8, "Svenska Folkbibeln", kFolkbibel},       // where Bibel 2000 was seen, it agrees
    {9, "the Nieuwe Bijbelvertaling", kLuther},  // NBV21; the Statenvertaling numbers otherwise
    {10, "the Reina-Valera Bible", kKingJames},  // 1960
    {11, "the Norwegian Bible (2011)", kNorwegianBible},
    // But for I Samuel 20:43, where no reading begins or ends; the older Revista e Corrigida divides Judges 5:31 too.
    {12, "the Almeida Bible (Revista e Atualizada)", kKingJames},
    {14, "the Revised New Translation (RÚF)", kLuther},  // 2014; Károli's numbers otherwise
    {15, "the Czech Ecumenical Translation", kLuther},   // the Kralice Bible numbers otherwise
    {16, "the Greek Bible Society's Bible", kLuther},    // 1997, from the Hebrew, not the Septuagint
    {17, "the Synodal Bible", kSynodal},
    {20, "the Bible of the Italian bishops (CEI)", kLuther},  // 2008
    {21, "the Millennium Bible", kLuther},                    // Biblia Tysiąclecia
};

static_assert(std::ranges::is_sorted(kRows, {}, [](const Row& row) { return row.hebrew.book; }));

// Where the rows of each book begin, and the end of the last one's.
constexpr auto kFirstRows = [] {
  std::array<const Row*, kBookCount + 1> first{};
  for (size_t book = 0; book <= kBookCount; ++book) {
    first[book] =
        std::ranges::find_if(kRows, [book](const Row& row) { return static_cast<size_t>(row.hebrew.book) >= book; });
  }
  return first;
}();

// The row of a verse; null when it is numbered as in the table.
const Row* RowOf(Versification versification, Book book, int chapter, int verse) {
  const auto index = static_cast<size_t>(book);
  for (const Row* row = kFirstRows[index]; row != kFirstRows[index + 1]; ++row) {
    const Verses& hebrew = row->hebrew;
    const bool isIn = hebrew.chapter == chapter && hebrew.verse <= verse && verse <= hebrew.lastVerse;
    if (isIn && (row->versifications & versification) != 0) return row;
  }
  return nullptr;
}

}  // namespace

std::span<const OwnBible> OwnBibles() {
  return kOwnBibles;
}

const OwnBible* OwnBibleOf(uint32_t language) {
  const OwnBible* found = std::ranges::find(kOwnBibles, language, &OwnBible::language);
  return found == std::end(kOwnBibles) ? nullptr : found;
}

Verses InNumbersOf(Versification versification, const Verses& verses) {
  Verses own = verses;
  if (const Row* row = RowOf(versification, verses.book, verses.chapter, verses.verse)) {
    own.chapter = row->own.chapter;
    own.verse = static_cast<uint8_t>(row->own.verse + (verses.verse - row->hebrew.verse));
  }
  if (const Row* row = RowOf(versification, verses.book, verses.lastChapter, verses.lastVerse)) {
    own.lastChapter = row->own.lastChapter;
    own.lastVerse = static_cast<uint8_t>(row->own.lastVerse - (row->hebrew.lastVerse - verses.lastVerse));
  }
  return own;
}

}  // namespace lections
