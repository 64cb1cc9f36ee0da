// Expected values are worked out by hand; letters and their bytes are those of the Unicode Consortium's table of
// windows-1252.
#include "libraries/placepick/place_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "libraries/placepick/place_list.h"
#include "libraries/placepick/place_names_table.h"
#include "libraries/sun/places.h"

namespace {

using namespace placepick;
using testing::ElementsAre;
using testing::IsEmpty;

std::u16string Folded(std::u16string_view text) {
  return Fold(text).text;
}

PlaceIndex IndexOf(const std::vector<std::string>& names) {
  std::vector<Place> places;
  for (const std::string& name : names) places.push_back({name, 0, 0, 0, 0, false});
  return PlaceIndex(std::move(places));
}

std::vector<std::string> Found(const PlaceIndex& index, std::u16string_view typed) {
  std::vector<std::string> names;
  for (const std::size_t number : index.Matching(typed, {})) names.push_back(index[number].name);
  return names;
}

TEST(Fold, CaseAndAccentsDoNotCount) {
  EXPECT_EQ(Folded(u"ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÑÒÓÔÕÖØÙÚÛÜÝŠŽŸ"), u"aaaaaaceeeeiiiinoooooouuuuyszy");
  EXPECT_EQ(Folded(u"àáâãäåçèéêëìíîïñòóôõöøùúûüýšžÿ"), u"aaaaaaceeeeiiiinoooooouuuuyszy");
  EXPECT_EQ(Folded(u"ABCXYZ019"), u"abcxyz019");
}

TEST(Fold, LettersOfTwoBecomeTwo) {
  EXPECT_EQ(Folded(u"Straße Æbeltoft œuvre ŒUVRE Þingvellir Ðakovo"),
            u"strasse aebeltoft oeuvre oeuvre thingvellir dakovo");
}

TEST(Fold, AccentsOnTheirOwnAreLeftOut) {
  EXPECT_EQ(Folded(u"Zu\u0308rich"), u"zurich");
}

TEST(Fold, SignsAndBlanksOfAnyNumberSeparateWords) {
  EXPECT_EQ(Folded(u"  St.  Louis – (Mo.)×2 "), u"st louis mo 2");
  EXPECT_EQ(Folded(u" -\u00A0. "), u"");
}

TEST(Fold, ApostrophesAreLeftOutAndBeginAWord) {
  for (const char16_t* name : {u"Be'er", u"Be’er", u"Be‘er", u"Be`er", u"Be´er"}) {
    const FoldedText folded = Fold(name);
    EXPECT_EQ(folded.text, u"beer");
    EXPECT_THAT(folded.wordStarts, ElementsAre(0u, 2u));
  }
  EXPECT_THAT(Fold(u"St. John's").wordStarts, ElementsAre(0u, 3u, 7u));
}

TEST(Fold, LettersOfOtherScriptsStayAsTheyAre) {
  EXPECT_EQ(Folded(u"חיפה"), u"חיפה");
}

TEST(PlaceSearch, NothingTypedFindsAllInAlphabeticalOrderWithoutCaseAndAccents) {
  const PlaceIndex index =
      IndexOf({"Zwolle", "\xD6rebro", "oslo", "Newark", "New York", "Odessa", "New Delhi", "\xC5lborg"});
  const std::vector<std::string> inOrder = {"\xC5lborg", "New Delhi", "New York", "Newark",
                                            "Odessa",    "\xD6rebro", "oslo",     "Zwolle"};
  EXPECT_EQ(Found(index, u""), inOrder);
  EXPECT_EQ(Found(index, u" . "), inOrder);
}

TEST(PlaceSearch, FindsAnyPartAndWhatBeginsSoFirst) {
  const PlaceIndex index = IndexOf({"New York", "York", "Yokohama", "Newark", "St. John's", "Be'er Sheva"});
  EXPECT_THAT(Found(index, u"yo"), ElementsAre("Yokohama", "York", "New York"));
  EXPECT_THAT(Found(index, u"york"), ElementsAre("York", "New York"));
  EXPECT_THAT(Found(index, u"ork"), ElementsAre("New York", "York"));
  EXPECT_THAT(Found(index, u"newy"), IsEmpty());
  EXPECT_THAT(Found(index, u"johns"), ElementsAre("St. John's"));
  EXPECT_THAT(Found(index, u"st.john's"), ElementsAre("St. John's"));
  EXPECT_THAT(Found(index, u"er"), ElementsAre("Be'er Sheva"));
}

TEST(PlaceSearch, EachTypedWordMustStandSomewhereInAnyOrder) {
  const PlaceIndex index = IndexOf({"New York", "New Delhi", "York"});
  EXPECT_THAT(Found(index, u"york new"), ElementsAre("New York"));
  EXPECT_THAT(Found(index, u"new"), ElementsAre("New Delhi", "New York"));
  EXPECT_THAT(Found(index, u"new delhi york"), IsEmpty());
}

TEST(PlaceSearch, CaseAndAccentsDoNotCountOnEitherSide) {
  const PlaceIndex index = IndexOf({"Z\xFCrich", "Sao Paulo", "Gro\xDF-Gerau"});
  EXPECT_THAT(Found(index, u"ZUR"), ElementsAre("Z\xFCrich"));
  EXPECT_THAT(Found(index, u"são"), ElementsAre("Sao Paulo"));
  EXPECT_THAT(Found(index, u"gross"), ElementsAre("Gro\xDF-Gerau"));
}

// Places of another name each: 0 Haifa, 1 Kyiv, 2 Safed, in alphabetical order.
PlaceIndex IndexWithOtherNames() {
  return PlaceIndex({{"Haifa", 0, 0, 0, 0, false, u"Israel", u"חיפה|Chaifa"},
                     {"Kyiv", 0, 0, 0, 0, false, u"Ukraine", u"קייב|Kiev|Kiew"},
                     {"Safed", 0, 0, 0, 0, false, u"Israel", u"צפת|Tzfat|Zefat"}});
}

TEST(PlaceSearch, OtherNamesAndCountriesFindToo) {
  const PlaceIndex index = IndexWithOtherNames();
  EXPECT_THAT(Found(index, u"kiev"), ElementsAre("Kyiv"));
  EXPECT_THAT(Found(index, u"zefat"), ElementsAre("Safed"));
  EXPECT_THAT(Found(index, u"TZF"), ElementsAre("Safed"));
  EXPECT_THAT(Found(index, u"חיפ"), ElementsAre("Haifa"));
  EXPECT_THAT(Found(index, u"israel"), ElementsAre("Haifa", "Safed"));
  EXPECT_THAT(Found(index, u"israel tz"), ElementsAre("Safed"));
  EXPECT_THAT(Found(index, u"israel kiev"), IsEmpty());
}

TEST(PlaceSearch, HebrewPointsAndPunctuationDoNotCount) {
  const PlaceIndex index(
      {{"Beersheba", 0, 0, 0, 0, false, u"Israel", u"באר שבע"}, {"Yanuah", 0, 0, 0, 0, false, u"Israel", u"ינוח ג'ת"}});
  EXPECT_THAT(Found(index, u"בְּאֵר־שֶׁבַע"), ElementsAre("Beersheba"));
  EXPECT_THAT(Found(index, u"ג׳ת"), ElementsAre("Yanuah"));
}

TEST(PlaceSearch, TellsTheOtherNameThatIsMeant) {
  const PlaceIndex index = IndexWithOtherNames();
  EXPECT_EQ(index.MeantName(1, u"kiev"), u"Kiev");
  EXPECT_EQ(index.MeantName(1, u"iew"), u"Kiew");
  EXPECT_EQ(index.MeantName(2, u"צפ"), u"צפת");
  EXPECT_EQ(index.MeantName(1, u"kyi"), u"");
  EXPECT_EQ(index.MeantName(1, u"ukraine"), u"");
  EXPECT_EQ(index.MeantName(1, u""), u"");
}

TEST(PlaceSearch, LastUsedComeFirstThenTheUsersOwn) {
  const PlaceIndex index({{"Aleppo", 0, 0, 0, 0, false},
                          {"Boston", 0, 0, 0, 0, false},
                          {"Home", 0, 0, 0, 0, true},
                          {"Oslo", 0, 0, 0, 0, false}});
  const std::vector<std::size_t> lastUsed = {3, 1};
  EXPECT_THAT(index.Matching(u"", lastUsed), ElementsAre(3u, 1u, 2u, 0u));
  EXPECT_THAT(index.Matching(u"o", lastUsed), ElementsAre(3u, 1u, 2u, 0u));
  EXPECT_THAT(index.Matching(u"al", lastUsed), ElementsAre(0u));
}

TEST(PlaceSearch, WhatFitsBestStandsOutWhateverTheOrder) {
  const PlaceIndex index = IndexOf({"Boston", "New York", "York"});
  const std::vector<std::size_t> found = index.Matching(u"york", std::vector<std::size_t>{1});
  EXPECT_THAT(found, ElementsAre(1u, 2u));
  EXPECT_EQ(index.Best(u"york", found), 1u);
  EXPECT_EQ(index.Best(u"york", {}), std::nullopt);
}

TEST(PlaceSearch, LettersOfEasternEuropeAreFoundWithoutTheirAccents) {
  const PlaceIndex index = IndexOf({"Krakow", "Lodz", "Iasi"});
  EXPECT_THAT(Found(index, u"kraków"), ElementsAre("Krakow"));
  EXPECT_THAT(Found(index, u"łódź"), ElementsAre("Lodz"));
  EXPECT_THAT(Found(index, u"iași"), ElementsAre("Iasi"));
}

// Users look for these.
TEST(PlaceSearch, BuiltInPlacesAreFoundUnderTheNamesThatUsersKnow) {
  std::vector<Place> places;
  for (std::size_t i = 0; i < sun::BuiltInPlaces().size(); ++i) {
    const auto& others = place_names_table::names[i];
    places.push_back({sun::BuiltInPlaces()[i].name, 0, 0, 0, 0, false, others.country, others.names});
  }
  const PlaceIndex index(std::move(places));
  const auto first = [&index](std::u16string_view typed) { return Found(index, typed).at(0); };
  EXPECT_EQ(first(u"kiev"), "Kyiv");
  for (const char16_t* safed : {u"zefat", u"tzfat", u"safed", u"tsfat", u"צפת"}) EXPECT_EQ(first(safed), "Safed");
  for (const char16_t* beersheba : {u"beer sheva", u"be'er sheva", u"beersheba", u"באר שבע"}) {
    EXPECT_EQ(first(beersheba), "Beersheba");
  }
  EXPECT_EQ(first(u"münchen"), "Munich");
  EXPECT_EQ(first(u"wien"), "Vienna");
  EXPECT_EQ(first(u"ירושלים"), "Jerusalem");
  EXPECT_EQ(first(u"tel-aviv"), "Tel Aviv");
}

TEST(PlaceNames, EachBuiltInPlaceHasARow) {
  ASSERT_EQ(place_names_table::names.size(), sun::BuiltInPlaces().size());
  for (const place_names_table::OtherNames& row : place_names_table::names) EXPECT_NE(row.country[0], u'\0');
}

TEST(PlaceSearch, NameOfSignsAloneIsListedThoughNothingTypedFindsIt) {
  const PlaceIndex index = IndexOf({"***", "Haifa"});
  EXPECT_THAT(Found(index, u""), ElementsAre("***", "Haifa"));
  EXPECT_THAT(Found(index, u"h"), ElementsAre("Haifa"));
}

TEST(PlaceSearch, FirstNameThatBeginsWithWhatIsTypedStandsOut) {
  const PlaceIndex index = IndexOf({"New York", "York", "Yorkton"});
  const std::vector<std::size_t> found = index.Matching(u"york", {});
  EXPECT_THAT(found, ElementsAre(1u, 2u, 0u));
  EXPECT_EQ(index.FirstBeginningWith(u"Y\u00D6rk", found), 0u);
  EXPECT_EQ(index.FirstBeginningWith(u"yorkt", found), 1u);
  EXPECT_EQ(index.FirstBeginningWith(u"delhi", found), std::nullopt);
}

TEST(PlaceSearch, NamedPlaceIsTheExactOneThenOneThatLooksAlike) {
  const PlaceIndex index = IndexOf({"M\xE1laga", "Malaga", "Z\xFCrich"});
  for (const char* name : {"Malaga", "M\xE1laga", "Z\xFCrich"}) {
    ASSERT_TRUE(index.Named(name)) << name;
    EXPECT_EQ(index[*index.Named(name)].name, name);
  }
  ASSERT_TRUE(index.Named("zurich"));
  EXPECT_EQ(index[*index.Named("zurich")].name, "Z\xFCrich");
  EXPECT_EQ(index.Named("Mal"), std::nullopt);
  EXPECT_EQ(index.Named(""), std::nullopt);
}

// The settings as maps; a key list is answered as the profile library does.
struct Settings {
  std::vector<std::pair<std::string, std::string>> locations;
  std::map<std::string, std::map<std::string, std::string>> numbers;
};
Settings settings;

uint32_t ReadSetting(const char* section, const char* key, const char*, char* buffer, uint32_t size, const char* file) {
  std::string answer;
  if (std::strcmp(file, "shabloc2.ini") == 0) {
    answer = settings.numbers[section][key];
  } else if (std::strcmp(file, "shabbat2.ini") == 0 && std::strcmp(section, "Locations") == 0) {
    for (const auto& [name, value] : settings.locations) {
      if (!key) answer += name + '\0';
      if (key && name == key) answer = value;
    }
  }
  const std::size_t length = std::min<std::size_t>(answer.size(), size - (key ? 1 : 2));
  std::memset(buffer, 0, size);
  std::memcpy(buffer, answer.data(), length);
  return static_cast<uint32_t>(length);
}

class PlaceList : public testing::Test {
 protected:
  void SetUp() override { settings = {}; }

