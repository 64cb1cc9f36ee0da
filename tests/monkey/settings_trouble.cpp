#include "tests/monkey/settings_trouble.h"

#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr const char* kFiles[] = {
    "shabbat2.ini", "shabloc2.ini", "shab30.ini",   "almanac13.ini", "solar.ini",
    "stamp.ini",    "hours.txt",    "lections.ini", "candles.txt",   "almanacelevation.ini",
    "ownhours.txt", "persons.txt",  "kinship.ini",  "readings.txt"};

// Sound settings that another copy, or the user in an editor, might have stored.
struct Sound {
  const char* file;
  const char* text;
};
constexpr Sound kSound[] = {
    {"shabbat2.ini", "[Shabbat]\r\nCandleLighting=40\r\nEnd=72\r\n"},
    {"shabbat2.ini", "[Shabbat]\r\nCandleLighting=18\r\nEnd=45\r\n"},
    {"almanac13.ini", "[Preferences]\r\nDefaultLocation=Jerusalem\r\n"},
    {"almanac13.ini", "[Preferences]\r\nDefaultLocation=Nowhere at all\r\n"},
    {"stamp.ini", "[Times]\r\nForm=12\r\n"},
    {"stamp.ini", "[Times]\r\nForm=24\r\n"},
    {"solar.ini", "[SummerTime]\r\nMode=Off\r\n"},
    {"solar.ini", ""},
    {"hours.txt", ""},
    {"lections.ini", ""},
    {"persons.txt", "yahrzeit|5710-12-16 jewish|both|Moshe||\r\nbirthday|2020-02-29 evening||Sarah||two%0Alines\r\n"},
    {"persons.txt", ""},
    {"readings.txt",
     "portion Noach | haftarah 1 | all | all | all | after | ; Morning: A\r\nportion Noah | nonsense\r\n"},
    {"readings.txt", ""},
};

std::string Read(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

std::string Nonsense(Dice& dice) {
  std::string text;
  for (int left = dice.Between(0, 2000); left > 0; --left) {
    text += dice.Chance(20) ? dice.Pick(std::string("[]=\r\n\t ;:0123456789-.")) : static_cast<char>(dice.Below(256));
  }
  return text;
}

bool IsIniLine(const std::string& line) {
  if (line.find_first_not_of(" \t\r") == std::string::npos || line.front() == ';' || line.front() == '[') return true;
  return line.find('=') != std::string::npos;
}

// The first line of an INI file that is none, or a zero byte of any file.
std::string FaultIn(const fs::path& file) {
  const std::string text = Read(file);
  if (text.find('\0') != std::string::npos) return file.filename().string() + " holds a zero byte\n";
  if (file.extension() != ".ini") return "";
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!IsIniLine(line)) return file.filename().string() + " has the line \"" + line + "\"\n";
  }
  return "";
}

}  // namespace

std::string SettingsTrouble::Make(Dice& dice) {
  const std::string file = dice.Pick(kFiles);
  const int kind = dice.Between(1, 10);
  if (holds() || kind <= 4) return Hold(file);
  if (kind <= 8) {
    const Sound& sound = dice.Pick(kSound);
    return Rewrite(sound.file, sound.text);
  }
  spoiled_.insert(file);
  if (kind == 9) return Rewrite(file, Nonsense(dice));
  const std::string text = Read(folder_ / file);
  return Rewrite(file, text.substr(0, dice.Below(text.size() + 1)));
}

// One file at a time; another lets the first go.
std::string SettingsTrouble::Hold(const std::string& file) {
  if (holds()) {
    Release();
    return "let the held file go";
  }
  held_ = CreateFileA((folder_ / file).string().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  return "hold " + file + (holds() ? "" : " (there is none)");
}

void SettingsTrouble::Release() {
  if (holds()) CloseHandle(held_);
  held_ = INVALID_HANDLE_VALUE;
}

std::string SettingsTrouble::Rewrite(const std::string& file, const std::string& text) {
  std::ofstream(folder_ / file, std::ios::binary) << text;
  return "rewrite " + file + " with " + std::to_string(text.size()) + " bytes";
}

std::string SettingsTrouble::Judge() const {
  std::string faults;
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file() && spoiled_.count(name) == 0) faults += FaultIn(entry.path());
  }
  return faults;
}
