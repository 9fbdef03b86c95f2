#include "platform/codec/bmp_codec.h"

#include "platform/codec/byte_writer.h"
#include "platform/codec/dib_decoder.h"

namespace glyphon {

namespace {
constexpr std::uint16_t kSignature = 0x4D42;  // "BM"
constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
}  // namespace

Image DecodeBmp(std::span<const std::uint8_t> data) {
  ByteReader in(data);
  if (in.U16("file header") != kSignature) throw DecodeError("not a BMP file");
  in.Skip(8, "file header");  // file size and reserved words, which writers often get wrong
  const std::uint32_t bitsOffset = in.U32("file header");
  const DibLayout format = ReadDibLayout(in);
  if (bitsOffset < in.Position()) throw DecodeError("pixel data offset points into the header");
  if (bitsOffset > data.size()) throw DecodeError("pixel data offset lies beyond the data");
  return DecodeDibPixels(format, data.subspan(bitsOffset));
}

std::vector<std::uint8_t> EncodeBmp(const Image& image) {
  const std::uint32_t stride = (static_cast<std::uint32_t>(image.width) * 3 + 3) & ~3u;
  const std::uint32_t bitsSize = stride * static_cast<std::uint32_t>(image.height);
  ByteWriter out;
  out.U16(kSignature);
  out.U32(kFileHeaderSize + kInfoHeaderSize + bitsSize);
  out.U32(0);
  out.U32(kFileHeaderSize + kInfoHeaderSize);
  WriteInfoHeader(out, image.width, image.height, 24, bitsSize);
  for (int y = image.height - 1; y >= 0; --y) {
    for (int x = 0; x < image.width; ++x) {
      const std::uint8_t* p = image.Pixel(x, y);
      out.Bytes({p, 3});
    }
    out.Zeros(stride - static_cast<std::uint32_t>(image.width) * 3);
  }
  return out.Take();
}

}  // namespace glyphon
