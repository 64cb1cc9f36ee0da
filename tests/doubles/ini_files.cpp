#include "tests/doubles/ini_files.h"

#include <algorithm>

namespace {

char Folded(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Of the elements of a list, which all have a name.
template <typename List>
auto Find(List& list, std::string_view name) {
  using Element = std::ranges::range_value_t<List>;
  auto found = std::ranges::find(list, name, &Element::name);
  if (found == list.end()) {
    found = std::ranges::find_if(
        list, [name](const auto& element) { return std::ranges::equal(element.name, name, {}, Folded, Folded); });
  }
  return found == list.end() ? nullptr : &*found;
}

template <typename List>
auto& FindOrAdd(List& list, std::string_view name) {
  if (auto* const found = Find(list, name)) return *found;
  list.push_back({std::string(name), {}});
  return list.back();
}

template <typename List>
void Delete(List& list, std::string_view name) {
  if (auto* const found = Find(list, name)) list.erase(list.begin() + (found - list.data()));
}

struct Place {
  std::string_view file;
  std::string_view section;
  std::string_view key;
};

// "file|section|key"; the key may hold more of the marks.
Place PlaceOf(std::string_view name) {
  const std::size_t first = name.find('|');
  const std::size_t second = name.find('|', first + 1);
  return {name.substr(0, first), name.substr(first + 1, second - first - 1), name.substr(second + 1)};
}

}  // namespace

std::string& IniFiles::operator[](std::string_view name) {
  const Place place = PlaceOf(name);
  return ValueOf(place.file, place.section, place.key);
}

IniFiles::IniFiles(std::initializer_list<std::pair<std::string_view, std::string_view>> values) {
  for (const auto& [name, value] : values) (*this)[name] = value;
}

std::string IniFiles::Stored(std::string_view name) const {
  const Place place = PlaceOf(name);
  const std::string* const value = FindValue(place.file, place.section, place.key);
  return value ? *value : "(none)";
}

const std::vector<IniFiles::Section>& IniFiles::SectionsOf(std::string_view file) const {
  static const std::vector<Section> kNone;
  const File* const found = Find(files_, file);
  return found ? found->sections : kNone;
}

const IniFiles::Section* IniFiles::FindSection(std::string_view file, std::string_view section) const {
  return Find(SectionsOf(file), section);
}

const std::string* IniFiles::FindValue(std::string_view file, std::string_view section, std::string_view key) const {
  const Section* const found = FindSection(file, section);
  const Key* const value = found ? Find(found->keys, key) : nullptr;
  return value ? &value->value : nullptr;
}

std::string& IniFiles::ValueOf(std::string_view file, std::string_view section, std::string_view key) {
  return FindOrAdd(FindOrAdd(FindOrAdd(files_, file).sections, section).keys, key).value;
}

void IniFiles::AddSpelling(std::string_view name) {
  const Place place = PlaceOf(name);
  auto& sections = FindOrAdd(files_, place.file).sections;
  const auto spelled = std::ranges::find(sections, place.section, &Section::name);
  Section& section = spelled != sections.end() ? *spelled : sections.emplace_back(std::string(place.section));
  section.keys.push_back({std::string(place.key), {}});
}

void IniFiles::DeleteKey(std::string_view file, std::string_view section, std::string_view key) {
  File* const found = Find(files_, file);
  if (Section* const owner = found ? Find(found->sections, section) : nullptr) Delete(owner->keys, key);
}

void IniFiles::DeleteSection(std::string_view file, std::string_view section) {
  if (File* const found = Find(files_, file)) Delete(found->sections, section);
}
