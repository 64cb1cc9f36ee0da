// What the dialogs of own texts say in words. Dates are those of a printed luach of 5784 to 5787, verses those of the
// tests of readings.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/lections/own_preview.h"
#include "libraries/lections/own_remark.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using calendar::Land;
using lections_test::Of;

int32_t Civil(int32_t day, int32_t month, int32_t year) {
  return calendar::AbsoluteFromGregorian({day, month, year});
}

// A Wednesday, 28 Tishri 5785.
const int32_t kToday = Civil(30, 10, 2024);

OwnPlace PlaceOf(const char* key, Slot slot = Slot::kTorah1) {
  return {.when = *WhenIn(key), .slot = slot};
}

Settings In(uint32_t language, Customs customs = Customs::kBoth) {
  Settings settings = Of(Land::kDiaspora, customs);
  settings.language = language;
  return settings;
}

std::string RemarkOn(const std::string& text, How how = How::kInstead, uint32_t language = kAnyLanguage,
                     Slot slot = Slot::kTorah1) {
  OwnPlace place = PlaceOf("portion Noach", slot);
  place.language = language;
  return RemarkOn(OwnEntry{place, {how, text}});
}

TEST(LectionsOwnPreview, ATextIsSeenInTheUsersSettingsButForWhatItsPlaceSays) {
  const Settings users = Of(Land::kDiaspora, Customs::kAshkenazi, true);
  OwnPlace place = PlaceOf("portion Noach");
  EXPECT_EQ(SettingsFor(place, users), users);
  place.language = 4;
  place.land = InLand::kIsrael;
  Settings seen = users;
  seen.language = 4;
  seen.land = Land::kIsrael;
  EXPECT_EQ(SettingsFor(place, users), seen);
  place.listing = Listing::kSeveral;  // which the user's are, with Chabad's
  EXPECT_EQ(SettingsFor(place, users), seen);
  place.listing = Listing::kSephardi;
  seen.customs = Customs::kSephardi;
  seen.chabad = false;
  EXPECT_EQ(SettingsFor(place, users), seen);
  place.listing = Listing::kAshkenazi;
  seen.customs = Customs::kAshkenazi;
  EXPECT_EQ(SettingsFor(place, users), seen);
}

TEST(LectionsOwnPreview, ATextForSeveralCustomsIsSeenAmongBoth) {
  OwnPlace place = PlaceOf("portion Noach");
  place.listing = Listing::kSeveral;
  EXPECT_EQ(SettingsFor(place, Of(Land::kIsrael, Customs::kSephardi)), Of(Land::kIsrael, Customs::kBoth));
}

// Whatever a place says, the settings in which it is seen are such that it holds in them.
TEST(LectionsOwnPreview, ATextHoldsWhereItIsSeen) {
  for (const Customs customs : {Customs::kAshkenazi, Customs::kSephardi, Customs::kBoth}) {
    for (const bool chabad : {false, true}) {
      for (int listing = 0; listing < 4; ++listing) {
        for (int land = 0; land < 3; ++land) {
          for (const uint32_t language : {kAnyLanguage, 1u, 7u}) {
            OwnPlace place = PlaceOf("portion Noach");
            place.listing = static_cast<Listing>(listing);
            place.land = static_cast<InLand>(land);
            place.language = language;
            EXPECT_TRUE(IsFor(place, SettingsFor(place, Of(Land::kDiaspora, customs, chabad)))) << ScopeText(place);
          }
        }
      }
    }
  }
}

TEST(LectionsOwnPreview, ADateIsToldInBothCalendars) {
  EXPECT_EQ(DateText(Civil(28, 11, 2026)), "28.11.2026, 18 Kislev 5787");
  EXPECT_EQ(DateText(Civil(8, 2, 2027)), "08.02.2027, 1 Adar I 5787");
  EXPECT_EQ(DateText(Civil(23, 3, 2027)), "23.03.2027, 14 Adar II 5787");
  EXPECT_EQ(DateText(Civil(14, 3, 2025)), "14.03.2025, 14 Adar 5785");
}