  static std::vector<Place> Known() { return KnownPlaces({nullptr, ReadSetting}); }

  static std::vector<Place> UsersOwn() {
    std::vector<Place> places = Known();
    std::erase_if(places, [](const Place& place) { return !place.isUsersOwn; });
    return places;
  }
};

TEST_F(PlaceList, WithoutPlacesOfTheUsersOwnHasTheBuiltInOnes) {
  const std::vector<Place> places = Known();
  ASSERT_EQ(places.size(), sun::BuiltInPlaces().size());
  EXPECT_EQ(places.front().name, "Aachen");
  EXPECT_EQ(places.front().packedLatitude, 5047);
  EXPECT_EQ(places.front().packedLongitude, 605);
  EXPECT_EQ(places.front().zoneHours, 1);
  EXPECT_FALSE(places.front().isUsersOwn);
}

TEST_F(PlaceList, ReadsTheNumbersOfTheUsersPlaces) {
  settings.locations = {{"Home", "Available"}};
  settings.numbers["Home"] = {{"LatitudeDegrees", "33"},    {"LatitudeHours", "52"},  {"LatitudeFlag", "1"},
                              {"LongitudeDegrees", " 70x"}, {"LongitudeHours", "+9"}, {"LongitudeFlag", "0"},
                              {"TimeZone", "-3"},           {"TimeZoneMin", "-30"}};
  const std::vector<Place> places = UsersOwn();
  ASSERT_EQ(places.size(), 1u);
  EXPECT_EQ(places[0].name, "Home");
  EXPECT_EQ(places[0].packedLatitude, -3352);
  EXPECT_EQ(places[0].packedLongitude, 7009);
  EXPECT_EQ(places[0].zoneHours, -3);
  EXPECT_EQ(places[0].zoneMinutes, -30);
  EXPECT_EQ(Known().size(), sun::BuiltInPlaces().size() + 1);
}

TEST_F(PlaceList, NumbersThatAreMissingOrNoneAreZeroAndHugeOnesAreCut) {
  settings.locations = {{"Home", "Available"}};
  settings.numbers["Home"] = {
      {"LatitudeDegrees", "0x10"}, {"TimeZone", "99999999999"}, {"TimeZoneMin", "-99999999999"}};
  const std::vector<Place> places = UsersOwn();
  ASSERT_EQ(places.size(), 1u);
  EXPECT_EQ(places[0].packedLatitude, 0);
  EXPECT_EQ(places[0].packedLongitude, 0);
  EXPECT_EQ(places[0].zoneHours, INT32_MAX);
  EXPECT_EQ(places[0].zoneMinutes, INT32_MIN);
}

TEST_F(PlaceList, PlaceOfTheUsersOwnTakesTheBuiltInOnesPlace) {
  settings.locations = {{"Jerusalem", "Available"}};
  const std::vector<Place> places = Known();
  EXPECT_EQ(places.size(), sun::BuiltInPlaces().size());
  const auto isIt = [](const Place& place) { return place.name == "Jerusalem"; };
  EXPECT_EQ(std::ranges::count_if(places, isIt), 1);
  EXPECT_TRUE(std::ranges::find_if(places, isIt)->isUsersOwn);
}

TEST_F(PlaceList, PlaceOfTheUsersOwnInOtherLettersStandsBesideTheBuiltInOne) {
  settings.locations = {{"jerusalem", "Available"}, {"Home", "Available"}, {"HOME", "Available"}};
  EXPECT_EQ(Known().size(), sun::BuiltInPlaces().size() + 3);
  const PlaceIndex index(Known());
  for (const char* name : {"jerusalem", "Jerusalem", "Home", "HOME"}) {
    ASSERT_TRUE(index.Named(name)) << name;
    EXPECT_EQ(index[*index.Named(name)].name, name);
  }
  EXPECT_EQ(index[*index.Named("JERUSALEM")].name, "jerusalem");
  EXPECT_EQ(index[*index.Named("LONDON")].name, "London");
}

TEST_F(PlaceList, KeyWithAnEmptyValueIsNoPlaceAndHidesNone) {
  settings.locations = {{"Home", ""}, {"London", ""}};
  EXPECT_THAT(UsersOwn(), IsEmpty());
  EXPECT_EQ(Known().size(), sun::BuiltInPlaces().size());
}

TEST_F(PlaceList, RepeatedNameIsListedOnce) {
  settings.locations = {{"Home", "Available"}, {"Home", "Available"}};
  const std::vector<Place> places = UsersOwn();
  ASSERT_EQ(places.size(), 1u);
  EXPECT_EQ(places[0].name, "Home");
}

TEST_F(PlaceList, NameThatDoesNotFitTheProgramsBufferIsLeftOut) {
  settings.locations = {{std::string(255, 'a'), "Available"}, {std::string(256, 'b'), "Available"}};
  const std::vector<Place> places = UsersOwn();
  ASSERT_EQ(places.size(), 1u);
  EXPECT_EQ(places[0].name, std::string(255, 'a'));
}

// 170 names of 120 bytes, 119 letters and a zero, fill 20,400 of the 20,480 bytes; of the next one only a part is seen.
TEST_F(PlaceList, NamesBeyondTheEndOfTheKeyListAreNotSeen) {
  for (int i = 0; i < 200; ++i) {
    const std::string number = std::to_string(1000 + i);
    settings.locations.push_back({number + std::string(119 - number.size(), 'x'), "Available"});
  }
  const std::vector<Place> places = UsersOwn();
  ASSERT_EQ(places.size(), 170u);
  EXPECT_EQ(places.back().name.substr(0, 4), "1169");
}

TEST(PlaceTexts, CoordinatesNameTheirHemisphere) {
  EXPECT_EQ(LatitudeText(5047),
            "50\xB0"
            "47' N");
  EXPECT_EQ(LongitudeText(605),
            "6\xB0"
            "05' E");
  EXPECT_EQ(LatitudeText(-3456),
            "34\xB0"
            "56' S");
  EXPECT_EQ(LongitudeText(-8),
            "0\xB0"
            "08' W");
  EXPECT_EQ(LatitudeText(INT32_MIN),
            "21474836\xB0"
            "48' S");
}

TEST(PlaceTexts, ZoneIsTheOffsetThatTheTimesAreToldIn) {
  EXPECT_EQ(ZoneText(0, 0), "GMT");
  EXPECT_EQ(ZoneText(1, 0), "GMT+1");
  EXPECT_EQ(ZoneText(-10, 0), "GMT-10");
  EXPECT_EQ(ZoneText(5, 45), "GMT+5:45");
  EXPECT_EQ(ZoneText(-3, -30), "GMT-3:30");
  EXPECT_EQ(ZoneText(0, 30), "GMT+0:30");
  EXPECT_EQ(ZoneText(0, -5), "GMT-0:05");
  EXPECT_EQ(ZoneText(-3, 30), "GMT-3:30");
  EXPECT_EQ(ZoneText(5, -30), "GMT+5:30");
  EXPECT_EQ(ZoneText(INT32_MIN, INT32_MIN), "GMT-2183275042:08");
}

}  // namespace
