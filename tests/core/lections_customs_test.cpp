// The customs side by side: every one that is shown is named once in each part of a day's readings, unless all that are
// shown read alike.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "readings/core/split_rules.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using namespace lections_test;

constexpr Custom kCustoms[] = {Custom::kAshkenazi, Custom::kSephardi, Custom::kChabad};
constexpr std::string_view kCustomNames[] = {"Ashkenazi", "Sephardi", "Chabad"};

// What each custom reads in a part of the day's readings.
using ReadByCustom = std::map<Custom, std::string>;
// A haftarah's part has a blank before its name, the main part none.
using ReadByPart = std::map<std::string, ReadByCustom>;

std::vector<std::string> Divided(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  while (true) {
    const size_t at = text.find(separator);
    pieces.emplace_back(text.substr(0, at));
    if (at == std::string_view::npos) return pieces;
    text.remove_prefix(at + separator.size());
  }
}

std::vector<Custom> Shown(const Settings& settings) {
  std::vector<Custom> shown;
  if (settings.customs != Customs::kSephardi) shown.push_back(Custom::kAshkenazi);
  if (settings.customs != Customs::kAshkenazi) shown.push_back(Custom::kSephardi);
  if (settings.chabad) shown.push_back(Custom::kChabad);
  return shown;
}

std::string NameOf(Part part) {
  switch (part) {
    case Part::kMain: return "";
    case Part::kRoshChodesh: return "Rosh Chodesh";
    case Part::kMaftir: return "Maftir";
    case Part::kMaftirOfWalledCities: return "Maftir in walled cities";
    case Part::kWalledCities: return "Walled cities";
    case Part::kAfternoon: return "Afternoon";
    case Part::kScroll: return "Scroll";
  }
  return "?";
}

// Straight from the schedule, custom by custom.
ReadByPart Scheduled(const calendar::Date& date, const Settings& settings) {
  ReadByPart parts;
  for (const Custom custom : Shown(settings)) {
    const DayReadings day = ReadingsOn(date, settings.land, custom, settings.optional);
    for (const lections::Line& line : day.torah) {
      parts[NameOf(line.part)][custom] = PassageText(line.passage, LanguageOf(1), true);
    }
    for (const lections::Line& line : day.haftarot) {
      parts[" " + NameOf(line.part)][custom] = PassageText(line.passage, LanguageOf(1), true);
    }
  }
  return parts;
}

// The part that the head of a line names, and the customs that it names.
struct Head {
  std::string part;
  std::vector<Custom> customs;
};

Head HeadOf(std::string_view head, bool isHaftarah) {
  Head found;
  for (const std::string& word : Divided(head, ", ")) {
    const auto* custom = std::ranges::find(kCustomNames, word);
    if (custom != std::end(kCustomNames)) {
      found.customs.push_back(kCustoms[custom - std::begin(kCustomNames)]);
    } else if (word == "Morning") {
      EXPECT_TRUE(isHaftarah);
    } else if (found.part.empty()) {
      found.part = word;
    }
  }
  if (isHaftarah) found.part.insert(0, " ");
  return found;
}

// As a user reads the texts. A line that names no custom is that of all; "twice" stands for a custom named a second
// time.
ReadByPart Listed(const ReadingTexts& texts, const Settings& settings) {
  ReadByPart parts;
  const auto add = [&](const std::array<std::string, 3>& slots, bool isHaftarah) {
    for (const std::string& slot : slots) {
      for (const std::string& line : slot.empty() ? std::vector<std::string>{} : Divided(slot, " / ")) {
        const size_t colon = line.rfind(": ");  // a haftarah that all read alike has none
        const bool hasHead = colon != std::string::npos;
        EXPECT_TRUE(hasHead || isHaftarah) << line;
        const std::string passage = hasHead ? line.substr(colon + 2) : line;
        Head head = HeadOf(std::string_view(line).substr(0, hasHead ? colon : 0), isHaftarah);
        if (!isHaftarah && &slot == &slots[0]) head.part = "";  // the day's name
        for (const Custom custom : head.customs.empty() ? Shown(settings) : head.customs) {
          const bool isNew = parts[head.part].emplace(custom, passage).second;
          if (!isNew) parts[head.part][custom] = "twice";
        }
      }
    }
  };
  add(texts.torah, false);
  add(texts.haftarot, true);
  return parts;
}

// Whether a slot names a custom though all read the part alike.
bool NamesACustom(std::string_view line) {
  return std::ranges::any_of(kCustomNames,
                             [&](std::string_view name) { return line.find(name) != std::string_view::npos; });
}

