// Hungarian, in the spelling of the communities: á for every long or short a, ö for shva, sz for samech, s for shin.
//
// Portions, days and months: the calendars of the journal Egység (EMIH), zsido.com, the rabbinical seminary (OR-ZSE),
// BZSH, Hebcal in Hungarian; the months are in CLDR too. Books: the Bible of Károli, which all know, in the SWORD
// locales and in the BCV parser of references; numbered "5Mózes", "1Sámuel" and verses with a colon as EMIH prints
// them. The program's own font has no Hungarian letters, so that the new month is announced in English.
//
// One source only: Bösálách, Pekudé, Vájákhél, Chukát, Pinchász, Mátot, Mászé, Röé, Softim, Ki Távó (Hebcal), Vájérá
// (OR-ZSE: Vajéra), Vözot Hábráchá (Óbuda), Félünnep (Egység), Tévét 10-i böjt, Támuz 17-i böjt (otherwise worded in
// the news of BZSH), Sábát Sirá, Félünnepi Sábát, Tekercs, Jizkor, the words for walled cities, hours and customs
// (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kHungarian = {
    14, "Hungarian", "Magyar", CodePage::kCentralEuropean, {},
    {"Brésit", "Noách", "Lech Löchá", "Vájérá", "Chájé Szárá", "Toldot", "Vájécé", "Vájislách", "Vájésev", "Mikéc",
     "Vájigás", "Vájchi",
     "Smot", "Váérá", "Bo", "Bösálách", "Jitró", "Mispátim", "Trumá", "Töcávé", "Ki Tiszá", "Vájákhél", "Pekudé",
     "Vájikrá", "Cáv", "Smini", "Tázriá", "Möcorá", "Ácháré Mot", "Ködosim", "Emor", "Böhár", "Böchukotáj",
     "Bámidbár", "Nászó", "Böháálotchá", "Slách", "Korách", "Chukát", "Bálák", "Pinchász", "Mátot", "Mászé",
     "Dvárim", "Váetchánán", "Ékev", "Röé", "Softim", "Ki Técé", "Ki Távó", "Nicávim", "Vájélech", "Háázinu",
     "Vözot Hábráchá"},
    {"1Mózes", "2Mózes", "3Mózes", "4Mózes", "5Mózes", "Józsué", "Bírák", "1Sámuel", "2Sámuel", "1Királyok",
     "2Királyok", "Ézsaiás", "Jeremiás", "Ezékiel", "Hóseás", "Jóel", "Ámós", "Abdiás", "Jónás", "Mikeás", "Habakuk",
     "Zakariás", "Malakiás", "Énekek éneke", "Ruth", "Siralmak", "Prédikátor", "Eszter"},
    {"", "Ros Hásáná", "Gedáljá böjtje", "Sábát Suvá", "Jom Kipur", "Szukkot", "Hosáná Rábá", "Smini Áceret",
     "Szimchát Tóra", "Chánuká", "Tévét 10-i böjt", "Sábát Sirá", "Sábát Skálim", "Sábát Záchor", "Eszter böjtje",
     "Purim", "Susán Purim, kerített városok", "Sábát Párá", "Sábát Háchodes", "Sábát Hágádol", "Peszách", "Sávuot",
     "Támuz 17-i böjt", "Sábát Cházon", "Tisá Beáv", "Sábát Náchámu", "Ros Chodes", "Máchár Chodes", "Félünnep",
     "Félünnepi Sábát", "Sábát"},
    {"Ádár I", "Niszán", "Ijár", "Sziván", "Támuz", "Áv", "Elul", "Tisri", "Chesván", "Kiszlév", "Tévét", "Svát",
     "Ádár", "Ádár II"},
    {"@, #. nap", "@ #", "Máftir", "Reggel", "Délután", "Tekercs", "Kerített város", "Máftir kerített városokban",
     {"Askenázi", "Szefárd", "Chábád"}},
    {"Jizkor", "New month announced: ",
     {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
