// Czech, as the communities of Prague, Brno and Ostrava write the Hebrew names, with the small letters of Czech usage.
//
// Spelling: the tables of Derech ("Parašat ha-šavua"), Mystika on special Shabbatot, a table for bar mitzvahs, a
// calendar for Haifa and Prague, the communities of Brno and Ostrava and the Federation's pages (festivals), Wikipedia
// ("Židovský kalendář"); months also CLDR. Books: lists of the Český ekumenický překlad, which Derech quotes too;
// passages as Mystika and the weekly Šavua tov do.
//
// One source only: Bemidbar (the calendar), Vezot haberacha (Derech), Machar chodeš (Mystika); Gedaljův půst, Hošana
// raba, Šabat Šira, Esteřin půst, the genitives of the other fasts, Svitek, walled cities and the customs (common
// usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kCzech = {
    15, "Czech", "Čeština", CodePage::kCentralEuropean, {.verse = ",", .next = " a "},
    {"Berešit", "Noach", "Lech lecha", "Vajera", "Chajej Sara", "Toldot", "Vajece", "Vajišlach", "Vaješev", "Mikec",
     "Vajigaš", "Vajechi",
     "Šemot", "Va'era", "Bo", "Bešalach", "Jitro", "Mišpatim", "Teruma", "Tecave", "Ki tisa", "Vajakhel", "Pekudej",
     "Vajikra", "Cav", "Šmini", "Tazria", "Mecora", "Acharej mot", "Kedošim", "Emor", "Behar", "Bechukotaj",
     "Bemidbar", "Naso", "Beha'alotecha", "Šlach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masej",
     "Devarim", "Va'etchanan", "Ekev", "Re'e", "Šoftim", "Ki tece", "Ki tavo", "Nicavim", "Vajelech", "Ha'azinu",
     "Vezot haberacha"},
    {"Genesis", "Exodus", "Leviticus", "Numeri", "Deuteronomium", "Jozue", "Soudců", "1. Samuelova", "2. Samuelova",
     "1. Královská", "2. Královská", "Izajáš", "Jeremjáš", "Ezechiel", "Ozeáš", "Jóel", "Ámos", "Abdijáš", "Jonáš",
     "Micheáš", "Abakuk", "Zacharjáš", "Malachiáš", "Píseň písní", "Rút", "Pláč", "Kazatel", "Ester"},
    {"", "Roš ha-šana", "Gedaljův půst", "Šabat Šuva", "Jom kipur", "Sukot", "Hošana raba", "Šmini aceret",
     "Simchat Tora", "Chanuka", "Půst 10. tevetu", "Šabat Šira", "Šabat Šekalim", "Šabat Zachor", "Esteřin půst",
     "Purim", "Šušan Purim, opevněná města", "Šabat Para", "Šabat ha-chodeš", "Šabat ha-gadol", "Pesach", "Šavuot",
     "Půst 17. tamuzu", "Šabat Chazon", "Tiša be-av", "Šabat Nachamu", "Roš chodeš", "Machar chodeš", "Chol ha-moed",
     "Šabat chol ha-moed", "Šabat"},
    {"adar I", "nisan", "ijar", "sivan", "tamuz", "av", "elul", "tišri", "chešvan", "kislev", "tevet", "ševat", "adar",
     "adar II"},
    {"@, #. den", "@ #", "Maftir", "Ráno", "Odpoledne", "Svitek", "V hradbách", "Maftir v opevněných městech",
     {"Aškenázi", "Sefardé", "Chabad"}},
    {"Jizkor", "New month announced: ",
     {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
