// Norwegian (Bokmål), in the spelling of the congregation of Oslo: sh for shin, j for yod, ts for tzadi.
//
// Days: the Jewish museums of Oslo and Trondheim, the rabbi of Oslo's columns, the congregation's Shabbat letters,
// framtida.no. Months: CLDR. Books: Bibel 2011, in the SWORD locales and in the BCV parser of references. Verses with a
// comma: Bibel 2011.
//
// One source only: Teruma (the Shabbat letters), Esters faste (Alnakka), iyar, shevat (CLDR), all other portions, in
// the spelling that the Swedish congregations print, all Shabbatot by name, Gedaljas faste, Fasten 10. tevet, Fasten
// 17. tammuz, Hoshana Rabba, Shushan Purim, Machar Chodesh, Chol Hamoed, cheshvan, Megilla, Jizkor, the words for
// walled cities, hours, customs and the new month (common usage).
#include "libraries/lections/language.h"

namespace lections {
namespace {

// clang-format off
constexpr std::array<const char*, 14> kMonths = {
    "adar I", "nisan", "iyar", "sivan", "tammuz", "av", "elul", "tishri", "cheshvan", "kislev", "tevet", "shevat",
    "adar", "adar II"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kNorwegian = {
    11, "Norwegian", "Norsk", CodePage::kWestern, {.verse = ",", .next = " og "},
    {"Bereshit", "Noach", "Lech Lecha", "Vajera", "Chajei Sara", "Toldot", "Vajetse", "Vajishlach", "Vajeshev",
     "Mikets", "Vajigash", "Vajechi",
     "Shemot", "Vaera", "Bo", "Beshalach", "Jitro", "Mishpatim", "Teruma", "Tetsave", "Ki Tisa", "Vajakhel", "Pekudei",
     "Vajikra", "Tsav", "Shemini", "Tazria", "Metsora", "Acharei Mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bemidbar", "Naso", "Behaalotcha", "Shelach Lecha", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Devarim", "Vaetchanan", "Ekev", "Ree", "Shoftim", "Ki Tetse", "Ki Tavo", "Nitsavim", "Vajelech", "Haazinu",
     "Vezot Haberacha"},
    {"1. Mosebok", "2. Mosebok", "3. Mosebok", "4. Mosebok", "5. Mosebok", "Josva", "Dommerne", "1. Samuelsbok",
     "2. Samuelsbok", "1. Kongebok", "2. Kongebok", "Jesaja", "Jeremia", "Esekiel", "Hosea", "Joel", "Amos", "Obadja",
     "Jona", "Mika", "Habakkuk", "Sakarja", "Malaki", "Høysangen", "Rut", "Klagesangene", "Forkynneren", "Ester"},
    {"", "Rosh Hashana", "Gedaljas faste", "Shabbat Shuva", "Jom Kippur", "Sukkot", "Hoshana Rabba", "Shemini Atseret",
     "Simchat Tora", "Chanukka", "Fasten 10. tevet", "Shabbat Shira", "Shabbat Shekalim", "Shabbat Zachor",
     "Esters faste", "Purim", "Shushan Purim, byer med mur", "Shabbat Para", "Shabbat Hachodesh", "Shabbat Hagadol",
     "Pesach", "Shavuot", "Fasten 17. tammuz", "Shabbat Chazon", "Tisha B'Av", "Shabbat Nachamu", "Rosh Chodesh",
     "Machar Chodesh", "Chol Hamoed", "Shabbat Chol Hamoed", "Shabbat"},
    kMonths,
    {"@, #. dag", "@ #", "Maftir", "Morgen", "Ettermiddag", "Megilla", "Med mur", "Maftir i byer med mur",
     {"Askenasisk", "Sefardisk", "Chabad"}},
    {"Jizkor", "Rosh Chodesh forkynnes: ", kMonths},
};
// clang-format on

}  // namespace lections
