#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "publishing/core/icalendar.h"
#include "publishing/core/unicode.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;

// What a text is after a calendar has told it: valid characters, line ends as LF, no other control characters than
// tabs.
std::string AsTold(std::string_view text) {
  std::string told;
  char32_t before = 0;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    const bool isSecondOfTwo = character == '\n' && before == '\r';
    before = character;
    if (isSecondOfTwo) continue;
    if (character == '\r') {
      told += '\n';
    } else if (character == '\n' || character == '\t' || !IsControl(character)) {
      AppendUtf8(told, character);
    }
  }
  return told;
}

// RFC 5545, 3.1 and 3.3.11, backwards.
std::string Unfolded(const std::string& calendar) {
  std::string unfolded;
  for (std::size_t at = 0; at < calendar.size();) {
    const std::size_t end = calendar.find("\r\n", at);
    FUZZ_CHECK(end != std::string::npos && end - at <= 75);
    std::string_view line = std::string_view(calendar).substr(at, end - at);
    FUZZ_CHECK(line.find_first_of("\r\n") == std::string_view::npos);
    if (line.starts_with(' ')) {
      unfolded.pop_back();
      line.remove_prefix(1);
    }
    unfolded += line;
    unfolded += '\n';
    for (std::string_view rest = line; !rest.empty();) {
      const bool isReplacement = rest.starts_with("\xEF\xBF\xBD");
      FUZZ_CHECK(TakeCharacter(rest) != 0xFFFD || isReplacement);
    }
    at = end + 2;
  }
  return unfolded;
}

std::string Unescaped(const std::string& text) {
  std::string unescaped;
  for (std::size_t at = 0; at < text.size(); ++at) {
    FUZZ_CHECK(text[at] != ';' && text[at] != ',');
    if (text[at] == '\\' && ++at < text.size()) {
      unescaped += text[at] == 'n' ? '\n' : text[at];
    } else {
      unescaped += text[at];
    }
  }
  return unescaped;
}

// A property that a text is told by; one without a text is not there.
void CheckProperty(const std::string& unfolded, const std::string& property, const std::string& text) {
  const std::size_t found = ("\n" + unfolded).find("\n" + property + ":");
  if (AsTold(text).empty()) {
    FUZZ_CHECK(found == std::string::npos);
    return;
  }
  FUZZ_CHECK(found != std::string::npos);
  const std::size_t begin = found + property.size() + 1;
  FUZZ_CHECK(Unescaped(unfolded.substr(begin, unfolded.find('\n', begin) - begin)) == AsTold(text));
}

// No text makes a line of its own.
void CheckLines(const std::string& unfolded) {
  std::istringstream lines(unfolded);
  std::size_t events = 0;
  for (std::string line; std::getline(lines, line);) {
    constexpr const char* kNames[] = {"BEGIN:",  "END:",      "VERSION:", "PRODID:", "CALSCALE:",  "X-WR-CALNAME:",
                                      "UID:",    "DTSTAMP:",  "DTSTART",  "DTEND",   "SUMMARY:",   "DESCRIPTION:",
                                      "TRANSP:", "LOCATION:", "TRIGGER:", "ACTION:", "CATEGORIES:"};
    FUZZ_CHECK(
        std::any_of(std::begin(kNames), std::end(kNames), [&](const char* name) { return line.starts_with(name); }));
    events += line == "BEGIN:VEVENT" || line == "END:VEVENT";
  }
  FUZZ_CHECK(events == 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const CivilDate date = {input.ConsumeIntegralInRange(1, 9998), input.ConsumeIntegralInRange(1, 12),
                          input.ConsumeIntegralInRange(1, 28)};
  Event event = {.date = date};
  if (input.ConsumeBool()) event.start = UtcMoment{date, input.ConsumeIntegralInRange(0, 23), 0, 0};
  if (input.ConsumeBool()) event.end = UtcMoment{date, input.ConsumeIntegralInRange(0, 23), 0, 0};
  if (input.ConsumeBool()) event.alarmMinutesBefore = input.ConsumeIntegral<int32_t>();
  const std::string name = input.ConsumeRandomLengthString(100);
  event.uid = input.ConsumeRandomLengthString(100);
  event.description = input.ConsumeRandomLengthString(300);
  event.location = input.ConsumeRandomLengthString(100);
  event.categories.resize(input.ConsumeIntegralInRange<std::size_t>(0, 3));
  for (std::string& category : event.categories) category = input.ConsumeRandomLengthString(50);
  event.summary = input.ConsumeRemainingBytesAsString();
  const std::string unfolded = Unfolded(written::CalendarOf(name, {event}, {date, 1, 2, 3}));
  CheckProperty(unfolded, "X-WR-CALNAME", name);
  CheckProperty(unfolded, "UID", event.uid);
  CheckProperty(unfolded, "SUMMARY", event.summary);
  CheckProperty(unfolded, "LOCATION", event.location);
  if (!event.alarmMinutesBefore) CheckProperty(unfolded, "DESCRIPTION", event.description);
  CheckLines(unfolded);
  return 0;
}
