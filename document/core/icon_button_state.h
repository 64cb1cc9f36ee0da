// How an icon button of the toolbar reacts to the mouse, and where its tooltip stands.
#pragma once

struct IconButtonState {
  bool pressed;   // shown pressed
  bool captured;  // the button holds the mouse
  bool operator==(const IconButtonState&) const = default;
};

// The left button went down on it.
constexpr IconButtonState PressIconButton() {
  return {.pressed = true, .captured = true};
}

// The mouse moved, into its area or outside: dragged out it is shown released, dragged back in pressed again.
constexpr IconButtonState DragIconButton(const IconButtonState& state, bool inside) {
  if (inside) return {.pressed = state.pressed || state.captured, .captured = state.captured};
  return {.pressed = false, .captured = state.captured};
}

// The left button went up: the button is idle again, and its command is due when it was shown pressed.
constexpr bool FiresOnRelease(const IconButtonState& state) {
  return state.pressed;
}

struct TooltipPoint {
  int x;
  int y;
  bool operator==(const TooltipPoint&) const = default;
};

// Just below a button, its right edge at the button's; at the button's left edge where it would leave the screen on
// the left. Screen coordinates.
constexpr TooltipPoint TooltipPosition(int buttonLeft, int buttonRight, int buttonBottom, int textWidth) {
  const int x = buttonRight - textWidth;
  return {x < 0 ? buttonLeft : x, buttonBottom};
}
