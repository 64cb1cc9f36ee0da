#include "libraries/hours/zman.h"

namespace hours {
namespace {

Bound AtSeaLevel(const Bound& bound) {
  switch (bound.kind) {
    case BoundKind::kSun: return {BoundKind::kSeaLevelSun};
    case BoundKind::kMinutes: return {BoundKind::kSeaLevelMinutes, bound.thousandths};
    case BoundKind::kProportionalMinutes: return {BoundKind::kSeaLevelProportionalMinutes, bound.thousandths};
    case BoundKind::kNight: return {BoundKind::kSeaLevelNight};
    default: return bound;
  }
}

Reckoning AtSeaLevel(const Reckoning& reckoning) {
  Reckoning moved = reckoning;
  const bool isInside = reckoning.thousandthHours != 0 && reckoning.thousandthHours != kDayThousandthHours;
  for (Bound* bound : {&moved.day.start, &moved.day.end}) {
    if (isInside || bound->kind == BoundKind::kProportionalMinutes) *bound = AtSeaLevel(*bound);
  }
  return moved;
}

}  // namespace

Definition WithHoursAtSeaLevel(const Definition& zman) {
  Definition moved = zman;
  moved.reckoning = AtSeaLevel(zman.reckoning);
  if (zman.notBefore) moved.notBefore = AtSeaLevel(*zman.notBefore);
  if (zman.notAfter) moved.notAfter = AtSeaLevel(*zman.notAfter);
  return moved;
}

}  // namespace hours