TEST(LectionsOwnPreview, ShowsTheDaysWithTheirTextsAndTheUsersAmongThem) {
  const std::vector<int32_t> days = {Civil(9, 11, 2024), Civil(16, 11, 2024)};
  EXPECT_EQ(PreviewOf(days, In(1), OwnReadings()),
            "09.11.2024, 8 Cheshvan 5785\n"
            "Torah: Lech Lecha: Genesis 12:1-17:27\n"
            "Haftarah: Isaiah 40:27-41:16\n"
            "\n"
            "16.11.2024, 15 Cheshvan 5785\n"
            "Torah: Vayera: Genesis 18:1-22:24\n"
            "Haftarah: Ashkenazi: II Kings 4:1-37\n"
            "Haftarah: Sephardi: II Kings 4:1-23\n");
  const OwnReadings own(OwnTexts{{PlaceOf("portion Vayera", Slot::kHaftarah1), {How::kInstead, "Ours"}},
                                 {PlaceOf("portion Vayera", Slot::kHaftarah2), {How::kInstead, ""}},
                                 {PlaceOf("portion Vayera", Slot::kExtra), {How::kInstead, "Caf\u00E9"}}});
  EXPECT_EQ(PreviewOf({days[1]}, In(1), own),
            "16.11.2024, 15 Cheshvan 5785\n"
            "Torah: Vayera: Genesis 18:1-22:24\n"
            "Haftarah: Ours\n"
            "Note: Caf\u00E9\n");
  EXPECT_EQ(PreviewOf({}, In(1), own), "");
}

TEST(LectionsOwnPreview, TextsOfAnotherCodePageAreShownInTheirLetters) {
  const OwnReadings own(OwnTexts{{PlaceOf("portion Vayera"), {How::kInstead, "וירא"}}});
  EXPECT_TRUE(PreviewOf({Civil(16, 11, 2024)}, In(4), own)
                  .starts_with("16.11.2024, 15 Cheshvan 5785\nTorah: וירא\nHaftarah: "));
}

TEST(LectionsOwnPreview, EachKindComesNextOnItsFirstDayFromToday) {
  const std::map<When, int32_t> days = NextDays(Land::kDiaspora, kToday);
  const auto day = [&](const char* key) { return days.at(*WhenIn(key)); };
  EXPECT_EQ(day("date 28 Tishri"), kToday);
  EXPECT_EQ(day("date 27 Tishri"), Civil(19, 10, 2025));
  EXPECT_EQ(day("portion Noach"), Civil(2, 11, 2024));
  EXPECT_EQ(day("portion Bereshit"), Civil(18, 10, 2025));
  EXPECT_EQ(day("portion Matot-Masei"), Civil(26, 7, 2025));
  EXPECT_EQ(day("date 7 Adar"), Civil(7, 3, 2025));
  EXPECT_EQ(day("date 1 Adar I"), Civil(8, 2, 2027));
  EXPECT_EQ(day("occasion Shavuot, day 2"), Civil(3, 6, 2025));
  for (const auto& [when, next] : days) EXPECT_FALSE(IsOfOneYear(when)) << KeyOf(when);
}

TEST(LectionsOwnPreview, WhatALandDoesNotHaveComesOnNoDayInIt) {
  const std::map<When, int32_t> days = NextDays(Land::kIsrael, kToday);
  EXPECT_FALSE(days.contains(*WhenIn("occasion Shavuot, day 2")));
  EXPECT_EQ(days.at(*WhenIn("portion Noach")), Civil(2, 11, 2024));
  EXPECT_EQ(NoDaysText(Land::kIsrael), "It does not come in Israel within the next sixty years.");
  EXPECT_EQ(NoDaysText(Land::kDiaspora), "It does not come in the diaspora within the next sixty years.");
}

// The calendar ends with a year; nothing after it is looked at.
TEST(LectionsOwnPreview, AtTheCalendarsEndTheDaysAreFewer) {
  const int32_t last = calendar::AbsoluteFromJewish({29, calendar::kElul, calendar::kLastYear});
  const std::map<When, int32_t> days = NextDays(Land::kDiaspora, last);
  EXPECT_TRUE(days.contains(*WhenIn("date 29 Elul")));
  for (const auto& [when, day] : days) EXPECT_EQ(day, last) << KeyOf(when);
  EXPECT_TRUE(NextDaysOf(*WhenIn("portion Noach"), Land::kDiaspora, last, 3).empty());
}

