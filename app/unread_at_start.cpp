#include "app/unread_at_start.h"

#include <string>
#include <vector>

#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "resources/ids.h"
#include "win/message_box.h"

namespace {

// What decides what the program shows: its own settings and those of the companion libraries.
constexpr const char* kFiles[] = {"shabbat2.ini", "shabloc2.ini", "shab30.ini",   "almanac13.ini",
                                  "solar.ini",    "stamp.ini",    "lections.ini", "almanacelevation.ini",
                                  "hours.txt",    "candles.txt",  "ownhours.txt", "readings.txt",
                                  "occasions.ini"};

std::string Question(const std::vector<std::string>& unread) {
  std::string text = "These settings files cannot be read:\n\n";
  for (const std::string& file : unread) text += file + "\n";
  return text +
         "\nPlease see to it that no other program holds them and that you may open them, then choose Try Again.\n"
         "Continue starts the program as if there were no such settings; what the files hold stays as it is.\n"
         "Cancel does not start the program.";
}

}  // namespace

bool GoOnWithUnreadSettings() {
  for (;;) {
    const std::vector<std::string> unread = UnreadSettings(kFiles);
    if (unread.empty()) return true;
    const Onward onward = AskHowToGoOn(nullptr, Question(unread).c_str(), TableString(IDS_TITLE));
    if (onward != Onward::kTryAgain) return onward == Onward::kContinue;
  }
}
