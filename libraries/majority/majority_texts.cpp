#include "libraries/majority/majority_texts.h"

#include <algorithm>
#include <cstdio>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"
#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/persons/date_fields.h"
#include "publishing/core/stable_hash.h"

namespace majority {
namespace {

using calendar::Date;

constexpr const char* kWeekdays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Shabbat"};

bool IsGregorianDay(int32_t day) {
  return day >= calendar::AbsoluteFromGregorian({1, 1, persons::kFirstGregorianYear});
}

// "25 February 2027 (18 Adar I 5787)"; days before the Gregorian calendar by the Jewish date alone.
std::string DayText(int32_t day) {
  const std::string jewish = persons::JewishDateText(calendar::JewishFromAbsolute(day));
  if (!IsGregorianDay(day)) return jewish;
  return persons::GregorianDateText(calendar::GregorianFromAbsolute(day)) + " (" + jewish + ")";
}

std::string WeekdayText(int32_t day) {
  return kWeekdays[static_cast<size_t>(calendar::WeekdayOf(day))];
}

// Why the day is not the one of the birth's name; empty where it is, or is so by the names of Adar alone.
std::string Reason(const ComingOfAge& age) {
  const std::string year = std::to_string(age.birthday.year);
  if (age.birth.day != age.birthday.day) {
    return year + " has no " + std::to_string(age.birth.day) + " " +
           calendar::JewishMonthName(age.birth.month, age.birth.year, calendar::kEnglish) +
           "; the day that follows takes its place.\n";
  }
  if (age.birth.month == calendar::kAdar && age.birthday.month == calendar::kAdarII) {
    return "Born in Adar of a year that had one: in a leap year such as " + year + " it is Adar II.\n";
  }
  return {};
}

// Right-to-left marks keep what stands at the ends of a Hebrew text with it.
std::string Shown(const std::string& encoded, lections::CodePage page) {
  const std::string text = lections::Decoded(encoded, page);
  constexpr char kMark[] = "\u200F";
  return page == lections::CodePage::kHebrew ? kMark + text + kMark : text;
}

std::string ReadingsText(int32_t shabbat, const lections::Settings& settings, const lections::OwnReadings* own) {
  const lections::ReadingTexts texts = lections::TextsOn(calendar::JewishFromAbsolute(shabbat), settings, own);
  const lections::CodePage page = lections::LanguageOf(settings.language).codePage;
  std::string lines;
  for (const std::string& torah : texts.torah) {
    if (!torah.empty()) lines += "Torah: " + Shown(torah, page) + "\n";
  }
  for (const std::string& haftarah : texts.haftarot) {
    if (!haftarah.empty()) lines += "Haftarah: " + Shown(haftarah, page) + "\n";
  }
  return lines;
}

std::string ShabbatText(int32_t shabbat, const lections::Settings& settings, const lections::OwnReadings* own) {
  std::string text = "Shabbat on or after it: " + DayText(shabbat) + "\n";
  if (!calendar::PortionOnShabbat(shabbat, settings.land)) {
    text += "This Shabbat is a day of a festival; in place of a weekly portion this is read:\n";
  }
  return text + ReadingsText(shabbat, settings, own);
}

std::string UidOf(const std::string& title, const Date& birth, const char* which) {
  char uid[96];
  std::snprintf(uid, sizeof uid, "%016llx-%04d%02d%02d-%s@times-readings",
                static_cast<unsigned long long>(publishing::StableHash(title)), birth.year, birth.month, birth.day,
                which);
  return uid;
}

publishing::CivilDate CivilDateOf(int32_t day) {
  const Date date = calendar::GregorianFromAbsolute(day);
  return {date.year, date.month, date.day};
}

}  // namespace

std::string TitleOf(const Child& child, std::string_view name) {
  const std::string title = child.isGirl ? "Bat mitzvah" : "Bar mitzvah";
  const std::string trimmed = BirthdayOf(child, name).name;
  return trimmed.empty() ? title : title + " of " + trimmed;
}

std::string FactsOf(const Child& child, const lections::Settings& settings, const lections::OwnReadings* own) {
  const std::string birth = "Jewish birthday: " + persons::JewishDateText(persons::JewishDateOf(child.birth)) + "\n";
  const std::optional<ComingOfAge> age = ComingOfAgeOf(child);
  if (!age) {
    return birth + TitleOf(child, {}) + ": after the Jewish year " + std::to_string(persons::kLastJewishYear) +
           ", the last one that is reckoned here.\n";
  }
  return birth + TitleOf(child, {}) + " at " + std::to_string(child.isGirl ? kAgeOfGirls : kAgeOfBoys) + ": " +
         WeekdayText(age->day) + ", " + DayText(age->day) + ", from the evening before\n" + Reason(*age) +
         ShabbatText(age->shabbat, settings, own);
}

std::string TimeLeft(const Child& child, int32_t today) {
  const std::optional<ComingOfAge> age = ComingOfAgeOf(child);
  if (!age) return {};
  const int32_t days = age->shabbat - today;
  if (days < 0) return "This Shabbat has passed.\n";
  if (days == 0) return "This Shabbat is today.\n";
  return (days == 1 ? "1 day is" : std::to_string(days) + " days are") +
         std::string(" left to learn until this Shabbat.\n");
}

std::vector<publishing::Event> EventsOf(const Child& child, std::string_view name, const lections::Settings& settings,
                                        const lections::OwnReadings* own) {
  const std::optional<ComingOfAge> age = ComingOfAgeOf(child);
  if (!age || !IsGregorianDay(age->day)) return {};
  const std::string title = TitleOf(child, name);
  std::vector<publishing::Event> events;
  events.push_back({.uid = UidOf(title, age->birth, "day"),
                    .date = CivilDateOf(age->day),
                    .summary = title,
                    .description = FactsOf(child, settings, own)});
  if (age->shabbat == age->day) return events;
  events.push_back({.uid = UidOf(title, age->birth, "shabbat"),
                    .date = CivilDateOf(age->shabbat),
                    .summary = title + ", Shabbat",
                    .description = ShabbatText(age->shabbat, settings, own)});
  return events;
}

}  // namespace majority
