// The topics of the help, and the pages as they lie in the source tree.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "libraries/guide/guide_core.h"

namespace fs = std::filesystem;

namespace {

fs::path ProgramFolder() {  // "help" stands in it, as in the finished program's
  return SOURCES;
}

std::string TextOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::vector<fs::path> Pages() {
  std::vector<fs::path> pages;
  for (const auto& entry : fs::directory_iterator(ProgramFolder() / "help")) {
    if (entry.path().extension() == ".html") pages.push_back(entry.path());
  }
  return pages;
}

// The values of an attribute: what stands between quotes behind ` attribute=`.
std::vector<std::string> Values(const std::string& text, const std::string& attribute) {
  const std::string opening = " " + attribute + "=\"";
  std::vector<std::string> values;
  for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
    at += opening.size();
    values.push_back(text.substr(at, text.find('"', at) - at));
  }
  return values;
}

TEST(HelpTopics, AreFoundWhateverTheirCase) {
  EXPECT_EQ(guide::TopicNamed("Shabbat times").page, "shabbat_times.html");
  EXPECT_EQ(guide::TopicNamed("ZMANIM").page, "zmanim.html");
  EXPECT_EQ(guide::TopicNamed("persons").page, "persons.html");
  EXPECT_EQ(guide::TopicNamed("readings").page, "readings.html");
  EXPECT_EQ(guide::TopicNamed("exports and Printing").page, "exports.html");
  EXPECT_EQ(guide::TopicNamed("accuracy").page, "accuracy.html");
  EXPECT_EQ(guide::TopicNamed("Places").page, "places.html");
  EXPECT_EQ(guide::TopicNamed("start").page, "index.html");
  EXPECT_EQ(guide::TopicNamed("settings").page, "settings.html");
  EXPECT_EQ(guide::TopicNamed("documents").page, "documents.html");
  EXPECT_EQ(guide::TopicNamed("occasions").page, "occasions.html");
}

TEST(HelpTopics, UnknownAndEmptyOnesAreTheGeneralPage) {
  for (const char* name : {"", "Zmani", "Zmanim ", "..\\..\\secret", "Z\xE9"}) {
    EXPECT_EQ(guide::TopicNamed(name).page, "index.html") << name;
  }
}

TEST(HelpTopics, EachHasAPage) {
  for (const guide::Topic& topic : guide::Topics()) {
    EXPECT_TRUE(fs::is_regular_file(ProgramFolder() / "help" / topic.page)) << topic.page;
  }
}

TEST(HelpPages, EachIsReachedFromEveryOther) {
  ASSERT_EQ(Pages().size(), guide::Topics().size());
  for (const fs::path& page : Pages()) {
    const std::vector<std::string> links = Values(TextOf(page), "href");
    for (const guide::Topic& topic : guide::Topics()) EXPECT_THAT(links, testing::Contains(topic.page)) << page;
  }
}

TEST(HelpPages, LinksLeadToPagesAndPlacesInThemThatExist) {
  for (const fs::path& page : Pages()) {
    for (const std::string& link : Values(TextOf(page), "href")) {
      const std::size_t mark = link.find('#');
      const fs::path target = mark == 0 ? page : page.parent_path() / link.substr(0, mark);
      ASSERT_TRUE(fs::is_regular_file(target)) << page << " links to " << link;
      if (mark == std::string::npos) continue;
      EXPECT_THAT(Values(TextOf(target), "id"), testing::Contains(link.substr(mark + 1))) << page;
    }
  }
}

TEST(HelpPages, PicturesAreThereAndToldInWords) {
  std::set<std::string> shown;
  for (const fs::path& page : Pages()) {
    const std::string text = TextOf(page);
    const std::vector<std::string> pictures = Values(text, "src");
    for (const std::string& picture : pictures) {
      EXPECT_TRUE(fs::is_regular_file(page.parent_path() / picture)) << page << " shows " << picture;
      shown.insert(picture);
    }
    const std::vector<std::string> words = Values(text, "alt");
    EXPECT_EQ(words.size(), pictures.size()) << page;
    EXPECT_THAT(words, testing::Each(testing::Not(""))) << page;
  }
  for (const auto& entry : fs::directory_iterator(ProgramFolder() / "help")) {
    const fs::path& file = entry.path();
    EXPECT_TRUE(file.extension() != ".png" || shown.contains(file.filename().string())) << file;
  }
}

TEST(HelpPages, NeedNoNetworkAndNoScript) {
  for (const fs::path& page : Pages()) {
    const std::string text = TextOf(page);
    for (const char* foreign : {"<script", "http:", "https:", "@import"}) {
      EXPECT_EQ(text.find(foreign), std::string::npos) << page << " has " << foreign;
    }
  }
}

}  // namespace
