// A two-dimensional byte array indexed from 1 in both dimensions, stored row after row in one
// block, so that its storage can be an exact image of a bitmap's bits (rows = scan lines,
// columns = bytes per scan line).
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace glyphon {

class ByteArray2D {
 public:
  ByteArray2D() = default;
  ByteArray2D(int rows, int columns) { Resize(rows, columns); }

  // New dimensions; the contents become zero. Negative sizes count as 0.
  void Resize(int rows, int columns) {
    rows_ = rows > 0 ? rows : 0;
    columns_ = columns > 0 ? columns : 0;
    bytes_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), 0);
  }

  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  std::size_t Size() const { return bytes_.size(); }

  // Element (row, column), both from 1.
  std::uint8_t& operator()(int row, int column) { return bytes_[Offset(row, column)]; }
  std::uint8_t operator()(int row, int column) const { return bytes_[Offset(row, column)]; }

  // The first element; the storage is contiguous.
  std::uint8_t* Data() { return bytes_.data(); }
  const std::uint8_t* Data() const { return bytes_.data(); }

 private:
  std::size_t Offset(int row, int column) const {
    return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column - 1);
  }

  int rows_ = 0;
  int columns_ = 0;
  std::vector<std::uint8_t> bytes_;
};

}  // namespace glyphon
