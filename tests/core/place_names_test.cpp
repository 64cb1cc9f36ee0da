// Expected values are worked out by hand.
#include "locations/core/place_names.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

std::string Meant(const Names& names, std::string_view name) {
  const std::string* const found = NameMeant(names, name);
  return found ? *found : "(none)";
}

}  // namespace

TEST(PlaceNames, DifferInTheCaseOfAsciiLettersAlone) {
  EXPECT_TRUE(DifferInCaseOnly("Tel Aviv", "tel AVIV"));
  EXPECT_FALSE(DifferInCaseOnly("Tel Aviv", "Tel Aviv"));
  EXPECT_FALSE(DifferInCaseOnly("Tel Aviv", "Tel-Aviv"));
  EXPECT_FALSE(DifferInCaseOnly("Z\xFCrich", "Z\xDCrich"));
  EXPECT_FALSE(DifferInCaseOnly("@[", "`{"));  // 32 apart, but no letters
}

TEST(PlaceNames, TheExactSpellingComesFirstThenTheFirstThatDiffersInCase) {
  const Names names = {"home", "HOME", "Away"};
  EXPECT_EQ(Meant(names, "HOME"), "HOME");
  EXPECT_EQ(Meant(names, "Home"), "home");
  EXPECT_EQ(Meant(names, "away"), "Away");
  EXPECT_EQ(Meant(names, "Hom"), "(none)");
}

TEST(PlaceNames, ANewPlaceTakesTheSpellingOfTheOwnOneOrElseTheBuiltInOne) {
  const Names own = {"home", "jerusalem"};
  const Names builtIn = {"Haifa", "Jerusalem"};
  EXPECT_EQ(SpellingInStore("Home", "", own, builtIn), "home");
  EXPECT_EQ(SpellingInStore("home", "", own, builtIn), "home");
  EXPECT_EQ(SpellingInStore("HAIFA", "", own, builtIn), "Haifa");
  EXPECT_EQ(SpellingInStore("JERUSALEM", "", own, builtIn), "jerusalem");
  EXPECT_EQ(SpellingInStore("Jerusalem", "", own, builtIn), "jerusalem");
  EXPECT_EQ(SpellingInStore("Cottage", "", own, builtIn), "Cottage");
}

TEST(PlaceNames, APlaceThatIsChangedMayBeSpelledAnew) {
  const Names own = {"home", "jerusalem"};
  const Names builtIn = {"Haifa", "Jerusalem"};
  EXPECT_EQ(SpellingInStore("Home", "home", own, builtIn), "Home");
  EXPECT_EQ(SpellingInStore("jerusalem", "jerusalem", own, builtIn), "jerusalem");
  EXPECT_EQ(SpellingInStore("HOME", "jerusalem", own, builtIn), "home");
  EXPECT_EQ(SpellingInStore("Jerusalem", "Jerusalem", own, builtIn), "jerusalem");
}

TEST(PlaceNames, BothSpellingsOfHandEditedFilesStay) {
  const Names own = {"home", "HOME"};
  EXPECT_EQ(SpellingInStore("HOME", "HOME", own, {}), "HOME");
  EXPECT_EQ(SpellingInStore("home", "HOME", own, {}), "home");
}
