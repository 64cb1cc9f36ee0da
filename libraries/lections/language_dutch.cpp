// Dutch, in the spelling of the communities of the NIK, which writes w for vav and vet but "Tsav".
//
// Portions: "Tora van de week" of the NIK, De Vrijdagavond, Jodendom Online, Or Haolam, Wikipedia, and the calendar
// Hebcal, which writes v. Days: the NIK's feasts and its luach, the congregations of The Hague and Brabant, Hebcal.
// Months: the luach, geloofik.nl, Hebcal, CLDR. Books: the NBV, in the SWORD locales and in the BCV parser of
// references.
//
// One source only: Wajeesjew, Ki Tawo, Nitsawiem (v in Or Haolam, Hebcal), Wajera, Wajisjlach (Hebcal with V, Wikipedia
// with marks), Mikeets, Ki Tetsee, Wajelech, Wezot Haberacha (Hebcal, spelt otherwise), Sjabbat Sjekaliem, Zachor,
// Para, Hachodesj, Hagadol, Chazon, Nachamoe, Machar Chodesj, Chol Hamoëd (Hebcal), Sjabbat Sjira, Sjoesjan Poeriem,
// Jizkor, the words for walled cities, hours, customs and the new month (common usage).
#include "libraries/lections/language.h"

namespace lections {
namespace {

// clang-format off
constexpr std::array<const char*, 14> kMonths = {
    "Adar I", "Nisan", "Ijar", "Siwan", "Tammoez", "Aw", "Elloel", "Tisjri", "Chesjwan", "Kislew", "Tewet", "Sjewat",
    "Adar", "Adar II"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kDutch = {
    9, "Dutch", "Nederlands", CodePage::kWestern, {},
    {"Bereesjiet", "Noach", "Lech Lecha", "Wajera", "Chajee Sara", "Toledot", "Wajetsee", "Wajisjlach", "Wajeesjew",
     "Mikeets", "Wajigasj", "Wajechi",
     "Sjemot", "Wa'eera", "Bo", "Besjalach", "Jitro", "Misjpatiem", "Teroema", "Tetsawee", "Ki Tisa", "Wajakheel",
     "Pekoedee",
     "Wajikra", "Tsav", "Sjemini", "Tazria", "Metsora", "Acharee Mot", "Kedosjiem", "Emor", "Behar", "Bechoekotaj",
     "Bemidbar", "Naso", "Beha'alotecha", "Sjelach Lecha", "Korach", "Choekat", "Balak", "Pinchas", "Matot", "Masee",
     "Dewariem", "Wa'etchanan", "Ekew", "Re'ee", "Sjoftiem", "Ki Tetsee", "Ki Tawo", "Nitsawiem", "Wajelech",
     "Ha'azinoe", "Wezot Haberacha"},
    {"Genesis", "Exodus", "Leviticus", "Numeri", "Deuteronomium", "Jozua", "Rechters", "1 Samuël", "2 Samuël",
     "1 Koningen", "2 Koningen", "Jesaja", "Jeremia", "Ezechiël", "Hosea", "Joël", "Amos", "Obadja", "Jona", "Micha",
     "Habakuk", "Zacharia", "Maleachi", "Hooglied", "Ruth", "Klaagliederen", "Prediker", "Ester"},
    {"", "Rosj Hasjana", "Vastendag van Gedalja", "Sjabbat Sjoewa", "Jom Kippoer", "Soekot", "Hosjana Rabba",
     "Sjemini Atseret", "Simchat Tora", "Chanoeka", "Vastendag 10 Tewet", "Sjabbat Sjira", "Sjabbat Sjekaliem",
     "Sjabbat Zachor", "Vastendag van Ester", "Poeriem", "Sjoesjan Poeriem, ommuurde steden", "Sjabbat Para",
     "Sjabbat Hachodesj", "Sjabbat Hagadol", "Pesach", "Sjawoe'ot", "Vastendag 17 Tammoez", "Sjabbat Chazon",
     "Tisja Be'aw", "Sjabbat Nachamoe", "Rosj Chodesj", "Machar Chodesj", "Chol Hamoëd", "Sjabbat Chol Hamoëd",
     "Sjabbat"},
    kMonths,
    {"@, dag #", "@ #", "Maftier", "Ochtend", "Middag", "Megilla", "Ommuurd", "Maftier in ommuurde steden",
     {"Asjkenazisch", "Sefardisch", "Chabad"}},
    {"Jizkor", "Aankondiging nieuwe maand: ", kMonths},
};
// clang-format on

}  // namespace lections
