#include "platform/codec/png_codec.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <new>

namespace glyphon {

namespace {

// Largest ancillary chunk libpng may buffer (profiles, compressed text) while decoding.
constexpr png_alloc_size_t kMaxChunkBytes = png_alloc_size_t{8} << 20;

bool AcceptableSize(std::uint64_t width, std::uint64_t height) {
  return width > 0 && height > 0 && width <= Image::kMaxSide && height <= Image::kMaxSide &&
         width * height * 4 <= Image::kMaxBytes;
}

void SetError(std::string* error, std::string message) {
  if (error != nullptr) *error = std::move(message);
}

// Everything libpng's callbacks touch. It lives in the caller's frame, outside the setjmp
// functions, so that libpng's longjmp on errors never skips a destructor.
struct Session {
  std::span<const std::uint8_t> input;
  std::size_t offset = 0;
  std::vector<std::uint8_t>* output = nullptr;
  std::vector<png_bytep> rows;
  char message[160] = "";
};

Session& SessionOf(png_structp png) {
  return *static_cast<Session*>(png_get_error_ptr(png));
}

[[noreturn]] void OnError(png_structp png, png_const_charp message) {
  Session& session = SessionOf(png);
  std::snprintf(session.message, sizeof session.message, "%s", message);
  png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

void ReadBytes(png_structp png, png_bytep out, png_size_t count) {
  Session& session = SessionOf(png);
  if (count > session.input.size() - session.offset) png_error(png, "unexpected end of data");
  std::memcpy(out, session.input.data() + session.offset, count);
  session.offset += count;
}

void WriteBytes(png_structp png, png_bytep data, png_size_t count) {
  Session& session = SessionOf(png);
  bool outOfMemory = false;
  try {
    session.output->insert(session.output->end(), data, data + count);
  } catch (const std::bad_alloc&) {
    outOfMemory = true;
  }
  if (outOfMemory) png_error(png, "out of memory");
}

void FlushBytes(png_structp) {}

struct ReadHandles {
  png_structp png = nullptr;
  png_infop info = nullptr;
  ~ReadHandles() { png_destroy_read_struct(&png, &info, nullptr); }
};

struct WriteHandles {
  png_structp png = nullptr;
  png_infop info = nullptr;
  ~WriteHandles() { png_destroy_write_struct(&png, &info); }
};

// Returns false after a libpng error; the message is in the session.
bool DecodeInto(png_structp png, png_infop info, Session& session, Image& image) {
  if (setjmp(png_jmpbuf(png))) return false;
  png_set_user_limits(png, Image::kMaxSide, Image::kMaxSide);
  png_set_chunk_malloc_max(png, kMaxChunkBytes);
  png_set_read_fn(png, &session, ReadBytes);
  png_read_info(png, info);
  const png_uint_32 width = png_get_image_width(png, info);
  const png_uint_32 height = png_get_image_height(png, info);
  if (!AcceptableSize(width, height)) png_error(png, "image too large");
  // Whatever the stored format, deliver 8-bit blue, green, red, alpha.
  png_set_expand(png);
  png_set_strip_16(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
  png_set_bgr(png);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
  if (png_get_rowbytes(png, info) != std::size_t{width} * 4)
    png_error(png, "unexpected row layout");
  image.width = static_cast<int>(width);
  image.height = static_cast<int>(height);
  image.bgra.assign(std::size_t{width} * height * 4, 0);
  session.rows.resize(height);
  for (png_uint_32 y = 0; y < height; ++y) session.rows[y] = image.Pixel(0, static_cast<int>(y));
  png_read_image(png, session.rows.data());
  return true;
}

bool EncodeInto(png_structp png, png_infop info, Session& session, const Image& image) {
  if (setjmp(png_jmpbuf(png))) return false;
  png_set_write_fn(png, &session, WriteBytes, FlushBytes);
  png_set_IHDR(png, info, static_cast<png_uint_32>(image.width),
               static_cast<png_uint_32>(image.height), 8, PNG_COLOR_TYPE_RGB_ALPHA,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  png_set_bgr(png);
  png_write_image(png, session.rows.data());
  png_write_end(png, nullptr);
  return true;
}

}  // namespace

Image Image::Blank(int width, int height) {
  if (width < 0 || height < 0 || !AcceptableSize(width, height)) return {};
  Image image;
  image.width = width;
  image.height = height;
  image.bgra.assign(static_cast<std::size_t>(width) * height * 4, 0);
  return image;
}

std::optional<Image> DecodePng(std::span<const std::uint8_t> data, std::string* error) {
  if (data.size() < 8 || png_sig_cmp(data.data(), 0, 8) != 0) {
    SetError(error, "not a PNG file");
    return std::nullopt;
  }
  Session session;
  session.input = data;
  ReadHandles handles;
  handles.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &session, OnError, OnWarning);
  if (handles.png != nullptr) handles.info = png_create_info_struct(handles.png);
  if (handles.info == nullptr) {
    SetError(error, "out of memory");
    return std::nullopt;
  }
  Image image;
  try {
    if (!DecodeInto(handles.png, handles.info, session, image)) {
      SetError(error, std::string("bad PNG data: ") + session.message);
      return std::nullopt;
    }
  } catch (const std::bad_alloc&) {
    SetError(error, "out of memory");
    return std::nullopt;
  }
  return image;
}

std::optional<Image> ReadPngFile(const std::filesystem::path& path, std::string* error) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  if (!file) {
    SetError(error, "cannot open " + path.string());
    return std::nullopt;
  }
  const std::streamoff size = file.tellg();
  // A PNG never needs to be larger than its pixels plus some slack for chunk overhead.
  if (size < 0 || static_cast<std::uint64_t>(size) > Image::kMaxBytes) {
    SetError(error, "file too large: " + path.string());
    return std::nullopt;
  }
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  file.seekg(0);
  // The bound above keeps the size within a 32-bit stream count too.
  if (!file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size))) {
    SetError(error, "cannot read " + path.string());
    return std::nullopt;
  }
  std::string message;
  std::optional<Image> image = DecodePng(bytes, &message);
  if (!image) SetError(error, path.string() + ": " + message);
  return image;
}

