// Expected dates: by hand.
#include "app/core/document_words.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(DocumentWords, EveryLanguageOfTheReadingsHasEveryWord) {
  std::set<uint32_t> codes;
  std::set<std::string_view> tags;
  for (const WordsLanguage& language : WordsLanguages()) {
    EXPECT_TRUE(codes.insert(language.code).second);
    EXPECT_TRUE(tags.insert(language.tag).second);
    for (const char* word : language.words) EXPECT_TRUE(word && *word) << language.englishName;
    const std::string_view page = WordOf(Word::kPageOf, language.code);
    EXPECT_NE(page.find("%1"), std::string_view::npos) << language.englishName;
    EXPECT_NE(page.find("%2"), std::string_view::npos) << language.englishName;
    EXPECT_TRUE(WordOf(Word::kNoTimeNote, language.code).starts_with("----")) << language.englishName;
    EXPECT_EQ(language.rightToLeft, language.code == 4u);
  }
  EXPECT_EQ(codes, (std::set<uint32_t>{1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16, 17, 20, 21}));
}

TEST(DocumentWords, AnUnknownLanguageIsEnglish) {
  EXPECT_EQ(WordOf(Word::kCandleLighting, 2), "Candle lighting");
  EXPECT_EQ(WordOf(Word::kCandleLighting, 0xFFFFFFFF), "Candle lighting");
  EXPECT_EQ(WordOf(Word::kCandleLighting, 3), "Kerzenzünden");
  EXPECT_EQ(WordsLanguageOf(99).code, 1u);
}

TEST(DocumentWords, JewishDatesAreWrittenAsTheLanguageDoes) {
  EXPECT_EQ(JewishDateInWords(18, "Kislev", 5787, 1), "18 Kislev 5787");
  EXPECT_EQ(JewishDateInWords(18, "Kislew", 5787, 3), "18. Kislew 5787");
  EXPECT_EQ(JewishDateInWords(18, "כסלו", 5787, 4), "י״ח בכסלו תשפ״ז");
  EXPECT_EQ(JewishDateInWords(1, "אדר א׳", 5784, 4), "א׳ באדר א׳ תשפ״ד");
  EXPECT_EQ(JewishDateInWords(1, "תשרי", 6000, 4), "1 תשרי 6000");
}

}  // namespace
