#include "libraries/safekeep/zip_archive.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "libraries/safekeep/zip_packing.h"

namespace safekeep {
namespace {

// Signatures, and the lengths of the records that they begin without their names, extra fields and comments.
constexpr uint32_t kLocalSignature = 0x04034B50;
constexpr uint32_t kCentralSignature = 0x02014B50;
constexpr uint32_t kEndSignature = 0x06054B50;
constexpr uint32_t kZip64LocatorSignature = 0x07064B50;
constexpr size_t kLocalLength = 30;
constexpr size_t kCentralLength = 46;
constexpr size_t kEndLength = 22;
constexpr size_t kZip64LocatorLength = 20;
constexpr size_t kLongestComment = 0xFFFF;

constexpr uint16_t kVersion = 20;  // 2.0, the first with deflated entries
constexpr uint16_t kStored = 0;
constexpr uint16_t kDeflated = 8;
constexpr uint16_t kEncryptedFlag = 1 << 0;
constexpr uint16_t kSizesFollowFlag = 1 << 3;  // sum and sizes stand behind the bytes; before them they are 0

// In a field of 16 or 32 bits: the number stands in a record of zip64.
constexpr uint16_t kElsewhere16 = 0xFFFF;
constexpr uint32_t kElsewhere32 = 0xFFFFFFFF;

// What an entry's two records have in common, in their order.
struct Description {
  uint16_t flags = 0;
  uint16_t method = kStored;
  DosTime changed;
  uint32_t sum = 0;
  uint32_t packedSize = 0;
  uint32_t size = 0;

  bool operator==(const Description&) const = default;
};

void Put16(std::string& out, size_t number) {
  out += static_cast<char>(number & 0xFF);
  out += static_cast<char>(number >> 8 & 0xFF);
}
void Put32(std::string& out, size_t number) {
  Put16(out, number & 0xFFFF);
  Put16(out, number >> 16);
}

void PutDescription(std::string& out, const Description& description) {
  Put16(out, kVersion);
  Put16(out, description.flags);
  Put16(out, description.method);
  Put16(out, description.changed.time);
  Put16(out, description.changed.date);
  Put32(out, description.sum);
  Put32(out, description.packedSize);
  Put32(out, description.size);
}

// Reads numbers one after the other; the caller has seen to it that they are there.
class Numbers {
 public:
  explicit Numbers(std::string_view bytes) : bytes_(bytes) {}

  uint16_t Take16() {
    const auto byte = [this](size_t i) { return static_cast<uint16_t>(static_cast<unsigned char>(bytes_[i])); };
    const auto number = static_cast<uint16_t>(byte(0) | byte(1) << 8);
    bytes_.remove_prefix(2);
    return number;
  }
  uint32_t Take32() {
    const uint32_t low = Take16();
    return low | uint32_t{Take16()} << 16;
  }

 private:
  std::string_view bytes_;
};

Description TakeDescription(Numbers& numbers) {
  numbers.Take16();  // the version that is needed
  Description description;
  description.flags = numbers.Take16();
  description.method = numbers.Take16();
  description.changed.time = numbers.Take16();
  description.changed.date = numbers.Take16();
  description.sum = numbers.Take32();
  description.packedSize = numbers.Take32();
  description.size = numbers.Take32();
  return description;
}

bool StartsWith(std::string_view bytes, uint32_t signature, size_t length) {
  return bytes.size() >= length && Numbers(bytes).Take32() == signature;
}

// An entry as the directory at the end describes it.
struct Listed {
  std::string name;
  Description description;
  size_t local = 0;  // where its local record begins
};

class Reader {
 public:
  explicit Reader(std::string_view archive) : archive_(archive) {}

  ZipReading Read() {
    if (archive_.size() > kMostArchiveBytes) return Fault(ZipFault::kTooLarge);
    const std::optional<size_t> end = FindEnd();
    if (!end)
      return Fault(StartsWith(archive_, kLocalSignature, kLocalLength) ? ZipFault::kDamaged : ZipFault::kNotZip);
    if (const ZipFault fault = ReadDirectory(*end); fault != ZipFault::kNone) return Fault(fault);
    for (const Listed& listed : listed_) {
      if (const ZipFault fault = Extract(listed); fault != ZipFault::kNone) return Fault(fault, listed.name);
    }
    return {ZipFault::kNone, "", std::move(entries_)};
  }

 private:
  static ZipReading Fault(ZipFault fault, std::string entry = {}) { return {fault, std::move(entry), {}}; }

  // Its record ends the archive with a comment of the length that it says; the last place that looks so counts.
  std::optional<size_t> FindEnd() const {
    if (archive_.size() < kEndLength) return std::nullopt;
    const size_t last = archive_.size() - kEndLength;
    for (size_t comment = 0; comment <= std::min(last, kLongestComment); ++comment) {
      const std::string_view record = archive_.substr(last - comment);
      if (!StartsWith(record, kEndSignature, kEndLength)) continue;
      if (Numbers(record.substr(kEndLength - 2)).Take16() == comment) return last - comment;
    }
    return std::nullopt;
  }

  ZipFault ReadDirectory(size_t end) {
    Numbers numbers(archive_.substr(end + 4));
    const uint16_t disk = numbers.Take16();
    const uint16_t directoryDisk = numbers.Take16();
    const uint16_t countHere = numbers.Take16();
    const uint16_t count = numbers.Take16();
    const uint32_t size = numbers.Take32();
    const uint32_t start = numbers.Take32();
    const bool hasLocator = end >= kZip64LocatorLength && StartsWith(archive_.substr(end - kZip64LocatorLength),
                                                                     kZip64LocatorSignature, kZip64LocatorLength);
    if (hasLocator || count == kElsewhere16 || size == kElsewhere32 || start == kElsewhere32) return ZipFault::kZip64;
    if (disk != 0 || directoryDisk != 0 || countHere != count) return ZipFault::kInParts;
    if (count > kMostEntries) return ZipFault::kTooLarge;
    if (start > end || size != end - start) return ZipFault::kDamaged;
    directoryStart_ = start;
    return ReadListed(archive_.substr(start, size), count);
  }

