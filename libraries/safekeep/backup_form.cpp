#include "libraries/safekeep/backup_form.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <utility>

#include "libraries/safekeep/kept_files.h"
#include "libraries/settings_folder/text_lines.h"

namespace safekeep {
namespace {

constexpr std::string_view kFirstLine = "Times / Readings: a backup of the settings";
constexpr std::string_view kFormKey = "Form: ";
constexpr std::string_view kVersionKey = "Version: ";
constexpr std::string_view kMadeKey = "Made: ";
constexpr std::string_view kFilesKey = "Files: ";
constexpr std::string_view kAdvice =
    "To bring these settings back, choose \"Restore settings...\" in the program's menu \"Settings\".";

constexpr int kForm = 1;
constexpr size_t kMostDigits = 6;
constexpr size_t kLongestVersion = 40;
constexpr size_t kLongestShownName = 80;

constexpr int kFirstDosYear = 1980;
constexpr int kLastDosYear = 2107;

constexpr char kTryAnother[] = "Choose another backup.";

template <typename... Numbers>
std::string Printed(const char* format, Numbers... numbers) {
  char text[100];
  std::snprintf(text, sizeof text, format, numbers...);
  return text;
}

std::string SecondText(const Moment& moment) {
  return MinuteText(moment) + Printed(":%02d", moment.second);
}

std::string AboutText(const Backup& backup) {
  std::string text;
  const auto add = [&text](std::string_view key, std::string_view value) {
    text.append(key).append(value).append("\r\n");
  };
  add(kFirstLine, "");
  add("", "");
  add(kFormKey, std::to_string(kForm));
  add(kVersionKey, backup.version);
  add(kMadeKey, SecondText(backup.made));
  add(kFilesKey, std::to_string(backup.files.size()));
  add("", "");
  add("", kAdvice);
  return text;
}

// What the about text says; nothing where it does not say it.
struct About {
  bool isOurs = false;
  std::optional<int> form;
  std::optional<int> files;
  std::string version;
  std::optional<Moment> made;
};

std::optional<int> NumberIn(std::string_view text) {
  if (text.empty() || text.size() > kMostDigits) return std::nullopt;
  int number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return number;
}

bool IsMoment(const Moment& moment) {
  return moment.month >= 1 && moment.month <= 12 && moment.day >= 1 && moment.day <= 31 && moment.hour <= 23 &&
         moment.minute <= 59 && moment.second <= 60;
}

// A text just like SecondText's.
std::optional<Moment> MomentIn(std::string_view text) {
  constexpr std::string_view kPattern = "0000-00-00 00:00:00";
  if (text.size() != kPattern.size()) return std::nullopt;
  int numbers[6] = {};
  size_t field = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (kPattern[i] != '0') {
      if (text[i] != kPattern[i]) return std::nullopt;
      ++field;
      continue;
    }
    const std::optional<int> digit = NumberIn(text.substr(i, 1));
    if (!digit) return std::nullopt;
    numbers[field] = numbers[field] * 10 + *digit;
  }
  const Moment moment = {numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]};
  return IsMoment(moment) ? std::optional(moment) : std::nullopt;
}

