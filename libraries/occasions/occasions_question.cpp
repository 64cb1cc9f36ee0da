#include "libraries/occasions/occasions_question.h"

#include <mutex>

#include "companion/profile.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/candles/candles_file.h"
#include "libraries/hours/choice.h"
#include "libraries/lections/settings_store.h"
#include "libraries/settings_folder/watched_file.h"

namespace occasions {
namespace {

constexpr sun::SettingsReader kReader = {ProfileGetInt, ProfileGetString};

// The user's selection of zmanim says whether proportional hours are reckoned at sea level.
struct HoursFile {
  std::mutex mutex;
  settings_folder::WatchedFile watched{"hours.txt"};
  bool areAtSeaLevel = false;
};

HoursFile hoursFile;

bool AreHoursAtSeaLevel() {
  const std::lock_guard lock(hoursFile.mutex);
  std::string text;
  if (hoursFile.watched.Refresh(&text)) hoursFile.areAtSeaLevel = hours::ReadChoice(text).areHoursAtSeaLevel;
  return hoursFile.areAtSeaLevel;
}

candles::OwnTimes OwnTimesOf(const std::string& place) {
  return [place](int32_t friday) {
    const calendar::Date date = calendar::GregorianFromAbsolute(friday);
    return candles::StoredTimes(place, static_cast<uint32_t>(date.day), static_cast<uint32_t>(date.month),
                                static_cast<uint32_t>(date.year));
  };
}

std::string TextOfKey(const char* key) {
  char text[512];
  ProfileGetString(kCustomsSection, key, "", text, sizeof text, kCustomsFile);
  return text;
}

}  // namespace

Customs StoredCustoms() {
  return CustomsFrom(TextOfKey);
}

Question QuestionOf(const std::string& place, const sun::PackedPlace& packed) {
  Question question;
  question.place = place;
  question.settings = sun::ReadPlaceSettings(kReader, packed);
  question.shabbat = candles::ReadShabbatRule(kReader, place);
  question.ownTimes = OwnTimesOf(place);
  question.customs = StoredCustoms();
  question.land = LandOf(question.customs, lections::StoredSettings().land);
  question.hoursAtSeaLevel = AreHoursAtSeaLevel();
  return question;
}

}  // namespace occasions
