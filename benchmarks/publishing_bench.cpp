// Files of a century of days with 40 columns of times, and its calendars. The sink counts what it gets.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "publishing/core/csv.h"
#include "publishing/core/icalendar.h"
#include "publishing/core/table_html.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"

namespace {

using namespace publishing;

constexpr std::size_t kDays = 36525;
constexpr std::size_t kTimes = 40;  // of a day
constexpr int kMinutesOfDay = 24 * 60;

class CountingSink : public TextSink {
 public:
  void Write(std::string_view text) override { bytes += text.size(); }
  std::size_t bytes = 0;
};

CivilDate DateOf(std::size_t day) {
  const auto number = static_cast<int32_t>(day);
  return {2000 + number / 365 % 100, 1 + number / 31 % 12, 1 + number % 28};
}

void PutTime(std::string& text, std::size_t day, std::size_t time) {
  const int minute = static_cast<int>((day * 7 + time * 31) % kMinutesOfDay);
  const std::array<char, 5> digits = {static_cast<char>('0' + minute / 600), static_cast<char>('0' + minute / 60 % 10),
                                      ':', static_cast<char>('0' + minute % 60 / 10),
                                      static_cast<char>('0' + minute % 10)};
  text.assign(digits.data(), digits.size());
}

class CenturyRows : public Rows {
 public:
  std::size_t Count() const override { return kDays; }
  void Read(std::size_t index, Row& row) const override {
    row.cells.resize(kTimes + 1);
    const CivilDate date = DateOf(index);
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    row.cells[0] = text;
    for (std::size_t time = 0; time < kTimes; ++time) PutTime(row.cells[time + 1], index, time);
  }
};

Table Century() {
  Table table = {.title = "Zmanim of a century", .columns = {{"Date"}}, .rows = std::make_shared<CenturyRows>()};
  for (std::size_t time = 0; time < kTimes; ++time) table.columns.push_back({"Zman " + std::to_string(time)});
  return table;
}

template <typename Write>
void Files(benchmark::State& state, Write write) {
  const Table table = Century();
  for (auto _ : state) {
    CountingSink sink;
    write(table, sink);
    state.counters["MiB"] = static_cast<double>(sink.bytes) / (1 << 20);
  }
}

void Text(benchmark::State& state) {
  Files(state, [](const Table& table, TextSink& sink) { WriteText(table, sink); });
}
BENCHMARK(Text)->Name("a century x 40 zmanim as text")->Unit(benchmark::kMillisecond);

void Csv(benchmark::State& state) {
  Files(state, [](const Table& table, TextSink& sink) { WriteCsv(table, sink); });
}
BENCHMARK(Csv)->Name("a century x 40 zmanim as CSV")->Unit(benchmark::kMillisecond);

void Rtf(benchmark::State& state) {
  Files(state, [](const Table& table, TextSink& sink) { WriteRtf(table, {"Arial"}, sink); });
}
BENCHMARK(Rtf)->Name("a century x 40 zmanim as RTF")->Unit(benchmark::kMillisecond);

void Html(benchmark::State& state) {
  Files(state, [](const Table& table, TextSink& sink) { WriteHtml(table, sink); });
}
BENCHMARK(Html)->Name("a century x 40 zmanim as HTML")->Unit(benchmark::kMillisecond);

constexpr UtcMoment kNow = {{2026, 11, 2}, 7, 5, 9};

// An event a day whose description has a line for each time.
void Calendar(benchmark::State& state) {
  for (auto _ : state) {
    CountingSink sink;
    CalendarWriter calendar(sink, "Zmanim", kNow);
    Event event;
    std::string time;
    for (std::size_t day = 0; day < kDays; ++day) {
      event.uid = std::to_string(day) + "@times-readings";
      event.date = DateOf(day);
      event.summary = "Zmanim";
      event.description.clear();
      for (std::size_t line = 0; line < kTimes; ++line) {
        PutTime(time, day, line);
        event.description += "Zman " + std::to_string(line) + ": " + time + "\n";
      }
      calendar.Add(event);
    }
    calendar.Finish();
    state.counters["MiB"] = static_cast<double>(sink.bytes) / (1 << 20);
  }
}
BENCHMARK(Calendar)->Name("a century x 40 zmanim as days of a calendar")->Unit(benchmark::kMillisecond);

void Moments(benchmark::State& state) {
  for (auto _ : state) {
    CountingSink sink;
    CalendarWriter calendar(sink, "Zmanim", kNow);
    Event event;
    for (std::size_t number = 0; number < kDays * kTimes; ++number) {
      const auto minute = static_cast<int32_t>(number % kMinutesOfDay);
      event.uid = std::to_string(number) + "@times-readings";
      event.start = UtcMoment{DateOf(number / kTimes), minute / 60, minute % 60, 0};
      event.summary = "Zman";
      calendar.Add(event);
    }
    calendar.Finish();
    state.counters["MiB"] = static_cast<double>(sink.bytes) / (1 << 20);
  }
}
BENCHMARK(Moments)->Name("a century x 40 zmanim as moments of a calendar")->Unit(benchmark::kMillisecond);

}  // namespace
