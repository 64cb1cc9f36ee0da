#include "libraries/hours/definition_text.h"

#include <cstdlib>

#include "libraries/hours/own_zman.h"

namespace hours {
namespace {

constexpr char kDegreeSign = '\xB0';

std::string MinutesText(int32_t thousandths, const char* unit) {
  return NumberText(thousandths) + " " + unit + (thousandths == 1000 ? "" : "s");
}

std::string BesideSun(const Bound& bound, const char* unit, bool isStart) {
  const bool isOutwards = bound.thousandths >= 0;
  const char* const side = isOutwards == isStart ? " before " : " after ";
  return MinutesText(std::abs(bound.thousandths), unit) + side + (isStart ? "sunrise" : "sunset");
}

std::string BoundText(const Bound& bound, bool isStart) {
  const std::string sun = isStart ? "sunrise" : "sunset";
  switch (bound.kind) {
    case BoundKind::kSun: return sun;
    case BoundKind::kSeaLevelSun: return sun + " at sea level";
    case BoundKind::kDegrees:
      return "the sun " + NumberText(std::abs(bound.thousandths)) + kDegreeSign +
             (bound.thousandths < 0 ? " above" : " below") + " the horizon in the " + (isStart ? "morning" : "evening");
    case BoundKind::kMinutes: return BesideSun(bound, "minute", isStart);
    case BoundKind::kProportionalMinutes: return BesideSun(bound, "zmanis minute", isStart);
    case BoundKind::kTransit: return "midday";
    case BoundKind::kMeanNoon: return "12:00 of local mean time";
    case BoundKind::kMidnight: return isStart ? "the midnight before" : "midnight";
    case BoundKind::kNight: return isStart ? "sunset" : "the next sunrise";
    case BoundKind::kMeanMidnight:
      return isStart ? "the midnight before of local mean time" : "midnight of local mean time";
    case BoundKind::kDawnParts:
      return NumberText(bound.thousandths) + "/18 of the time from the sun 19.8" + kDegreeSign +
             " below the horizon to sunrise, " + (isStart ? "before sunrise" : "after sunset");
    case BoundKind::kSeaLevelMinutes: return BesideSun(bound, "minute", isStart) + " at sea level";
    case BoundKind::kSeaLevelProportionalMinutes: return BesideSun(bound, "zmanis minute", isStart) + " at sea level";
    case BoundKind::kSeaLevelNight: return (isStart ? "sunset" : "the next sunrise") + std::string(" at sea level");
  }
  return {};
}

std::string ReckoningText(const Reckoning& reckoning) {
  std::string text;
  if (reckoning.thousandthMinutes != 0) {
    text = MinutesText(std::abs(reckoning.thousandthMinutes), "minute") +
           (reckoning.thousandthMinutes < 0 ? " before " : " after ");
  }
  if (reckoning.thousandthHours == 0) return text + BoundText(reckoning.day.start, true);
  if (reckoning.thousandthHours == kDayThousandthHours) return text + BoundText(reckoning.day.end, false);
  const bool isHalf = reckoning.thousandthHours * 2 == kDayThousandthHours;
  const bool isHalfDay =
      reckoning.day.start.kind == BoundKind::kMeanNoon || reckoning.day.end.kind == BoundKind::kMeanNoon;
  if (isHalf) {
    text += "half of the time";
  } else if (isHalfDay) {
    text += NumberText(reckoning.thousandthHours / 2) + " of the 6 hours";
  } else {
    text += NumberText(reckoning.thousandthHours) + " of the 12 hours";
  }
  const Day& day = reckoning.day;
  const bool isSameSun = day.start.kind == BoundKind::kDegrees && day.end == day.start;
  text += " from " + BoundText(day.start, true) + " to ";
  return text + (isSameSun ? "the same in the evening" : BoundText(day.end, false));
}

const char* RoundingText(Rounding rounding) {
  switch (rounding) {
    case Rounding::kDown: return ", rounded down";
    case Rounding::kUp: return ", rounded up";
    case Rounding::kNearest: return ", to the nearest minute";
  }
  return "";
}

}  // namespace

std::string DefinitionText(const Definition& zman) {
  std::string text = ReckoningText(zman.reckoning);
  if (zman.notBefore) text += ", but not before " + ReckoningText(*zman.notBefore);
  if (zman.notAfter) text += ", but not after " + ReckoningText(*zman.notAfter);
  if (zman.isForPesachEve) text += ", on the eve of Pesach only";
  return text + RoundingText(zman.rounding);
}

std::string DefinitionSentence(const Definition& zman) {
  std::string sentence = DefinitionText(zman) + ".";
  if (sentence[0] >= 'a' && sentence[0] <= 'z') sentence[0] = static_cast<char>(sentence[0] - 'a' + 'A');
  return sentence;
}

}  // namespace hours
