// The split rules one by one: what each separator makes of a text. Each expected text is cut by hand by the rule's
// description.
#pragma once

#include "readings/core/split_rules.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace split_rules {

inline constexpr uint32_t kEnglish = 1;

using Slot = char (ReadingsEntry::*)[kTextSize];

inline void Put(ReadingsEntry& entry, Slot slot, const std::string& text) {
  ASSERT_LT(text.size(), kTextSize);
  std::strcpy(entry.*slot, text.c_str());
}

// An entry whose slots hold what tells them apart.
inline ReadingsEntry Entry() {
  ReadingsEntry entry{};
  Put(entry, &ReadingsEntry::torah1, "t1");
  Put(entry, &ReadingsEntry::torah2, "t2");
  Put(entry, &ReadingsEntry::torah3, "t3");
  Put(entry, &ReadingsEntry::haftarah1, "h1");
  Put(entry, &ReadingsEntry::haftarah2, "h2");
  Put(entry, &ReadingsEntry::haftarah3, "h3");
  Put(entry, &ReadingsEntry::extraText, "x");
  return entry;
}

using Texts = std::vector<std::string>;

inline Texts TextsOf(const ReadingsEntry& entry) {
  return {entry.torah1, entry.torah2, entry.torah3, entry.haftarah1, entry.haftarah2, entry.haftarah3, entry.extraText};
}

inline Texts Split(ReadingsEntry entry, uint32_t language = kEnglish) {
  SplitReadings(entry, language);
  return TextsOf(entry);
}

inline Texts SplitIn(Slot slot, const std::string& text, uint32_t language = kEnglish) {
  ReadingsEntry entry = Entry();
  Put(entry, slot, text);
  return Split(entry, language);
}

inline constexpr Slot kTorah1 = &ReadingsEntry::torah1;
inline constexpr Slot kHaftarah1 = &ReadingsEntry::haftarah1;
inline constexpr Slot kHaftarah2 = &ReadingsEntry::haftarah2;

// What a rule makes of "A" + separator + "B".
struct RuleCase {
  std::string separator;
  Slot searched;
  Texts expected;
};

inline Texts SecondHaftarah(const std::string& rest) {
  return {"t1", "t2", "t3", "A", rest, "h3", "x"};
}
inline Texts SecondHaftarahKeepingTheOther(const std::string& first, const std::string& rest) {
  return {"t1", "t2", "t3", first, rest, "h2", "x"};
}
inline Texts ThirdHaftarah(const std::string& rest) {
  return {"t1", "t2", "t3", "h1", "A", rest, "x"};
}
inline Texts SecondTorah(const std::string& rest) {
  return {"A", rest, "t3", "h1", "h2", "h3", "x"};
}
inline Texts SecondTorahKeepingTheOther(const std::string& first, const std::string& rest) {
  return {first, rest, "t2", "h1", "h2", "h3", "x"};
}

inline const std::string kCzechEvening =
    "; ve\xe8"
    "er: ";
inline const std::string kGreekEvening = "; \xe2\xf1\xdc\xe4\xf5: ";
inline const std::string kGreekMorning = "; \xf0\xf1\xf9\xdf: ";
inline const std::string kGreekSephardi = " (\xd3\xe5\xf6\xe1\xf1\xe4\xe9:";
inline const std::string kGreekSephardiRest = "(\xd3\xe5\xf6\xe1\xf1\xe4\xe9:B";
inline const std::string kGreekIntermediateMorning = "\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6, \xf0\xf1\xf9\xdf: ";
inline const std::string kGreekReplacedOr =
    " \xe1\xed\xf4\xe9\xea\xe1\xf4\xdc\xf3\xf4\xe1\xf3\xe7 \xde \xf3\xf5\xec\xf0\xeb\xde\xf1\xf9\xec\xe1 ";

