#include "document/document_fonts.h"

#include <string>

#include "engine/properties.h"
#include "win/make_font.h"

namespace {

struct FontPair {
  const char* name;
  const char* face;
  int points;
  int boldPoints;
};

constexpr FontPair kDocumentFonts[] = {
    {property::kFont, "Courier New", 12, 12},
    {property::kZmanimFont, "Times New Roman", 10, 10},
    {property::kParashaFont, "Times New Roman", 8, 12},
};

void ReplaceFont(HWND window, const char* name, HFONT font) {
  DeleteFontProperty(window, name);
  SetPropA(window, name, font);
}

}  // namespace

void MakeFontPair(HWND window, const char* name, const char* face, int points, int boldPoints) {
  ReplaceFont(window, name, MakeFont(face, points, FW_DONTCARE));
  ReplaceFont(window, (property::kBoldPrefix + std::string(name)).c_str(), MakeFont(face, boldPoints, FW_BOLD));
}

void MakeDocumentFonts(HWND document) {
  for (const FontPair& pair : kDocumentFonts) {
    MakeFontPair(document, pair.name, pair.face, pair.points, pair.boldPoints);
  }
}
