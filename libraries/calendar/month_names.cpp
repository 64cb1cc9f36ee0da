#include "libraries/calendar/month_names.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "libraries/calendar/jewish.h"

namespace calendar {
namespace {

// The byte of a letter beyond ASCII: the codes of Latin-1 stand in both Latin code pages, and the further letters that
// the names below need have one code each, wherever they occur. Hebrew letters are those of windows-1255, Greek ones
// those of windows-1253, Cyrillic ones those of windows-1251.
consteval char ByteOf(char32_t letter) {
  switch (letter) {
    case U'š': return '\x9A';  // windows-1252 and -1250
    case U'ń': return '\xF1';  // windows-1250
    case U'ź': return '\x9F';  // windows-1250
    case U'č': return '\xE8';  // windows-1250
    case U'ě': return '\xEC';  // windows-1250
    case U'ř': return '\xF8';  // windows-1250
    case U'׳': return '\xD7';  // geresh, windows-1255
    default:
      if (letter >= U'א' && letter <= U'ת') return static_cast<char>(letter - U'א' + 0xE0);
      if (letter >= U'Έ' && letter <= U'ώ') return static_cast<char>(letter - U'Έ' + 0xB8);
      if (letter >= U'А' && letter <= U'я') return static_cast<char>(letter - U'А' + 0xC0);
      return letter <= 0xFF ? static_cast<char>(letter) : throw "a letter without a byte";
  }
}

// A name as the bytes of its language's code page, made from a UTF-32 literal when compiling.
struct Name {
  char text[16] = {};

