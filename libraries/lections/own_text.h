// The user's own texts of readings, and how the file "readings.txt" says them.
//
// It is a text file in UTF-8, one line a text:
//
//   portion Noach | haftarah 1 | diaspora | Sephardi | all | instead | Isaiah 54:1-10
//
// which days the text is for ("portion", "occasion" or "date" and its English name: "portion Matot-Masei", "occasion
// Sukkot, day 1, Shabbat", "occasion Rosh Chodesh Adar I", "date 7 Adar", "date 15 Av 5787"); the place in the day's
// texts ("torah 1" to "torah 3", "haftarah 1" to "haftarah 3", "extra"); the land ("Israel", "diaspora" or "all"); the
// customs that are listed ("Ashkenazi", "Sephardi", "several" side by side, or "all"); the language by its English
// name, or "all"; whether the text stands "instead" of the program's or "after" it; and the text to the end of the
// line, in which "%" and two hexadecimal digits stand for a byte of a "%" or of a blank at either end. Blanks around
// the bars do not count. Of several lines for the same place the last one counts. Lines that start with "#" and all
// that are not of this form are nobody's; they are passed over. Lines end in CR, LF or both; a byte order mark is
// skipped.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/language.h"
#include "libraries/lections/settings.h"
#include "libraries/lections/when.h"

namespace lections {

// The texts of a day, in the order in which they are listed.
enum class Slot : uint8_t { kTorah1, kTorah2, kTorah3, kHaftarah1, kHaftarah2, kHaftarah3, kExtra };
constexpr int kSlotCount = 7;

// Whose readings are listed, as the slots show it.
enum class Listing : uint8_t { kAny, kAshkenazi, kSephardi, kSeveral };
Listing ListingOf(const Settings& settings);

enum class InLand : uint8_t { kAny, kIsrael, kDiaspora };
constexpr uint32_t kAnyLanguage = 0;

// Where a text holds. The order is that in which texts for the same slot are taken, the most particular last.
struct OwnPlace {
  When when;
  Slot slot = Slot::kTorah1;
  uint32_t language = kAnyLanguage;
  Listing listing = Listing::kAny;
  InLand land = InLand::kAny;

  auto operator<=>(const OwnPlace&) const = default;
};

enum class How : uint8_t { kInstead, kAfter };

struct OwnText {
  How how = How::kInstead;
  std::string text;  // UTF-8; empty: nothing is to stand there

  bool operator==(const OwnText&) const = default;
};

struct OwnEntry {
  OwnPlace place;
  OwnText text;
};

using OwnTexts = std::map<OwnPlace, OwnText>;
using OwnChanges = std::map<OwnPlace, std::optional<OwnText>>;

constexpr char kOwnReadingsFile[] = "readings.txt";
constexpr size_t kLongestOwnText = 255;  // characters, each of which is a byte in the text's code page

// Whether a place's land, customs and language are those of the settings.
bool IsFor(const OwnPlace& place, const Settings& settings);

// The languages among those of the place whose code page lacks a character of the text: there the program's own text
// stands.
std::vector<const Language*> LanguagesWithout(const OwnPlace& place, std::string_view text);

// What keeps a text from being taken, in the order in which it is told.
enum class Fault : uint8_t {
  kNone,
  kMark,     // a brace, a backslash or a control character, which would damage RTF files
  kTooLong,  // more than kLongestOwnText characters
  kLetters,  // characters that no language of the place has; of the extra text: that windows-1252 has not
  kNoTitle,  // nothing instead of the first text, without which the day would not be listed
};
Fault FaultOf(const OwnPlace& place, const OwnText& text);

// The first character of a text that a code page lacks, in UTF-8; empty where there is none.
std::string FirstMissing(std::string_view text, CodePage page);

// The entry that a line is; none when it is none, or has a fault. The entry as a line, without an end.
std::optional<OwnEntry> OwnEntryIn(std::string_view line);
std::string LineOf(const OwnEntry& entry);

// All entries of a file's text, and the lines (from 1) that are neither entries nor empty nor begin with "#".
struct OwnFile {
  OwnTexts texts;
  std::vector<int> damagedLines;
};
OwnFile OwnFileIn(std::string_view text);

// The text of a file with the changes made: changed texts keep their lines, new ones come at the end, everything else
// keeps its bytes. A file that is empty gets some lines that say what it is.
std::string Applied(const OwnChanges& changes, std::string_view text);

}  // namespace lections
