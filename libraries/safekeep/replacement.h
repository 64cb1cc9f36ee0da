// Several files replaced, or none.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace safekeep {

struct Replacement {
  std::string name;
  std::string bytes;                  // that it is to hold
  std::optional<std::string> before;  // what it holds; none when there is no such file
};

// Writes a file whole, or removes it (none); whether that was done. If not, the file is as it was.
using PutFile = std::function<bool(const std::string& name, const std::optional<std::string>& bytes)>;

struct ReplacementResult {
  std::string failed;             // the file that could not be written; empty when all are replaced
  std::vector<std::string> left;  // those that could not be put back after that, and hold the new bytes
};

// Replaces the files in their order; those that hold the bytes already are left alone. When one cannot be written,
// those before it are put back, the last first.
ReplacementResult ReplaceAll(std::span<const Replacement> files, const PutFile& put);

}  // namespace safekeep
