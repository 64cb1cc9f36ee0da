#include "app/core/jewish_date_text.h"

#include <string_view>
#include <vector>

#include "app/core/document_words.h"

namespace {

// Codes of the readings library's languages.
constexpr uint32_t kGerman = 3;
constexpr uint32_t kHebrew = 4;

constexpr std::string_view kOnes[] = {"", "א", "ב", "ג", "ד", "ה", "ו", "ז", "ח", "ט"};
constexpr std::string_view kTens[] = {"", "י", "כ", "ל", "מ", "נ", "ס", "ע", "פ", "צ"};
constexpr std::string_view kHundreds[] = {"", "ק", "ר", "ש", "ת"};
constexpr std::string_view kGeresh = "׳";
constexpr std::string_view kGershayim = "״";

std::vector<std::string_view> LettersOf(uint32_t number) {
  std::vector<std::string_view> letters;
  for (; number >= 400; number -= 400) letters.push_back(kHundreds[4]);
  if (number >= 100) letters.push_back(kHundreds[number / 100]);
  number %= 100;
  // 15 and 16 are nine and six, nine and seven: ten and five would be letters of the Name.
  if (number == 15 || number == 16) {
    letters.push_back(kOnes[9]);
    letters.push_back(kOnes[number - 9]);
    return letters;
  }
  if (number >= 10) letters.push_back(kTens[number / 10]);
  if (number % 10 != 0) letters.push_back(kOnes[number % 10]);
  return letters;
}

}  // namespace

std::string HebrewNumeral(uint32_t number) {
  const uint32_t rest = number % 1000;
  const std::vector<std::string_view> letters = LettersOf(rest != 0 ? rest : number / 1000);
  std::string text;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (i + 1 == letters.size() && letters.size() > 1) text += kGershayim;
    text += letters[i];
  }
  if (letters.size() == 1) text += kGeresh;
  return text;
}

std::string JewishDateInWords(const CalendarDate& jewish, uint32_t language) {
  const std::string month = JewishMonthName(jewish.uMonth, IsJewishLeapYear(jewish.uYear), language);
  if (language == kHebrew) return HebrewNumeral(jewish.uDay) + " " + month + " " + HebrewNumeral(jewish.uYear);
  return std::to_string(jewish.uDay) + (language == kGerman ? ". " : " ") + month + " " + std::to_string(jewish.uYear);
}
