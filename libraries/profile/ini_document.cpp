#include "libraries/profile/ini_document.h"

#include <algorithm>
#include <cstdint>

namespace profile {
namespace {

constexpr std::string_view kBlanks(" \t\v\f\r\n\x1A");
constexpr std::string_view kLineEnds("\r\n");
constexpr std::string_view kByteOrderMark("\xEF\xBB\xBF");

char Folded(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view Trimmed(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool HoldsLineEnd(std::string_view text) {
  return text.find_first_of(kLineEnds) != std::string_view::npos;
}

bool MaySectionBe(std::string_view name) {
  return !name.empty() && !HoldsLineEnd(name);
}

bool MayKeyBe(std::string_view name) {
  return !name.empty() && !HoldsLineEnd(name) && name.find('=') == std::string_view::npos && name.front() != ';' &&
         name.front() != '[';
}

}  // namespace

bool IniDocument::SameName::operator()(std::string_view left, std::string_view right) const {
  return std::ranges::equal(left, right, {}, Folded, Folded);
}

bool IniDocument::SameName::operator()(const KeyId& left, const KeyId& right) const {
  return left.section == right.section && (*this)(left.name, right.name);
}

size_t IniDocument::NameHash::operator()(std::string_view name) const {
  uint64_t hash = 0xcbf29ce484222325;  // FNV-1a, 64 bits
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(Folded(c))) * 0x100000001b3;
  return static_cast<size_t>(hash);
}

size_t IniDocument::NameHash::operator()(const KeyId& id) const {
  return (*this)(id.name) + id.section * 0x9e3779b9;
}

IniDocument::IniDocument(std::string text) : text_(std::move(text)) {
  const std::string_view all = text_;
  const size_t start = all.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  const Line first = LineAt(start);
  if (first.next > first.end) lineEnd_ = all.substr(first.end, first.next - first.end);

  size_t comments = std::string_view::npos;  // begin of the run of comment lines right above the line at hand
  for (size_t begin = start; begin < all.size();) {
    const Line line = LineAt(begin);
    const std::string_view content = Trimmed(all.substr(line.begin, line.end - line.begin));
    const size_t bracket = content.starts_with('[') ? content.rfind(']') : std::string_view::npos;
    const size_t equalsSign = all.substr(0, line.end).find('=', line.begin);
    const bool isComment = content.starts_with(';');
    if (bracket != std::string_view::npos) {
      AddSection(line, Trimmed(content.substr(1, bracket - 1)), std::min(comments, line.begin));
    } else if (!isComment && equalsSign != std::string_view::npos && !sections_.empty()) {
      AddKey(line, equalsSign);
    }
    comments = isComment ? std::min(comments, line.begin) : std::string_view::npos;
    begin = line.next;
  }
}

IniDocument::Line IniDocument::LineAt(size_t begin) const {
  const size_t end = std::min(text_.find_first_of(kLineEnds, begin), text_.size());
  const size_t endSize = text_.compare(end, 2, "\r\n") == 0 ? 2 : 1;
  return {begin, end, std::min(end + endSize, text_.size())};
}

void IniDocument::AddSection(const Line& line, std::string_view name, size_t commentsAbove) {
  if (!sections_.empty()) sections_.back().end = commentsAbove;
  if (!name.empty()) {
    const auto first = sectionByName_.emplace(name, sections_.size()).first;
    if (first->first != name) sectionByOtherSpelling_.emplace(name, sections_.size());
  }
  sections_.push_back({name, line, text_.size(), keys_.size(), keys_.size()});
}

void IniDocument::AddKey(const Line& line, size_t equalsSign) {
  const std::string_view upToLineEnd = std::string_view(text_).substr(0, line.end);
  const std::string_view name = Trimmed(upToLineEnd.substr(line.begin, equalsSign - line.begin));
  if (name.empty()) return;
  const size_t valueBegin = std::min(upToLineEnd.find_first_not_of(kBlanks, equalsSign + 1), line.end);
  const std::string_view value = Trimmed(upToLineEnd.substr(valueBegin));
  const KeyId id{sections_.size() - 1, name};
  const auto first = keyById_.emplace(id, keys_.size()).first;
  if (first->first.name != name) keyByOtherSpelling_.emplace(std::pair(id.section, name), keys_.size());
  keys_.push_back({name, value, line, valueBegin});
  sections_.back().keysEnd = keys_.size();
}

std::optional<size_t> IniDocument::FindSectionIndex(std::string_view name) const {
  name = Trimmed(name);
  if (const auto exact = sectionByOtherSpelling_.find(name); exact != sectionByOtherSpelling_.end()) {
    return exact->second;
  }
  const auto found = sectionByName_.find(name);
  if (found == sectionByName_.end()) return std::nullopt;
  return found->second;
}

const IniDocument::Section* IniDocument::FindSection(std::string_view name) const {
  const auto found = FindSectionIndex(name);
  return found ? &sections_[*found] : nullptr;
}

const IniDocument::Key* IniDocument::FindKey(std::string_view section, std::string_view key) const {
  const auto inSection = FindSectionIndex(section);
  if (!inSection) return nullptr;
  key = Trimmed(key);
  if (const auto exact = keyByOtherSpelling_.find({*inSection, key}); exact != keyByOtherSpelling_.end()) {
    return &keys_[exact->second];
  }
  const auto found = keyById_.find({*inSection, key});
  return found == keyById_.end() ? nullptr : &keys_[found->second];
}

std::optional<std::string_view> IniDocument::Value(std::string_view section, std::string_view key) const {
  const Key* const found = FindKey(section, key);
  if (!found) return std::nullopt;
  return found->value;
}

std::string IniDocument::SectionNames() const {
  std::string names;
  for (const Section& section : sections_) {
    if (!section.name.empty()) names.append(section.name).push_back('\0');
  }
  return names;
}

std::optional<std::string> IniDocument::KeyNames(std::string_view section) const {
  const Section* const found = FindSection(section);
  if (!found) return std::nullopt;
  std::string names;
  for (size_t i = found->firstKey; i < found->keysEnd; ++i) names.append(keys_[i].name).push_back('\0');
  return names;
}

std::optional<std::string> IniDocument::WithValue(std::string_view section, std::string_view key,
                                                  std::string_view value) const {
  section = Trimmed(section);
  key = Trimmed(key);
  value = Trimmed(value);
  if (!MaySectionBe(section) || !MayKeyBe(key) || HoldsLineEnd(value)) return std::nullopt;

  if (const Key* const old = FindKey(section, key)) {
    if (old->value == value) return text_;
    return std::string(text_).replace(old->valueBegin, old->line.end - old->valueBegin, value);
  }
  const std::string keyLine = std::string(key) + "=" + std::string(value);
  if (const Section* const old = FindSection(section)) {
    const bool hasKeys = old->keysEnd > old->firstKey;
    return WithLine(hasKeys ? keys_[old->keysEnd - 1].line.next : old->line.next, keyLine);
  }
  const std::string end(lineEnd_);
  const bool isBlank = text_.empty() || text_ == kByteOrderMark;
  const bool lastLineIsOpen = !isBlank && kLineEnds.find(text_.back()) == std::string_view::npos;
  const std::string gap = isBlank || text_.ends_with(end + end) ? "" : end;
  return text_ + (lastLineIsOpen ? end : "") + gap + "[" + std::string(section) + "]" + end + keyLine + end;
}

std::string IniDocument::WithoutKey(std::string_view section, std::string_view key) const {
  const Key* const found = FindKey(section, key);
  return found ? std::string(text_).erase(found->line.begin, found->line.next - found->line.begin) : text_;
}

std::string IniDocument::WithoutSection(std::string_view section) const {
  const Section* const found = FindSection(section);
  return found ? std::string(text_).erase(found->line.begin, found->end - found->line.begin) : text_;
}

// The text with a line put in at a line's begin or at the end.
std::string IniDocument::WithLine(size_t at, std::string_view line) const {
  const bool followsOpenLine = at > 0 && kLineEnds.find(text_[at - 1]) == std::string_view::npos;
  std::string inserted = std::string(followsOpenLine ? lineEnd_ : "");
  // A carriage return before an empty line's line feed would make one line end of the two.
  const bool wouldJoin = lineEnd_ == "\r" && text_.compare(at, 1, "\n") == 0;
  inserted.append(line).append(wouldJoin ? "\r\n" : lineEnd_);
  return std::string(text_).insert(at, inserted);
}

}  // namespace profile
