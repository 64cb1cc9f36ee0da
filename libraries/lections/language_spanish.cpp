// Spanish, as communities of Spain and Latin America write the Hebrew names; the letters Chet and Khaf are j.
//
// Spelling: Wikipedia ("Parashá de la semana"), two lists of parashiot in Latin American study calendars, the calendar
// of the community of Tenerife, Jabad Argentina, the Círculo Israelita de Santiago, La Nación (calendar of 2024),
// Hebcal; months also CLDR. Books: the lists of SWORD and of the Bible passage reference parser; passages as Wikipedia
// does.
//
// One source only: the accents of Vayetzé, Sheminí, Nasó, Pinjás, Vaetjanán and Ki Tetzé (one of the lists), Sheminí
// Atzeret, Majar Jodesh, Jol Hamoed and the special Shabbatot but Shuvá (Hebcal); Meguilá, Shabat Shirá, the customs,
// walled cities and the announcement of the month (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kSpanish = {
    10, "Spanish", "Español", CodePage::kWestern, {},
    {"Bereshit", "Noaj", "Lej Lejá", "Vayerá", "Jayei Sará", "Toldot", "Vayetzé", "Vayishlaj", "Vayeshev", "Miketz",
     "Vayigash", "Vayejí",
     "Shemot", "Vaerá", "Bo", "Beshalaj", "Yitró", "Mishpatim", "Terumá", "Tetzavé", "Ki Tisá", "Vayakhel", "Pekudei",
     "Vayikrá", "Tzav", "Sheminí", "Tazria", "Metzorá", "Ajarei Mot", "Kedoshim", "Emor", "Behar", "Bejukotai",
     "Bamidbar", "Nasó", "Behaalotejá", "Shelaj", "Koraj", "Jukat", "Balak", "Pinjás", "Matot", "Masei",
     "Devarim", "Vaetjanán", "Ekev", "Reé", "Shoftim", "Ki Tetzé", "Ki Tavó", "Nitzavim", "Vayelej", "Haazinu",
     "Vezot Haberajá"},
    {"Génesis", "Éxodo", "Levítico", "Números", "Deuteronomio", "Josué", "Jueces", "1 Samuel", "2 Samuel", "1 Reyes",
     "2 Reyes", "Isaías", "Jeremías", "Ezequiel", "Oseas", "Joel", "Amós", "Abdías", "Jonás", "Miqueas", "Habacuc",
     "Zacarías", "Malaquías", "Cantar de los Cantares", "Rut", "Lamentaciones", "Eclesiastés", "Ester"},
    {"", "Rosh Hashaná", "Ayuno de Guedaliá", "Shabat Shuvá", "Yom Kipur", "Sucot", "Hoshaná Rabá",
     "Sheminí Atzeret", "Simjat Torá", "Janucá", "Ayuno del 10 de Tevet", "Shabat Shirá", "Shabat Shekalim",
     "Shabat Zajor", "Ayuno de Ester", "Purim", "Shushán Purim, ciudades amuralladas", "Shabat Pará",
     "Shabat Hajodesh", "Shabat Hagadol", "Pésaj", "Shavuot", "Ayuno del 17 de Tamuz", "Shabat Jazón", "Tishá BeAv",
     "Shabat Najamú", "Rosh Jodesh", "Majar Jodesh", "Jol Hamoed", "Shabat Jol Hamoed", "Shabat"},
    {"Adar I", "Nisán", "Iyar", "Siván", "Tamuz", "Av", "Elul", "Tishrei", "Jeshván", "Kislev", "Tevet", "Shevat",
     "Adar", "Adar II"},
    {"@, día #", "@ #", "Maftir", "Mañana", "Tarde", "Meguilá", "Intramuros",
     "Maftir en ciudades amuralladas", {"Ashkenazí", "Sefardí", "Jabad"}},
    {"Yizkor", "Nuevo mes anunciado: ",
     {"Adar I", "Nisan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishrei", "Jeshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
