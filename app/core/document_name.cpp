#include "app/core/document_name.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace {

constexpr std::size_t kMostCharacters = 100;
constexpr std::size_t kMostOfEnds = 40;  // of kind and range each

struct Extension {
  std::string_view text;
  DocumentType type;
};

constexpr Extension kExtensions[] = {{"html", DocumentType::kHtml},    {"htm", DocumentType::kHtml},
                                     {"rtf", DocumentType::kRtf},      {"csv", DocumentType::kCsv},
                                     {"ics", DocumentType::kCalendar}, {"txt", DocumentType::kText}};

std::string InSmallLetters(std::string_view text) {
  std::string small(text);
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return small;
}

// Signs of direction and others that are not seen are left out too.
bool IsAllowed(char32_t character) {
  constexpr std::u32string_view kForbidden = U"<>:\"/\\|?*";
  const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
  const bool isUnseen = (character >= 0x200B && character <= 0x200F) || (character >= 0x2028 && character <= 0x202E) ||
                        (character >= 0x2066 && character <= 0x2069) || character == 0xFEFF || character == 0xFFFD;
  return !isControl && !isUnseen && kForbidden.find(character) == kForbidden.npos;
}

std::size_t CharactersIn(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) publishing::TakeCharacter(text);
  return count;
}

// The first of a text's characters that a name may have.
std::string AllowedPart(std::string_view text, std::size_t most) {
  std::string part;
  for (std::size_t characters = 0; !text.empty() && characters < most;) {
    const char32_t character = publishing::TakeCharacter(text);
    if (!IsAllowed(character)) continue;
    publishing::AppendUtf8(part, character);
    ++characters;
  }
  return part;
}

}  // namespace

const char* ExtensionOf(DocumentType type) {
  switch (type) {
    case DocumentType::kHtml: return "html";
    case DocumentType::kRtf: return "rtf";
    case DocumentType::kCsv: return "csv";
    case DocumentType::kCalendar: return "ics";
    case DocumentType::kText: break;
  }
  return "txt";
}

std::optional<DocumentType> TypeOfName(std::string_view file) {
  const std::size_t point = file.find_last_of("./\\");
  if (point == file.npos || file[point] != '.') return std::nullopt;
  const std::string extension = InSmallLetters(file.substr(point + 1));
  for (const Extension& known : kExtensions) {
    if (known.text == extension) return known.type;
  }
  return std::nullopt;
}

bool HasExtension(std::string_view file) {
  constexpr std::size_t kLongest = 4;
  const std::size_t point = file.find_last_of("./\\");
  if (point == file.npos || file[point] != '.') return false;
  const std::string extension = InSmallLetters(file.substr(point + 1));
  const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
  const auto isPart = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9'); };
  return extension.size() <= kLongest && std::ranges::all_of(extension, isPart) &&
         std::ranges::any_of(extension, isLetter);
}

std::string FileNameOf(std::string_view kind, std::string_view place, std::string_view range) {
  const std::string first = AllowedPart(kind, kMostOfEnds);
  const std::string last = AllowedPart(range, kMostOfEnds);
  const std::size_t taken = CharactersIn(first) + CharactersIn(last);
  std::string name = first;
  for (const std::string& part : {AllowedPart(place, kMostCharacters - taken), last}) {
    if (!name.empty()) name += ' ';
    name += part;
  }
  while (name.ends_with(' ') || name.ends_with('.')) name.pop_back();
  return name;
}
