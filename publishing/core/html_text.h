// Texts in HTML.
#pragma once

#include <string>
#include <string_view>

namespace publishing {

// For between tags and within quotes: what means something to HTML is escaped, what it forbids (control characters,
// noncharacters) is left out or becomes U+FFFD. Line ends are LF.
void AppendHtml(std::string& html, std::string_view text);

// Whether a text can be a language's name by BCP 47, as attributes have it.
bool IsLanguageTag(std::string_view text);

}  // namespace publishing
