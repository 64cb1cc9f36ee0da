// The name that a save dialog offers after a file was written.
#include "win/core/export_name.h"

#include <gtest/gtest.h>

namespace {

constexpr ExportFormat kText = ExportFormat::kText;
constexpr ExportFormat kRtf = ExportFormat::kRtf;

}  // namespace

TEST(ExportName, TheExtensionIsThatOfTheWantedFormat) {
  EXPECT_EQ(OfferedName("C:\\a.b\\zmanim.txt", kText, kRtf), "C:\\a.b\\zmanim.rtf");
  EXPECT_EQ(OfferedName("C:\\a.b\\zmanim.rtf", kRtf, kText), "C:\\a.b\\zmanim.txt");
  EXPECT_EQ(OfferedName("zmanim.RTF", kRtf, kText), "zmanim.txt");
  EXPECT_EQ(OfferedName("zmanim.csv", kText, kRtf), "zmanim.rtf");
  EXPECT_EQ(OfferedName("zmanim.txt", kRtf, kRtf), "zmanim.rtf") << "whatever was written into it";
}

TEST(ExportName, AnExtensionThatFitsStays) {
  EXPECT_EQ(OfferedName("zmanim.txt", kText, kText), "zmanim.txt");
  EXPECT_EQ(OfferedName("ZMANIM.TXT", kText, kText), "ZMANIM.TXT");
  EXPECT_EQ(OfferedName("zmanim.rtf", kText, kRtf), "zmanim.rtf");
  EXPECT_EQ(OfferedName("zmanim.csv", kText, kText), "zmanim.csv") << "the user's own";
}

TEST(ExportName, APointWithinANameBeginsNoExtension) {
  EXPECT_EQ(OfferedName("St. Louis", kText, kText), "St. Louis.txt");
  EXPECT_EQ(OfferedName("1.5.2007", kText, kRtf), "1.5.2007.rtf");
  EXPECT_EQ(OfferedName("zmanim.summer", kText, kRtf), "zmanim.summer.rtf");
  EXPECT_EQ(OfferedName("C:\\a.txt\\zmanim", kText, kRtf), "C:\\a.txt\\zmanim.rtf");
  EXPECT_EQ(OfferedName("zmanim.", kText, kRtf), "zmanim.rtf");
  EXPECT_EQ(OfferedName(".txt", kText, kRtf), ".txt.rtf");
}

TEST(ExportName, WithoutAFileThereIsNoName) {
  EXPECT_EQ(OfferedName("", kText, kRtf), "");
}
