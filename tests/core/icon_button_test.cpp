#include "document/core/icon_button_state.h"

#include <gtest/gtest.h>

namespace {

constexpr IconButtonState kIdle{.pressed = false, .captured = false};
constexpr IconButtonState kPressed{.pressed = true, .captured = true};
constexpr IconButtonState kArmedOutside{.pressed = false, .captured = true};

}  // namespace

TEST(IconButton, PressingCapturesTheMouse) {
  EXPECT_EQ(PressIconButton(), kPressed);
}

TEST(IconButton, DraggingOutAndInTogglesThePressedLook) {
  EXPECT_EQ(DragIconButton(kPressed, false), kArmedOutside);
  EXPECT_EQ(DragIconButton(kArmedOutside, true), kPressed);
  EXPECT_EQ(DragIconButton(kPressed, true), kPressed);
  EXPECT_EQ(DragIconButton(kArmedOutside, false), kArmedOutside);
}

TEST(IconButton, MovingOverAnIdleButtonChangesNothing) {
  EXPECT_EQ(DragIconButton(kIdle, true), kIdle);
  EXPECT_EQ(DragIconButton(kIdle, false), kIdle);
}

TEST(IconButton, FiresOnReleaseOnlyFromThePressedState) {
  EXPECT_TRUE(FiresOnRelease(kPressed));
  EXPECT_FALSE(FiresOnRelease(kArmedOutside));
  EXPECT_FALSE(FiresOnRelease(kIdle));
}

TEST(TooltipPosition, IsBelowTheButtonWithTheRightEdgesInLine) {
  EXPECT_EQ(TooltipPosition(200, 237, 90, 60), (TooltipPoint{177, 90}));
  EXPECT_EQ(TooltipPosition(20, 57, 90, 57), (TooltipPoint{0, 90}));
}

TEST(TooltipPosition, StandsAtTheButtonsLeftEdgeWhereItWouldLeaveTheScreen) {
  EXPECT_EQ(TooltipPosition(20, 57, 90, 58), (TooltipPoint{20, 90}));
}
