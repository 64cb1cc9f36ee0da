#include "win/core/list_scroll.h"

#include <algorithm>

namespace {

constexpr int kWheelNotch = 120;

int Clamped(int64_t position, const ScrollState& state) {
  const int64_t atMost = std::min<int64_t>(position, state.maximum);
  return static_cast<int>(std::max<int64_t>(atMost, state.minimum));
}

}  // namespace

int ScrolledPosition(ScrollRequest request, const ScrollState& state) {
  const int64_t position = state.position;
  switch (request) {
    case ScrollRequest::kLineUp: return Clamped(position - 1, state);
    case ScrollRequest::kLineDown: return Clamped(position + 1, state);
    case ScrollRequest::kPageUp: return Clamped(position - state.page, state);
    case ScrollRequest::kPageDown: return Clamped(position + state.page, state);
    case ScrollRequest::kThumb: return Clamped(state.thumb, state);
    case ScrollRequest::kTop: return state.minimum;
    case ScrollRequest::kBottom: return state.maximum;
  }
  return state.position;
}

int WheeledPosition(int16_t delta, const ScrollState& state) {
  return Clamped(int64_t{state.position} - delta / kWheelNotch, state);
}

int LastScrollPosition(int64_t lineCount, int page) {
  return static_cast<int>(std::clamp<int64_t>(lineCount - page, 0, INT32_MAX));
}
