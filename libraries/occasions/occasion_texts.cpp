#include "libraries/occasions/occasion_texts.h"

namespace occasions {

std::string NameOf(const Row& row, Language) {
  return IdOf(row.occasion);
}

std::string TitleOf(const Row& row, Language) {
  return IdOf(row.occasion);
}

std::string RemarkOf(const Question&, const Row&) {
  return "";
}

std::string KindName(Kind kind, Language) {
  return IdOf(kind);
}

std::string WeekdayName(int32_t, Language) {
  return "";
}

std::string JewishDateText(int32_t, Language) {
  return "";
}

}  // namespace occasions