bool IsPrintable(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

About AboutIn(std::string_view text) {
  About about;
  for (const settings_folder::Line& line : settings_folder::LinesOf(text)) {
    const auto is = [&line](std::string_view key) { return line.content.starts_with(key); };
    const auto value = [&line](std::string_view key) { return line.content.substr(key.size()); };
    if (line.content == kFirstLine) about.isOurs = true;
    if (is(kFormKey)) about.form = NumberIn(value(kFormKey));
    if (is(kFilesKey)) about.files = NumberIn(value(kFilesKey));
    if (is(kVersionKey)) about.version = value(kVersionKey);
    if (is(kMadeKey)) about.made = MomentIn(value(kMadeKey));
  }
  if (about.version.size() > kLongestVersion || !IsPrintable(about.version)) about.version.clear();
  return about;
}

// An entry's name from a file that may say anything.
std::string Shown(std::string_view name) {
  std::string shown;
  for (const char c : name.substr(0, kLongestShownName)) shown += c >= ' ' && c <= '~' ? c : '?';
  if (name.size() > kLongestShownName) shown += "...";
  return "\"" + shown + "\"";
}

std::string WordsFor(ZipFault fault, const std::string& entry) {
  const std::string what = entry.empty() ? "It" : "Its entry " + Shown(entry);
  const std::string packAgain =
      " Unpack it with the program that made it, pack the files again as a plain zip, and "
      "choose that.";
  switch (fault) {
    case ZipFault::kNone: return "";
    case ZipFault::kNotZip: return std::string("It is not a zip file. ") + kTryAnother;
    case ZipFault::kDamaged:
      return what +
             " is damaged or not complete. Fetch the backup once more from where it came from, or choose "
             "another one.";
    case ZipFault::kTooLarge: return std::string("It is far too large for a backup of settings. ") + kTryAnother;
    case ZipFault::kZip64: return "It is a zip of the kind for huge files (zip64)." + packAgain;
    case ZipFault::kInParts: return "It is one of several parts of a zip." + packAgain;
    case ZipFault::kEncrypted: return what + " is encrypted." + packAgain;
    case ZipFault::kPackedOtherwise: return what + " is packed by a method that is not known here." + packAgain;
  }
  return "";
}

// Why the about text does not stand for a backup of ours; empty when it does.
std::string FaultOfAbout(const About& about) {
  if (!about.isOurs || !about.form) {
    return std::string("It is not a backup of this program's settings. ") + kTryAnother;
  }
  if (*about.form > kForm) {
    return "It was made by a newer version of the program" +
           (about.version.empty() ? std::string() : " (" + about.version + ")") +
           ", whose backups this version does not know. Install that version, then restore again.";
  }
  if (about.form == 0 || !about.files || *about.files == 0 || about.version.empty() || !about.made) {
    return "Its entry " + Shown(kAboutName) + " does not say what it should. " + kTryAnother;
  }
  return "";
}

// Why the files are not those of a backup; empty when they are.
std::string FaultOfFiles(const std::vector<ZipEntry>& files, size_t expected) {
  std::set<std::string_view> names;
  for (const ZipEntry& file : files) {
    if (!FindKeptFile(file.name)) {
      return "Its entry " + Shown(file.name) + " is no settings file that this version of the program knows. " +
             kTryAnother;
    }
    if (!names.insert(file.name).second) return "It has the entry " + Shown(file.name) + " twice. " + kTryAnother;
  }
  if (files.size() == expected) return "";
  return "It is not complete: it should hold " + std::to_string(expected) + " settings files and holds " +
         std::to_string(files.size()) + ". " + kTryAnother;
}

// In the order of the table, whatever a program for zips has made of it.
void PutInOrder(std::vector<ZipEntry>& files) {
  std::sort(files.begin(), files.end(), [](const ZipEntry& left, const ZipEntry& right) {
    return FindKeptFile(left.name) < FindKeptFile(right.name);
  });
}

}  // namespace

DosTime DosTimeOf(const Moment& moment) {
  if (moment.year < kFirstDosYear) return {};
  if (moment.year > kLastDosYear) return DosTimeOf({kLastDosYear, 12, 31, 23, 59, 59});
  const int second = std::min(moment.second, 59);
  return {static_cast<uint16_t>((moment.year - kFirstDosYear) << 9 | moment.month << 5 | moment.day),
          static_cast<uint16_t>(moment.hour << 11 | moment.minute << 5 | second / 2)};
}

Moment MomentOf(const DosTime& time) {
  return {kFirstDosYear + (time.date >> 9),
          time.date >> 5 & 0xF,
          time.date & 0x1F,
          time.time >> 11,
          time.time >> 5 & 0x3F,
          (time.time & 0x1F) * 2};
}

std::string DateText(const Moment& moment) {
  return Printed("%04d-%02d-%02d", moment.year, moment.month, moment.day);
}

std::string MinuteText(const Moment& moment) {
  return DateText(moment) + Printed(" %02d:%02d", moment.hour, moment.minute);
}

std::string OfferedName(const Moment& moment) {
  return "Times Readings settings " + DateText(moment) + ".zip";
}

std::string BeforeRestoringName(const Moment& moment, int number) {
  return "Before restoring " + DateText(moment) +
         Printed(" %02d.%02d.%02d", moment.hour, moment.minute, moment.second) +
         (number == 1 ? "" : " (" + std::to_string(number) + ")") + ".zip";
}

std::string BackupOf(const Backup& backup) {
  std::vector<ZipEntry> entries = {{std::string(kAboutName), DosTimeOf(backup.made), AboutText(backup)}};
  entries.insert(entries.end(), backup.files.begin(), backup.files.end());
  return ZipOf(entries);
}

BackupReading ReadBackup(std::string_view archive) {
  ZipReading zip = ReadZip(archive);
  if (zip.fault != ZipFault::kNone) return {std::nullopt, WordsFor(zip.fault, zip.entry)};
  const auto isAbout = [](const ZipEntry& entry) { return entry.name == kAboutName; };
  const auto found = std::find_if(zip.entries.begin(), zip.entries.end(), isAbout);
  const About about = found == zip.entries.end() ? About() : AboutIn(found->bytes);
  if (std::string fault = FaultOfAbout(about); !fault.empty()) return {std::nullopt, std::move(fault)};
  zip.entries.erase(found);
  std::string fault = FaultOfFiles(zip.entries, static_cast<size_t>(*about.files));
  if (!fault.empty()) return {std::nullopt, std::move(fault)};
  PutInOrder(zip.entries);
  return {Backup{about.version, *about.made, std::move(zip.entries)}, ""};
}

}  // namespace safekeep
