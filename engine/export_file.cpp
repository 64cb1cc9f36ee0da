#include "engine/export_file.h"

#include <array>

#include "companion/profile.h"
#include "engine/settings_flags.h"

namespace {

constexpr char kFormSection[] = "RtfForAllWordProcessors";
// Keys of the section, by view.
constexpr std::array kKeys{"ShabbatTimes", "Zmanim", "Readings"};

std::array<LastExport, kKeys.size()> lastExports;

RtfForm KeptForm(const char* key) {
  return ProfileGetInt(kFormSection, key, 0, kFlagsFile) != 0 ? RtfForm::kForAllWordProcessors : RtfForm::kUsual;
}

// Where this cannot be stored the file is written all the same, and the next dialog begins with the earlier form.
void KeepForm(const char* key, RtfForm form) {
  ProfileWriteString(kFormSection, key, form == RtfForm::kForAllWordProcessors ? "1" : "0", kFlagsFile);
}

}  // namespace

std::optional<ChosenFile> AskForFileOfView(HWND frame, ExportedView view, ExportFormat format) {
  const auto index = static_cast<std::size_t>(view);
  const RtfForm kept = format == ExportFormat::kRtf ? KeptForm(kKeys[index]) : RtfForm::kUsual;
  RtfForm form = kept;
  const auto file = AskForExportFile(frame, format, lastExports[index], form);
  if (!file) return std::nullopt;
  if (form != kept) KeepForm(kKeys[index], form);
  return ChosenFile{*file, form};
}
