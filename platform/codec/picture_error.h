// The error every picture reader and writer throws: a file or data that is not a picture it can
// handle, or that is damaged. The message names the source.
#pragma once

#include <stdexcept>
#include <string>

namespace glyphon {

class PictureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What the format decoders throw: the reason only. The public readers add the source's name and
// turn it into a PictureError.
class DecodeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace glyphon
