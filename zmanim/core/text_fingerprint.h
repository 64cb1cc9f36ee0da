#pragma once

#include <cstdint>
#include <string_view>

// A fingerprint of texts in their order: FNV-1a with 64 bits (Fowler, Noll, Vo), each text closed by a zero byte, so
// that where one ends counts too.
class TextFingerprint {
 public:
  void Add(std::string_view text) {
    for (const char c : text) AddByte(static_cast<uint8_t>(c));
    AddByte(0);
  }
  uint64_t value() const { return hash_; }

 private:
  void AddByte(uint8_t byte) { hash_ = (hash_ ^ byte) * 0x100000001b3; }

  uint64_t hash_ = 0xcbf29ce484222325;
};