  ZipFault ReadListed(std::string_view directory, size_t count) {
    size_t bytes = 0;
    for (size_t i = 0; i < count; ++i) {
      if (!StartsWith(directory, kCentralSignature, kCentralLength)) return ZipFault::kDamaged;
      Numbers numbers(directory.substr(6));
      Listed listed;
      listed.description = TakeDescription(numbers);
      const size_t nameLength = numbers.Take16();
      const size_t extraLength = numbers.Take16();
      const size_t commentLength = numbers.Take16();
      const uint16_t disk = numbers.Take16();
      numbers.Take16();  // attributes
      numbers.Take32();
      listed.local = numbers.Take32();
      const size_t length = kCentralLength + nameLength + extraLength + commentLength;
      if (directory.size() < length) return ZipFault::kDamaged;
      if (disk != 0) return ZipFault::kInParts;
      listed.name = directory.substr(kCentralLength, nameLength);
      directory.remove_prefix(length);
      const Description& description = listed.description;
      if (description.packedSize == kElsewhere32 || description.size == kElsewhere32 || listed.local == kElsewhere32) {
        return ZipFault::kZip64;
      }
      bytes += description.size;
      if (description.size > kMostEntryBytes || bytes > kMostBytes) return ZipFault::kTooLarge;
      listed_.push_back(std::move(listed));
    }
    return directory.empty() ? ZipFault::kNone : ZipFault::kDamaged;
  }

  ZipFault Extract(const Listed& listed) {
    const Description& description = listed.description;
    if (description.flags & kEncryptedFlag) return ZipFault::kEncrypted;
    if (description.method != kStored && description.method != kDeflated) return ZipFault::kPackedOtherwise;
    std::string_view packed;
    if (const ZipFault fault = FindBytes(listed, &packed); fault != ZipFault::kNone) return fault;
    std::optional<std::string> bytes;
    if (description.method == kDeflated) {
      bytes = Inflated(packed, description.size);
    } else if (packed.size() == description.size) {
      bytes = std::string(packed);
    }
    if (!bytes || SumOf(*bytes) != description.sum) return ZipFault::kDamaged;
    entries_.push_back({listed.name, description.changed, std::move(*bytes)});
    return ZipFault::kNone;
  }

  // packed: where the local record says what the directory says.
  ZipFault FindBytes(const Listed& listed, std::string_view* packed) const {
    if (listed.local > directoryStart_) return ZipFault::kDamaged;
    std::string_view rest = archive_.substr(listed.local, directoryStart_ - listed.local);
    if (!StartsWith(rest, kLocalSignature, kLocalLength)) return ZipFault::kDamaged;
    Numbers numbers(rest.substr(4));
    const Description local = TakeDescription(numbers);
    const size_t nameLength = numbers.Take16();
    const size_t extraLength = numbers.Take16();
    if (local.packedSize == kElsewhere32 && local.size == kElsewhere32) return ZipFault::kZip64;
    Description expected = listed.description;
    if ((expected.flags & kSizesFollowFlag) && local.sum == 0 && local.size == 0 && local.packedSize == 0) {
      expected.sum = expected.size = expected.packedSize = 0;
    }
    rest.remove_prefix(kLocalLength);
    if (local != expected || rest.size() < nameLength + extraLength || rest.substr(0, nameLength) != listed.name) {
      return ZipFault::kDamaged;
    }
    rest.remove_prefix(nameLength + extraLength);
    *packed = rest.substr(0, listed.description.packedSize);
    return packed->size() == listed.description.packedSize ? ZipFault::kNone : ZipFault::kDamaged;
  }

  std::string_view archive_;
  size_t directoryStart_ = 0;
  std::vector<Listed> listed_;
  std::vector<ZipEntry> entries_;
};

}  // namespace

std::string ZipOf(std::span<const ZipEntry> entries) {
  std::string archive;
  std::string directory;
  for (const ZipEntry& entry : entries) {
    const std::string deflated = Deflated(entry.bytes);
    const bool isDeflated = deflated.size() < entry.bytes.size();
    const std::string& packed = isDeflated ? deflated : entry.bytes;
    const Description description = {0,
                                     isDeflated ? kDeflated : kStored,
                                     entry.changed,
                                     SumOf(entry.bytes),
                                     static_cast<uint32_t>(packed.size()),
                                     static_cast<uint32_t>(entry.bytes.size())};
    Put32(directory, kCentralSignature);
    Put16(directory, kVersion);  // what made it
    PutDescription(directory, description);
    Put16(directory, entry.name.size());
    for (int i = 0; i < 4; ++i) Put16(directory, 0);  // extra field, comment, disk, attributes of the text
    Put32(directory, 0);                              // attributes of the file
    Put32(directory, archive.size());
    directory += entry.name;

    Put32(archive, kLocalSignature);
    PutDescription(archive, description);
    Put16(archive, entry.name.size());
    Put16(archive, 0);  // extra field
    archive.append(entry.name).append(packed);
  }
  const size_t start = archive.size();
  archive += directory;
  Put32(archive, kEndSignature);
  Put32(archive, 0);  // disks
  Put16(archive, entries.size());
  Put16(archive, entries.size());
  Put32(archive, directory.size());
  Put32(archive, start);
  Put16(archive, 0);  // comment
  return archive;
}

ZipReading ReadZip(std::string_view archive) {
  return Reader(archive).Read();
}

}  // namespace safekeep
