#include "libraries/hours/fingerprint.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "libraries/hours/catalogue.h"

namespace hours {
namespace {

using Zmanim = std::vector<DescribedZman>;

constexpr Day kGraDay = {{BoundKind::kSun}, {BoundKind::kSun}};

Zmanim Two() {
  return {{"Latest Shema", "\xF9\xEE\xF2", {{kGraDay, 3000}, Rounding::kDown}},
          {"Mincha", "\xEE\xF0\xE7\xE4", {{kGraDay, 6500}, Rounding::kUp, Reckoning{kGraDay, 6000, 30000}}}};
}

TEST(HoursFingerprint, OfEqualSelectionsIsEqual) {
  EXPECT_EQ(FingerprintOf(Two()), FingerprintOf(Two()));
}

// FNV-1a with MurmurHash3's finish, computed independently (in Python) over the fields as the code lists them: one
// process has the number of another.
TEST(HoursFingerprint, IsTheSameInEveryProcess) {
  EXPECT_EQ(FingerprintOf({}), 0x4D33A93727192487u);
  EXPECT_EQ(FingerprintOf(Two()), 0x98DEFAB3407C8F57u);
}

TEST(HoursFingerprint, ChangesWithEveryFieldOfAZman) {
  const std::pair<const char*, std::function<void(DescribedZman&)>> changes[] = {
      {"description", [](DescribedZman& zman) { zman.description += ' '; }},
      {"Hebrew", [](DescribedZman& zman) { zman.hebrew += ' '; }},
      {"start", [](DescribedZman& zman) { zman.definition.reckoning.day.start.kind = BoundKind::kDegrees; }},
      {"start's amount", [](DescribedZman& zman) { zman.definition.reckoning.day.start.thousandths = -1; }},
      {"end", [](DescribedZman& zman) { zman.definition.reckoning.day.end.kind = BoundKind::kDegrees; }},
      {"end's amount", [](DescribedZman& zman) { zman.definition.reckoning.day.end.thousandths = 1 << 24; }},
      {"hours", [](DescribedZman& zman) { ++zman.definition.reckoning.thousandthHours; }},
      {"minutes", [](DescribedZman& zman) { ++zman.definition.reckoning.thousandthMinutes; }},
      {"rounding", [](DescribedZman& zman) { zman.definition.rounding = Rounding::kNearest; }},
      {"bound of another",
       [](DescribedZman& zman) {
         zman.definition.notBefore = Reckoning{kGraDay, 1};
       }},
      {"earlier of two",
       [](DescribedZman& zman) {
         zman.definition.notAfter = zman.definition.notBefore.value_or(Reckoning{kGraDay, 1});
         zman.definition.notBefore.reset();
       }},
      {"hours of the earlier",
       [](DescribedZman& zman) {
         zman.definition.notBefore.reset();
         zman.definition.notAfter = Reckoning{kGraDay, 2};
       }},
      {"date", [](DescribedZman& zman) { zman.definition.isForPesachEve = true; }},
  };
  for (size_t i = 0; i < Two().size(); ++i) {
    std::map<uint64_t, std::string> seen = {{FingerprintOf(Two()), "unchanged"}};
    for (const auto& [name, change] : changes) {
      Zmanim zmanim = Two();
      change(zmanim[i]);
      const auto [entry, isNew] = seen.emplace(FingerprintOf(zmanim), name);
      EXPECT_TRUE(isNew) << name << " of " << i << " as " << entry->second;
    }
  }
}

TEST(HoursFingerprint, ChangesWithNumberAndOrder) {
  const Zmanim two = Two();
  EXPECT_NE(FingerprintOf(Zmanim{two[1], two[0]}), FingerprintOf(two));
  EXPECT_NE(FingerprintOf(Zmanim{two[0]}), FingerprintOf(two));
  EXPECT_NE(FingerprintOf(Zmanim{two[0], two[0]}), FingerprintOf(Zmanim{two[0]}));
  EXPECT_NE(FingerprintOf({}), FingerprintOf(Zmanim{{}}));
}

TEST(HoursFingerprint, TextThatMovesFromOneFieldToTheNextIsAnotherSelection) {
  Zmanim moved = Two();
  moved[0].hebrew = moved[0].description.back() + moved[0].hebrew;
  moved[0].description.pop_back();
  EXPECT_NE(FingerprintOf(moved), FingerprintOf(Two()));
}

TEST(HoursFingerprint, TellsEveryZmanOfTheCatalogueApartByEitherHalf) {
  std::map<uint32_t, size_t> low;
  std::map<uint32_t, size_t> high;
  const std::vector<OfferedZman> offered = OfferedZmanim({});
  for (const OfferedZman& zman : offered) {
    const uint64_t fingerprint = FingerprintOf(Zmanim{zman.zman});
    ++low[static_cast<uint32_t>(fingerprint)];
    ++high[static_cast<uint32_t>(fingerprint >> 32)];
  }
  EXPECT_EQ(low.size(), offered.size());
  EXPECT_EQ(high.size(), offered.size());
}

}  // namespace
}  // namespace hours
