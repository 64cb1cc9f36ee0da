#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
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
    } else if (character == '\n' || character == '\t' || (character >= ' ' && character != 0x7F)) {
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

// The value of a property that is there once.
std::string ValueOf(const std::string& unfolded, const std::string& property) {
  const std::size_t found = ("\n" + unfolded).find("\n" + property + ":");
  FUZZ_CHECK(found != std::string::npos);
  const std::size_t begin = found + property.size() + 1;
  return Unescaped(unfolded.substr(begin, unfolded.find('\n', begin) - begin));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const CivilDate date = {input.ConsumeIntegralInRange(1, 9998), input.ConsumeIntegralInRange(1, 12),
                          input.ConsumeIntegralInRange(1, 28)};
  const std::string name = input.ConsumeRandomLengthString(100);
  const std::string uid = input.ConsumeRandomLengthString(100);
  const std::string description = input.ConsumeRandomLengthString(300);
  const std::string summary = input.ConsumeRemainingBytesAsString();
  const std::string unfolded = Unfolded(CalendarOf(name, {{uid, date, summary, description}}, {date, 1, 2, 3}));
  FUZZ_CHECK(ValueOf(unfolded, "X-WR-CALNAME") == AsTold(name));
  FUZZ_CHECK(ValueOf(unfolded, "UID") == AsTold(uid));
  FUZZ_CHECK(ValueOf(unfolded, "SUMMARY") == AsTold(summary));
  if (!description.empty()) FUZZ_CHECK(ValueOf(unfolded, "DESCRIPTION") == AsTold(description));
  return 0;
}
