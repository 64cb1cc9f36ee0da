// Finnish, in the spelling of the congregation of Helsinki: one consonant for two, j for yod, ts for tzadi, small
// letters in names of several words.
//
// Portions and days: the calendar Hebcal in Finnish; shalom.fi for what it spells alike; days too from the congregation
// (jchelsinki.fi) and amhazak.com. Months: Hebcal, CLDR without its accents. Books: the Bible of 1992, in the SWORD
// locales and, as "Jesajan kirja", in the BCV parser of references; numbered ones in its abbreviations, as shalom.fi
// writes them: their whole names are too long for a column.
//
// One source only: the portions but Bereshit, Noach, Emor, Kedoshim, Behar, Bechukotai, Bamidbar, the Shabbatot by
// name, Shmini atseret, Hoshana raba, Shushan purim, Machar chodesh, Chol hamoed, numbered days (Hebcal), Esterin
// paasto (amhazak.com), Gedaljan paasto, Tevetin and Tamuzin paasto, Shabat shira, 1. Sam., 1. Kun., Megila, Jizkor,
// the words for walled cities, hours, customs and the new month (common usage).
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
constexpr Language kFinnish = {
    7, "Finnish", "Suomi", CodePage::kWestern, {},
    {"Bereshit", "Noach", "Lech lecha", "Vajera", "Chajei Sara", "Toldot", "Vajetse", "Vajishlach", "Vajeshev",
     "Mikets", "Vajigash", "Vajechi",
     "Shmot", "Vaera", "Bo", "Beshalach", "Jitro", "Mishpatim", "Truma", "Tetsave", "Ki tisa", "Vajakhel", "Pekudei",
     "Vajikra", "Tsav", "Shmini", "Tazria", "Metsora", "Acharei mot", "Kedoshim", "Emor", "Behar", "Bechukotai",
     "Bamidbar", "Naso", "Behalotcha", "Shlach", "Korach", "Chukat", "Balak", "Pinchas", "Matot", "Masei",
     "Dvarim", "Vaetchanan", "Eikev", "Re'e", "Shoftim", "Ki tetse", "Ki tavo", "Nitsavim", "Vajelech", "Ha'azinu",
     "Vezot habracha"},
    {"1. Moos.", "2. Moos.", "3. Moos.", "4. Moos.", "5. Moos.", "Joosua", "Tuomarien kirja", "1. Sam.", "2. Sam.",
     "1. Kun.", "2. Kun.", "Jesaja", "Jeremia", "Hesekiel", "Hoosea", "Joel", "Aamos", "Obadja", "Joona", "Miika",
     "Habakuk", "Sakarja", "Malakia", "Laulujen laulu", "Ruut", "Valitusvirret", "Saarnaaja", "Ester"},
    {"", "Rosh hashana", "Gedaljan paasto", "Shabat shuva", "Jom kipur", "Sukot", "Hoshana raba", "Shmini atseret",
     "Simchat toora", "Hanuka", "Tevetin 10. päivän paasto", "Shabat shira", "Shabat shkalim", "Shabat zachor",
     "Esterin paasto", "Purim", "Shushan purim, muurikaupungit", "Shabat para", "Shabat hachodesh", "Shabat hagadol",
     "Pesach", "Shavuot", "Tamuzin 17. päivän paasto", "Shabat chazon", "Tisha beav", "Shabat nachamu", "Rosh chodesh",
     "Machar chodesh", "Chol hamoed", "Shabat chol hamoed", "Shabat"},
    kMonths,
    {"@, #. päivä", "@ #", "Maftir", "Aamu", "Iltapäivä", "Megila", "Muurikaupungit", "Maftir muurikaupungeissa",
     {"Aškenasi", "Sefardi", "Chabad"}},
    {"Jizkor", "Uusi kuukausi julistetaan: ", kMonths},
};
// clang-format on

}  // namespace lections
