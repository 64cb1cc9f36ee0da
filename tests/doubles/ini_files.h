// INI files in memory, as the doubled profile library keeps them. Names are told apart as the library tells them:
// without regard to ASCII letter case, but the one of exactly the spelling asked for first. Files, sections and keys
// stand in the order in which they came.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class IniFiles {
 public:
  struct Key {
    std::string name;
    std::string value;
  };
  struct Section {
    std::string name;
    std::vector<Key> keys;
  };

  // For tests, which name a value "file|section|key": the value, made, empty, when it is not there.
  std::string& operator[](std::string_view name);
  IniFiles() = default;
  IniFiles(std::initializer_list<std::pair<std::string_view, std::string_view>> values);
  // The value, or "(none)".
  std::string Stored(std::string_view name) const;

  const std::vector<Section>& SectionsOf(std::string_view file) const;
  // Null when there is none.
  const Section* FindSection(std::string_view file, std::string_view section) const;
  const std::string* FindValue(std::string_view file, std::string_view section, std::string_view key) const;

  // The value that is there, or a new, empty one.
  std::string& ValueOf(std::string_view file, std::string_view section, std::string_view key);
  // Puts "file|section|key" there, though a section or key that differs in letter case is, as an editor of texts may.
  void AddSpelling(std::string_view name);

  // The section stays when its last key goes.
  void DeleteKey(std::string_view file, std::string_view section, std::string_view key);
  void DeleteSection(std::string_view file, std::string_view section);

 private:
  struct File {
    std::string name;
    std::vector<Section> sections;
  };
  std::vector<File> files_;
};