std::optional<std::vector<std::uint8_t>> EncodePng(const Image& image, std::string* error) {
  if (image.Empty() || !AcceptableSize(image.width, image.height) ||
      image.bgra.size() != static_cast<std::size_t>(image.width) * image.height * 4) {
    SetError(error, "image size and pixel buffer disagree or are out of range");
    return std::nullopt;
  }
  std::vector<std::uint8_t> bytes;
  Session session;
  session.output = &bytes;
  WriteHandles handles;
  handles.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &session, OnError, OnWarning);
  if (handles.png != nullptr) handles.info = png_create_info_struct(handles.png);
  if (handles.info == nullptr) {
    SetError(error, "out of memory");
    return std::nullopt;
  }
  try {
    session.rows.resize(static_cast<std::size_t>(image.height));
    for (int y = 0; y < image.height; ++y) {
      // libpng transforms a copy of each row, never the caller's pixels.
      session.rows[static_cast<std::size_t>(y)] = const_cast<png_bytep>(image.Pixel(0, y));
    }
    if (!EncodeInto(handles.png, handles.info, session, image)) {
      SetError(error, std::string("PNG encoding failed: ") + session.message);
      return std::nullopt;
    }
  } catch (const std::bad_alloc&) {
    SetError(error, "out of memory");
    return std::nullopt;
  }
  return bytes;
}

bool WritePngFile(const Image& image, const std::filesystem::path& path, std::string* error) {
  std::optional<std::vector<std::uint8_t>> bytes = EncodePng(image, error);
  if (!bytes) return false;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes->data()),
             static_cast<std::streamsize>(bytes->size()));
  file.close();
  if (!file) {
    SetError(error, "cannot write " + path.string());
    return false;
  }
  return true;
}

}  // namespace glyphon
