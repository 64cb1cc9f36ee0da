#include "libraries/hours/choice.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/description_text.h"
#include "libraries/settings_folder/text_lines.h"

namespace hours {
namespace {

using settings_folder::Line;

constexpr std::string_view kZmanStart = "zman ";
constexpr std::string_view kHoursAtSeaLevel = "proportional-hours sea-level";
constexpr std::string_view kHoursWithElevation = "proportional-hours elevation";

bool IsAboutHours(std::string_view line) {
  return line == kHoursAtSeaLevel || line == kHoursWithElevation;
}

std::string_view ChosenIdIn(std::string_view line) {
  return line.starts_with(kZmanStart) ? line.substr(kZmanStart.size()) : std::string_view();
}

bool HasOwn(const Choice& choice, uint32_t number) {
  return std::ranges::find(choice.own, number, &OwnZman::number) != choice.own.end();
}

bool IsOffered(const Choice& choice, std::string_view id) {
  if (FindInCatalogue(id)) return true;
  return std::ranges::any_of(choice.own, [id](const OwnZman& own) { return OwnId(own.number) == id; });
}

std::vector<Line> LinesBehindMark(std::string_view text) {
  return settings_folder::LinesOf(text.substr(settings_folder::MarkLength(text)));
}

// The ids that lines choose, each once; own is complete already.
std::vector<std::string> ChosenIn(const std::vector<Line>& lines, const Choice& choice) {
  std::vector<std::string> chosen;
  for (const Line& line : lines) {
    const std::string_view id = ChosenIdIn(line.content);
    const bool isNew = std::ranges::find(chosen, id) == chosen.end();
    if (chosen.size() < kMostChosen && isNew && IsOffered(choice, id)) chosen.emplace_back(id);
  }
  return chosen;
}

// The choice in the lines, with no chosen ids where they choose nothing.
Choice ChoiceIn(const std::vector<Line>& lines) {
  Choice choice;
  for (const Line& line : lines) {
    std::optional<OwnZman> own = OwnZmanIn(line.content);
    if (own && !HasOwn(choice, own->number)) choice.own.push_back(std::move(*own));
  }
  choice.chosen = ChosenIn(lines, choice);
  const auto aboutHours = std::ranges::find_if(lines, IsAboutHours, &Line::content);
  choice.areHoursAtSeaLevel = aboutHours != lines.end() && aboutHours->content == kHoursAtSeaLevel;
  return choice;
}

std::vector<std::string> DefaultIds() {
  const auto ids = Presets().front().ids;
  return {ids.begin(), ids.end()};
}

// The choice's own lines, each with the end.
std::string ChoiceLines(const Choice& choice, std::string_view end) {
  std::string lines;
  const size_t count = std::min(choice.chosen.size(), kMostChosen);
  for (size_t i = 0; i < count; ++i) lines.append(kZmanStart).append(choice.chosen[i]).append(end);
  for (const OwnZman& own : choice.own) lines.append(OwnLine(own)).append(end);
  if (choice.areHoursAtSeaLevel) lines.append(kHoursAtSeaLevel).append(end);
  return lines;
}

// Makes texts different from all that were taken before.
class UniqueTexts {
 public:
  std::string Take(const std::string& text) {
    std::string unique = text;
    for (int number = 2; !taken_.insert(unique).second; ++number) unique = Numbered(text, number);
    return unique;
  }

 private:
  std::unordered_set<std::string> taken_;
};

// A name in Latin letters as the Hebrew display font can show it: in windows-1252 the accented letters have the codes
// of Hebrew ones.
std::string WithoutAccents(std::string text) {
  constexpr char kBaseLetters[] =
      "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYPs"
      "aaaaaaaceeeeiiiidnooooo/ouuuuypy";
  constexpr unsigned kFirstLetter = 0xC0;
  static_assert(sizeof kBaseLetters == 0x100 - kFirstLetter + 1);
  for (char& c : text) {
    const unsigned code = static_cast<unsigned char>(c);
    if (code >= kFirstLetter) c = kBaseLetters[code - kFirstLetter];
  }
  return text;
}

}  // namespace

Choice ReadChoice(std::string_view text) {
  Choice choice = ChoiceIn(LinesBehindMark(text));
  if (choice.chosen.empty()) choice.chosen = DefaultIds();
  return choice;
}

std::string Applied(const Choice& choice, std::string_view text) {
  const std::vector<Line> lines = LinesBehindMark(text);
  const Choice written = ChoiceIn(lines);
  Choice wanted = choice;
  wanted.chosen.resize(std::min(wanted.chosen.size(), kMostChosen));
  if (wanted == written) return std::string(text);

  const std::string_view end = settings_folder::FirstLineEnd(text);
  const std::string ownLines = ChoiceLines(wanted, end);
  std::string result(text.substr(0, settings_folder::MarkLength(text)));
  bool isPlaced = false;
  for (const Line& line : lines) {
    const bool isOurs =
        IsOffered(written, ChosenIdIn(line.content)) || OwnZmanIn(line.content) || IsAboutHours(line.content);
    if (!isOurs) {
      result.append(line.content).append(line.end.empty() ? end : line.end);
    } else if (!isPlaced) {
      result += ownLines;
      isPlaced = true;
    }
  }
  return isPlaced ? result : result + ownLines;
}

std::string AddOwn(Choice& choice, OwnZman zman) {
  zman.number = 1;
  zman.description = CleanDescription(zman.description);
  zman.hebrew = CleanDescription(zman.hebrew);
  while (HasOwn(choice, zman.number)) ++zman.number;
  if (zman.number > kMostOwnNumber) return {};
  choice.own.push_back(std::move(zman));
  return OwnId(choice.own.back().number);
}

void RemoveOwn(Choice& choice, uint32_t number) {
  std::erase_if(choice.own, [number](const OwnZman& own) { return own.number == number; });
  std::erase(choice.chosen, OwnId(number));
}

std::vector<OfferedZman> OfferedZmanim(const Choice& choice) {
  UniqueTexts descriptions;
  UniqueTexts hebrew;
  std::vector<OfferedZman> offered;
  for (const CatalogueZman& zman : Catalogue()) {
    offered.push_back({zman.id,
                       {descriptions.Take(EightBitFromUtf8(zman.description)),
                        hebrew.Take(EightBitFromUtf8(zman.hebrew)), zman.definition}});
  }
  for (const OwnZman& own : choice.own) {
    offered.push_back(
        {OwnId(own.number),
         {descriptions.Take(own.description),
          hebrew.Take(own.hebrew.empty() ? WithoutAccents(own.description) : own.hebrew), DefinitionOf(own)}});
  }
  if (choice.areHoursAtSeaLevel) {
    for (OfferedZman& one : offered) one.zman.definition = WithHoursAtSeaLevel(one.zman.definition);
  }
  return offered;
}

std::vector<DescribedZman> ChosenZmanim(const Choice& choice) {
  const std::vector<OfferedZman> offered = OfferedZmanim(choice);
  std::vector<DescribedZman> chosen;
  for (const std::string& id : choice.chosen.empty() ? DefaultIds() : choice.chosen) {
    const auto found = std::ranges::find(offered, id, &OfferedZman::id);
    if (found != offered.end() && chosen.size() < kMostChosen) chosen.push_back(found->zman);
  }
  return chosen;
}

}  // namespace hours
