// English, in Sephardi and in Ashkenazi spelling of the Hebrew names.
#include "libraries/lections/language.h"

namespace lections {
namespace {

constexpr PlainWords kPlain = {"Yizkor",
                               "New month announced: ",
                               {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan",
                                "Kislev", "Tevet", "Shevat", "Adar", "Adar II"}};

// clang-format off
constexpr std::array<const char*, kBookCount> kEnglishBooks = {
    "Genesis", "Exodus", "Leviticus", "Numbers", "Deuteronomy", "Joshua", "Judges", "I Samuel", "II Samuel", "I Kings",
    "II Kings", "Isaiah", "Jeremiah", "Ezekiel", "Hosea", "Joel", "Amos", "Obadiah", "Jonah", "Micah", "Habakkuk",
    "Zechariah", "Malachi", "Song of Songs", "Ruth", "Lamentations", "Ecclesiastes", "Esther"};
// clang-format on

}  // namespace

// clang-format off
constexpr Language kEnglish = {
    1, "English", "English", CodePage::kWestern, {},
    {"Bereshit", "Noach", "Lech Lecha", "Vayera", "Chayei Sarah", "Toldot", "Vayetzei", "Vayishlach", "Vayeshev",
     "Miketz", "Vayigash", "Vayechi",
     "Shemot", "Vaera", "Bo", "Beshalach", "Yitro", "Mishpatim", "Terumah", "Tetzaveh", "Ki Tisa", "Vayakhel",
     "Pekudei",
     "Vayikra", "Tzav", "Shemini", "Tazria", "Metzora", "Acharei Mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bamidbar", "Nasso", "Beha'alotcha", "Shelach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Devarim", "Vaetchanan", "Eikev", "Re'eh", "Shoftim", "Ki Teitzei", "Ki Tavo", "Nitzavim", "Vayeilech",
     "Ha'azinu", "Vezot Haberachah"},
    kEnglishBooks,
    {"", "Rosh Hashana", "Fast of Gedaliah", "Shabbat Shuva", "Yom Kippur", "Sukkot", "Hoshana Rabba",
     "Shemini Atzeret", "Simchat Torah", "Chanukah", "Fast of 10 Tevet", "Shabbat Shira", "Shabbat Shekalim",
     "Shabbat Zachor", "Fast of Esther", "Purim", "Shushan Purim, walled cities", "Shabbat Parah", "Shabbat HaChodesh",
     "Shabbat HaGadol", "Pesach", "Shavuot", "Fast of 17 Tammuz", "Shabbat Chazon", "Tisha BeAv", "Shabbat Nachamu",
     "Rosh Chodesh", "Machar Chodesh", "Chol HaMoed", "Shabbat Chol HaMoed", "Shabbat"},
    kPlain.months,
    {"@, day #", "@ #", "Maftir", "Morning", "Afternoon", "Scroll", "Walled cities", "Maftir in walled cities",
     {"Ashkenazi", "Sephardi", "Chabad"}},
    kPlain,
};

constexpr Language kAshkenaziEnglish = {
    2, "English (Ashkenazi spelling)", "", CodePage::kWestern, {},
    {"Bereishis", "Noach", "Lech Lecha", "Vayeira", "Chayei Sarah", "Toldos", "Vayeitzei", "Vayishlach", "Vayeishev",
     "Mikeitz", "Vayigash", "Vayechi",
     "Shemos", "Va'eira", "Bo", "Beshalach", "Yisro", "Mishpatim", "Terumah", "Tetzaveh", "Ki Sisa", "Vayakhel",
     "Pekudei",
     "Vayikra", "Tzav", "Shemini", "Tazria", "Metzora", "Acharei Mos", "Kedoshim", "Emor", "Behar", "Bechukosai",
     "Bamidbar", "Naso", "Beha'aloscha", "Shelach", "Korach", "Chukas", "Balak", "Pinchas", "Matos", "Masei",
     "Devarim", "Va'eschanan", "Eikev", "Re'eh", "Shoftim", "Ki Seitzei", "Ki Savo", "Nitzavim", "Vayeilech",
     "Ha'azinu", "Vezos Haberachah"},
    kEnglishBooks,
    {"", "Rosh Hashanah", "Fast of Gedaliah", "Shabbos Shuvah", "Yom Kippur", "Sukkos", "Hoshana Rabbah",
     "Shemini Atzeres", "Simchas Torah", "Chanukah", "Fast of 10 Teves", "Shabbos Shirah", "Shabbos Shekalim",
     "Shabbos Zachor", "Fast of Esther", "Purim", "Shushan Purim, walled cities", "Shabbos Parah", "Shabbos HaChodesh",
     "Shabbos HaGadol", "Pesach", "Shavuos", "Fast of 17 Tammuz", "Shabbos Chazon", "Tisha BeAv", "Shabbos Nachamu",
     "Rosh Chodesh", "Machar Chodesh", "Chol HaMoed", "Shabbos Chol HaMoed", "Shabbos"},
    {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Teves", "Shevat",
     "Adar", "Adar II"},
    {"@, day #", "@ #", "Maftir", "Morning", "Afternoon", "Scroll", "Walled cities", "Maftir in walled cities",
     {"Ashkenazi", "Sephardi", "Chabad"}},
    {"Yizkor", "New month announced: ",
     {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Teves", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
