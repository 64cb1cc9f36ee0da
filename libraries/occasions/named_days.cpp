#include "libraries/calendar/holiday.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {
namespace {

// An occasion's day by the calendar's table of holidays, which has the dates, what Shabbat moves, the laws and their
// sources.
struct NamedDay {
  const char* holiday;
  Occasion occasion;
  int32_t number = 0;
  Lands lands = Lands::kBoth;
};

constexpr NamedDay kNamedDays[] = {
    {"Rosh Hashana, first day", Occasion::kRoshHashana, 1},
    {"Rosh Hashana, second day", Occasion::kRoshHashana, 2},
    {"Shabbat Shuva", Occasion::kShabbatShuva},
    {"Yom Kippur", Occasion::kYomKippur},
    {"Sukkot, first day", Occasion::kSukkot, 1},
    {"Sukkot, second day (in Israel Chol HaMoed)", Occasion::kSukkot, 2, Lands::kDiaspora},
    {"Sukkot, second day (in Israel Chol HaMoed)", Occasion::kCholHamoedSukkot, 2, Lands::kIsrael},
    {"Sukkot, third day (Chol HaMoed)", Occasion::kCholHamoedSukkot, 3},
    {"Sukkot, fourth day (Chol HaMoed)", Occasion::kCholHamoedSukkot, 4},
    {"Sukkot, fifth day (Chol HaMoed)", Occasion::kCholHamoedSukkot, 5},
    {"Sukkot, sixth day (Chol HaMoed)", Occasion::kCholHamoedSukkot, 6},
    {"Hoshana Rabba", Occasion::kHoshanaRabba},
    {"Shemini Atzeret (in Israel also Simchat Torah)", Occasion::kSheminiAtzeret, 0, Lands::kDiaspora},
    {"Shemini Atzeret (in Israel also Simchat Torah)", Occasion::kSheminiAtzeret, 1, Lands::kIsrael},
    {"Simchat Torah (diaspora)", Occasion::kSimchatTorah, 0, Lands::kDiaspora},
    {"Chanukah, first day", Occasion::kChanukah, 1},
    {"Chanukah, second day", Occasion::kChanukah, 2},
    {"Chanukah, third day", Occasion::kChanukah, 3},
    {"Chanukah, fourth day", Occasion::kChanukah, 4},
    {"Chanukah, fifth day", Occasion::kChanukah, 5},
    {"Chanukah, sixth day", Occasion::kChanukah, 6},
    {"Chanukah, seventh day", Occasion::kChanukah, 7},
    {"Chanukah, eighth day", Occasion::kChanukah, 8},
    {"Shabbat Shira", Occasion::kShabbatShira},
    {"Tu BiShvat", Occasion::kTuBiShvat},
    {"Purim Katan", Occasion::kPurimKatan},
    {"Shushan Purim Katan", Occasion::kShushanPurimKatan},
    {"Shabbat Shekalim", Occasion::kShabbatShekalim},
    {"Shabbat Zachor", Occasion::kShabbatZachor},
    {"Purim", Occasion::kPurim},
    {"Shushan Purim", Occasion::kShushanPurim},
    {"Purim Meshulash, third day (walled cities)", Occasion::kPurimMeshulash},
    {"Shabbat Parah", Occasion::kShabbatParah},
    {"Shabbat HaChodesh", Occasion::kShabbatHaChodesh},
    {"Shabbat HaGadol", Occasion::kShabbatHaGadol},
    {"Pesach, first day", Occasion::kPesach, 1},
    {"Pesach, second day (in Israel Chol HaMoed)", Occasion::kPesach, 2, Lands::kDiaspora},
    {"Pesach, second day (in Israel Chol HaMoed)", Occasion::kCholHamoedPesach, 2, Lands::kIsrael},
    {"Pesach, third day (Chol HaMoed)", Occasion::kCholHamoedPesach, 3},
    {"Pesach, fourth day (Chol HaMoed)", Occasion::kCholHamoedPesach, 4},
    {"Pesach, fifth day (Chol HaMoed)", Occasion::kCholHamoedPesach, 5},
    {"Pesach, sixth day (Chol HaMoed)", Occasion::kCholHamoedPesach, 6},
    {"Pesach, seventh day", Occasion::kPesach, 7},
    {"Pesach, eighth day (diaspora)", Occasion::kPesach, 8, Lands::kDiaspora},
    {"Yom HaShoah", Occasion::kYomHaShoah},
    {"Yom HaZikaron", Occasion::kYomHaZikaron},
    {"Yom HaAtzma'ut", Occasion::kYomHaAtzmaut},
    {"Pesach Sheni", Occasion::kPesachSheni},
    {"Lag BaOmer", Occasion::kLagBaOmer},
    {"Yom Yerushalayim", Occasion::kYomYerushalayim},
    {"Shavuot, first day", Occasion::kShavuot, 1},
    {"Shavuot, second day (diaspora)", Occasion::kShavuot, 2, Lands::kDiaspora},
    {"Shabbat Chazon", Occasion::kShabbatChazon},
    {"Shabbat Nachamu", Occasion::kShabbatNachamu},
    {"Tu BeAv", Occasion::kTuBeAv},
};

struct DatedDay {
  const NamedDay* named;
  const calendar::Holiday* holiday;
};

// Found by their names once.
const std::vector<DatedDay>& DatedDays() {
  static const std::vector<DatedDay> days = [] {
    std::vector<DatedDay> found;
    for (const NamedDay& named : kNamedDays) found.push_back({&named, &calendar::JewishHolidayNamed(named.holiday)});
    return found;
  }();
  return days;
}

uint16_t NotesOf(const DatedDay& dated, int32_t day) {
  uint16_t notes = calendar::WeekdayOf(day) == calendar::Weekday::kSaturday ? kOnShabbat : 0;
  const bool isModern = KindOf(dated.named->occasion) == Kind::kModernDay;
  if (isModern && calendar::JewishFromAbsolute(day).day != dated.holiday->rules[0].day) notes |= kMovedByLaw;
  return notes;
}

}  // namespace

void AddNamedDays(const YearSources& sources, int32_t jewishYear) {
  for (const DatedDay& dated : DatedDays()) {
    const NamedDay& named = *dated.named;
    if (!IsKept(named.lands, sources.question.land)) continue;
    const auto day = calendar::DayOfHoliday(*dated.holiday, jewishYear, calendar::JewishBaseDay);
    if (!day || !sources.rows.Wants(named.occasion, *day)) continue;
    sources.rows.AddDay(*day, {.occasion = named.occasion, .notes = NotesOf(dated, *day), .number = named.number});
  }
}

}  // namespace occasions
