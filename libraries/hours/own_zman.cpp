#include "libraries/hours/own_zman.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "libraries/hours/description_text.h"

namespace hours {
namespace {

constexpr const char* kRoundingWords[] = {"down", "up", "nearest"};  // in the order of Rounding

constexpr std::string_view kLineStart = "own ";
constexpr std::string_view kLater = "later";
constexpr std::string_view kEarlier = "earlier";

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

struct FormedTime {
  const OwnForm* form;
  int32_t thousandths;
};

// A form and its amount, taken off the line.
std::optional<FormedTime> TakeTime(std::string_view& line) {
  const auto word = TakeUpTo(' ', line);
  const auto amount = TakeUpTo(' ', line);
  if (!word || !amount) return std::nullopt;
  const OwnForm* form = FindOwnForm(*word);
  const auto thousandths = ThousandthsIn(*amount);
  if (!form || !thousandths || !IsAmount(form->unit, *thousandths)) return std::nullopt;
  return FormedTime{form, *thousandths};
}

// As TakeTime reads it.
std::string TimeText(const OwnForm& form, int32_t thousandths) {
  return std::string(form.word) + " " + NumberText(thousandths) + " ";
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

std::string OwnId(uint32_t number) {
  return "own-" + std::to_string(number);
}

Definition DefinitionOf(const OwnZman& zman) {
  Definition definition = {ReckoningOf(*zman.form, zman.thousandths), zman.rounding};
  if (zman.other) {
    const Reckoning other = ReckoningOf(*zman.other->form, zman.other->thousandths);
    (zman.other->isLater ? definition.notBefore : definition.notAfter) = other;
  }
  return definition;
}

std::string OwnLine(const OwnZman& zman) {
  std::string line(kLineStart);
  line.append(std::to_string(zman.number)).append(" ").append(TimeText(*zman.form, zman.thousandths));
  if (zman.other) {
    line.append(zman.other->isLater ? kLater : kEarlier).append(" ");
    line.append(TimeText(*zman.other->form, zman.other->thousandths));
  }
  line.append(kRoundingWords[static_cast<size_t>(zman.rounding)]).append(" ").append(zman.description);
  return zman.hebrew.empty() ? line : line.append("|").append(zman.hebrew);
}

std::optional<OwnZman> OwnZmanIn(std::string_view line) {
  if (!line.starts_with(kLineStart)) return std::nullopt;
  line.remove_prefix(kLineStart.size());
  const auto digits = TakeUpTo(' ', line);
  const auto number = digits ? OwnNumberIn(*digits) : std::nullopt;
  const auto time = TakeTime(line);
  auto word = TakeUpTo(' ', line);
  if (!number || !time || !word) return std::nullopt;

  std::optional<OwnOther> other;
  if (*word == kLater || *word == kEarlier) {
    const auto otherTime = TakeTime(line);
    if (!otherTime) return std::nullopt;
    other = {*word == kLater, otherTime->form, otherTime->thousandths};
    word = TakeUpTo(' ', line);
  }
  const auto rounding = word ? RoundingIn(*word) : std::nullopt;
  if (!rounding) return std::nullopt;

  const size_t bar = std::min(line.find('|'), line.size());
  const std::string_view hebrew = line.substr(std::min(bar + 1, line.size()));
  OwnZman zman = {*number,
                  time->form,
                  time->thousandths,
                  *rounding,
                  CleanDescription(line.substr(0, bar)),
                  CleanDescription(hebrew),
                  other};
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
