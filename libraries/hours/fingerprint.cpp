#include "libraries/hours/fingerprint.h"

#include <string_view>

namespace hours {
namespace {

// FNV-1a of 64 bits (Fowler, Noll, Vo). Numbers count as four bytes, the lowest first, and texts have their length
// before them, so that no two lists of fields are the same bytes.
class Hash {
 public:
  void Add(std::string_view text) {
    Add(static_cast<uint32_t>(text.size()));
    for (const char c : text) AddByte(static_cast<uint8_t>(c));
  }
  void Add(uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) AddByte(static_cast<uint8_t>(number >> shift));
  }
  void Add(int32_t number) { Add(static_cast<uint32_t>(number)); }
  void Add(const Bound& bound) {
    Add(static_cast<uint32_t>(bound.kind));
    Add(bound.thousandths);
  }
  void Add(const Reckoning& reckoning) {
    Add(reckoning.day.start);
    Add(reckoning.day.end);
    Add(reckoning.thousandthHours);
    Add(reckoning.thousandthMinutes);
  }
  void Add(const Definition& zman) {
    Add(zman.reckoning);
    Add(static_cast<uint32_t>(zman.rounding));
    Add((zman.notBefore ? 1u : 0u) | (zman.notAfter ? 2u : 0u));
    if (zman.notBefore) Add(*zman.notBefore);
    if (zman.notAfter) Add(*zman.notAfter);
    Add(uint32_t{zman.isForPesachEve ? 1u : 0u});
  }

  // FNV leaves its last bytes' traces in the low bits only; the finish of MurmurHash3 (Appleby) spreads them, so that
  // either half of the number serves.
  uint64_t Mixed() const {
    uint64_t mixed = hash_;
    mixed = (mixed ^ (mixed >> 33)) * 0xFF51AFD7ED558CCDu;
    mixed = (mixed ^ (mixed >> 33)) * 0xC4CEB9FE1A85EC53u;
    return mixed ^ (mixed >> 33);
  }

 private:
  void AddByte(uint8_t byte) { hash_ = (hash_ ^ byte) * 0x100000001B3u; }

  uint64_t hash_ = 0xCBF29CE484222325u;
};

}  // namespace

uint64_t FingerprintOf(std::span<const DescribedZman> zmanim) {
  Hash hash;
  hash.Add(static_cast<uint32_t>(zmanim.size()));
  for (const DescribedZman& zman : zmanim) {
    hash.Add(zman.description);
    hash.Add(zman.hebrew);
    hash.Add(zman.definition);
  }
  return hash.Mixed();
}

}  // namespace hours