// Every separator once, in the order of the rules; the two that are searched in several slots, once for each.
inline const RuleCase kRuleCases[] = {
    {"; Afternoon: ", kHaftarah1, SecondHaftarah("Afternoon: B")},
    {"; Morning: ", kHaftarah1, SecondHaftarah("Morning: B")},
    {kCzechEvening, kHaftarah1,
     SecondHaftarah("ve\xe8"
                    "er: B")},
    {kGreekEvening, kHaftarah1, SecondHaftarah("\xe2\xf1\xdc\xe4\xf5: B")},
    {kGreekMorning, kHaftarah1, SecondHaftarah("\xf0\xf1\xf9\xdf: B")},
    {"; Abends: ", kHaftarah1, SecondHaftarah("Abends: B")},
    {"; Morgends: ", kHaftarah1, SecondHaftarah("Morgends: B")},
    {"+ Enhjv% ", kHaftarah1, SecondHaftarah("Enhjv% B")},
    {"+ Dtxthjv% ", kHaftarah1, SecondHaftarah("Dtxthjv% B")},
    {" (Sephardi", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(SephardiB")},
    {" (sefardi", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(sefardiB")},
    {" (Sefardisch", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(SefardischB")},
    {" (Seph\xe2radim", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Seph\xe2radimB")},
    {" (sefardisk", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(sefardiskB")},
    {kGreekSephardi, kHaftarah2, ThirdHaftarah(kGreekSephardiRest)},
    {kGreekSephardi, kHaftarah1, SecondHaftarahKeepingTheOther("A", kGreekSephardiRest)},
    {" (Ctafhlbv%", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Ctafhlbv%B")},
    {" (Ctafhlbv%", kHaftarah2, ThirdHaftarah("(Ctafhlbv%B")},
    {" (sefardi", kHaftarah2, ThirdHaftarah("(sefardiB")},
    {"; Morning: ", kTorah1, SecondTorah("Morning: B")},
    {kCzechEvening, kTorah1,
     SecondTorah("ve\xe8"
                 "er: B")},
    {"; Afternoon: ", kTorah1, SecondTorah("Afternoon: B")},
    {"; middag: ", kTorah1, SecondTorah("middag: B")},
    {"; Morgens: ", kTorah1, SecondTorah("Morgens: B")},
    {"; Abends: ", kTorah1, SecondTorah("Abends: B")},
    {kGreekMorning, kTorah1, SecondTorah("\xf0\xf1\xf9\xdf: B")},
    {kGreekEvening, kTorah1, SecondTorah("\xe2\xf1\xdc\xe4\xf5: B")},
    {kGreekIntermediateMorning, kTorah1,
     SecondTorahKeepingTheOther("A\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6", "\xf0\xf1\xf9\xdf: B")},
    {"+ Enhjv% ", kTorah1, SecondTorah("Enhjv% B")},
    {"+ Dtxthjv% ", kTorah1, SecondTorah("Dtxthjv% B")},
    // The character after the separator stays, the one after that goes; nothing is left here.
    {"Ivbyb Fwthtn", kTorah1, {"AIvbyb FwthtnB", "", "t3", "h1", "h2", "h3", "x"}},
    {"; eftermiddag: ", kTorah1, SecondTorah("eftermiddag: B")},
    {" (Jgnfwbz%", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Jgnfwbz%B")},
    {kGreekReplacedOr, kHaftarah1, SecondHaftarahKeepingTheOther("A", kGreekReplacedOr.substr(1) + "B")},
    {" n\xe1hrada nebo ", kHaftarah1, SecondHaftarahKeepingTheOther("A", "n\xe1hrada nebo B")},
    {"+ Qj'km ", kHaftarah1, SecondHaftarahKeepingTheOther("A+", "Qj'km B")},
    {"; \xc9\xe7\xe5\xeb ", kHaftarah1, SecondHaftarahKeepingTheOther("A;", "\xc9\xe7\xe5\xeb B")},
    {"2 ltym Ifdejn- ", kTorah1, SecondTorahKeepingTheOther("A2 ltym Ifdejn- ", "")},
};

}  // namespace split_rules
