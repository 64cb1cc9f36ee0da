#include "libraries/safekeep/zip_packing.h"

#define ZLIB_CONST
#include <zlib.h>

#include <algorithm>
#include <new>

namespace safekeep {
namespace {

constexpr int kBareDeflate = -MAX_WBITS;  // without a head of zlib's own
constexpr int kUsualMemory = 8;
constexpr size_t kChunkBytes = 1 << 16;

const Bytef* BytesOf(std::string_view text) {
  return reinterpret_cast<const Bytef*>(text.data());
}

// A stream that ends with the scope.
class Stream {
 public:
  Stream(std::string_view in, int (*end)(z_streamp)) : end_(end) {
    stream_.next_in = BytesOf(in);
    stream_.avail_in = static_cast<uInt>(in.size());
  }
  ~Stream() { end_(&stream_); }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  z_stream* Get() { return &stream_; }
  bool IsAllRead() const { return stream_.avail_in == 0; }

  // Room for so many bytes behind what a text holds.
  void WriteBehind(std::string& text, size_t room) {
    const size_t before = text.size();
    text.resize(before + room);
    stream_.next_out = reinterpret_cast<Bytef*>(text.data() + before);
    stream_.avail_out = static_cast<uInt>(room);
  }
  // Takes off what was not written.
  void Trim(std::string& text) const { text.resize(text.size() - stream_.avail_out); }

 private:
  z_stream stream_ = {};
  int (*end_)(z_streamp);
};

}  // namespace

uint32_t SumOf(std::string_view bytes) {
  return static_cast<uint32_t>(crc32(crc32(0, nullptr, 0), BytesOf(bytes), static_cast<uInt>(bytes.size())));
}

std::string Deflated(std::string_view bytes) {
  Stream stream(bytes, deflateEnd);
  if (deflateInit2(stream.Get(), Z_BEST_COMPRESSION, Z_DEFLATED, kBareDeflate, kUsualMemory, Z_DEFAULT_STRATEGY) !=
      Z_OK) {
    throw std::bad_alloc();
  }
  std::string packed;
  stream.WriteBehind(packed, deflateBound(stream.Get(), static_cast<uLong>(bytes.size())));
  deflate(stream.Get(), Z_FINISH);  // one call is enough, the bound says
  stream.Trim(packed);
  return packed;
}

std::optional<std::string> Inflated(std::string_view deflated, size_t size) {
  Stream stream(deflated, inflateEnd);
  if (inflateInit2(stream.Get(), kBareDeflate) != Z_OK) throw std::bad_alloc();
  std::string bytes;
  int state = Z_OK;
  while (state == Z_OK) {
    // One byte more than wanted, by which too long ones show.
    stream.WriteBehind(bytes, std::min(kChunkBytes, size + 1 - bytes.size()));
    state = inflate(stream.Get(), Z_NO_FLUSH);
    stream.Trim(bytes);
    if (bytes.size() > size) return std::nullopt;
  }
  if (state == Z_MEM_ERROR) throw std::bad_alloc();
  if (state != Z_STREAM_END || !stream.IsAllRead() || bytes.size() != size) return std::nullopt;
  return bytes;
}

}  // namespace safekeep
