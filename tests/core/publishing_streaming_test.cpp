// Files of many rows: they go out piece by piece, tell how far they are, and end where the user has had enough.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/core/written_files.h"

namespace publishing {
namespace {

constexpr std::size_t kRows = 20000;

class NumberedRows : public Rows {
 public:
  explicit NumberedRows(std::size_t count) : count_(count) {}
  std::size_t Count() const override { return count_; }
  void Read(std::size_t index, Row& row) const override { row = {.cells = {"row " + std::to_string(index), "16:05"}}; }

 private:
  std::size_t count_;
};

Table Numbered(std::size_t count = kRows) {
  return {.columns = {{"A"}, {"B"}}, .rows = std::make_shared<NumberedRows>(count)};
}

class MeasuringSink : public TextSink {
 public:
  void Write(std::string_view text) override {
    largest = std::max(largest, text.size());
    all += text.size();
  }
  std::size_t largest = 0;
  std::size_t all = 0;
};

struct Writer {
  const char* name;
  std::size_t passes;
  std::function<bool(const Table&, TextSink&, const Progress&)> write;
};

const Writer kWriters[] = {
    {"text", 2, WriteText},
    {"csv", 1, WriteCsv},
    {"rtf", 2,
     [](const Table& table, TextSink& sink, const Progress& progress) {
       return WriteRtf(table, {"Arial"}, sink, progress);
     }},
    {"html", 1, WriteHtml},
};

TEST(Streaming, ALargeFileGoesOutInPieces) {
  for (const Writer& writer : kWriters) {
    MeasuringSink sink;
    EXPECT_TRUE(writer.write(Numbered(), sink, {})) << writer.name;
    EXPECT_GT(sink.all, 300'000u) << writer.name;
    EXPECT_LT(sink.largest, 70'000u) << writer.name;
  }
}

TEST(Streaming, ProgressGoesFromNothingTowardsAllOverEveryPass) {
  for (const Writer& writer : kWriters) {
    MeasuringSink sink;
    std::vector<std::size_t> told;
    EXPECT_TRUE(writer.write(Numbered(), sink, [&](std::size_t done, std::size_t all) {
      EXPECT_EQ(all, writer.passes * kRows) << writer.name;
      told.push_back(done);
      return true;
    }));
    EXPECT_EQ(told.front(), 0u) << writer.name;
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end())) << writer.name;
    EXPECT_GT(told.back(), writer.passes * kRows - 1000) << writer.name;
    EXPECT_GE(told.size(), writer.passes * kRows / 1000) << writer.name;
  }
}

// In the first pass, and in the last.
TEST(Streaming, AUserWhoHasHadEnoughEndsIt) {
  for (const Writer& writer : kWriters) {
    for (const std::size_t enough : {std::size_t{0}, kRows / 2, writer.passes * kRows - kRows / 2}) {
      MeasuringSink sink;
      std::size_t asked = 0;
      const auto progress = [&](std::size_t done, std::size_t) {
        asked += done >= enough;
        return done < enough;
      };
      EXPECT_FALSE(writer.write(Numbered(), sink, progress)) << writer.name;
      EXPECT_EQ(asked, 1u) << writer.name << ": nobody is asked again";
    }
  }
}

TEST(Streaming, ATableWithoutRowsAsksNobody) {
  for (const Writer& writer : kWriters) {
    MeasuringSink sink;
    EXPECT_TRUE(writer.write(Numbered(0), sink, [](std::size_t, std::size_t) { return false; })) << writer.name;
    EXPECT_GT(sink.all, 0u) << writer.name;
  }
}

TEST(Streaming, ALargeCalendarGoesOutInPieces) {
  MeasuringSink sink;
  CalendarWriter calendar(sink, "c", {{2026, 1, 1}, 0, 0, 0});
  for (std::size_t event = 0; event < kRows; ++event) {
    calendar.Add({.uid = std::to_string(event), .date = {2026, 1, 1}, .summary = "s"});
  }
  calendar.Finish();
  EXPECT_GT(sink.all, kRows * 100);
  EXPECT_LT(sink.largest, 70'000u);
}

}  // namespace
}  // namespace publishing
