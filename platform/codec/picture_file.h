// Pictures from BMP, ICO (or CUR) and PNG data, and pictures back to bytes.
//
// BMP and PNG give bitmap pictures and ICO gives icon pictures (see picture_objects.h for what
// they are made of). PNG alpha is dropped: bitmap pictures are opaque, and a button makes parts
// of them transparent with its mask colour. Data that is not one of these formats, is
// truncated, or lies about its sizes throws a PictureError whose message starts with the name
// of the file or data, never crashes and never allocates more than the picture size limits
// allow (image_limits.h).
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "platform/codec/ico_codec.h"
#include "platform/ole/std_picture.h"

namespace glyphon {

StdPicture LoadPictureFile(const std::filesystem::path& path, const IconRequest& icon = {});

// sourceName names the data in error messages. No bytes at all give an empty picture, the
// counterpart of saving one.
StdPicture LoadPictureData(std::span<const std::uint8_t> data,
                           const std::string& sourceName = "picture data",
                           const IconRequest& icon = {});

// A bitmap picture as a 24-bit BMP, an icon picture as an ICO with one 32-bit image; no object
// and the empty picture as no bytes. Loading the bytes gives the same pixels back. Metafiles and
// pictures whose handle is no longer valid throw a PictureError.
std::vector<std::uint8_t> SavePictureData(const StdPicture& picture);
void SavePictureFile(const StdPicture& picture, const std::filesystem::path& path);

}  // namespace glyphon
