// German, in the communities' spelling: w for vav and vet, z for tzadi, s for zayin.
//
// Portions: the lists of the calendar Hebcal, of Schalom Israel and of E. Zizov, the weekly pages of talmud.de and of
// Chabad in German. Days and months: the yearly cycle of talmud.de, haGalil, wissen.de, Hebcal, for the months CLDR
// too. Books: Luther 2017, in the SWORD locales and in the BCV parser of references, but Kohelet, as Jews say, for its
// "Prediger". Verses with a comma: Luther, talmud.de, Wikipedia.
//
// One source only: Re'e, Schabbat Sachor, Hachodesch, Hagadol, Chason, Nachamu, Machar Chodesch, Chol Hamoed, "8. Tag"
// (Hebcal), Fasten 10. Tewet (talmud.de), Schabbat Schira, Schekalim, Para, Fasten 17. Tammus, Hoschana Rabba, Kohelet,
// Megilla, Jiskor, the words for walled cities, hours, customs and the new month (common usage).
#include "libraries/lections/language.h"

namespace lections {
namespace {

// clang-format off
constexpr std::array<const char*, 14> kMonths = {
    "Adar I", "Nissan", "Ijar", "Siwan", "Tammus", "Aw", "Elul", "Tischri", "Cheschwan", "Kislew", "Tewet", "Schwat",
    "Adar", "Adar II"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kGerman = {
    3, "German", "Deutsch", CodePage::kWestern, {.verse = ",", .next = " und "},
    {"Bereschit", "Noach", "Lech Lecha", "Wajera", "Chajei Sara", "Toldot", "Wajeze", "Wajischlach", "Wajeschew",
     "Mikez", "Wajigasch", "Wajechi",
     "Schemot", "Waera", "Bo", "Beschalach", "Jitro", "Mischpatim", "Teruma", "Tezawe", "Ki Tisa", "Wajakhel",
     "Pekudei",
     "Wajikra", "Zaw", "Schemini", "Tasria", "Mezora", "Acharei Mot", "Kedoschim", "Emor", "Behar", "Bechukotai",
     "Bamidbar", "Nasso", "Behaalotcha", "Schelach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Dewarim", "Waetchanan", "Ekew", "Re'e", "Schoftim", "Ki Teze", "Ki Tawo", "Nizawim", "Wajelech", "Haasinu",
     "Wesot Habracha"},
    {"1. Mose", "2. Mose", "3. Mose", "4. Mose", "5. Mose", "Josua", "Richter", "1. Samuel", "2. Samuel", "1. Könige",
     "2. Könige", "Jesaja", "Jeremia", "Hesekiel", "Hosea", "Joel", "Amos", "Obadja", "Jona", "Micha", "Habakuk",
     "Sacharja", "Maleachi", "Hoheslied", "Rut", "Klagelieder", "Kohelet", "Ester"},
    {"", "Rosch Haschana", "Fasten Gedalja", "Schabbat Schuwa", "Jom Kippur", "Sukkot", "Hoschana Rabba",
     "Schemini Azeret", "Simchat Tora", "Chanukka", "Fasten 10. Tewet", "Schabbat Schira", "Schabbat Schekalim",
     "Schabbat Sachor", "Fasten Ester", "Purim", "Schuschan Purim, ummauerte Städte", "Schabbat Para",
     "Schabbat Hachodesch", "Schabbat Hagadol", "Pessach", "Schawuot", "Fasten 17. Tammus", "Schabbat Chason",
     "Tischa beAw", "Schabbat Nachamu", "Rosch Chodesch", "Machar Chodesch", "Chol Hamoed", "Schabbat Chol Hamoed",
     "Schabbat"},
    kMonths,
    {"@, #. Tag", "@ #", "Maftir", "Morgens", "Nachmittags", "Megilla", "Mauerstädte", "Maftir in ummauerten Städten",
     {"Aschkenasim", "Sefardim", "Chabad"}},
    {"Jiskor", "Ansage des neuen Monats: ", kMonths},
};
// clang-format on

}  // namespace lections
