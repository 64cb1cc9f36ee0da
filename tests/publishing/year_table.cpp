#include "tests/publishing/year_table.h"

#include <cstdio>
#include <utility>

namespace {

constexpr int kWeeks = 55;
constexpr int kMonths = 13;

std::string Clock(int hour, int minute) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", hour, minute);
  return text;
}

}  // namespace

const YearWords& EnglishYear() {
  static const YearWords words = {"Shabbat Times 5787, Jerusalem",
                                  {"Date", "Portion", "Candle lighting", "End of Shabbat"},
                                  {"Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat", "Adar I", "Adar II", "Nisan",
                                   "Iyar", "Sivan", "Tammuz", "Av", "Elul"},
                                  {"Bereshit", "Pesach Shabbat Chol ha-Moed", "Acharei Mot-Kedoshim",
                                   "Nitzavim-Vayeilech", "Noach", "Chayei Sarah", "Behar-Bechukotai"},
                                  "Candles are lit 18 minutes before sunset. Times without warranty.",
                                  false};
  return words;
}

const YearWords& HebrewYear() {
  static const YearWords words = {
      "זמני שבת תשפ״ז, ירושלים",
      {"תאריך", "פרשה", "הדלקת נרות", "צאת השבת"},
      {"תשרי", "חשוון", "כסלו", "טבת", "שבט", "אדר א׳", "אדר ב׳", "ניסן", "אייר", "סיוון", "תמוז", "אב", "אלול"},
      {"בראשית", "שבת חול המועד פסח", "אחרי מות־קדושים", "ניצבים־וילך", "נח", "חיי שרה", "בהר־בחוקותי"},
      "הדלקת נרות 18 דקות לפני השקיעה.",
      true};
  return words;
}

const YearWords& RussianYear() {
  static const YearWords words = {"Время Шаббата 5787, Иерусалим",
                                  {"Дата", "Недельная глава", "Зажигание свечей", "Исход Шаббата"},
                                  {"Тишрей", "Хешван", "Кислев", "Тевет", "Шват", "Адар I", "Адар II", "Нисан", "Ияр",
                                   "Сиван", "Тамуз", "Ав", "Элул"},
                                  {"Берешит", "Песах, Шаббат Холь а-Моэд", "Ахарей мот-Кдошим", "Ницавим-Ваелех",
                                   "Ноах", "Хаей Сара", "Беар-Бехукотай"},
                                  "Свечи зажигают за 18 минут до захода солнца.",
                                  false};
  return words;
}

publishing::Table YearTable(const YearWords& words) {
  publishing::Table table;
  table.title = words.title;
  table.notes = {words.note};
  table.rightToLeft = words.rightToLeft;
  for (const std::string& heading : words.headings) table.columns.push_back({heading});
  for (const std::size_t column : {2u, 3u}) {
    table.columns[column].align = publishing::Align::kEnd;
    table.columns[column].isLarge = true;
  }
  std::vector<publishing::Row> rows;
  for (int week = 0; week < kWeeks; ++week) {
    const int month = week * kMonths / kWeeks;
    if (week == 0 || month != (week - 1) * kMonths / kWeeks) {
      rows.push_back({.cells = {words.months[static_cast<std::size_t>(month)]}, .kind = publishing::RowKind::kGroup});
    }
    const std::string& portion = words.portions[static_cast<std::size_t>(week) % words.portions.size()];
    const std::string date = std::to_string(week % 28 + 1) + "." + std::to_string(month % 12 + 1) + ".2026";
    rows.push_back({.cells = {date, portion, Clock(16, week), Clock(17, week)}});
  }
  table.rows = publishing::Listed(std::move(rows));
  return table;
}
