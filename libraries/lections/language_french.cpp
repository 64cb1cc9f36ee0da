// French, as communities of France write the Hebrew names; the letter Chet is 'h, a vocal Shva é where the timetable
// below writes it, and so in Chémini Atséret and Chékalim.
//
// Spelling: the calendar of Roger Stioui with its glossary (Consistoire de France), the timetable of Beth Yossef in
// Jerusalem for 5787, Torah-Box, Éditions Bakish (customs of the haftarot), Chabad.org in French, e-Talmud, Hebcal;
// months also CLDR. Books: the lists of SWORD and of the Bible passage reference parser (Isaïe, as Jewish readers say,
// not Ésaïe); passages as Éditions Bakish and Torah-Box do.
//
// One source only: Jeûne du 9 Av (Stioui), Méguila, Vézot Haberakha and Ma'har 'Hodech (Hebcal), walled cities and the
// announcement of the month (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kFrench = {
    5, "French", "Français", CodePage::kWestern, {.verse = ",", .next = " et "},
    {"Béréchit", "Noa'h", "Lekh Lekha", "Vayéra", "'Hayé Sarah", "Toldot", "Vayétsé", "Vayichla'h", "Vayéchev",
     "Mikets", "Vayigach", "Vayé'hi",
     "Chémot", "Vaéra", "Bo", "Béchala'h", "Yitro", "Michpatim", "Térouma", "Tétsavé", "Ki Tissa", "Vayakhel",
     "Pékoudé",
     "Vayikra", "Tsav", "Chémini", "Tazria", "Métsora", "A'haré Mot", "Kédochim", "Emor", "Béhar", "Bé'houkotaï",
     "Bamidbar", "Nasso", "Béhaalotékha", "Chéla'h", "Kora'h", "'Houkat", "Balak", "Pin'has", "Matot", "Massé",
     "Devarim", "Vaét'hanan", "Ekev", "Réé", "Choftim", "Ki Tétsé", "Ki Tavo", "Nitsavim", "Vayélekh", "Haazinou",
     "Vézot Haberakha"},
    {"Genèse", "Exode", "Lévitique", "Nombres", "Deutéronome", "Josué", "Juges", "1 Samuel", "2 Samuel", "1 Rois",
     "2 Rois", "Isaïe", "Jérémie", "Ézéchiel", "Osée", "Joël", "Amos", "Abdias", "Jonas", "Michée", "Habacuc",
     "Zacharie", "Malachie", "Cantique des Cantiques", "Ruth", "Lamentations", "Ecclésiaste", "Esther"},
    {"", "Roch Hachana", "Jeûne de Guédalia", "Chabbat Chouva", "Yom Kippour", "Souccot", "Hochaana Rabba",
     "Chémini Atséret", "Sim'hat Torah", "'Hanouka", "Jeûne du 10 Tévet", "Chabbat Chira", "Chabbat Chékalim",
     "Chabbat Zakhor", "Jeûne d'Esther", "Pourim", "Chouchan Pourim, villes fortifiées", "Chabbat Para",
     "Chabbat Ha'hodech", "Chabbat Hagadol", "Pessa'h", "Chavouot", "Jeûne du 17 Tamouz", "Chabbat 'Hazon",
     "Jeûne du 9 Av", "Chabbat Na'hamou", "Roch 'Hodech", "Ma'har 'Hodech", "'Hol Hamoed", "Chabbat 'Hol Hamoed",
     "Chabbat"},
    {"Adar I", "Nissan", "Iyar", "Sivan", "Tamouz", "Av", "Eloul", "Tichri", "'Hechvan", "Kislev", "Tévet", "Chevat",
     "Adar", "Adar II"},
    {"@, jour #", "@ #", "Maftir", "Matin", "Après-midi", "Méguila", "Intra-muros",
     "Maftir des villes fortifiées", {"Achkénazes", "Séfarades", "'Habad"}},
    {"Yizkor", "Annonce du nouveau mois: ",
     {"Adar I", "Nissan", "Iyar", "Sivan", "Tamouz", "Av", "Eloul", "Tichri", "'Hechvan", "Kislev", "Tevet", "Chevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
