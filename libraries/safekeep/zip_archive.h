// Zip archives in memory, written and read. The form is that of PKWARE's APPNOTE.TXT 6.3, of which only what every
// program for zips understands is written: entries deflated or stored, without comments and extra fields.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace safekeep {

// A time as archives have it: by the clock on the wall, in steps of two seconds, the years 1980 to 2107.
struct DosTime {
  uint16_t date = 0x21;  // year - 1980, month, day in 7, 4 and 5 bits, the year's highest; at first 1 January 1980
  uint16_t time = 0;     // hour, minute, half of the second in 5, 6 and 5 bits, the hour's highest

  bool operator==(const DosTime&) const = default;
};

struct ZipEntry {
  std::string name;
  DosTime changed;
  std::string bytes;
};

// What an archive may hold, so that a small file cannot fill the memory.
inline constexpr size_t kMostEntries = 100;
inline constexpr size_t kMostEntryBytes = 16 << 20;
inline constexpr size_t kMostBytes = 32 << 20;                       // of all entries together
inline constexpr size_t kMostArchiveBytes = kMostBytes + (1 << 20);  // with room for names

// The archive of entries within these limits, in their order. Names are ASCII and shorter than 65536 bytes. The same
// entries make the same bytes.
std::string ZipOf(std::span<const ZipEntry> entries);

enum class ZipFault {
  kNone,
  kNotZip,
  kDamaged,
  kTooLarge,  // beyond the limits
  kZip64,     // the form for archives beyond 4 GB
  kInParts,   // one of several files
  kEncrypted,
  kPackedOtherwise,  // neither deflated nor stored
};

struct ZipReading {
  ZipFault fault = ZipFault::kNone;
  std::string entry;              // the name of the one at fault; empty when it is the whole
  std::vector<ZipEntry> entries;  // in the archive's order; none when there is a fault
};

// Everything in it is checked: sizes, sums, and that its two descriptions of each entry agree.
ZipReading ReadZip(std::string_view archive);

}  // namespace safekeep
