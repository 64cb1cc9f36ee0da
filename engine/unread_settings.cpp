#include "engine/unread_settings.h"

#include "engine/optional_entries.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/message_box.h"

std::vector<std::string> UnreadSettings(std::span<const char* const> files) {
  std::vector<std::string> unread;
  if (!OptionalEntries.ProfileCanRead) return unread;
  for (const char* const file : files) {
    if (!OptionalEntries.ProfileCanRead(file)) unread.emplace_back(file);
  }
  return unread;
}

bool MayEditSettings(HWND owner, std::span<const char* const> files) {
  for (;;) {
    const std::vector<std::string> unread = UnreadSettings(files);
    if (unread.empty()) return true;
    const std::string text = "The settings in the file " + unread.front() +
                             " cannot be read, so they cannot be changed now. They stay as they are.\nPlease see to it "
                             "that no other program holds the file and that you may open it, then choose Retry.";
    if (!AskToRetry(owner, text.c_str(), TableString(IDS_TITLE))) return false;
  }
}