TEST(LectionsOwnPreview, ARowHasTheTextsOfItsNextDay) {
  const When vayera = *WhenIn("portion Vayera");
  OwnRow row = RowOf(vayera, Civil(16, 11, 2024), In(1), OwnReadings());
  EXPECT_EQ(row.when, vayera);
  EXPECT_EQ(row.name, "Vayera");
  EXPECT_EQ(row.next, Civil(16, 11, 2024));
  EXPECT_EQ(row.torah, "Vayera: Genesis 18:1-22:24");
  EXPECT_EQ(row.haftarot, "Ashkenazi: II Kings 4:1-37 / Sephardi: II Kings 4:1-23");
  const OwnReadings own(OwnTexts{{PlaceOf("portion Vayera", Slot::kHaftarah2), {How::kInstead, "Ours"}}});
  EXPECT_EQ(RowOf(vayera, Civil(16, 11, 2024), In(1), own).haftarot, "Ashkenazi: II Kings 4:1-37 / Ours");
  row = RowOf(vayera, Civil(16, 11, 2024), In(4), OwnReadings());
  EXPECT_EQ(row.name, "וירא");
  EXPECT_TRUE(row.torah.starts_with("וירא: ")) << row.torah;
  row = RowOf(*WhenIn("occasion Shavuot, day 2"), 0, In(1), OwnReadings());
  EXPECT_EQ(row.name, "Shavuot, day 2");
  EXPECT_EQ(row.torah + row.haftarot, "");
}

TEST(LectionsOwnPreview, TheScopeOfAPlaceIsToldInWords) {
  OwnPlace place = PlaceOf("portion Noach");
  EXPECT_EQ(ScopeText(place), "all");
  place.land = InLand::kIsrael;
  EXPECT_EQ(ScopeText(place), "Israel");
  place = {.when = place.when, .language = 5, .listing = Listing::kSephardi, .land = InLand::kDiaspora};
  EXPECT_EQ(ScopeText(place), "diaspora, Sephardi, French");
  place = {.when = place.when, .listing = Listing::kSeveral};
  EXPECT_EQ(ScopeText(place), "several customs");
  EXPECT_STREQ(NameOf(Slot::kTorah1), "Torah 1");
  EXPECT_STREQ(NameOf(Slot::kHaftarah3), "Haftarah 3");
  EXPECT_STREQ(NameOf(Slot::kExtra), "Note");
}

TEST(LectionsOwnRemark, TellsEachFaultAndHowToGoOn) {
  EXPECT_EQ(RemarkOn("a{b"),
            "Braces { }, backslashes and tabs cannot stand in a reading: they are marks of RTF files. Please leave "
            "them out.");
  EXPECT_EQ(RemarkOn(std::string(300, 'a')),
            "The text has 300 characters; the program has room for 255. Please shorten it.");
  EXPECT_EQ(RemarkOn("Genesis נח", How::kInstead, 1),
            "English readings cannot show \"נ\". Please leave it out, or choose another language.");
  EXPECT_EQ(RemarkOn("漢"), "There is no language of readings that has all letters of this text.");
  EXPECT_EQ(RemarkOn("נח", How::kAfter, kAnyLanguage, Slot::kExtra),
            "The note is drawn in the program's own font, which does not have the letter \"נ\". Please write it in "
            "Latin letters.");
  EXPECT_EQ(RemarkOn(""), "Please enter a text: a day whose first text is empty would not be listed at all.");
}

TEST(LectionsOwnRemark, TellsTheLengthAndFrom96CharactersOnThatTheTextExportCuts) {
  EXPECT_EQ(RemarkOn("Noach"), "5 of 255 characters.");
  EXPECT_EQ(RemarkOn(std::string(95, 'a')), "95 of 255 characters.");
  EXPECT_EQ(RemarkOn(std::string(96, 'a')), "96 of 255 characters. The export as text shows the first 95.");
  EXPECT_EQ(RemarkOn(std::string(255, 'a')), "255 of 255 characters. The export as text shows the first 95.");
  EXPECT_EQ(RemarkOn("נח", How::kInstead, 4), "2 of 255 characters.");
  EXPECT_EQ(RemarkOn("", How::kInstead, kAnyLanguage, Slot::kHaftarah1), "Nothing will stand there.");
  const OwnEntry after = {PlaceOf("portion Noach", Slot::kTorah1), {How::kAfter, "abc"}};
  EXPECT_EQ(RemarkOn(after, 40), "43 of 255 characters with the program's.");
  EXPECT_EQ(RemarkOn(after, 93), "96 of 255 characters with the program's. The export as text shows the first 95.");
  EXPECT_EQ(RemarkOn(after, 253),
            "256 of 255 characters with the program's. The end will be cut. The export as text shows the first 95.");
  EXPECT_EQ(
      RemarkOn("A; Morning: B"),
      "13 of 255 characters. The program divides it at \"; Morning: \": the rest takes the next line, in place of "
      "what stands there.");
  EXPECT_EQ(RemarkOn("", How::kAfter), "");
}

