// Greek, as communities of Greece write the Hebrew names with Greek letters: one sigma for Shin as well, beta for Vet
// and Vav, chi for Chet and Khaf; the letter He is not written.
//
// Spelling: the communities of Thessaloniki (festivals, the fast of Gedaliah), Athens (Hoshana Rabba to Simchat Torah,
// with a double sigma for Shin) and Larissa (Shavuot, Purim), Chabad of Greece (portions that it treats), CLDR
// (months). Books: lists of the Greek Bible and of the Bible passage reference parser, in today's forms and the Hebrew
// Bible's numbers (Α΄ Σαμουήλ, Α΄ Βασιλέων) instead of the four books of Kings of the Septuagint; passages as Chabad of
// Greece does.
//
// One source only: Λεχ Λεχά, Βαετχανάν, Έκεβ (Chabad of Greece), Νηστεία του Γκεντάλια (Thessaloniki), Ωσανά Ραμπά and
// Σεμινί Ατσέρετ (Athens), the months (CLDR); all other portions, the Shabbatot, the fasts of Tevet, Esther and Tammuz,
// Ρος Χόντες, Μαχάρ Χόντες, Χολ Αμοέντ and the words (common usage).
#include "libraries/lections/language.h"

namespace lections {

// clang-format off
constexpr Language kGreek = {
    16, "Greek", "Ελληνικά", CodePage::kGreek, {},
    {"Μπερεσίτ", "Νόαχ", "Λεχ Λεχά", "Βαγερά", "Χαγιέ Σαρά", "Τολντότ", "Βαγετσέ", "Βαγισλάχ", "Βαγέσεβ", "Μικέτς",
     "Βαγιγκάς", "Βαγεχί",
     "Σεμότ", "Βαερά", "Μπο", "Μπεσαλάχ", "Γιτρό", "Μισπατίμ", "Τερουμά", "Τετσαβέ", "Κι Τισά", "Βαγιακέλ",
     "Πεκουντέ",
     "Βαγικρά", "Τσαβ", "Σεμινί", "Ταζρία", "Μετσορά", "Αχαρέ Μοτ", "Κεντοσίμ", "Εμόρ", "Μπεάρ", "Μπεχουκοτάι",
     "Μπαμιντμπάρ", "Νασό", "Μπεαλοτεχά", "Σελάχ", "Κόραχ", "Χουκάτ", "Μπαλάκ", "Πινχάς", "Ματότ", "Μασέ",
     "Ντεβαρίμ", "Βαετχανάν", "Έκεβ", "Ρεέ", "Σοφτίμ", "Κι Τετσέ", "Κι Ταβό", "Νιτσαβίμ", "Βαγέλεχ", "Ααζίνου",
     "Βεζότ Αμπεραχά"},
    {"Γένεση", "Έξοδος", "Λευιτικό", "Αριθμοί", "Δευτερονόμιο", "Ιησούς του Ναυή", "Κριτές", "Α΄ Σαμουήλ",
     "Β΄ Σαμουήλ", "Α΄ Βασιλέων", "Β΄ Βασιλέων", "Ησαΐας", "Ιερεμίας", "Ιεζεκιήλ", "Ωσηέ", "Ιωήλ", "Αμώς", "Αβδιού",
     "Ιωνάς", "Μιχαίας", "Αββακούμ", "Ζαχαρίας", "Μαλαχίας", "Άσμα Ασμάτων", "Ρουθ", "Θρήνοι", "Εκκλησιαστής",
     "Εσθήρ"},
    {"", "Ρος Ασανά", "Νηστεία του Γκεντάλια", "Σαμπάτ Σουβά", "Γιομ Κιπούρ", "Σουκότ", "Ωσανά Ραμπά",
     "Σεμινί Ατσέρετ", "Σιμχάτ Τορά", "Χανουκά", "Νηστεία της 10ης Τέβετ", "Σαμπάτ Σιρά", "Σαμπάτ Σεκαλίμ",
     "Σαμπάτ Ζαχόρ", "Νηστεία της Εσθήρ", "Πουρίμ", "Σουσάν Πουρίμ, τειχισμένες πόλεις", "Σαμπάτ Παρά",
     "Σαμπάτ Αχόντες", "Σαμπάτ Αγκαντόλ", "Πέσαχ", "Σαβουότ", "Νηστεία της 17ης Ταμούζ", "Σαμπάτ Χαζόν", "Τισά Μπεάβ",
     "Σαμπάτ Ναχαμού", "Ρος Χόντες", "Μαχάρ Χόντες", "Χολ Αμοέντ", "Σαμπάτ Χολ Αμοέντ", "Σαμπάτ"},
    {"Αντάρ I", "Νισάν", "Ιγιάρ", "Σιβάν", "Ταμούζ", "Αβ", "Έλουλ", "Τισρί", "Χεσβάν", "Κισλέφ", "Τέβετ", "Σεβάτ",
     "Αντάρ", "Αντάρ II"},
    {"@, #η ημέρα", "@ #", "Μαφτίρ", "Πρωί", "Απόγευμα", "Μεγκιλά", "Με τείχη",
     "Μαφτίρ στις τειχισμένες πόλεις", {"Ασκεναζίτες", "Σεφαρδίτες", "Χαμπάντ"}},
    {"Yizkor", "New month announced: ",
     {"Adar I", "Nisan", "Iyar", "Sivan", "Tammuz", "Av", "Elul", "Tishri", "Cheshvan", "Kislev", "Tevet", "Shevat",
      "Adar", "Adar II"}},
};
// clang-format on

}  // namespace lections
