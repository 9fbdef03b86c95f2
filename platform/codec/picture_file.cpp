#include "platform/codec/picture_file.h"

#include <fstream>

#include "platform/codec/bmp_codec.h"
#include "platform/codec/image_limits.h"
#include "platform/codec/picture_objects.h"
#include "platform/codec/png_picture.h"

namespace glyphon {

namespace {

// No picture file within the limits comes near this; larger files are refused before reading.
constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{256} << 20;

bool IsBmp(std::span<const std::uint8_t> data) {
  return data.size() >= 2 && data[0] == 'B' && data[1] == 'M';
}

bool IsIco(std::span<const std::uint8_t> data) {
  return data.size() >= 4 && data[0] == 0 && data[1] == 0 && (data[2] == 1 || data[2] == 2) &&
         data[3] == 0;
}

StdPicture Decode(std::span<const std::uint8_t> data, const IconRequest& icon) {
  if (IsBmp(data)) return MakeBitmapPicture(DecodeBmp(data));
  if (IsIco(data)) return MakeIconPicture(DecodeIco(data, icon));
  if (HasPngSignature(data)) return MakeBitmapPicture(DecodePngPicture(data));
  throw DecodeError("not a BMP, ICO or PNG picture");
}

std::vector<std::uint8_t> Encode(const StdPicture& picture) {
  switch (picture.Type()) {
    case win::PICTYPE_NONE: return {};
    case win::PICTYPE_BITMAP: return EncodeBmp(ReadBitmapPixels(picture.Bitmap()));
    case win::PICTYPE_ICON: return EncodeIco(ReadIconPixels(picture.Icon()));
    default: throw DecodeError("metafile pictures cannot be saved");
  }
}

[[noreturn]] void Fail(const std::string& sourceName, const std::string& reason) {
  throw PictureError(sourceName + ": " + reason);
}

std::vector<std::uint8_t> EncodeOrFail(const StdPicture& picture, const std::string& targetName) {
  try {
    return Encode(picture);
  } catch (const DecodeError& e) {
    Fail(targetName, e.what());
  }
}

}  // namespace

StdPicture LoadPictureFile(const std::filesystem::path& path, const IconRequest& icon) {
  const std::string name = path.string();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) Fail(name, "cannot open the file (" + error.message() + ")");
  if (size > kMaxFileBytes) Fail(name, "file too large for a picture");
  std::ifstream file(path, std::ios::binary);
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  if (!file || !file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size))) {
    Fail(name, "cannot read the file");
  }
  if (bytes.empty()) Fail(name, "the file is empty");
  return LoadPictureData(bytes, name, icon);
}

StdPicture LoadPictureData(std::span<const std::uint8_t> data, const std::string& sourceName,
                           const IconRequest& icon) {
  if (data.empty()) return StdPicture::Empty();
  try {
    return Decode(data, icon);
  } catch (const DecodeError& e) {
    Fail(sourceName, e.what());
  } catch (const std::bad_alloc&) {
    Fail(sourceName, "out of memory");
  }
}

std::vector<std::uint8_t> SavePictureData(const StdPicture& picture) {
  return EncodeOrFail(picture, "picture");
}

void SavePictureFile(const StdPicture& picture, const std::filesystem::path& path) {
  const std::vector<std::uint8_t> bytes = EncodeOrFail(picture, path.string());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) Fail(path.string(), "cannot write the file");
}

}  // namespace glyphon
