#include "libraries/kinship/kinship_settings.h"

#include <algorithm>
#include <cwchar>

#include "companion/profile.h"
#include "libraries/dialogs/utf8.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace kinship {
namespace {

using persons::AdarCustom;
using persons::Calendar;
using persons::Kind;

constexpr char kYahrzeit[] = "Yahrzeit";
constexpr char kAdar[] = "AdarInLeapYears";  // 1, 2, or 3 for both
constexpr char kEntry[] = "Entry";
constexpr char kKind[] = "Kind";          // as Kind numbers them
constexpr char kCalendar[] = "Calendar";  // as Calendar numbers them
constexpr char kExport[] = "Export";
constexpr char kFormat[] = "Format";  // as Format numbers them
constexpr char kAll[] = "All";
constexpr char kYears[] = "Years";
constexpr char kFont[] = "Font";
constexpr char kFace[] = "Face";  // UTF-8
constexpr char kTenths[] = "TenthsOfPoints";
constexpr char kWeight[] = "Weight";
constexpr char kItalic[] = "Italic";
constexpr char kCharset[] = "Charset";

constexpr int kTenthsInInch = 720;
constexpr int kLeastTenths = 40;
constexpr int kMostTenths = 2000;
constexpr int32_t kBoldest = 1000;

int32_t Number(const char* section, const char* key, int32_t least, int32_t most, int32_t otherwise) {
  const int32_t number = ProfileGetInt(section, key, otherwise, kSettingsFile);
  return number < least || number > most ? otherwise : number;
}

bool Keep(const char* section, const char* key, int32_t number) {
  return ProfileWriteString(section, key, std::to_string(number).c_str(), kSettingsFile) != 0;
}

class ScreenContext {
 public:
  ScreenContext() : dc_(GetDC(nullptr)) {}
  ~ScreenContext() { ReleaseDC(nullptr, dc_); }
  ScreenContext(const ScreenContext&) = delete;
  ScreenContext& operator=(const ScreenContext&) = delete;

  HDC Get() const { return dc_; }
  int DotsToInch() const { return GetDeviceCaps(dc_, LOGPIXELSY); }

 private:
  HDC dc_;
};

int CALLBACK OnFontFound(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM isThere) {
  *reinterpret_cast<bool*>(isThere) = true;
  return 0;
}

bool IsThere(const ScreenContext& screen, const LOGFONTW& font) {
  LOGFONTW wanted = {};
  wanted.lfCharSet = DEFAULT_CHARSET;
  std::copy_n(font.lfFaceName, LF_FACESIZE, wanted.lfFaceName);
  bool isThere = false;
  EnumFontFamiliesExW(screen.Get(), &wanted, OnFontFound, reinterpret_cast<LPARAM>(&isThere), 0);
  return isThere;
}

}  // namespace

std::wstring SettingsPath() {
  return settings_folder::PathNow(settings_folder::Wide(kSettingsFile));
}

AdarCustom StoredCustom() {
  return static_cast<AdarCustom>(Number(kYahrzeit, kAdar, 1, 3, 1) - 1);
}

bool StoreCustom(AdarCustom custom) {
  return Keep(kYahrzeit, kAdar, static_cast<int32_t>(custom) + 1);
}

LastEntry StoredLastEntry() {
  return {static_cast<Kind>(Number(kEntry, kKind, 0, persons::kKinds - 1, 0)),
          static_cast<Calendar>(Number(kEntry, kCalendar, 0, 1, 0))};
}

void KeepLastEntry(const LastEntry& last) {
  const LastEntry kept = StoredLastEntry();
  if (last.kind != kept.kind) Keep(kEntry, kKind, static_cast<int32_t>(last.kind));
  if (last.calendar != kept.calendar) Keep(kEntry, kCalendar, static_cast<int32_t>(last.calendar));
}

ExportChoice StoredExportChoice() {
  return {static_cast<Format>(Number(kExport, kFormat, 0, kFormats - 1, 0)), Number(kExport, kAll, 0, 1, 1) == 1,
          Number(kExport, kYears, 1, kMostExportedYears, ExportChoice().years)};
}

void KeepExportChoice(const ExportChoice& choice) {
  const ExportChoice kept = StoredExportChoice();
  if (choice.format != kept.format) Keep(kExport, kFormat, static_cast<int32_t>(choice.format));
  if (choice.all != kept.all) Keep(kExport, kAll, choice.all);
  if (choice.years != kept.years) Keep(kExport, kYears, choice.years);
}

std::optional<LOGFONTW> StoredFont() {
  char face[LF_FACESIZE * 3] = "";
  ProfileGetString(kFont, kFace, "", face, sizeof face, kSettingsFile);
  const std::wstring wide = dialogs::FromUtf8(face);
  if (wide.empty() || wide.size() >= LF_FACESIZE) return std::nullopt;
  const ScreenContext screen;
  LOGFONTW font = {};
  std::ranges::copy(wide, font.lfFaceName);
  if (!IsThere(screen, font)) return std::nullopt;
  const int tenths = Number(kFont, kTenths, kLeastTenths, kMostTenths, 80);
  font.lfHeight = -MulDiv(tenths, screen.DotsToInch(), kTenthsInInch);
  font.lfWeight = Number(kFont, kWeight, 0, kBoldest, FW_NORMAL);
  font.lfItalic = static_cast<BYTE>(Number(kFont, kItalic, 0, 1, 0));
  font.lfCharSet = static_cast<BYTE>(Number(kFont, kCharset, 0, 255, DEFAULT_CHARSET));
  return font;
}

bool StoreFont(const LOGFONTW& font) {
  const ScreenContext screen;
  const int tenths = MulDiv(std::abs(font.lfHeight), kTenthsInInch, screen.DotsToInch());
  const std::string face = dialogs::ToUtf8(font.lfFaceName);
  return ProfileWriteString(kFont, kFace, face.c_str(), kSettingsFile) != 0 && Keep(kFont, kTenths, tenths) &&
         Keep(kFont, kWeight, font.lfWeight) && Keep(kFont, kItalic, font.lfItalic ? 1 : 0) &&
         Keep(kFont, kCharset, font.lfCharSet);
}

int HalfPointsOf(const LOGFONTW& font) {
  constexpr int kHalfPointsInInch = 144;
  return MulDiv(std::abs(font.lfHeight), kHalfPointsInInch, ScreenContext().DotsToInch());
}

}  // namespace kinship
