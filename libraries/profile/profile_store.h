// The INI files that a process has asked for, kept parsed.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "libraries/profile/ini_document.h"
#include "libraries/settings_folder/watched_file.h"

namespace profile {

// May be used by several threads at once. Files are named by 8-bit texts, bare (in the settings folder) or with a path.
class Store {
 public:
  // The file as it stands. Own edits are seen at once, those of others after at most 50 ms. A file that cannot be read
  // is empty, or as it was last seen.
  std::shared_ptr<const IniDocument> Read(const char* file);

  // Whether Read answers what the file holds at this moment, or holds what it last held: not when another process keeps
  // a file to itself that has changed since, or that was never read. Asks the file itself.
  bool CanRead(const char* file);

  // What an edit makes of a file's text; none when it cannot be done.
  using Change = std::function<std::optional<std::string>(const IniDocument& document)>;

  // Changes the file as it stands on the disk, alone among all processes. The change may be asked for again when
  // another program writes the file meanwhile. Whether the file now holds the change; if not, it is as others left it.
  bool Edit(const char* file, const Change& change);

 private:
  struct File {
    explicit File(const char* name) : watched(name) {}

    settings_folder::WatchedFile watched;
    std::shared_ptr<const IniDocument> document = std::make_shared<IniDocument>("");
  };

  File& FileNamed(const char* name);
  static void Refresh(File& file);

  std::mutex mutex_;
  std::map<std::string, File, std::less<>> files_;
};

}  // namespace profile
