// The files of the settings folder that are the user's settings. Whatever the program or a library of it writes there
// by bare name stands here; what else lies in the folder is none of ours.
#pragma once

#include <span>
#include <string_view>

namespace safekeep {

struct KeptFile {
  std::string_view name;
  std::string_view what;  // in words for people, ASCII
};

// In the order in which they are shown, kept and restored: files that go together stand together.
std::span<const KeptFile> KeptFiles();

// Null for a name that is not ours, by exact spelling.
const KeptFile* FindKeptFile(std::string_view name);

}  // namespace safekeep
