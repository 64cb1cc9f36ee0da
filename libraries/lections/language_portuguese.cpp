// Portuguese, as communities of Brazil write the Hebrew names; a stressed vowel at the end bears its accent, as in
// "Torá", also where the lists leave it out.
//
// Spelling: Wikipedia ("Parashá"), Hebcal, Chabad.org in Portuguese, the calendar of Etz Hayim, Am Hazak, Massoret,
// Revista Nascente (months); months also CLDR. Books: the lists of SWORD and of the Bible passage reference parser, as
// Brazil writes them; passages as Wikipedia does.
//
// One source only: Machar Chodesh, Meguilá and the special Shabbatot but Shuvá and Hachodesh (Hebcal), Sefaradim (Etz
// Hayim); the accents of Nassô, Reê, Yitrô, Tetzavê, Vayetzê, Ki Tetzê and Ki Tavô, Shabat Shirá, walled cities and the
// announcement of the month (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kPortuguese = {
    12, "Portuguese", "Português", CodePage::kWestern, {},
    {"Bereshit", "Noach", "Lech Lechá", "Vayerá", "Chayei Sará", "Toldot", "Vayetzê", "Vayishlach", "Vayeshev",
     "Miketz", "Vayigash", "Vayechi",
     "Shemot", "Vaerá", "Bo", "Beshalach", "Yitrô", "Mishpatim", "Terumá", "Tetzavê", "Ki Tissá", "Vayakhel",
     "Pekudei",
     "Vayikrá", "Tzav", "Shemini", "Tazria", "Metzorá", "Acharei Mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bamidbar", "Nassô", "Behaalotechá", "Shelach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Devarim", "Vaetchanan", "Ekev", "Reê", "Shoftim", "Ki Tetzê", "Ki Tavô", "Nitzavim", "Vayelech", "Haazinu",
     "Vezot Haberachá"},
    {"Gênesis", "Êxodo", "Levítico", "Números", "Deuteronômio", "Josué", "Juízes", "1 Samuel", "2 Samuel", "1 Reis",
     "2 Reis", "Isaías", "Jeremias", "Ezequiel", "Oseias", "Joel", "Amós", "Obadias", "Jonas", "Miqueias", "Habacuque",
     "Zacarias", "Malaquias", "Cântico dos Cânticos", "Rute", "Lamentações", "Eclesiastes", "Ester"},
    {"", "Rosh Hashaná", "Jejum de Guedaliá", "Shabat Shuvá", "Yom Kipur", "Sucot", "Hoshaná Rabá",
     "Shemini Atzeret", "Simchat Torá", "Chanucá", "Jejum de 10 de Tevet", "Shabat Shirá", "Shabat Shekalim",
     "Shabat Zachor", "Jejum de Ester", "Purim", "Shushan Purim, cidades muradas", "Shabat Pará", "Shabat Hachodesh",
     "Shabat Hagadol", "Pessach", "Shavuot", "Jejum de 17 de Tamuz", "Shabat Chazon", "Tishá BeAv", "Shabat Nachamu",
     "Rosh Chodesh", "Machar Chodesh", "Chol Hamoed", "Shabat Chol Hamoed", "Shabat"},
    {"Adar I", "Nissan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishrei", "Cheshvan", "Kislev", "Tevet", "Shevat",
     "Adar", "Adar II"},
    {"@, dia #", "@ #", "Maftir", "Manhã", "Tarde", "Meguilá", "Intramuros", "Maftir em cidades muradas",
     {"Ashkenazim", "Sefaradim", "Chabad"}},
    {"Yizkor", "Anuncia-se Rosh Chodesh: ",
     {"Adar I", "Nissan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishrei", "Cheshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
