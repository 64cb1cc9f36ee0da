#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "publishing/core/csv.h"
#include "publishing/core/unicode.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;
using Records = std::vector<std::vector<std::string>>;

Records AnyRecords(FuzzedDataProvider& input) {
  const std::size_t columns = input.ConsumeIntegralInRange<std::size_t>(1, 4);
  Records records(input.ConsumeIntegralInRange<std::size_t>(1, 6));
  for (auto& record : records) {
    for (std::size_t column = 0; column < columns; ++column) record.push_back(input.ConsumeRandomLengthString(20));
  }
  return records;
}

// What a text is after a file has told it: valid characters without nulls.
std::string AsTold(std::string_view text) {
  std::string told;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character != 0) AppendUtf8(told, character);
  }
  return told;
}

Records AsTold(Records records) {
  for (auto& record : records) {
    for (std::string& field : record) field = AsTold(field);
  }
  return records;
}

// A field that begins so is run by a spreadsheet.
bool IsRun(std::string_view rest) {
  return rest.starts_with('=') || rest.starts_with('@') || rest.starts_with('\t') || rest.starts_with("\xEF\xBC\x9D");
}

void CheckNothingIsRun(std::string_view csv) {
  bool isQuoted = false;
  bool isAtStart = true;
  for (csv.remove_prefix(3); !csv.empty(); csv.remove_prefix(1)) {
    if (isAtStart) FUZZ_CHECK(!IsRun(csv.substr(csv.front() == '"' ? 1 : 0)));
    if (csv.front() == '"') isQuoted = !isQuoted;
    isAtStart = !isQuoted && (csv.front() == ',' || csv.front() == '\n');
  }
}

std::string Written(const Records& records) {
  Table table;
  for (const std::string& heading : records.front()) table.columns.push_back({heading, Align::kStart});
  table.rows = ListedTexts({records.begin() + 1, records.end()});
  return written::CsvOf(table);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const Records records = AnyRecords(input);
  const std::string written = Written(records);
  FUZZ_CHECK(CsvIn(written) == AsTold(records));
  CheckNothingIsRun(written);

  const std::string text = input.ConsumeRemainingBytesAsString();
  const auto read = CsvIn(text);
  if (!read) {
    FUZZ_CHECK(text.find('"') != std::string::npos);
    return 0;
  }
  std::size_t length = 0;
  for (const auto& record : *read) {
    FUZZ_CHECK(!record.empty());
    for (const std::string& field : record) length += field.size();
  }
  FUZZ_CHECK(length <= text.size());
  const bool isEven =
      std::all_of(read->begin(), read->end(), [&](auto& record) { return record.size() == read->front().size(); });
  if (!read->empty() && isEven) FUZZ_CHECK(CsvIn(Written(*read)) == AsTold(*read));
  return 0;
}
