#include "control/access_key.h"

#include <limits>

namespace glyphon {

AccessKeyParse ParseAccessKey(std::string_view caption) {
  AccessKeyParse result{std::string(caption), 0, std::nullopt};
  const std::size_t amp = caption.find('&');
  if (amp == std::string_view::npos) return result;

  // The position is a 16-bit field; a caption longer than that keeps its key but not the index.
  const std::size_t position = amp + 1;
  result.position = position <= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())
                        ? static_cast<std::int16_t>(position)
                        : std::int16_t{0};
  result.displayCaption = std::string(caption.substr(0, amp)) + std::string(caption.substr(amp + 1));
  result.keys = std::string(caption.substr(amp + 1, 1));
  return result;
}

}  // namespace glyphon
