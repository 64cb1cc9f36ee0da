// Danish, in the spelling of the almanac of the Jewish congregation of Copenhagen: j for yod, tz for tzadi, h at the
// end.
//
// Portions that begin a book, fasts and months: Jødisk almanak 5773 of Det Mosaiske Troessamfund. Feasts: the
// congregation's pages (mosaiske.dk), Danish Wikipedia; the months are in CLDR too. Books: the Bible of 1992, shortened
// as in common talk, in the SWORD locales and in the BCV parser of references. Verses with a comma: the Bible of 1992,
// religion.dk.
//
// One source only: Tzom Gedaljah, Asarah betevet, Ta'anit Esther, Shivah asar betamuz, Bereshit, Shemot, Vajikra,
// Bemidbar, Devarim (the almanac), Chanukka (Wikipedia), all other portions and Shabbatot, Hoshana Rabbah, Shushan
// Purim, Machar Chodesh, Chol Hamoed, Megillah, Jizkor, the words for walled cities, hours, customs and the new month
// (common usage, in the almanac's spelling).
#include "libraries/lections/language.h"

namespace lections {
namespace {

// clang-format off
constexpr std::array<const char*, 14> kMonths = {
    "adar I", "nisan", "ijar", "sivan", "tamuz", "av", "elul", "tishri", "cheshvan", "kislev", "tevet", "shvat", "adar",
    "adar II"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kDanish = {
    6, "Danish", "Dansk", CodePage::kWestern, {.verse = ",", .next = " og "},
    {"Bereshit", "Noach", "Lech Lecha", "Vajera", "Chajei Sarah", "Toldot", "Vajetze", "Vajishlach", "Vajeshev",
     "Miketz", "Vajigash", "Vajechi",
     "Shemot", "Vaera", "Bo", "Beshalach", "Jitro", "Mishpatim", "Terumah", "Tetzaveh", "Ki Tisa", "Vajakhel",
     "Pekudei",
     "Vajikra", "Tzav", "Shemini", "Tazria", "Metzora", "Acharei Mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bemidbar", "Naso", "Behaalotcha", "Shelach Lecha", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Devarim", "Vaetchanan", "Ekev", "Re'eh", "Shoftim", "Ki Tetze", "Ki Tavo", "Nitzavim", "Vajelech", "Haazinu",
     "Vezot Haberachah"},
    {"1. Mosebog", "2. Mosebog", "3. Mosebog", "4. Mosebog", "5. Mosebog", "Josva", "Dommerbogen", "1. Samuelsbog",
     "2. Samuelsbog", "1. Kongebog", "2. Kongebog", "Esajas", "Jeremias", "Ezekiel", "Hoseas", "Joel", "Amos",
     "Obadias", "Jonas", "Mika", "Habakkuk", "Zakarias", "Malakias", "Højsangen", "Ruth", "Klagesangene", "Prædikeren",
     "Ester"},
    {"", "Rosh Hashanah", "Tzom Gedaljah", "Shabbat Shuvah", "Jom Kippur", "Sukkot", "Hoshana Rabbah",
     "Shemini Atzeret", "Simchat Torah", "Chanukka", "Asarah betevet", "Shabbat Shirah", "Shabbat Shekalim",
     "Shabbat Zachor", "Ta'anit Esther", "Purim", "Shushan Purim, byer med mur", "Shabbat Parah", "Shabbat Hachodesh",
     "Shabbat Hagadol", "Pesach", "Shavuot", "Shivah asar betamuz", "Shabbat Chazon", "Tishah beav", "Shabbat Nachamu",
     "Rosh Chodesh", "Machar Chodesh", "Chol Hamoed", "Shabbat Chol Hamoed", "Shabbat"},
    kMonths,
    {"@, #. dag", "@ #", "Maftir", "Morgen", "Eftermiddag", "Megillah", "Med mur", "Maftir i byer med mur",
     {"Ashkenazisk", "Sefardisk", "Chabad"}},
    {"Jizkor", "Rosh Chodesh forkyndes: ", kMonths},
};
// clang-format on

}  // namespace lections
