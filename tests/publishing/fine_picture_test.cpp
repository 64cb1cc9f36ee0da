#include "publishing/fine_picture.h"

#include <gtest/gtest.h>

namespace {

// On a context of two pixels.
TEST(FinePicture, APixelHasTheMeanColourOfItsDots) {
  publishing::FinePicture target(2, 1, 1);
  publishing::FinePicture picture(2, 1, 2);
  ASSERT_NE(picture.dc(), nullptr);
  SetPixel(picture.dc(), 0, 0, RGB(0, 0, 0));
  SetPixel(picture.dc(), 2, 0, RGB(0, 0, 255));
  SetPixel(picture.dc(), 3, 1, RGB(0, 255, 0));
  picture.Show(target.dc(), 0, 0);
  EXPECT_EQ(GetPixel(target.dc(), 0, 0), RGB(191, 191, 191)) << "one black dot of four";
  EXPECT_EQ(GetPixel(target.dc(), 1, 0), RGB(127, 191, 191)) << "one blue dot, one green, two white";
}

TEST(FinePicture, ItIsWhiteAtFirst) {
  publishing::FinePicture target(3, 3, 1);
  publishing::FinePicture picture(2, 2, 3);
  PatBlt(target.dc(), 0, 0, 3, 3, BLACKNESS);
  picture.Show(target.dc(), 1, 1);
  EXPECT_EQ(GetPixel(target.dc(), 0, 0), RGB(0, 0, 0));
  EXPECT_EQ(GetPixel(target.dc(), 1, 1), RGB(255, 255, 255));
  EXPECT_EQ(GetPixel(target.dc(), 2, 2), RGB(255, 255, 255));
}

}  // namespace
