// Which files are settings, what restoring does to them, and that all are replaced or none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"
#include "libraries/safekeep/kept_files.h"
#include "libraries/safekeep/replacement.h"
#include "libraries/safekeep/restore_plan.h"
#include "tests/core/safekeep_archives.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace safekeep;
using namespace safekeep_test;
namespace fs = std::filesystem;

namespace {

// Whether a text is the bare name of a file with a suffix of settings.
bool IsSettingsName(const std::string& text) {
  if (text.find_first_of("/\\:% ") != std::string::npos || text.starts_with(".")) return false;
  for (const char* suffix : {".ini", ".txt", ".dat", ".cfg"}) {
    if (text.ends_with(suffix)) return true;
  }
  return false;
}

// Such names between the quotes of a source's code.
std::set<std::string> SettingsNamedIn(const fs::path& source) {
  std::set<std::string> names;
  std::ifstream file(source);
  for (std::string line; std::getline(file, line);) {
    std::istringstream pieces(line.substr(0, line.find("//")));
    bool isQuoted = false;
    for (std::string piece; std::getline(pieces, piece, '"'); isQuoted = !isQuoted) {
      if (isQuoted && IsSettingsName(piece)) names.insert(piece);
    }
  }
  return names;
}

std::map<std::string, fs::path> SettingsNamedInTheSources() {
  const fs::path root = SOURCES;
  std::map<std::string, fs::path> names;
  for (const char* room :
       {"app", "document", "engine", "libraries", "locations", "publishing", "readings", "shabbat", "win", "zmanim"}) {
    for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
      const fs::path& source = entry.path();
      const bool isCode = source.extension() == ".cpp" || source.extension() == ".h";
      if (!isCode || source.parent_path().filename() == "safekeep") continue;
      for (const std::string& name : SettingsNamedIn(source)) names.emplace(name, source);
    }
  }
  return names;
}

using Contents = std::map<std::string, std::string>;

// A folder in memory, in which some files cannot be written, from the so-manyth writing on.
struct Folder {
  Contents files;
  std::map<std::string, int> failing;
  std::map<std::string, int> writings;

  bool Put(const std::string& name, const std::optional<std::string>& bytes) {
    const auto fails = failing.find(name);
    if (fails != failing.end() && ++writings[name] >= fails->second) return false;
    if (bytes) {
      files[name] = *bytes;
    } else {
      files.erase(name);
    }
    return true;
  }
  ReplacementResult Replace(const std::vector<Replacement>& replacements) {
    return ReplaceAll(replacements, [this](const auto& name, const auto& bytes) { return Put(name, bytes); });
  }
};

const Contents kBefore = {{"a", "old a"}, {"b", "old b"}, {"d", "old d"}};
const std::vector<Replacement> kNew = {
    {"a", "new a", "old a"}, {"b", "new b", "old b"}, {"c", "new c", std::nullopt}, {"d", "new d", "old d"}};

}  // namespace

// What a library writes and the table does not know would be lost with every backup.
TEST(KeptFiles, AreAllThatTheSourcesNameAsSettings) {
  const std::map<std::string, fs::path> names = SettingsNamedInTheSources();
  EXPECT_GE(names.size(), 15u);
  for (const auto& [name, source] : names) EXPECT_TRUE(FindKeptFile(name)) << name << " in " << source;
}

TEST(KeptFiles, WhateverTheTableNamesIsNamedInTheSources) {
  const std::map<std::string, fs::path> names = SettingsNamedInTheSources();
  for (const KeptFile& file : KeptFiles()) {
    std::string name(file.name);
    if (name == "safekeep.ini") continue;
    if (name.starts_with("persons.txt.")) name = "persons.txt";
    EXPECT_TRUE(names.contains(name)) << name;
  }
}

TEST(KeptFiles, HaveBareNamesAndWordsOfAsciiOnceEach) {
  std::set<std::string_view> names;
  std::set<std::string_view> words;
  for (const KeptFile& file : KeptFiles()) {
    EXPECT_TRUE(names.insert(file.name).second) << file.name;
    EXPECT_TRUE(words.insert(file.what).second) << file.what;
    EXPECT_EQ(file.name.find_first_of("/\\: "), std::string_view::npos) << file.name;
    for (const char c : std::string(file.name) + std::string(file.what)) EXPECT_TRUE(c >= ' ' && c <= '~') << file.name;
  }
  EXPECT_LT(names.size() + 1, kMostEntries);
}

TEST(KeptFiles, OtherNamesAreNotFound) {
  for (const char* name : {"", "stamp", "STAMP.INI", "stamp.ini ", "photo.jpg", "persons.txt.4", "persons.txt.new"}) {
    EXPECT_EQ(FindKeptFile(name), nullptr) << name;
  }
}

TEST(RestorePlan, SaysWhatHappensToEachFileThatThereIs) {
  const std::vector<ZipEntry> present = {
      {"solar.ini", kMadeDos, "mine"}, {"stamp.ini", kMadeDos, "[Times]\r\nForm=24\r\n"}, {"hours.txt", kMadeDos, ""}};
  std::vector<std::string> lines;
  for (const PlannedFile& file : PlanOf(SomeFiles(), present)) {
    lines.push_back(std::string(file.name) + "|" + std::string(InWords(file.fate)) + "|" + file.inBackup + "|" +
                    file.now);
  }
  EXPECT_THAT(lines, ElementsAre("shabbat2.ini|is added|2026-11-22 17:33|",
                                 "stamp.ini|is replaced|1980-01-01 00:00|2026-11-22 17:33",
                                 "hours.txt|is the same already|2026-11-22 17:33|2026-11-22 17:33",
                                 "solar.ini|stays: not in the backup||2026-11-22 17:33"));
}

TEST(Replacement, AllAreReplacedAndOthersLeftAlone) {
  Folder folder{kBefore, {}, {}};
  folder.files["other"] = "other";
  EXPECT_EQ(folder.Replace(kNew).failed, "");
  EXPECT_EQ(folder.files,
            (Contents{{"a", "new a"}, {"b", "new b"}, {"c", "new c"}, {"d", "new d"}, {"other", "other"}}));
}

TEST(Replacement, AFileThatIsTheSameAlreadyIsNotWritten) {
  Folder folder{{{"a", "same"}}, {{"a", 1}}, {}};
  EXPECT_EQ(folder.Replace({{"a", "same", "same"}}).failed, "");
  EXPECT_THAT(folder.writings, IsEmpty());
  EXPECT_EQ(folder.Replace({{"a", "", std::nullopt}}).failed, "a");  // an empty file is not a missing one
}

TEST(Replacement, WhereverOneFailsEverythingIsAsItWas) {
  for (const char* name : {"a", "b", "c", "d"}) {
    Folder folder{kBefore, {{name, 1}}, {}};
    const ReplacementResult result = folder.Replace(kNew);
    EXPECT_EQ(result.failed, name);
    EXPECT_THAT(result.left, IsEmpty()) << name;
    EXPECT_EQ(folder.files, kBefore) << name;
  }
}

TEST(Replacement, WhatCannotBePutBackIsNamedAndTheRestIsPutBack) {
  Folder folder{kBefore, {{"d", 1}, {"b", 2}, {"c", 2}}, {}};
  const ReplacementResult result = folder.Replace(kNew);
  EXPECT_EQ(result.failed, "d");
  EXPECT_THAT(result.left, ElementsAre("c", "b"));
  EXPECT_EQ(folder.files, (Contents{{"a", "old a"}, {"b", "new b"}, {"c", "new c"}, {"d", "old d"}}));
}
