// The host's font object as a portable value type: name, size in points, bold, italic, underline,
// strikethrough, weight and character set, and the logical font it stands for on a 96 pixels-per-
// inch device.
//
// As on the host's font object, Bold and Weight are two views of one value: Bold reads a weight
// above 550, and setting Bold sets the weight to 700 or 400. The size is held as the host holds
// it, a fixed-point number with four decimals (its currency type): a size set is rounded to the
// nearest ten-thousandth of a point, halves to even.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/win32.h"

namespace glyphon {

class StdFont {
 public:
  // A new font object: MS Sans Serif, 8.25 points, regular, ANSI character set.
  StdFont() = default;

  const std::string& Name() const { return name_; }
  void Name(std::string name) { name_ = std::move(name); }

  double Size() const { return static_cast<double>(size_) / kSizeScale; }
  void Size(double points);
  // The size in ten-thousandths of a point, exactly as stored.
  std::int64_t SizeTenThousandths() const { return size_; }

  bool Bold() const { return weight_ > kBoldAbove; }
  void Bold(bool bold) { weight_ = bold ? win::FW_BOLD : win::FW_NORMAL; }
  bool Italic() const { return italic_; }
  void Italic(bool italic) { italic_ = italic; }
  bool Underline() const { return underline_; }
  void Underline(bool underline) { underline_ = underline; }
  bool Strikethrough() const { return strikethrough_; }
  void Strikethrough(bool strikethrough) { strikethrough_ = strikethrough; }
  std::int16_t Weight() const { return weight_; }
  void Weight(std::int16_t weight) { weight_ = weight; }
  std::int16_t Charset() const { return charset_; }
  void Charset(std::int16_t charset) { charset_ = charset; }

  // The logical font that shows this font at 96 pixels per inch: the em height in pixels is the
  // size times 96 / 72, rounded up only when the fraction is above one half.
  win::LOGFONTA ToLogFont() const;
  // A font object made from ToLogFont(); the caller owns it and deletes it with DeleteObject.
  win::HFONT CreateHandle() const;

  friend bool operator==(const StdFont&, const StdFont&) = default;

 private:
  static constexpr double kSizeScale = 10000.0;
  static constexpr int kBoldAbove = 550;

  std::string name_ = "MS Sans Serif";
  std::int64_t size_ = 82500;
  std::int16_t weight_ = win::FW_NORMAL;
  std::int16_t charset_ = win::ANSI_CHARSET;
  bool italic_ = false;
  bool underline_ = false;
  bool strikethrough_ = false;
};

}  // namespace glyphon
