// The text of an INI file with an index over it, and edits of it that touch nothing but what they are about.
//
// How a text is read:
// - Lines end in CR, LF or both. Blanks around them mean nothing; besides space and tab, the vertical tab, the form
// feed
//   and the end-of-file mark of old editors (1A) are blanks. A UTF-8 byte order mark at the start is skipped.
// - A line that starts with "[" and holds a "]" opens a section, named by what stands between the first "[" and the
// last
//   "]"; what follows on the line means nothing.
// - A line that starts with ";" is a comment; a line without "=", and every line before the first section, means
//   nothing.
// - In other lines the name before the first "=" and the value behind it stand without the blanks around them. Names
//   are never empty.
// - Names are told apart without regard to ASCII letter case, and the first section and the first key of a name counts;
//   but where a name stands in several spellings, the first of exactly the spelling asked for does.
// - Names and values end at a zero byte. All other bytes pass through as they are.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace profile {

class IniDocument {
 public:
  explicit IniDocument(std::string text);
  IniDocument(const IniDocument&) = delete;  // the index points into the text
  IniDocument& operator=(const IniDocument&) = delete;

  // The value as it stands, quotes included; none when there is no such key. Blanks around the names asked for mean
  // nothing, here and below.
  std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;

  // The names in the order of the file, repeated ones too, each followed by a zero byte.
  std::string SectionNames() const;
  // None when there is no such section.
  std::optional<std::string> KeyNames(std::string_view section) const;

  // The text with the key set to the value without the blanks around it. An old value is replaced where it stands; a
  // new key follows the last one of its section, a new section the end of the text. None when no text could give the
  // value back: a name is empty, a key holds "=" or starts with ";" or "[", or there is an end of line within.
  std::optional<std::string> WithValue(std::string_view section, std::string_view key, std::string_view value) const;
  // The text without the line of the key.
  std::string WithoutKey(std::string_view section, std::string_view key) const;
  // The text without the lines of the section. Comments right above the next section's line belong to that and stay.
  std::string WithoutSection(std::string_view section) const;

 private:
  struct Line {
    size_t begin;
    size_t end;   // of its text
    size_t next;  // begin of the line after it
  };
  struct Key {
    std::string_view name;
    std::string_view value;
    Line line;
    size_t valueBegin;
  };
  struct Section {
    std::string_view name;
    Line line;
    size_t end;  // begin of the next section's line, or of the comments right above it
    size_t firstKey;
    size_t keysEnd;
  };
  struct KeyId {
    size_t section;
    std::string_view name;
  };
  struct SameName {
    bool operator()(std::string_view left, std::string_view right) const;
    bool operator()(const KeyId& left, const KeyId& right) const;
  };
  struct NameHash {
    size_t operator()(std::string_view name) const;
    size_t operator()(const KeyId& id) const;
  };

  Line LineAt(size_t begin) const;
  void AddSection(const Line& line, std::string_view name, size_t commentsAbove);
  void AddKey(const Line& line, size_t equalsSign);
  std::optional<size_t> FindSectionIndex(std::string_view name) const;
  const Section* FindSection(std::string_view name) const;
  const Key* FindKey(std::string_view section, std::string_view key) const;
  std::string WithLine(size_t at, std::string_view line) const;

  const std::string text_;
  std::string_view lineEnd_ = "\r\n";  // the style of the file's first line
  std::vector<Section> sections_;
  std::vector<Key> keys_;
  std::unordered_map<std::string_view, size_t, NameHash, SameName> sectionByName_;
  std::unordered_map<KeyId, size_t, NameHash, SameName> keyById_;
  // By further spellings of a name that the indexes above know in its first one; keys by section and spelling.
  std::map<std::string_view, size_t> sectionByOtherSpelling_;
  std::map<std::pair<size_t, std::string_view>, size_t> keyByOtherSpelling_;
};

}  // namespace profile
