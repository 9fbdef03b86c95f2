// Little-endian output for the picture encoders.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace glyphon {

class ByteWriter {
 public:
  void U8(std::uint8_t v) { bytes_.push_back(v); }
  void U16(std::uint16_t v) {
    U8(static_cast<std::uint8_t>(v));
    U8(static_cast<std::uint8_t>(v >> 8));
  }
  void U32(std::uint32_t v) {
    U16(static_cast<std::uint16_t>(v));
    U16(static_cast<std::uint16_t>(v >> 16));
  }
  void Bytes(std::span<const std::uint8_t> bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
  void Zeros(std::size_t count) { bytes_.insert(bytes_.end(), count, 0); }
  std::size_t Size() const { return bytes_.size(); }
  std::vector<std::uint8_t> Take() { return std::move(bytes_); }

 private:
  std::vector<std::uint8_t> bytes_;
};

// A 40-byte bitmap info header for an uncompressed bottom-up DIB of the given height.
inline void WriteInfoHeader(ByteWriter& out, int width, int height, int bitCount,
                            std::uint32_t sizeImage) {
  out.U32(40);
  out.U32(static_cast<std::uint32_t>(width));
  out.U32(static_cast<std::uint32_t>(height));
  out.U16(1);
  out.U16(static_cast<std::uint16_t>(bitCount));
  out.U32(0);  // BI_RGB
  out.U32(sizeImage);
  out.Zeros(16);  // resolution and colour counts
}

}  // namespace glyphon
