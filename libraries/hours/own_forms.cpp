#include "libraries/hours/own_forms.h"

#include <algorithm>
#include <iterator>

#include "libraries/hours/named_days.h"

namespace hours {
namespace {

using enum FormKind;

constexpr Day kPlusDegree = Both({BoundKind::kDegrees, 1});
constexpr Day kMinusDegree = Both({BoundKind::kDegrees, -1});
constexpr Day kPlusMinute = Both({BoundKind::kMinutes, 1});
constexpr Day kMinusMinute = Both({BoundKind::kMinutes, -1});
constexpr Day kPlusProportional = Both({BoundKind::kProportionalMinutes, 1});
constexpr Day kMinusProportional = Both({BoundKind::kProportionalMinutes, -1});

constexpr OwnForm kForms[] = {
    {"degrees-before-sunrise", "degrees before sunrise", kBesideMorning, Unit::kDegrees, kPlusDegree},
    {"degrees-after-sunset", "degrees after sunset", kBesideEvening, Unit::kDegrees, kPlusDegree},
    {"degrees-after-sunrise", "degrees above the horizon after sunrise", kBesideMorning, Unit::kDegrees, kMinusDegree},
    {"degrees-before-sunset", "degrees above the horizon before sunset", kBesideEvening, Unit::kDegrees, kMinusDegree},
    {"minutes-before-sunrise", "minutes before sunrise", kBesideMorning, Unit::kMinutes, kPlusMinute},
    {"minutes-after-sunrise", "minutes after sunrise", kBesideMorning, Unit::kMinutes, kMinusMinute},
    {"minutes-before-sunset", "minutes before sunset", kBesideEvening, Unit::kMinutes, kMinusMinute},
    {"minutes-after-sunset", "minutes after sunset", kBesideEvening, Unit::kMinutes, kPlusMinute},
    {"minutes-before-midday", "minutes before midday", kBefore, Unit::kMinutes, Both(kTransit)},
    {"minutes-after-midday", "minutes after midday", kAfter, Unit::kMinutes, Both(kTransit)},
    {"minutes-before-fixed-noon", "minutes before fixed local noon", kBefore, Unit::kMinutes, Both(kMeanNoon)},
    {"minutes-after-fixed-noon", "minutes after fixed local noon", kAfter, Unit::kMinutes, Both(kMeanNoon)},
    {"minutes-before-midnight", "minutes before midnight", kBefore, Unit::kMinutes, Both(kSolarMidnight),
     kDayThousandthHours},
    {"minutes-after-midnight", "minutes after midnight", kAfter, Unit::kMinutes, Both(kSolarMidnight),
     kDayThousandthHours},
    {"minutes-before-half-night", "minutes before half of the night", kBefore, Unit::kMinutes, kNight,
     kDayThousandthHours / 2},
    {"minutes-after-half-night", "minutes after half of the night", kAfter, Unit::kMinutes, kNight,
     kDayThousandthHours / 2},
    {"minutes-before-fixed-midnight", "minutes before fixed local midnight", kBefore, Unit::kMinutes,
     Both(kMeanMidnight), kDayThousandthHours},
    {"minutes-after-fixed-midnight", "minutes after fixed local midnight", kAfter, Unit::kMinutes, Both(kMeanMidnight),
     kDayThousandthHours},
    {"zmanis-before-sunrise", "zmanis minutes before sunrise", kBesideMorning, Unit::kProportionalMinutes,
     kPlusProportional},
    {"zmanis-after-sunrise", "zmanis minutes after sunrise", kBesideMorning, Unit::kProportionalMinutes,
     kMinusProportional},
    {"zmanis-before-sunset", "zmanis minutes before sunset", kBesideEvening, Unit::kProportionalMinutes,
     kMinusProportional},
    {"zmanis-after-sunset", "zmanis minutes after sunset", kBesideEvening, Unit::kProportionalMinutes,
     kPlusProportional},
    {"hours-gra", "hours of the GR\"O day", kHours, Unit::kHours, kGraDay},
    {"hours-mga-60-min", "hours of the M\"A day, 60 min", kHours, Unit::kHours, Both(Minutes(60))},
    {"hours-mga-72-min", "hours of the M\"A day, 72 min", kHours, Unit::kHours, Both(Minutes(72))},
    {"hours-mga-90-min", "hours of the M\"A day, 90 min", kHours, Unit::kHours, Both(Minutes(90))},
    {"hours-mga-96-min", "hours of the M\"A day, 96 min", kHours, Unit::kHours, Both(Minutes(96))},
    {"hours-mga-120-min", "hours of the M\"A day, 120 min", kHours, Unit::kHours, Both(Minutes(120))},
    {"hours-mga-72-zmanis", "hours of the M\"A day, 72 zmanis min", kHours, Unit::kHours,
     Both(ProportionalMinutes(72))},
    {"hours-mga-90-zmanis", "hours of the M\"A day, 90 zmanis min", kHours, Unit::kHours,
     Both(ProportionalMinutes(90))},
    {"hours-mga-96-zmanis", "hours of the M\"A day, 96 zmanis min", kHours, Unit::kHours,
     Both(ProportionalMinutes(96))},
    {"hours-mga-120-zmanis", "hours of the M\"A day, 120 zmanis min", kHours, Unit::kHours,
     Both(ProportionalMinutes(120))},
    {"hours-mga-16.1", "hours of the M\"A day, 16.1\xC2\xB0", kHours, Unit::kHours, Both(Degrees(16100))},
    {"hours-mga-18", "hours of the M\"A day, 18\xC2\xB0", kHours, Unit::kHours, Both(Degrees(18000))},
    {"hours-mga-19.8", "hours of the M\"A day, 19.8\xC2\xB0", kHours, Unit::kHours, Both(Degrees(19800))},
    {"hours-baal-hatanya", "hours of the Ba'al HaTanya's day", kHours, Unit::kHours, kBaalHaTanyaDay},
    {"hours-ateret-torah", "hours of the Ateret Torah day", kHours, Unit::kHours, kAteretTorahDay},
    {"hours-gra-fixed-noon", "hours of the GR\"O day, noon fixed", kHalfDayHours, Unit::kHours, kGraDay},
    {"hours-mga-72-min-fixed-noon", "hours of the M\"A day, 72 min, noon fixed", kHalfDayHours, Unit::kHours,
     Both(Minutes(72))},
    {"hours-mga-90-min-fixed-noon", "hours of the M\"A day, 90 min, noon fixed", kHalfDayHours, Unit::kHours,
     Both(Minutes(90))},
    {"hours-mga-16.1-fixed-noon", "hours of the M\"A day, 16.1\xC2\xB0, noon fixed", kHalfDayHours, Unit::kHours,
     Both(Degrees(16100))},
    {"hours-mga-18-fixed-noon", "hours of the M\"A day, 18\xC2\xB0, noon fixed", kHalfDayHours, Unit::kHours,
     Both(Degrees(18000))},
    {"hours-night", "hours of the night from sunset to sunrise", kHours, Unit::kHours, kNight},
};

constexpr int32_t kMiddayThousandthHours = kDayThousandthHours / 2;

}  // namespace

std::span<const OwnForm> OwnForms() {
  return kForms;
}

const OwnForm* FindOwnForm(std::string_view word) {
  const auto found = std::ranges::find(kForms, word, &OwnForm::word);
  return found == std::end(kForms) ? nullptr : found;
}

int32_t MostThousandths(Unit unit) {
  switch (unit) {
    case Unit::kDegrees: return 60 * 1000;
    case Unit::kMinutes:
    case Unit::kProportionalMinutes: return 360 * 1000;
    case Unit::kHours: return 24 * 1000;
  }
  return 0;
}

bool IsAmount(Unit unit, int32_t thousandths) {
  return thousandths >= (unit == Unit::kDegrees ? 1 : 0) && thousandths <= MostThousandths(unit);
}

Reckoning ReckoningOf(const OwnForm& form, int32_t thousandths) {
  switch (form.kind) {
    case kBesideMorning: return {Both({form.day.start.kind, form.day.start.thousandths * thousandths}), 0};
    case kBesideEvening:
      return {Both({form.day.end.kind, form.day.end.thousandths * thousandths}), kDayThousandthHours};
    case kBefore: return {form.day, form.thousandthHours, -thousandths};
    case kAfter: return {form.day, form.thousandthHours, thousandths};
    case kHours: return {form.day, thousandths};
    case kHalfDayHours: break;
  }
  if (thousandths <= kMiddayThousandthHours) return {MorningToMeanNoon(form.day), thousandths * 2};
  return {MeanNoonToEvening(form.day), (thousandths - kMiddayThousandthHours) * 2};
}

Rounding SuggestedRounding(const OwnForm& form, int32_t thousandths) {
  bool isLate = form.kind == kBesideEvening;
  if (form.unit == Unit::kHours) {
    const bool isOfNight = form.day == kNight;
    isLate = !isOfNight && thousandths > kMiddayThousandthHours;
  }
  if (form.kind == kAfter) {
    isLate = form.day.start.kind == BoundKind::kTransit || form.day.start.kind == BoundKind::kMeanNoon;
  }
  return isLate ? Rounding::kUp : Rounding::kDown;
}

}  // namespace hours
