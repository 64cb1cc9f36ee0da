// backup_and_restore write ZIP FILE...: the backup of files of 22 November 2026, 17:33:04, in ZIP.
// backup_and_restore read ZIP FOLDER: its files into the folder; their names, or why it is none, go to the output.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"

namespace fs = std::filesystem;
using namespace safekeep;

namespace {

constexpr Moment kMade = {2026, 11, 22, 17, 33, 4};

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

int Write(const fs::path& zip, const std::vector<fs::path>& files) {
  Backup backup = {"6.0.0.0001R", kMade, {}};
  for (const fs::path& file : files) {
    backup.files.push_back({file.filename().string(), DosTimeOf(kMade), BytesOf(file)});
  }
  std::ofstream(zip, std::ios::binary) << BackupOf(backup);
  return 0;
}

int Read(const fs::path& zip, const fs::path& folder) {
  const BackupReading reading = ReadBackup(BytesOf(zip));
  if (!reading.backup) {
    std::puts(reading.fault.c_str());
    return 1;
  }
  fs::create_directories(folder);
  for (const ZipEntry& file : reading.backup->files) {
    std::ofstream(folder / file.name, std::ios::binary) << file.bytes;
    std::printf("%s %s\n", file.name.c_str(), MinuteText(MomentOf(file.changed)).c_str());
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments, arguments + count);
  if (words.size() > 3 && words[1] == "write") return Write(words[2], {words.begin() + 3, words.end()});
  if (words.size() == 4 && words[1] == "read") return Read(words[2], words[3]);
  std::fputs("backup_and_restore write ZIP FILE... | read ZIP FOLDER\n", stderr);
  return 2;
}
