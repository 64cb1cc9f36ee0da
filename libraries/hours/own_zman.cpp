#include "libraries/hours/own_zman.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "libraries/hours/description_text.h"
#include "libraries/hours/named_days.h"

namespace hours {
namespace {

constexpr Day kPlusDegree = Both({BoundKind::kDegrees, 1});
constexpr Day kPlusMinute = Both({BoundKind::kMinutes, 1});
constexpr Day kMinusMinute = Both({BoundKind::kMinutes, -1});
constexpr Day kPlusProportional = Both({BoundKind::kProportionalMinutes, 1});
constexpr Day kMinusProportional = Both({BoundKind::kProportionalMinutes, -1});
constexpr bool kMorning = false;
constexpr bool kEvening = true;

constexpr OwnForm kForms[] = {
    {"degrees-before-sunrise", "degrees before sunrise", Unit::kDegrees, kPlusDegree, kMorning},
    {"degrees-after-sunset", "degrees after sunset", Unit::kDegrees, kPlusDegree, kEvening},
    {"minutes-before-sunrise", "minutes before sunrise", Unit::kMinutes, kPlusMinute, kMorning},
    {"minutes-after-sunrise", "minutes after sunrise", Unit::kMinutes, kMinusMinute, kMorning},
    {"minutes-before-sunset", "minutes before sunset", Unit::kMinutes, kMinusMinute, kEvening},
    {"minutes-after-sunset", "minutes after sunset", Unit::kMinutes, kPlusMinute, kEvening},
    {"zmanis-before-sunrise", "zmanis minutes before sunrise", Unit::kProportionalMinutes, kPlusProportional, kMorning},
    {"zmanis-after-sunrise", "zmanis minutes after sunrise", Unit::kProportionalMinutes, kMinusProportional, kMorning},
    {"zmanis-before-sunset", "zmanis minutes before sunset", Unit::kProportionalMinutes, kMinusProportional, kEvening},
    {"zmanis-after-sunset", "zmanis minutes after sunset", Unit::kProportionalMinutes, kPlusProportional, kEvening},
    {"hours-gra", "hours of the GR\"O day", Unit::kHours, kGraDay, kMorning},
    {"hours-mga-60-min", "hours of the M\"A day, 60 min", Unit::kHours, Both(Minutes(60)), kMorning},
    {"hours-mga-72-min", "hours of the M\"A day, 72 min", Unit::kHours, Both(Minutes(72)), kMorning},
    {"hours-mga-90-min", "hours of the M\"A day, 90 min", Unit::kHours, Both(Minutes(90)), kMorning},
    {"hours-mga-96-min", "hours of the M\"A day, 96 min", Unit::kHours, Both(Minutes(96)), kMorning},
    {"hours-mga-120-min", "hours of the M\"A day, 120 min", Unit::kHours, Both(Minutes(120)), kMorning},
    {"hours-mga-72-zmanis", "hours of the M\"A day, 72 zmanis min", Unit::kHours, Both(ProportionalMinutes(72)),
     kMorning},
    {"hours-mga-90-zmanis", "hours of the M\"A day, 90 zmanis min", Unit::kHours, Both(ProportionalMinutes(90)),
     kMorning},
    {"hours-mga-96-zmanis", "hours of the M\"A day, 96 zmanis min", Unit::kHours, Both(ProportionalMinutes(96)),
     kMorning},
    {"hours-mga-120-zmanis", "hours of the M\"A day, 120 zmanis min", Unit::kHours, Both(ProportionalMinutes(120)),
     kMorning},
    {"hours-mga-16.1", "hours of the M\"A day, 16.1\xC2\xB0", Unit::kHours, Both(Degrees(16100)), kMorning},
    {"hours-mga-18", "hours of the M\"A day, 18\xC2\xB0", Unit::kHours, Both(Degrees(18000)), kMorning},
    {"hours-mga-19.8", "hours of the M\"A day, 19.8\xC2\xB0", Unit::kHours, Both(Degrees(19800)), kMorning},
    {"hours-baal-hatanya", "hours of the Ba'al HaTanya's day", Unit::kHours, kBaalHaTanyaDay, kMorning},
    {"hours-ateret-torah", "hours of the Ateret Torah day", Unit::kHours, kAteretTorahDay, kMorning},
};

constexpr const char* kRoundingWords[] = {"down", "up", "nearest"};  // in the order of Rounding

constexpr std::string_view kLineStart = "own ";

// Takes what stands before the next separator off the text, and the separator; nothing when there is none.
std::optional<std::string_view> TakeUpTo(char separator, std::string_view& text) {
  const size_t length = text.find(separator);
  if (length == std::string_view::npos) return std::nullopt;
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(length + 1);
  return taken;
}

std::optional<uint32_t> OwnNumberIn(std::string_view digits) {
  uint32_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
  if (!isWhole || number < 1 || number > kMostOwnNumber || digits[0] == '0') return std::nullopt;
  return number;
}

std::optional<Rounding> RoundingIn(std::string_view word) {
  const auto found = std::ranges::find(kRoundingWords, word);
  if (found == std::end(kRoundingWords)) return std::nullopt;
  return static_cast<Rounding>(found - kRoundingWords);
}

bool AreDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

int32_t Number(std::string_view digits) {
  int32_t number = 0;
  for (const char digit : digits) number = number * 10 + (digit - '0');
  return number;
}

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

std::string OwnId(uint32_t number) {
  return "own-" + std::to_string(number);
}

Definition DefinitionOf(const OwnZman& zman) {
  const OwnForm& form = *zman.form;
  if (form.unit == Unit::kHours) return {{form.day, zman.thousandths}, zman.rounding};
  Bound bound = form.isEvening ? form.day.end : form.day.start;
  bound.thousandths *= zman.thousandths;
  return {{Both(bound), form.isEvening ? kDayThousandthHours : 0}, zman.rounding};
}

Rounding SuggestedRounding(const OwnForm& form, int32_t thousandths) {
  const bool isLate = form.unit == Unit::kHours ? thousandths > kDayThousandthHours / 2 : form.isEvening;
  return isLate ? Rounding::kUp : Rounding::kDown;
}

std::string OwnLine(const OwnZman& zman) {
  std::string line(kLineStart);
  line.append(std::to_string(zman.number)).append(" ").append(zman.form->word).append(" ");
  line.append(NumberText(zman.thousandths)).append(" ");
  line.append(kRoundingWords[static_cast<size_t>(zman.rounding)]).append(" ").append(zman.description);
  return zman.hebrew.empty() ? line : line.append("|").append(zman.hebrew);
}

std::optional<OwnZman> OwnZmanIn(std::string_view line) {
  if (!line.starts_with(kLineStart)) return std::nullopt;
  line.remove_prefix(kLineStart.size());
  const auto digits = TakeUpTo(' ', line);
  const auto word = TakeUpTo(' ', line);
  const auto amount = TakeUpTo(' ', line);
  const auto rounding = TakeUpTo(' ', line);
  if (!digits || !word || !amount || !rounding) return std::nullopt;

  const auto number = OwnNumberIn(*digits);
  const OwnForm* form = FindOwnForm(*word);
  const auto thousandths = ThousandthsIn(*amount);
  const auto direction = RoundingIn(*rounding);
  const bool isUsable = number && form && thousandths && direction && IsAmount(form->unit, *thousandths);
  if (!isUsable) return std::nullopt;

  const size_t bar = std::min(line.find('|'), line.size());
  const std::string_view hebrew = line.substr(std::min(bar + 1, line.size()));
  OwnZman zman = {
      *number, form, *thousandths, *direction, CleanDescription(line.substr(0, bar)), CleanDescription(hebrew)};
  if (zman.description.empty()) return std::nullopt;
  return zman;
}

std::optional<int32_t> ThousandthsIn(std::string_view number) {
  constexpr size_t kMostDigits = 5;
  constexpr size_t kPlaces = 3;
  const size_t point = std::min(number.find('.'), number.size());
  const std::string_view whole = number.substr(0, point);
  const std::string_view places = number.substr(std::min(point + 1, number.size()));
  const bool hasPoint = point < number.size();
  if (whole.empty() || whole.size() > kMostDigits || places.size() > kPlaces || hasPoint == places.empty()) {
    return std::nullopt;
  }
  if (!AreDigits(whole) || !AreDigits(places)) return std::nullopt;
  std::string padded(places);
  padded.resize(kPlaces, '0');
  return Number(whole) * 1000 + Number(padded);
}

std::string NumberText(int32_t thousandths) {
  std::string places = std::to_string(1000 + thousandths % 1000).substr(1);
  while (!places.empty() && places.back() == '0') places.pop_back();
  return std::to_string(thousandths / 1000) + (places.empty() ? "" : "." + places);
}

}  // namespace hours