std::string TextOf(const ReadByPart& parts) {
  std::string text;
  for (const auto& [part, reads] : parts) {
    text += "[" + part + "]";
    for (const auto& [custom, passage] : reads) {
      text += " " + std::string(kCustomNames[static_cast<size_t>(custom)]) + " " + passage;
    }
  }
  return text;
}

std::vector<Settings> EveryCombination() {
  std::vector<Settings> all;
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    for (const Customs customs : {Customs::kAshkenazi, Customs::kSephardi, Customs::kBoth}) {
      for (const bool chabad : {false, true}) all.push_back(Of(land, customs, chabad));
    }
  }
  return all;
}

// 76 years: four cycles of leap years.
constexpr int32_t kFirstYear = 5750;
constexpr int32_t kLastYear = 5825;

template <typename Check>
void ForEveryDay(const Check& check) {
  for (const Settings& settings : EveryCombination()) {
    for (int32_t day = calendar::JewishNewYear(kFirstYear); day < calendar::JewishNewYear(kLastYear + 1); ++day) {
      if (testing::Test::HasFailure()) return;  // one day is enough to see what is wrong
      const calendar::Date date = calendar::JewishFromAbsolute(day);
      const ReadingTexts texts = TextsOn(date, settings);
      if (!texts.torah[0].empty()) check(date, settings, texts);
    }
  }
}

TEST(LectionsCustoms, EveryOneShownIsListedOnceWithWhatItReads) {
  int days = 0;
  ForEveryDay([&](const calendar::Date& date, const Settings& settings, const ReadingTexts& texts) {
    ++days;
    ASSERT_EQ(TextOf(Listed(texts, settings)), TextOf(Scheduled(date, settings))) << lections_test::Line(texts);
  });
  EXPECT_GT(days, 12 * 76 * 80);
}

TEST(LectionsCustoms, NoneIsNamedWhereAllShownReadAlike) {
  ForEveryDay([](const calendar::Date& date, const Settings& settings, const ReadingTexts& texts) {
    const size_t shown = Shown(settings).size();
    const ReadByPart scheduled = Scheduled(date, settings);
    const bool areAlike = std::ranges::all_of(scheduled, [shown](const auto& part) {
      const ReadByCustom& reads = part.second;
      return reads.size() == shown &&
             std::ranges::all_of(reads, [&reads](const auto& one) { return one.second == reads.begin()->second; });
    });
    ASSERT_EQ(NamesACustom(lections_test::Line(texts)), !areAlike) << lections_test::Line(texts);
  });
}

// As the program's list of readings takes them.
TEST(LectionsCustoms, NoLineIsSplitByTheProgram) {
  ForEveryDay([](const calendar::Date&, const Settings& settings, const ReadingTexts& texts) {
    ReadingsEntry entry{};
    char* const slots[] = {entry.torah1, entry.torah2, entry.torah3, entry.haftarah1, entry.haftarah2, entry.haftarah3};
    for (size_t i = 0; i < 6; ++i) {
      const std::string& text = i < 3 ? texts.torah[i] : texts.haftarot[i - 3];
      slots[i][text.copy(slots[i], sizeof entry.torah1 - 1)] = '\0';
    }
    const ReadingsEntry before = entry;
    SplitReadings(entry, settings.language);
    ASSERT_EQ(std::memcmp(&entry, &before, sizeof entry), 0) << lections_test::Line(texts);
  });
}

// Luach and haftarot of Chabad (5785); the other two as in the printed editions.
TEST(LectionsCustoms, TwoThatReadAlikeStandInOneLine) {
  const Settings all = Of(Land::kDiaspora, Customs::kBoth, true);
  EXPECT_EQ(Read(25, 1, 2025, all), "Vaera: Exodus 6:2-9:35 // Ezekiel 28:25-29:21");
  EXPECT_EQ(Read(26, 10, 2024, all),
            "Bereshit: Genesis 1:1-6:8 // Ashkenazi: Isaiah 42:5-43:10 | "
            "Sephardi, Chabad: Isaiah 42:5-21");
  EXPECT_EQ(Read(26, 12, 2024, all),
            "Chanukah, day 1, Ashkenazi, Chabad: Numbers 7:1-17 | Sephardi: Numbers 6:22-7:17");
}

TEST(LectionsCustoms, AreNamedInHebrewToo) {
  Settings all = Of(Land::kDiaspora, Customs::kBoth, true);
  all.language = 4;
  const ReadingTexts texts = TextsOn(JewishDate(26, 10, 2024), all);
  EXPECT_EQ(texts.haftarot[0], Encoded("אשכנזים: ישעיהו מב:ה-מג:י", CodePage::kHebrew));
  EXPECT_EQ(texts.haftarot[1], Encoded("ספרדים, חב\"ד: ישעיהו מב:ה-כא", CodePage::kHebrew));
}

}  // namespace
