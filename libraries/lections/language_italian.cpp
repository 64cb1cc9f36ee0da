// Italian, as the communities of Italy write the Hebrew names, with accents on last syllables only; ch is the letter
// Chet, kh the letter Khaf.
//
// Spelling: Shalom (the paper of the community of Rome), archivio-torah, Moked, Morasha, the communities of Bologna and
// Pisa, Venezia Ebraica, Chabad.org in Italian, Zeraim (festivals and fasts), the Lunario of Rome ("1° giorno"),
// Virtual Yeshiva (customs). Books: the lists of SWORD and of the Bible passage reference parser; passages as
// archivio-torah does.
//
// One source only: Shabbat Teshuvà and Shabbat Zakhor (Shalom), Shabbat Chazon (Wikipedia); the other Shabbatot, Machar
// Chodesh, Chol Hamoed, Mikketz, Vaychì with ch, Pekudè, Metzorà, Chukkat, Mas'è, Meghillà, walled cities and the
// announcement of the month (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kItalian = {
    20, "Italian", "Italiano", CodePage::kWestern, {.verse = ",", .next = " e "},
    {"Bereshit", "Noach", "Lekh Lekhà", "Vayerà", "Chayè Sarà", "Toledot", "Vayetzè", "Vayishlach", "Vayeshev",
     "Mikketz", "Vayiggash", "Vaychì",
     "Shemot", "Vaerà", "Bo", "Beshallach", "Yitrò", "Mishpatim", "Terumà", "Tetzavè", "Ki Tissà", "Vayakhel",
     "Pekudè",
     "Vayikrà", "Tzav", "Sheminì", "Tazria", "Metzorà", "Acharè Mot", "Kedoshim", "Emor", "Behar", "Bechukkotai",
     "Bemidbar", "Nassò", "Behaalotekhà", "Shelach", "Korach", "Chukkat", "Balak", "Pinechas", "Mattot", "Mas'è",
     "Devarim", "Vaetchannan", "Ekev", "Reè", "Shofetim", "Ki Tetzè", "Ki Tavò", "Nitzavim", "Vayelekh", "Haazinu",
     "Vezot Haberakhà"},
    {"Genesi", "Esodo", "Levitico", "Numeri", "Deuteronomio", "Giosuè", "Giudici", "1 Samuele", "2 Samuele", "1 Re",
     "2 Re", "Isaia", "Geremia", "Ezechiele", "Osea", "Gioele", "Amos", "Abdia", "Giona", "Michea", "Abacuc",
     "Zaccaria", "Malachia", "Cantico dei Cantici", "Rut", "Lamentazioni", "Qoelet", "Ester"},
    {"", "Rosh Hashanà", "Digiuno di Ghedalià", "Shabbat Teshuvà", "Yom Kippur", "Sukkot", "Hoshanà Rabbà",
     "Sheminì Atzeret", "Simchat Torà", "Chanukkà", "Digiuno del 10 di Tevet", "Shabbat Shirà", "Shabbat Shekalim",
     "Shabbat Zakhor", "Digiuno di Ester", "Purim", "Shushan Purim, città murate", "Shabbat Parà",
     "Shabbat Hachodesh", "Shabbat Hagadol", "Pesach", "Shavuot", "Digiuno del 17 di Tamuz", "Shabbat Chazon",
     "Tishà BeAv", "Shabbat Nachamù", "Rosh Chodesh", "Machar Chodesh", "Chol Hamoed", "Shabbat Chol Hamoed",
     "Shabbat"},
    {"Adar I", "Nissan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishrì", "Cheshvan", "Kislev", "Tevet", "Shevat",
     "Adar", "Adar II"},
    {"@, #° giorno", "@ #", "Maftir", "Mattina", "Pomeriggio", "Meghillà", "Tra le mura", "Maftir nelle città murate",
     {"Ashkenaziti", "Sefarditi", "Chabad"}},
    {"Yizkor", "Nuovo mese annunciato: ",
     {"Adar I", "Nissan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
