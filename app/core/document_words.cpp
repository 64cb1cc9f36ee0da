#include "app/core/document_words.h"

#include <algorithm>
#include <iterator>

#include "publishing/core/hebrew_numeral.h"

namespace {

constexpr uint32_t kEnglish = 1;
constexpr uint32_t kGerman = 3;
constexpr uint32_t kHebrew = 4;

// Day, month and candle words are those of the communities' printed calendars in each language; the words of the
// readings' own tables (libraries/lections) are spelled as there. Order: that of Word.
// clang-format off
constexpr WordsLanguage kLanguages[] = {
    {kEnglish, 1252, "en", "English", "English", false,
     {"Date", "Day", "Jewish date", "Portion", "Torah", "Haftarah", "Yizkor", "Candle lighting", "End of Shabbat",
      "Friday", "Shabbat", "Shabbat times", "Zmanim", "Readings", "Calendar", "Page %1 of %2",
      "All times are those of the clock in force at the place, summer time included.",
      "----: does not occur on that day.",
      "(+1): the next day.",
      "(-1): the day before.",
      "Occasions"}},
    {15, 1250, "cs", "Czech", "Čeština", false,
     {"Datum", "Den", "Židovské datum", "Sidra", "Tóra", "Haftara", "Jizkor", "Zapálení svíček", "Konec šabatu",
      "Pátek", "Šabat", "Časy šabatu", "Zmanim", "Čtení", "Kalendář", "Strana %1 z %2",
      "Všechny časy jsou podle místně platného času, včetně letního.",
      "----: v ten den nenastává.",
      "(+1): následující den.",
      "(-1): předchozí den.",
      "Svátky a události"}},
    {6, 1252, "da", "Danish", "Dansk", false,
     {"Dato", "Dag", "Jødisk dato", "Ugeafsnit", "Tora", "Haftara", "Jizkor", "Lystænding", "Shabbat går ud",
      "Fredag", "Shabbat", "Shabbattider", "Zmanim", "Læsninger", "Kalender", "Side %1 af %2",
      "Alle tider er efter det ur, der gælder på stedet, også om sommeren.",
      "----: forekommer ikke den dag.",
      "(+1): næste dag.",
      "(-1): dagen før.",
      "Mærkedage"}},
    {9, 1252, "nl", "Dutch", "Nederlands", false,
     {"Datum", "Dag", "Joodse datum", "Sidra", "Tora", "Haftara", "Jizkor", "Kaarsen aansteken", "Einde sjabbat",
      "Vrijdag", "Sjabbat", "Sjabbattijden", "Zmaniem", "Lezingen", "Kalender", "Bladzijde %1 van %2",
      "Alle tijden zijn die van de klok ter plaatse, zomertijd inbegrepen.",
      "----: komt op die dag niet voor.",
      "(+1): de volgende dag.",
      "(-1): de vorige dag.",
      "Bijzondere dagen"}},
    {7, 1252, "fi", "Finnish", "Suomi", false,
     {"Päivä", "Viikonpäivä", "Juutalainen päiväys", "Paraša", "Toora", "Haftara", "Jizkor", "Kynttilöiden sytytys",
      "Sapatti päättyy", "Perjantai", "Sapatti", "Sapattiajat", "Zmanim", "Lukukappaleet", "Kalenteri",
      "Sivu %1/%2",
      "Kaikki ajat ovat paikkakunnalla voimassa olevan kellon mukaisia, kesäaika mukaan lukien.",
      "----: ei esiinny sinä päivänä.",
      "(+1): seuraavana päivänä.",
      "(-1): edellisenä päivänä.",
      "Merkkipäivät"}},
    {5, 1252, "fr", "French", "Français", false,
     {"Date", "Jour", "Date juive", "Paracha", "Torah", "Haftara", "Yizkor", "Allumage des bougies",
      "Fin de Chabbat", "Vendredi", "Chabbat", "Horaires de Chabbat", "Zmanim", "Lectures", "Calendrier",
      "Page %1 sur %2",
      "Toutes les heures sont celles de l’horloge en vigueur sur place, heure d’été comprise.",
      "---- : n’a pas lieu ce jour-là.",
      "(+1) : le lendemain.",
      "(-1) : la veille.",
      "Fêtes et événements"}},
    {kGerman, 1252, "de", "German", "Deutsch", false,
     {"Datum", "Tag", "Jüdisches Datum", "Wochenabschnitt", "Tora", "Haftara", "Jiskor", "Kerzenzünden",
      "Schabbatende", "Freitag", "Schabbat", "Schabbatzeiten", "Zmanim", "Lesungen", "Kalender", "Seite %1 von %2",
      "Alle Zeiten gelten nach der Uhr am Ort, Sommerzeit eingeschlossen.",
      "----: kommt an diesem Tag nicht vor.",
      "(+1): am nächsten Tag.",
      "(-1): am Tag davor.",
      "Anlässe"}},
    {16, 1253, "el", "Greek", "Ελληνικά", false,
     {"Ημερομηνία", "Ημέρα", "Εβραϊκή ημερομηνία", "Περικοπή", "Τορά", "Αφταρά", "Γιζκόρ", "Άναμμα κεριών",
      "Λήξη Σαμπάτ", "Παρασκευή", "Σαμπάτ", "Ώρες Σαμπάτ", "Ζμανίμ", "Αναγνώσματα", "Ημερολόγιο",
      "Σελίδα %1 από %2",
      "Όλες οι ώρες είναι του ρολογιού που ισχύει στον τόπο, με τη θερινή ώρα.",
      "----: δεν συμβαίνει εκείνη την ημέρα.",
      "(+1): την επόμενη ημέρα.",
      "(-1): την προηγούμενη ημέρα.",
      "Εορτές και επέτειοι"}},
    {kHebrew, 1255, "he", "Hebrew", "עברית", true,
     {"תאריך", "יום", "תאריך עברי", "פרשה", "תורה", "הפטרה", "יזכור", "הדלקת נרות", "צאת השבת", "יום שישי", "שבת",
      "זמני שבת", "זמני היום", "קריאות", "לוח שנה", "עמוד %1 מתוך %2",
      "כל הזמנים לפי השעון הנהוג במקום, כולל שעון קיץ.",
      "----: אינו חל ביום זה.",
      "(+1): למחרת.",
      "(-1): ביום הקודם.",
      "מועדים"}},
    {14, 1250, "hu", "Hungarian", "Magyar", false,
     {"Dátum", "Nap", "Zsidó dátum", "Hetiszakasz", "Tóra", "Háftárá", "Jizkor", "Gyertyagyújtás", "Szombat kimenetele",
      "Péntek", "Szombat", "Szombati időpontok", "Zmánim", "Olvasmányok", "Naptár", "%1. oldal, összesen %2",
      "Minden időpont a helyben érvényes óra szerint értendő, a nyári időszámítást is beleértve.",
      "----: ezen a napon nem fordul elő.",
      "(+1): a következő napon.",
      "(-1): az előző napon.",
      "Ünnepek és alkalmak"}},
    {20, 1252, "it", "Italian", "Italiano", false,
     {"Data", "Giorno", "Data ebraica", "Parashà", "Torà", "Haftarà", "Izkor", "Accensione dei lumi",
      "Uscita di Shabbat", "Venerdì", "Shabbat", "Orari di Shabbat", "Zmanim", "Letture", "Calendario",
      "Pagina %1 di %2",
      "Tutte le ore sono quelle dell’orologio in vigore sul posto, ora legale compresa.",
      "----: non ricorre in quel giorno.",
      "(+1): il giorno dopo.",
      "(-1): il giorno prima.",
      "Ricorrenze"}},
    {11, 1252, "nb", "Norwegian", "Norsk", false,
     {"Dato", "Dag", "Jødisk dato", "Ukeavsnitt", "Tora", "Haftara", "Jizkor", "Lystenning", "Shabbat slutter",
      "Fredag", "Shabbat", "Shabbattider", "Zmanim", "Lesninger", "Kalender", "Side %1 av %2",
      "Alle tider er etter klokken som gjelder på stedet, sommertid medregnet.",
      "----: forekommer ikke den dagen.",
      "(+1): neste dag.",
      "(-1): dagen før.",
      "Merkedager"}},
    {21, 1250, "pl", "Polish", "Polski", false,
     {"Data", "Dzień", "Data żydowska", "Parsza", "Tora", "Haftara", "Jizkor", "Zapalanie świec", "Koniec szabatu",
      "Piątek", "Szabat", "Godziny szabatu", "Zmanim", "Czytania", "Kalendarz", "Strona %1 z %2",
      "Wszystkie godziny według zegara obowiązującego w danym miejscu, z czasem letnim włącznie.",
      "----: nie występuje tego dnia.",
      "(+1): następnego dnia.",
      "(-1): poprzedniego dnia.",
      "Święta i wydarzenia"}},
    {12, 1252, "pt", "Portuguese", "Português", false,
     {"Data", "Dia", "Data judaica", "Parashá", "Torá", "Haftará", "Yizkor", "Acendimento das velas",
      "Término do Shabat", "Sexta-feira", "Shabat", "Horários do Shabat", "Zmanim", "Leituras", "Calendário",
      "Página %1 de %2",
      "Todos os horários são os do relógio em vigor no local, horário de verão incluído.",
      "----: não ocorre nesse dia.",
      "(+1): no dia seguinte.",
      "(-1): no dia anterior.",
      "Datas especiais"}},
    {17, 1251, "ru", "Russian", "Русский", false,
     {"Дата", "День", "Еврейская дата", "Недельная глава", "Тора", "Афтара", "Изкор", "Зажигание свечей",
      "Исход Шаббата", "Пятница", "Шаббат", "Время Шаббата", "Зманим", "Чтения", "Календарь",
      "Страница %1 из %2",
      "Всё время указано по действующим местным часам, с учётом летнего времени.",
      "----: в этот день не наступает.",
      "(+1): на следующий день.",
      "(-1): накануне.",
      "Праздники и даты"}},
    {10, 1252, "es", "Spanish", "Español", false,
     {"Fecha", "Día", "Fecha judía", "Parashá", "Torá", "Haftará", "Izkor", "Encendido de velas", "Fin de Shabat",
      "Viernes", "Shabat", "Horarios de Shabat", "Zmanim", "Lecturas", "Calendario", "Página %1 de %2",
      "Todas las horas son las del reloj vigente en el lugar, incluido el horario de verano.",
      "----: no ocurre ese día.",
      "(+1): al día siguiente.",
      "(-1): el día anterior.",
      "Fechas señaladas"}},
    {8, 1252, "sv", "Swedish", "Svenska", false,
     {"Datum", "Dag", "Judiskt datum", "Veckoavsnitt", "Tora", "Haftara", "Jizkor", "Ljuständning", "Shabbat går ut",
      "Fredag", "Shabbat", "Shabbattider", "Zmanim", "Läsningar", "Kalender", "Sida %1 av %2",
      "Alla tider är enligt den klocka som gäller på platsen, sommartid medräknad.",
      "----: infaller inte den dagen.",
      "(+1): nästa dag.",
      "(-1): dagen innan.",
      "Märkesdagar"}},
};
// clang-format on

}  // namespace

std::span<const WordsLanguage> WordsLanguages() {
  return kLanguages;
}

const WordsLanguage& WordsLanguageOf(uint32_t code) {
  const auto* found = std::ranges::find(kLanguages, code, &WordsLanguage::code);
  return found != std::end(kLanguages) ? *found : kLanguages[0];
}

std::string_view WordOf(Word word, uint32_t language) {
  return WordsLanguageOf(language).words[static_cast<std::size_t>(word)];
}

std::string JewishDateInWords(uint32_t day, std::string_view month, uint32_t year, uint32_t language) {
  const std::string name(month);
  constexpr uint32_t kThousand = 1000;
  if (language == kHebrew && year % kThousand != 0) {
    return publishing::HebrewNumeral(day) + " ב" + name + " " + publishing::HebrewNumeral(year % kThousand);
  }
  const char* const point = language == kGerman ? ". " : " ";
  return std::to_string(day) + point + name + " " + std::to_string(year);
}
