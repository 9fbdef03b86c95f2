// Bounds-checked little-endian reading of outside data. Every read past the end throws a
// DecodeError naming what was being read, so decoders need no length checks of their own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/codec/picture_error.h"

namespace glyphon {

class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> data) : data_(data) {}

  std::size_t Size() const { return data_.size(); }
  std::size_t Position() const { return position_; }
  std::size_t Remaining() const { return data_.size() - position_; }
  bool AtEnd() const { return position_ == data_.size(); }

  void Seek(std::uint64_t position, const char* what) {
    if (position > data_.size()) throw DecodeError(std::string(what) + " lies beyond the data");
    position_ = static_cast<std::size_t>(position);
  }
  void Skip(std::uint64_t count, const char* what) { Bytes(count, what); }

  std::span<const std::uint8_t> Bytes(std::uint64_t count, const char* what) {
    if (count > Remaining()) throw DecodeError(std::string(what) + " ends early");
    const std::span<const std::uint8_t> bytes = data_.subspan(position_, static_cast<std::size_t>(count));
    position_ += static_cast<std::size_t>(count);
    return bytes;
  }

  std::uint8_t U8(const char* what) { return Bytes(1, what)[0]; }
  std::uint16_t U16(const char* what) {
    const auto b = Bytes(2, what);
    return static_cast<std::uint16_t>(b[0] | (b[1] << 8));
  }
  std::uint32_t U32(const char* what) {
    const auto b = Bytes(4, what);
    return static_cast<std::uint32_t>(b[0]) | (static_cast<std::uint32_t>(b[1]) << 8) |
           (static_cast<std::uint32_t>(b[2]) << 16) | (static_cast<std::uint32_t>(b[3]) << 24);
  }
  std::int32_t I32(const char* what) { return static_cast<std::int32_t>(U32(what)); }

 private:
  std::span<const std::uint8_t> data_;
  std::size_t position_ = 0;
};

}  // namespace glyphon
