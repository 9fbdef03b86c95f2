// Damaged and lying inputs: each must end in a PictureError that names the source and the
// fault, with nothing allocated beyond the limits and no platform object left behind.
#include <gtest/gtest.h>

#include <functional>

#include "platform/codec/picture_error.h"
#include "platform/codec/picture_file.h"
#include "tests/picture/picture_samples.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using win::BI_RLE8;

struct Damage {
  const char* name;
  std::function<Bytes()> make;
  const char* reason;  // part of the expected message
};

void PutU32(Bytes& bytes, std::size_t at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
}

Bytes Truncated(Bytes bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

DibSample Indexed8(int width, int height) {
  DibSample sample(width, height, 8);
  sample.colors.assign(256, 0x808080);
  sample.bits.assign(static_cast<std::size_t>((width + 3) / 4 * 4) * (height < 0 ? -height : height), 1);
  return sample;
}

Bytes Bmp8(int width, int height) { return Indexed8(width, height).BmpFile(); }

Bytes Rle8(Bytes stream, int height = 2) {
  DibSample sample(4, height, 8, BI_RLE8);
  sample.colors.assign(256, 0);
  sample.bits = std::move(stream);
  return sample.BmpFile();
}

// Offsets in a BMP with an info header: 14 file header bytes, then the header's fields.
constexpr std::size_t kBitsOffset = 10;
constexpr std::size_t kHeaderSize = 14;
constexpr std::size_t kWidth = 18;
constexpr std::size_t kHeight = 22;
constexpr std::size_t kColorsUsed = 46;

Bytes WithU32(Bytes bytes, std::size_t at, std::uint32_t value) {
  PutU32(bytes, at, value);
  return bytes;
}

Bytes Icon4x4() {
  return IcoFile({{4, 4, 32, IconDib(4, 4, 32, {}, std::vector<std::uint32_t>(16, 0xFF00FF00), std::vector<std::uint8_t>(16, 0))}});
}

// Offsets in an ICO with one entry: 6 directory bytes, then the entry, then the image.
constexpr std::size_t kEntrySize = 6 + 8;
constexpr std::size_t kEntryOffset = 6 + 12;
constexpr std::size_t kImageHeight = 22 + 8;

Bytes IcoWithPng(std::uint32_t width, std::uint32_t height) {
  Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (std::uint32_t v : {width, height}) {
    for (int shift = 24; shift >= 0; shift -= 8) png.push_back(static_cast<std::uint8_t>(v >> shift));
  }
  png.insert(png.end(), {8, 6, 0, 0, 0, 0, 0, 0, 0});  // depth, colour type, methods, bad CRC
  return png;
}

const Damage kDamages[] = {
    {"unknown format", [] { return Bytes{'h', 'e', 'l', 'l', 'o'}; }, "not a BMP, ICO or PNG"},
    {"lone signature", [] { return Bytes{'B', 'M'}; }, "file header ends early"},
    {"truncated header", [] { return Truncated(Bmp8(4, 4), 30); }, "bitmap header ends early"},
    {"unknown header size", [] { return WithU32(Bmp8(4, 4), kHeaderSize, 99); }, "header size 99"},
    {"zero width", [] { return WithU32(Bmp8(4, 4), kWidth, 0); }, "invalid size"},
    {"huge side", [] { return WithU32(Bmp8(4, 4), kWidth, 16385); }, "too large"},
    {"huge area", [] { return WithU32(WithU32(Bmp8(4, 4), kWidth, 16384), kHeight, 16384); }, "too large"},
    {"most negative height", [] { return WithU32(Bmp8(4, 4), kHeight, 0x80000000); }, "too large"},
    {"colour count beyond depth", [] { return WithU32(Bmp8(4, 4), kColorsUsed, 257); }, "colour table of 257"},
    {"truncated colour table", [] { return Truncated(Bmp8(4, 4), 14 + 40 + 100); }, "colour table ends early"},
    {"offset beyond data", [] { return WithU32(Bmp8(4, 4), kBitsOffset, 100000); }, "beyond the data"},
    {"offset into header", [] { return WithU32(Bmp8(4, 4), kBitsOffset, 20); }, "into the header"},
    {"truncated pixels", [] { Bytes b = Bmp8(4, 4); return Truncated(b, b.size() - 1); }, "pixel data ends early"},
    {"unsupported depth",
     [] { DibSample s(1, 1, 7); s.bits = {0, 0, 0, 0}; return s.BmpFile(); }, "unsupported bitmap format"},
    {"RLE8 at 4 bits",
     [] { DibSample s(1, 1, 4, BI_RLE8); s.colors.assign(16, 0); s.bits = {0, 1}; return s.BmpFile(); },
     "unsupported bitmap format"},
    {"RLE run past the row", [] { return Rle8({5, 1, 0, 1}); }, "passes the edge"},
    {"RLE absolute run past the row", [] { return Rle8({0, 5, 1, 2, 3, 4, 5, 0, 0, 1}); }, "passes the edge"},
    {"RLE run above the top", [] { return Rle8({0, 0, 0, 0, 1, 1, 0, 1}); }, "passes the edge"},
    {"RLE line past the top", [] { return Rle8({0, 0, 0, 0, 0, 0, 0, 1}); }, "past the last row"},
    {"RLE delta outside", [] { return Rle8({0, 2, 5, 0, 0, 1}); }, "delta moves outside"},
    {"RLE without end", [] { return Rle8({2, 1, 2, 1}); }, "RLE data ends early"},
    {"RLE top-down", [] { return Rle8({0, 1}, -2); }, "cannot be top-down"},
    {"icon without images", [] { return Bytes{0, 0, 1, 0, 0, 0}; }, "holds no images"},
    {"truncated icon directory", [] { return Truncated(Icon4x4(), 6 + 10); }, "icon directory ends early"},
    {"icon image beyond data", [] { return WithU32(Icon4x4(), kEntryOffset, 5000); }, "lies beyond the data"},
    {"icon image size beyond data", [] { return WithU32(Icon4x4(), kEntrySize, 0xFFFFFFF0); }, "lies beyond the data"},
    {"icon with odd height", [] { return WithU32(Icon4x4(), kImageHeight, 7); }, "colours and a mask"},
    {"icon without its mask",
     [] {
       Bytes b = Icon4x4();
       const Bytes cut = Truncated(b, b.size() - 4);
       return WithU32(cut, kEntrySize, static_cast<std::uint32_t>(cut.size() - 22));
     },
     "icon mask ends early"},
    {"compressed icon",
     [] {
       DibSample s(2, 4, 8, BI_RLE8);
       s.colors.assign(256, 0);
       s.bits = {0, 1};
       return IcoFile({{2, 2, 8, s.Dib()}});
     },
     "cannot be compressed"},
    {"icon PNG of huge size", [] { return IcoFile({{0, 0, 32, IcoWithPng(100000, 1)}}); }, "too large"},
    {"icon PNG damaged", [] { return IcoFile({{1, 1, 32, IcoWithPng(1, 1)}}); }, "PNG"},
    {"PNG of huge area", [] { return IcoWithPng(16384, 16384); }, "too large"},
    {"PNG without header", [] { return Truncated(IcoWithPng(1, 1), 12); }, "PNG header ends early"},
};

void PrintTo(const Damage& damage, std::ostream* out) { *out << damage.name; }

class DamagedPicture : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedPicture, FailsWithAnErrorNamingTheSource) {
  LeakCheck leaks;
  const Bytes bytes = GetParam().make();
  try {
    LoadPictureData(bytes, "sample.pic");
    FAIL() << "no error";
  } catch (const PictureError& e) {
    const std::string message = e.what();
    EXPECT_EQ(message.rfind("sample.pic: ", 0), 0u) << message;
    EXPECT_NE(message.find(GetParam().reason), std::string::npos) << message;
  }
}

INSTANTIATE_TEST_SUITE_P(Inputs, DamagedPicture, ::testing::ValuesIn(kDamages),
                         [](const ::testing::TestParamInfo<Damage>& param) {
                           std::string name = param.param.name;
                           for (char& c : name) {
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace glyphon::testing
