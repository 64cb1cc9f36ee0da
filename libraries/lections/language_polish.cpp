// Polish, as the communities of Poland write the Hebrew names.
//
// Spelling: Chabad Lubawicz in Poland ("Parsze Tory"), the Lauder e-school ("Paraszat ha-szawua"), the communities of
// Warsaw and Poznań, Am Hazak and Wirtualny Sztetl (festivals), Hebcal; months also CLDR. Books: the list of SWORD,
// whose short forms are those of lists of readings ("Rodzaju", "1 Samuela"); passages as Chabad does.
//
// One source only: Dewarim, Pekude, Mase, Achare Mot, Szelach, Machar Chodesz and Megilla (Hebcal), Bemidbar (Lauder);
// Wajakhel, Pieśń nad Pieśniami with its capitals, Post Gedalii, Po południu, the customs, walled cities and the
// announcement of the month (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kPolish = {
    21, "Polish", "Polski", CodePage::kCentralEuropean, {.verse = ",", .next = " i "},
    {"Bereszit", "Noach", "Lech Lecha", "Wajera", "Chaje Sara", "Toldot", "Wajece", "Wajiszlach", "Wajeszew", "Mikec",
     "Wajigasz", "Wajechi",
     "Szemot", "Waera", "Bo", "Beszalach", "Jitro", "Miszpatim", "Teruma", "Tecawe", "Ki Tisa", "Wajakhel", "Pekude",
     "Wajikra", "Caw", "Szemini", "Tazrija", "Mecora", "Achare Mot", "Kedoszim", "Emor", "Behar", "Bechukotai",
     "Bemidbar", "Naso", "Behaalotcha", "Szelach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Mase",
     "Dewarim", "Waetchanan", "Ekew", "Ree", "Szoftim", "Ki Tece", "Ki Tawo", "Nicawim", "Wajelech", "Haazinu",
     "Wezot Habracha"},
    {"Rodzaju", "Wyjścia", "Kapłańska", "Liczb", "Powtórzonego Prawa", "Jozuego", "Sędziów", "1 Samuela", "2 Samuela",
     "1 Królewska", "2 Królewska", "Izajasza", "Jeremiasza", "Ezechiela", "Ozeasza", "Joela", "Amosa", "Abdiasza",
     "Jonasza", "Micheasza", "Habakuka", "Zachariasza", "Malachiasza", "Pieśń nad Pieśniami", "Rut", "Lamentacje",
     "Koheleta", "Estery"},
    {"", "Rosz Haszana", "Post Gedalii", "Szabat Szuwa", "Jom Kipur", "Sukot", "Hoszana Raba", "Szemini Aceret",
     "Simchat Tora", "Chanuka", "Post 10 Tewet", "Szabat Szira", "Szabat Szekalim", "Szabat Zachor", "Post Estery",
     "Purim", "Szuszan Purim, miasta obwarowane", "Szabat Para", "Szabat Hachodesz", "Szabat Hagadol", "Pesach",
     "Szawuot", "Post 17 Tamuz", "Szabat Chazon", "Tisza be-Aw", "Szabat Nachamu", "Rosz Chodesz", "Machar Chodesz",
     "Chol Hamoed", "Szabat Chol Hamoed", "Szabat"},
    {"Adar I", "Nisan", "Ijar", "Siwan", "Tamuz", "Aw", "Elul", "Tiszri", "Cheszwan", "Kislew", "Tewet", "Szwat",
     "Adar", "Adar II"},
    {"@, dzień #", "@ #", "Maftir", "Rano", "Po południu", "Megilla", "W murach",
     "Maftir w miastach obwarowanych", {"Aszkenazim", "Sefardim", "Chabad"}},
    {"Jizkor", "Nadchodzi Rosz Chodesz: ",
     {"Adar I", "Nisan", "Ijar", "Siwan", "Tamuz", "Aw", "Elul", "Tiszri", "Cheszwan", "Kislew", "Tewet", "Szwat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
