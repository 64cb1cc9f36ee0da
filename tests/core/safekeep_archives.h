// Archives and backups as tests make and spoil them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"

namespace safekeep_test {

// 22 November 2026, 17:33:04.
inline constexpr safekeep::Moment kMade = {2026, 11, 22, 17, 33, 4};
inline constexpr safekeep::DosTime kMadeDos = {(2026 - 1980) << 9 | 11 << 5 | 22, 17 << 11 | 33 << 5 | 4 / 2};

inline std::vector<safekeep::ZipEntry> SomeFiles() {
  const std::string places = "[Locations]\r\nHome=Available\r\nSummer house=Available\r\nHouse at home=Available\r\n";
  return {{"shabbat2.ini", kMadeDos, places}, {"stamp.ini", {}, "[Times]\r\nForm=12\r\n"}, {"hours.txt", kMadeDos, ""}};
}

inline safekeep::Backup SomeBackup() {
  return {"6.0.0.0001R", kMade, SomeFiles()};
}

// The about text of a backup, as SomeBackup has it but for what is replaced in it.
inline std::string AboutText(const std::string& from = "", const std::string& to = "") {
  std::string text = safekeep::ReadZip(safekeep::BackupOf(SomeBackup())).entries.at(0).bytes;
  if (!from.empty()) text.replace(text.find(from), from.size(), to);
  return text;
}

// SomeBackup's archive with another about text and other files.
inline std::string BackupWith(const std::string& about, std::vector<safekeep::ZipEntry> files) {
  files.insert(files.begin(), {std::string(safekeep::kAboutName), {}, about});
  return safekeep::ZipOf(files);
}

// Puts a number of so many bytes, the lowest first, into an archive.
inline void Poke(std::string& archive, size_t at, uint64_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) archive.at(at + static_cast<size_t>(i)) = static_cast<char>(number >> 8 * i);
}

// Where the n-th record with the signature begins: "PK" and two numbers.
inline size_t Record(const std::string& archive, char kind, char kind2, int n = 0) {
  const std::string signature = {'P', 'K', kind, kind2};
  size_t at = archive.find(signature);
  while (n-- > 0) at = archive.find(signature, at + 1);
  return at;
}
inline size_t Local(const std::string& archive, int n = 0) {
  return Record(archive, 3, 4, n);
}
inline size_t Central(const std::string& archive, int n = 0) {
  return Record(archive, 1, 2, n);
}
inline size_t End(const std::string& archive) {
  return Record(archive, 5, 6);
}

}  // namespace safekeep_test
