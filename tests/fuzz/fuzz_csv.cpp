#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "publishing/core/csv.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;
using Records = std::vector<std::vector<std::string>>;

// A table of any texts: what is written is read.
Records AnyRecords(FuzzedDataProvider& input) {
  const std::size_t columns = input.ConsumeIntegralInRange<std::size_t>(1, 4);
  Records records(input.ConsumeIntegralInRange<std::size_t>(1, 6));
  for (auto& record : records) {
    for (std::size_t column = 0; column < columns; ++column) record.push_back(input.ConsumeRandomLengthString(20));
  }
  return records;
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
  FUZZ_CHECK(CsvIn(Written(records)) == records);

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
  if (!read->empty() && isEven) FUZZ_CHECK(CsvIn(Written(*read)) == *read);
  return 0;
}