  template <size_t kSize>
  consteval Name(const char32_t (&letters)[kSize]) {  // NOLINT: the tables read best without a conversion
    static_assert(kSize <= sizeof text);
    for (size_t i = 0; i < kSize; ++i) text[i] = ByteOf(letters[i]);
  }
};

// Forms and spellings: Unicode CLDR 48, except the English ones, which are those customary in prayer books, and the
// Jewish months in Czech, Greek and Russian, which are those of the readings.
struct GregorianNames {
  uint32_t language;
  Name months[12];
};

// Beside the twelve months of a common year, from Nisan, the two Adars of a leap year.
struct JewishNames {
  uint32_t language;
  Name months[14];
};

// clang-format off
constexpr GregorianNames kGregorianNames[] = {
    {kEnglish, {U"January", U"February", U"March", U"April", U"May", U"June",
                U"July", U"August", U"September", U"October", U"November", U"December"}},
    {3, {U"Januar", U"Februar", U"März", U"April", U"Mai", U"Juni",
         U"Juli", U"August", U"September", U"Oktober", U"November", U"Dezember"}},
    {4, {U"ינואר", U"פברואר", U"מרץ", U"אפריל", U"מאי", U"יוני",
         U"יולי", U"אוגוסט", U"ספטמבר", U"אוקטובר", U"נובמבר", U"דצמבר"}},
    {5, {U"janvier", U"février", U"mars", U"avril", U"mai", U"juin",
         U"juillet", U"août", U"septembre", U"octobre", U"novembre", U"décembre"}},
    {6, {U"januar", U"februar", U"marts", U"april", U"maj", U"juni",
         U"juli", U"august", U"september", U"oktober", U"november", U"december"}},
    {7, {U"tammikuu", U"helmikuu", U"maaliskuu", U"huhtikuu", U"toukokuu", U"kesäkuu",
         U"heinäkuu", U"elokuu", U"syyskuu", U"lokakuu", U"marraskuu", U"joulukuu"}},
    {8, {U"januari", U"februari", U"mars", U"april", U"maj", U"juni",
         U"juli", U"augusti", U"september", U"oktober", U"november", U"december"}},
    {9, {U"januari", U"februari", U"maart", U"april", U"mei", U"juni",
         U"juli", U"augustus", U"september", U"oktober", U"november", U"december"}},
    {10, {U"enero", U"febrero", U"marzo", U"abril", U"mayo", U"junio",
          U"julio", U"agosto", U"septiembre", U"octubre", U"noviembre", U"diciembre"}},
    {11, {U"januar", U"februar", U"mars", U"april", U"mai", U"juni",
          U"juli", U"august", U"september", U"oktober", U"november", U"desember"}},
    {12, {U"janeiro", U"fevereiro", U"março", U"abril", U"maio", U"junho",
          U"julho", U"agosto", U"setembro", U"outubro", U"novembro", U"dezembro"}},
    {14, {U"január", U"február", U"március", U"április", U"május", U"június",
          U"július", U"augusztus", U"szeptember", U"október", U"november", U"december"}},
    {15, {U"leden", U"únor", U"březen", U"duben", U"květen", U"červen",
          U"červenec", U"srpen", U"září", U"říjen", U"listopad", U"prosinec"}},
    {16, {U"Ιανουάριος", U"Φεβρουάριος", U"Μάρτιος", U"Απρίλιος", U"Μάιος", U"Ιούνιος",
          U"Ιούλιος", U"Αύγουστος", U"Σεπτέμβριος", U"Οκτώβριος", U"Νοέμβριος", U"Δεκέμβριος"}},
    {17, {U"январь", U"февраль", U"март", U"апрель", U"май", U"июнь",
          U"июль", U"август", U"сентябрь", U"октябрь", U"ноябрь", U"декабрь"}},
    {20, {U"gennaio", U"febbraio", U"marzo", U"aprile", U"maggio", U"giugno",
          U"luglio", U"agosto", U"settembre", U"ottobre", U"novembre", U"dicembre"}},
    {21, {U"styczeń", U"luty", U"marzec", U"kwiecień", U"maj", U"czerwiec",
          U"lipiec", U"sierpień", U"wrzesień", U"październik", U"listopad", U"grudzień"}},
};

constexpr JewishNames kJewishNames[] = {
    {kEnglish, {U"Nisan", U"Iyar", U"Sivan", U"Tammuz", U"Av", U"Elul", U"Tishri",
                U"Cheshvan", U"Kislev", U"Tevet", U"Shevat", U"Adar", U"Adar I", U"Adar II"}},
    {3, {U"Nisan", U"Ijjar", U"Siwan", U"Tammus", U"Aw", U"Elul", U"Tischri",
         U"Cheschwan", U"Kislew", U"Tevet", U"Schevat", U"Adar", U"Adar I", U"Adar II"}},
    {4, {U"ניסן", U"אייר", U"סיוון", U"תמוז", U"אב", U"אלול", U"תשרי",
         U"חשוון", U"כסלו", U"טבת", U"שבט", U"אדר", U"אדר א׳", U"אדר ב׳"}},
    {5, {U"nissan", U"iyar", U"sivan", U"tamouz", U"av", U"éloul", U"tichri",
         U"hèchvan", U"kislev", U"téveth", U"chevat", U"adar", U"adar I", U"adar II"}},
    {6, {U"nisan", U"iyar", U"sivan", U"tamuz", U"av", U"elul", U"tishri",
         U"heshvan", U"kislev", U"tevet", U"shevat", U"adar", U"adar I", U"adar II"}},
    {7, {U"nisánkuu", U"ijjárkuu", U"sivánkuu", U"tammúzkuu", U"abkuu", U"elúlkuu", U"tišríkuu",
         U"hešvánkuu", U"kislévkuu", U"tevétkuu", U"ševátkuu", U"adárkuu", U"adárkuu I", U"adárkuu II"}},
    {8, {U"Nisán", U"Ijjár", U"Siván", U"Tammúz", U"Ab", U"Elúl", U"Tishrí",
         U"Heshván", U"Kislév", U"Tevét", U"Shevát", U"Adár", U"Adár I", U"Adár II"}},
    {9, {U"Nisan", U"Ijar", U"Sivan", U"Tammoez", U"Av", U"Elloel", U"Tisjrie",
         U"Chesjwan", U"Kislev", U"Tevet", U"Sjevat", U"Adar", U"Adar A", U"Adar B"}},
    {10, {U"nisan", U"iyar", U"sivan", U"tamuz", U"av", U"elul", U"tishri",
          U"heshvan", U"kislev", U"tevet", U"shevat", U"adar", U"adar I", U"adar II"}},
    {11, {U"nisan", U"iyar", U"sivan", U"tamuz", U"av", U"elul", U"tishri",
          U"heshvan", U"kislev", U"tevet", U"shevat", U"adar", U"adar I", U"adar II"}},
    {12, {U"Nisan", U"Iyar", U"Sivan", U"Tamuz", U"Av", U"Elul", U"Tishri",
          U"Heshvan", U"Kislev", U"Tevet", U"Shevat", U"Adar", U"Adar I", U"Adar II"}},
    {14, {U"Niszán", U"Ijár", U"Sziván", U"Tamuz", U"Áv", U"Elul", U"Tisri",
          U"Hesván", U"Kiszlév", U"Tévész", U"Svát", U"Ádár", U"Ádár I", U"Ádár II"}},
    {15, {U"nisan", U"ijar", U"sivan", U"tamuz", U"av", U"elul", U"tišri",
          U"chešvan", U"kislev", U"tevet", U"ševat", U"adar", U"adar I", U"adar II"}},
    {16, {U"Νισάν", U"Ιγιάρ", U"Σιβάν", U"Ταμούζ", U"Αβ", U"Έλουλ", U"Τισρί",
          U"Χεσβάν", U"Κισλέφ", U"Τέβετ", U"Σεβάτ", U"Αντάρ", U"Αντάρ I", U"Αντάρ II"}},
    {17, {U"Нисан", U"Ияр", U"Сиван", U"Тамуз", U"Ав", U"Элул", U"Тишрей",
          U"Хешван", U"Кислев", U"Тевет", U"Шват", U"Адар", U"Адар I", U"Адар II"}},
    {20, {U"Nisan", U"Iyar", U"Sivan", U"Tamuz", U"Av", U"Elul", U"Tishri",
          U"Heshvan", U"Kislev", U"Tevet", U"Shevat", U"Adar", U"Adar I", U"Adar II"}},
    {21, {U"Nisan", U"Ijar", U"Siwan", U"Tamuz", U"Aw", U"Elul", U"Tiszri",
          U"Cheszwan", U"Kislew", U"Tewet", U"Szwat", U"Adar", U"Adar I", U"Adar II"}},
};
// clang-format on

// The names in a language, in English when it has none here.
template <typename Names>
const Names& InLanguage(std::span<const Names> table, uint32_t language) {
  const auto found = std::ranges::find(table, language, &Names::language);
  return found != table.end() ? *found : table.front();
}

}  // namespace

const char* GregorianMonthName(int32_t month, int32_t /*year*/, uint32_t language) {
  if (month < 1 || month > 12) return "";
  return InLanguage<GregorianNames>(kGregorianNames, language).months[month - 1].text;
}

const char* JewishMonthName(int32_t month, int32_t year, uint32_t language) {
  if (month < kNisan || month > MonthsInJewishYear(year)) return "";
  const bool leapAdar = month >= kAdar && IsJewishLeapYear(year);
  return InLanguage<JewishNames>(kJewishNames, language).months[leapAdar ? month : month - 1].text;
}

}  // namespace calendar
