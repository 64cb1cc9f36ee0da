// Swedish, in the spelling of the congregations: j for yod, ts for tzadi.
//
// Portions: the weekly letters of Adat Jeschurun in Stockholm, and the list of Messianska föreningen, here without its
// accents. Days: the congregations of Malmö and Stockholm, Hillel, Adat Jeschurun. Months: CLDR without its accents,
// the same letters. Books: Bibel 2000, in the SWORD locales and in the BCV parser of references. Verses with a colon:
// the letters, Malmö.
//
// One source only: Bereshit, Shemot, Vaera, Bo, Beshalach, Jitro, Mishpatim, Tetsave, Tsav, Shemini, Tazria, Metsora,
// Acharei Mot, Naso, Behaalotcha, Shelach Lecha, Korach, Chukat, Balak, Devarim, Ekev, Ree, Shoftim, Ki Tetse,
// Nitsavim, Vajelech, Haazinu, Vezot Haberacha (Messianska föreningen), Tisha B'Av (Adat Jeschurun), Teruma, Ki Tisa,
// Pekudei, Bechukotai, all Shabbatot by name, the fasts' Swedish names, Hoshana Rabba, Shushan Purim, Machar Chodesh,
// cheshvan, ijar, av, Jizkor, the words for walled cities, hours, customs and the new month (common usage).
#include "libraries/lections/language.h"

namespace lections {
namespace {

// clang-format off
constexpr std::array<const char*, 14> kMonths = {
    "adar I", "nisan", "ijar", "sivan", "tammuz", "av", "elul", "tishri", "cheshvan", "kislev", "tevet", "shvat",
    "adar", "adar II"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kSwedish = {
    8, "Swedish", "Svenska", CodePage::kWestern, {},
    {"Bereshit", "Noach", "Lech Lecha", "Vajera", "Chajei Sara", "Toldot", "Vajetse", "Vajishlach", "Vajeshev",
     "Mikets", "Vajigash", "Vajechi",
     "Shemot", "Vaera", "Bo", "Beshalach", "Jitro", "Mishpatim", "Teruma", "Tetsave", "Ki Tisa", "Vajakhel", "Pekudei",
     "Vajikra", "Tsav", "Shemini", "Tazria", "Metsora", "Acharei Mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bemidbar", "Naso", "Behaalotcha", "Shelach Lecha", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Devarim", "Vaetchanan", "Ekev", "Ree", "Shoftim", "Ki Tetse", "Ki Tavo", "Nitsavim", "Vajelech", "Haazinu",
     "Vezot Haberacha"},
    {"1 Mosebok", "2 Mosebok", "3 Mosebok", "4 Mosebok", "5 Mosebok", "Josua", "Domarboken", "1 Samuelsboken",
     "2 Samuelsboken", "1 Kungaboken", "2 Kungaboken", "Jesaja", "Jeremia", "Hesekiel", "Hosea", "Joel", "Amos",
     "Obadja", "Jona", "Mika", "Habackuk", "Sakarja", "Malaki", "Höga Visan", "Rut", "Klagovisorna", "Predikaren",
     "Ester"},
    {"", "Rosh Hashana", "Gedaljas fasta", "Shabbat Shuva", "Jom Kippur", "Sukkot", "Hoshana Rabba", "Shemini Atseret",
     "Simchat Tora", "Chanukka", "Fastan den 10 tevet", "Shabbat Shira", "Shabbat Shekalim", "Shabbat Zachor",
     "Esters fasta", "Purim", "Shushan Purim, städer med mur", "Shabbat Para", "Shabbat Hachodesh", "Shabbat Hagadol",
     "Pesach", "Shavuot", "Fastan den 17 tammuz", "Shabbat Chazon", "Tisha B'Av", "Shabbat Nachamu", "Rosh Chodesh",
     "Machar Chodesh", "Chol Hamoed", "Shabbat Chol Hamoed", "Shabbat"},
    kMonths,
    {"@, dag #", "@ #", "Maftir", "Morgon", "Eftermiddag", "Megilla", "Med mur", "Maftir i städer med mur",
     {"Ashkenazim", "Sefardim", "Chabad"}},
    {"Jizkor", "Rosh Chodesh utlyses: ", kMonths},
};
// clang-format on

}  // namespace lections