TEST(LectionsOwnRemark, ListsTheLanguagesThatLackLetters) {
  // Of 18 languages Hebrew alone has them.
  EXPECT_EQ(RemarkOn("נח"),
            "2 of 255 characters. English, English (Ashkenazi spelling), Czech, Danish and 13 more cannot show all of "
            "its letters: there the program's own text stays.");
  // The windows code pages 1250 and 1252 have an e with an acute accent, 1251, 1253 and 1255 have not.
  EXPECT_EQ(RemarkOn("Noé"),
            "3 of 255 characters. Hebrew, Greek and Russian cannot show all of its letters: there the program's own "
            "text stays.");
}

TEST(LectionsOwnRemark, NamesTheFirstOfManyLines) {
  EXPECT_EQ(LinesText({3}), "line 3");
  EXPECT_EQ(LinesText({3, 7}), "lines 3, 7");
  EXPECT_EQ(LinesText({1, 2, 3, 4, 5}), "lines 1, 2, 3, 4, 5");
  EXPECT_EQ(LinesText({1, 2, 3, 4, 5, 6, 8}), "lines 1, 2, 3, 4, 5 and 2 more");
}

TEST(LectionsOwnRemark, BlanksAroundATextGo) {
  EXPECT_EQ(WithoutBlanksAround("  a b "), "a b");
  EXPECT_EQ(WithoutBlanksAround("a"), "a");
  EXPECT_EQ(WithoutBlanksAround("   "), "");
  EXPECT_EQ(WithoutBlanksAround(""), "");
}

TEST(LectionsOwnRemark, TellsWhatTheProgramHasInASlot) {
  EXPECT_EQ(TextInSlot(Slot::kHaftarah2, Civil(16, 11, 2024), In(1)), "Sephardi: II Kings 4:1-23");
  EXPECT_EQ(TextInSlot(Slot::kTorah3, Civil(16, 11, 2024), In(1)), "");
  EXPECT_TRUE(TextInSlot(Slot::kTorah1, Civil(16, 11, 2024), In(4)).starts_with("וירא: "));
  EXPECT_EQ(TextInSlot(Slot::kExtra, Civil(26, 10, 2024), In(4)), "New month announced: Cheshvan");
}

TEST(LectionsOwnRemark, ATextIsOfferedForTheCustomsListedWhereTheyDiffer) {
  const When vayera = *WhenIn("portion Vayera");
  EXPECT_EQ(OfferedPlaceOf(vayera, In(1), kToday), (OwnPlace{.when = vayera, .listing = Listing::kSeveral}));
  EXPECT_EQ(OfferedPlaceOf(vayera, In(4, Customs::kSephardi), kToday),
            (OwnPlace{.when = vayera, .listing = Listing::kSephardi}));
  EXPECT_EQ(OfferedPlaceOf(vayera, In(1, Customs::kAshkenazi), kToday).listing, Listing::kAshkenazi);
  const When lechLecha = *WhenIn("portion Lech Lecha");
  EXPECT_EQ(OfferedPlaceOf(lechLecha, In(1), kToday), (OwnPlace{.when = lechLecha}));
  EXPECT_EQ(OfferedPlaceOf(lechLecha, In(1, Customs::kSephardi), kToday), (OwnPlace{.when = lechLecha}));
}

// On 20 April 2024, two days before Pesach, Chabad alone does not read the Shabbat's haftarah.
TEST(LectionsOwnRemark, ATextIsOfferedForSeveralCustomsWhereChabadsAloneDiffersAndIsListed) {
  const When hagadol = *WhenIn("occasion Shabbat HaGadol");
  const int32_t today = Civil(1, 4, 2024);
  EXPECT_EQ(OfferedPlaceOf(hagadol, Of(Land::kDiaspora, Customs::kAshkenazi, true), today).listing, Listing::kSeveral);
  EXPECT_EQ(OfferedPlaceOf(hagadol, Of(Land::kDiaspora, Customs::kAshkenazi), today).listing, Listing::kAny);
}

TEST(LectionsOwnRemark, ATextForWhatDoesNotComeIsOfferedForAll) {
  const When second = *WhenIn("occasion Shavuot, day 2");
  EXPECT_EQ(OfferedPlaceOf(second, Of(Land::kIsrael, Customs::kBoth), kToday), (OwnPlace{.when = second}));
}

}  // namespace
